#include "foundation/DbError.h"

#include "foundation/Language.h"

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

DbError& DbError::explain(const QString& thai, const QString& english)
{
    m_userThai = thai;
    m_userEnglish = english;
    return *this;
}

QString DbError::userText(int languageId) const
{
    if (!m_userThai.isEmpty())
        return inLanguage(languageId, m_userThai, m_userEnglish);
    switch (m_kind) {
    case Kind::Engine:
        return inLanguage(languageId, "ฐานข้อมูลไม่รับคำสั่งนี้", "The database refused the operation");
    case Kind::Connection:
        return inLanguage(languageId, "ติดต่อฐานข้อมูลไม่ได้", "The database cannot be reached");
    case Kind::Refused:
        return inLanguage(languageId, "ค่าที่ระบุใช้ไม่ได้", "A value given cannot be used");
    case Kind::Conflict:
        return inLanguage(languageId, "ผู้ใช้อื่นแก้ไขหรือลบรายการนี้ไปแล้ว", "Another user changed or deleted this entry");
    case Kind::Usage:
        return inLanguage(languageId, "โปรแกรมใช้ฐานข้อมูลไม่ถูกต้อง", "The program used the database wrongly");
    case Kind::Locked:
        return inLanguage(languageId, "โปรแกรมหรือผู้ใช้อื่นกำลังบันทึกข้อมูลอยู่ กรุณาลองใหม่อีกครั้ง",
            "Another program or user is writing to the database; try again");
    case Kind::ReadOnly:
        return inLanguage(languageId, "ฐานข้อมูลนี้เปิดได้เพื่อดูเท่านั้น บันทึกไม่ได้", "This database is open for viewing only and cannot be changed");
    }
    return m_message;
}

QString DbError::detail(int languageId) const
{
    return m_message == userText(languageId) ? QString() : m_message;
}

QString DbError::report(int languageId, const QString& separator) const
{
    const QString more = detail(languageId);
    return more.isEmpty() ? userText(languageId) : userText(languageId) + separator + more;
}

} // namespace qd8
