#include "foundation/DbError.h"

namespace qd8 {

static std::string describe(const QString& message, const QString& statement)
{
    if (statement.isEmpty())
        return message.toStdString();
    return (message + QStringLiteral("\nStatement: ") + statement).toStdString();
}

DbError::DbError(Kind kind, const QString& message, const QString& statement)
    : std::runtime_error(describe(message, statement))
    , m_kind(kind)
    , m_message(message)
    , m_statement(statement)
{
}

} // namespace qd8
