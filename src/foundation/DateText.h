#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>
#include <optional>

namespace qd8 {

// Every date the product shows or accepts goes through here. Stored values stay
// Gregorian (QDate, ISO text in the databases); what a person sees is dd/MM/yyyy in the
// era of the user: Buddhist (2569) for Thai users, Gregorian (2026) for English ones,
// unless the user's "DateEra" setting chooses otherwise. The calendars are ICU's
// (th_TH@calendar=buddhist), since Qt has no Buddhist calendar.

enum class DateEra { Buddhist, Gregorian };

// How one user sees dates: the language of month names and the era of years.
struct DateLook {
    int languageId = 0;
    DateEra era = DateEra::Buddhist;

    // The language's own era: Buddhist in Thai (LanguageID 0), Gregorian otherwise. A
    // "DateEra" setting of 1 chooses the Buddhist era and 2 the Gregorian one whatever the
    // language; anything else keeps the language's.
    static DateLook forLanguage(int languageId, const QString& eraSetting = {});
    bool operator==(const DateLook&) const = default;
};

// The year as the era counts it.
int shownYear(int gregorianYear, DateEra era);

// dd/MM/yyyy and dd/MM/yyyy HH:mm; "" for an invalid value.
QString dateText(QDate date, DateEra era);
QString dateTimeText(const QDateTime& dateTime, DateEra era);

// A date as typed: dd/MM/yyyy or d/M/yyyy (also with "." or "-"), ddMMyyyy, yyyy-MM-dd,
// or any of them with a two-digit year. A four-digit year from 2400 on is Buddhist, below
// it Gregorian, whatever the era shown. A two-digit year is read in the era shown, as
// the year with those last digits from 50 years before `today` to 49 after it. Nothing for
// anything else, including days a calendar does not have (29/02/2566).
std::optional<QDate> parseDate(QStringView text, DateEra era, QDate today = QDate::currentDate());
// A date as above, then optionally a blank (or "T") and a time (HH:mm, HH:mm:ss, HHmm);
// no time means midnight.
std::optional<QDateTime> parseDateTime(QStringView text, DateEra era, QDate today = QDate::currentDate());
// HH:mm, H:mm, HH:mm:ss (":" or ".") or HHmm.
std::optional<QTime> parseTime(QStringView text);

// Month names from the calendar's own locale data; month 1 is January. "" out of range.
QString monthName(int month, int languageId);
QString shortMonthName(int month, int languageId);
// "มีนาคม 2569" or "March 2026".
QString monthYearText(int month, int gregorianYear, const DateLook& look);

// "วว/ดด/ปปปป" or "dd/mm/yyyy": how a date is typed, for hints and messages.
QString datePattern(int languageId);
// "วว/ดด/ปปปป ชช:นน" or "dd/mm/yyyy hh:mm".
QString dateTimePattern(int languageId);

} // namespace qd8
