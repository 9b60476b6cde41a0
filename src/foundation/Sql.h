#pragma once

#include <QString>

class QDate;
class QDateTime;

namespace qd8 {

// A statement composed by concatenation, keeping the system's exact text. Metadata
// fragments (a form's WHERE, a list's query) are appended as they stand; text values go
// through quoted(), which writes exactly "'" + value + "'" with no doubling. A value that
// holds a quote cannot be written that way, so the statement is marked broken and the data
// layer refuses to run it (DbError, kind Refused): the query fails as the suite expects, and
// the value never reaches the database as SQL. A value for a number position goes through
// number(), which takes only a plain decimal number ("12", "-3.50"): anything else would be
// SQL of its own ("0 OR 1=1") and breaks the statement the same way.
class Sql {
public:
    // Why a statement is broken.
    enum class Flaw { None, QuoteInText, NotANumber };

    Sql() = default;
    Sql(const QString& text) : m_text(text) {}
    Sql(const char* text) : m_text(QString::fromUtf8(text)) {}

    static Sql quoted(const QString& value);
    static Sql number(const QString& value);

    const QString& text() const { return m_text; }
    bool isBroken() const { return m_flaw != Flaw::None; }
    Flaw flaw() const { return m_flaw; }
    // The first value that broke the statement.
    const QString& brokenValue() const { return m_brokenValue; }

    Sql& operator+=(const Sql& other);
    Sql& operator+=(const QString& fragment) { m_text += fragment; return *this; }
    Sql& operator+=(const char* fragment) { m_text += QString::fromUtf8(fragment); return *this; }
    Sql& operator+=(qint64 number) { m_text += QString::number(number); return *this; }
    Sql& operator+=(int number) { m_text += QString::number(number); return *this; }

    friend Sql operator+(Sql left, const Sql& right) { return left += right; }
    friend Sql operator+(Sql left, const QString& right) { return left += right; }
    friend Sql operator+(Sql left, const char* right) { return left += right; }
    friend Sql operator+(Sql left, qint64 number) { return left += number; }
    friend Sql operator+(Sql left, int number) { return left += number; }
    friend Sql operator+(const QString& left, const Sql& right) { return Sql(left) += right; }
    friend Sql operator+(const char* left, const Sql& right) { return Sql(left) += right; }

private:
    void breakBy(Flaw flaw, const QString& value);

    QString m_text;
    QString m_brokenValue;
    Flaw m_flaw = Flaw::None;
};

inline Sql quoted(const QString& value) { return Sql::quoted(value); }
inline Sql number(const QString& value) { return Sql::number(value); }

// A date for composed SQL: "#$2026-01-31#$"; the connection turns it into the engine's
// date literal just before running.
QString dateMarker(const QDate& date);
QString dateTimeMarker(const QDateTime& dateTime);

} // namespace qd8
