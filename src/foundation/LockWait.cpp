#include "foundation/LockWait_p.h"

#include "foundation/Language.h"
#include "foundation/Services.h"

#include <QRegularExpression>

namespace qd8 {

LockWait::LockWait(const QString& statement, const QString& database)
    : m_who(OperationName::current())
{
    // The table the statement writes or reads; a transaction's start waits for the database.
    static const QRegularExpression table(QStringLiteral(R"(\b(?:UPDATE|INTO|FROM)\s+([A-Za-z_][A-Za-z0-9_]*))"),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = table.match(statement);
    m_what = match.hasMatch() ? match.captured(1) : database;
    m_since.start();
}

LockWait::~LockWait()
{
    if (m_shown)
        Services::progress().end();
}

QString LockWait::text(int languageId) const
{
    const QString who = m_who.isEmpty() ? inLanguage(languageId, "คำสั่งนี้", "This operation") : m_who;
    return inLanguage(languageId, "%1 กำลังรอ %2 ซึ่งผู้ใช้หรือโปรแกรมอื่นกำลังบันทึกอยู่", "%1 is waiting for %2, which another user or program is writing")
        .arg(who, m_what);
}

bool LockWait::waiting()
{
    if (m_cancelled)
        return false;
    const qint64 waited = m_since.elapsed();
    if (waited < ShowAfterMs)
        return true;
    if (!m_shown) {
        const int language = Services::messages().language();
        Services::progress().begin(inLanguage(language, "รอผู้ใช้อื่น", "Waiting for another user"), text(language), 0);
        m_shown = true;
    }
    m_cancelled = !Services::progress().step(waited);
    return !m_cancelled;
}

DbError LockWait::cancelledError(const QString& sql) const
{
    return DbError(DbError::Kind::Locked, QStringLiteral("The wait for %1 was cancelled by the user").arg(m_what), sql)
        .explain(QStringLiteral("ยกเลิกการรอ %1 แล้ว ไม่ได้บันทึกสิ่งใด").arg(m_what),
            QStringLiteral("The wait for %1 was cancelled; nothing was saved").arg(m_what));
}

} // namespace qd8
