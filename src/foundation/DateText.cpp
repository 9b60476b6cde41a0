#include "foundation/DateText.h"

#include "foundation/Language.h"

#include <QRegularExpression>
#include <QStringList>

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/gregocal.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <array>
#include <memory>

namespace qd8 {

namespace {

constexpr int BuddhistYearsFrom = 2400;  // a typed four-digit year from here on is Buddhist
constexpr qint64 UnixEpochJulianDay = 2440588;
constexpr double MillisecondsPerDay = 86400000.0;

// ICU calendars are not thread-safe; each thread keeps its own pair. Both are proleptic
// Gregorian (no Julian switch in 1582) and strict, so a day the calendar lacks is refused.
icu::Calendar& calendar(DateEra era)
{
    thread_local std::array<std::unique_ptr<icu::Calendar>, 2> calendars;
    auto& slot = calendars[era == DateEra::Buddhist ? 0 : 1];
    if (!slot) {
        UErrorCode status = U_ZERO_ERROR;
        const icu::Locale locale(era == DateEra::Buddhist ? "th_TH@calendar=buddhist" : "en_US@calendar=gregorian");
        slot.reset(icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), locale, status));
        if (U_FAILURE(status) || !slot)
            qFatal("ICU has no %s calendar: %s", locale.getName(), u_errorName(status));
        if (auto* gregorian = dynamic_cast<icu::GregorianCalendar*>(slot.get()))
            gregorian->setGregorianChange(U_DATE_MIN, status);
        slot->setLenient(false);
    }
    return *slot;
}

struct Fields {
    int year = 0;
    int month = 0;
    int day = 0;
};

std::optional<Fields> fieldsOf(QDate date, DateEra era)
{
    if (!date.isValid())
        return std::nullopt;
    icu::Calendar& cal = calendar(era);
    UErrorCode status = U_ZERO_ERROR;
    cal.setTime(double(date.toJulianDay() - UnixEpochJulianDay) * MillisecondsPerDay, status);
    Fields f{cal.get(UCAL_YEAR, status), cal.get(UCAL_MONTH, status) + 1, cal.get(UCAL_DATE, status)};
    if (U_FAILURE(status))
        return std::nullopt;
    return f;
}

std::optional<QDate> dateOf(const Fields& f, DateEra era)
{
    icu::Calendar& cal = calendar(era);
    cal.clear();
    cal.set(f.year, f.month - 1, f.day);
    UErrorCode status = U_ZERO_ERROR;
    const int julianDay = cal.get(UCAL_JULIAN_DAY, status);
    if (U_FAILURE(status))
        return std::nullopt;
    return QDate::fromJulianDay(julianDay);
}

// Thai digits (and any other decimal digits) read as ASCII ones.
QString asciiDigits(QStringView text)
{
    QString t = text.trimmed().toString();
    for (QChar& c : t) {
        if (c.unicode() > 127 && c.digitValue() >= 0)
            c = QChar(u'0' + c.digitValue());
    }
    return t;
}

// A typed year: two digits in the era shown, near today; four digits by their own era.
std::pair<int, DateEra> typedYear(const QString& digits, DateEra shown, QDate today)
{
    const int year = digits.toInt();
    if (digits.size() == 2) {
        const int first = shownYear(today.year(), shown) - 50;
        return {first + ((year - first) % 100 + 100) % 100, shown};
    }
    return {year, year >= BuddhistYearsFrom ? DateEra::Buddhist : DateEra::Gregorian};
}

QString fromIcu(const icu::UnicodeString& s)
{
    return QString(reinterpret_cast<const QChar*>(s.getBuffer()), s.length());
}

// Full or short month names of Thai (index 0) and English (index 1).
QStringList monthNames(int languageId, icu::DateFormatSymbols::DtWidthType width)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(icu::Locale(isThai(languageId) ? "th_TH" : "en_US"), status);
    int32_t count = 0;
    const icu::UnicodeString* names = symbols.getMonths(count, icu::DateFormatSymbols::STANDALONE, width);
    QStringList result;
    for (int32_t i = 0; U_SUCCESS(status) && i < count && i < 12; ++i)
        result << fromIcu(names[i]);
    return result;
}

QString nameOf(int month, int languageId, icu::DateFormatSymbols::DtWidthType width)
{
    static const std::array<QStringList, 4> names{
        monthNames(0, icu::DateFormatSymbols::WIDE), monthNames(1, icu::DateFormatSymbols::WIDE),
        monthNames(0, icu::DateFormatSymbols::ABBREVIATED), monthNames(1, icu::DateFormatSymbols::ABBREVIATED)};
    const QStringList& list = names[(width == icu::DateFormatSymbols::WIDE ? 0 : 2) + (isThai(languageId) ? 0 : 1)];
    return month >= 1 && month <= list.size() ? list[month - 1] : QString();
}

} // namespace

DateLook DateLook::forLanguage(int languageId, const QString& eraSetting)
{
    const int chosen = eraSetting.trimmed().toInt();
    const DateEra era = chosen == 1 ? DateEra::Buddhist
        : chosen == 2             ? DateEra::Gregorian
        : isThai(languageId)      ? DateEra::Buddhist
                                  : DateEra::Gregorian;
    return {languageId, era};
}

int shownYear(int gregorianYear, DateEra era)
{
    if (era == DateEra::Gregorian)
        return gregorianYear;
    const auto f = fieldsOf(QDate(gregorianYear, 6, 1), era);
    return f ? f->year : gregorianYear;
}

QString dateText(QDate date, DateEra era)
{
    const auto f = fieldsOf(date, era);
    if (!f)
        return {};
    return QStringLiteral("%1/%2/%3")
        .arg(f->day, 2, 10, QLatin1Char('0'))
        .arg(f->month, 2, 10, QLatin1Char('0'))
        .arg(f->year, 4, 10, QLatin1Char('0'));
}

QString dateTimeText(const QDateTime& dateTime, DateEra era)
{
    if (!dateTime.isValid())
        return {};
    return dateText(dateTime.date(), era) + u' ' + dateTime.time().toString(QStringLiteral("HH:mm"));
}

std::optional<QDate> parseDate(QStringView text, DateEra era, QDate today)
{
    static const QRegularExpression iso(QStringLiteral("^(\\d{4})-(\\d{1,2})-(\\d{1,2})$"));
    static const QRegularExpression dmy(QStringLiteral("^(\\d{1,2})([/.-])(\\d{1,2})\\2(\\d{4}|\\d{2})$"));
    static const QRegularExpression packed(QStringLiteral("^(\\d{2})(\\d{2})(\\d{4}|\\d{2})$"));
    const QString t = asciiDigits(text);
    QString day, month, year;
    if (auto m = iso.match(t); m.hasMatch()) {
        year = m.captured(1), month = m.captured(2), day = m.captured(3);
    } else if (m = dmy.match(t); m.hasMatch()) {
        day = m.captured(1), month = m.captured(3), year = m.captured(4);
    } else if (m = packed.match(t); m.hasMatch()) {
        day = m.captured(1), month = m.captured(2), year = m.captured(3);
    } else {
        return std::nullopt;
    }
    const auto [y, yearEra] = typedYear(year, era, today);
    return dateOf({y, month.toInt(), day.toInt()}, yearEra);
}

std::optional<QTime> parseTime(QStringView text)
{
    static const QRegularExpression separated(QStringLiteral("^(\\d{1,2})[:.](\\d{2})(?:[:.](\\d{2})(?:[.,]\\d+)?)?$"));
    static const QRegularExpression packed(QStringLiteral("^(\\d{2})(\\d{2})$"));
    const QString t = asciiDigits(text);
    QRegularExpressionMatch m = separated.match(t);
    if (!m.hasMatch())
        m = packed.match(t);
    if (!m.hasMatch())
        return std::nullopt;
    const QTime time(m.captured(1).toInt(), m.captured(2).toInt(), m.lastCapturedIndex() >= 3 ? m.captured(3).toInt() : 0);
    if (!time.isValid())
        return std::nullopt;
    return time;
}

std::optional<QDateTime> parseDateTime(QStringView text, DateEra era, QDate today)
{
    const QString t = text.trimmed().toString();
    qsizetype split = t.indexOf(u' ');
    if (split < 0)
        split = t.indexOf(u'T');
    const auto date = parseDate(split < 0 ? QStringView(t) : QStringView(t).left(split), era, today);
    if (!date)
        return std::nullopt;
    QTime time(0, 0);
    if (split >= 0) {
        const auto parsed = parseTime(QStringView(t).mid(split + 1));
        if (!parsed)
            return std::nullopt;
        time = *parsed;
    }
    return QDateTime(*date, time);
}

QString monthName(int month, int languageId)
{
    return nameOf(month, languageId, icu::DateFormatSymbols::WIDE);
}

QString shortMonthName(int month, int languageId)
{
    return nameOf(month, languageId, icu::DateFormatSymbols::ABBREVIATED);
}

QString monthYearText(int month, int gregorianYear, const DateLook& look)
{
    return monthName(month, look.languageId) + u' ' + QString::number(shownYear(gregorianYear, look.era));
}

QString datePattern(int languageId)
{
    return inLanguage(languageId, "วว/ดด/ปปปป", "dd/mm/yyyy");
}

QString dateTimePattern(int languageId)
{
    return inLanguage(languageId, "วว/ดด/ปปปป ชช:นน", "dd/mm/yyyy hh:mm");
}

} // namespace qd8
