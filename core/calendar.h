// The proleptic Gregorian calendar, and the date text dd/mm/yyyy in which every date is shown.
#pragma once

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace navarun {

/// A day serial of the proleptic Gregorian calendar.
using Date = std::chrono::sys_days;
/// The same day in its three parts: quicker for a row of dates that are only written.
using YearMonthDay = std::chrono::year_month_day;

/// The day of `day`/`month`/`year`; a day beyond the end of its month is the month's last.
/// No date where month is outside 1..12, day outside 1..31 or year outside 1..9999.
std::optional<Date> date_of(int day, int month, int year);

/// Reads a date text: day, month and year by the strokes, whatever the locale. Blanks round a
/// stroke are skipped; the year is the number written. Anything else is no date.
std::optional<Date> read_date(std::string_view text);
/// The date text: two, two and four digits. REQUIRES a year of 0 or later; of a year beyond
/// 9999 the last four digits are written.
std::string write_date(Date date);
std::string write_date(YearMonthDay date);

int year_of(Date date);
/// 1..12
int month_of(Date date);
/// 1..31
int day_of(Date date);
/// 1 for Sunday to 7 for Saturday.
int weekday_of(Date date);

/// A day of a month, or where the month is shorter its last.
constexpr YearMonthDay clipped(std::chrono::year_month in_month, std::chrono::day wanted) {
    // A day that every month has.
    if (wanted <= std::chrono::day{28}) return in_month / wanted;
    auto const last = in_month / std::chrono::last;
    return in_month / std::min(wanted, last.day());
}

/// The calendar addition: the day of the month stays, clipped to the last day of the target
/// month (29/02/1952 plus one year is 28/02/1953).
Date add_months(Date date, int months);
constexpr YearMonthDay add_months(YearMonthDay date, int months) {
    return clipped(date.year() / date.month() + std::chrono::months{months}, date.day());
}
Date add_years(Date date, int years);
YearMonthDay add_years(YearMonthDay date, int years);
/// Whole days from `from` to `to`; negative where `to` lies before.
int days_between(Date from, Date to);

/// Whether `year` is leap in the Gregorian calendar.
constexpr bool Bissextile_G(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

/// Days of a month: 31 for every number that is no shorter month, also outside 1..12.
constexpr int NbrJours(int month, int year) {
    switch (month) {
        case 2:
            return Bissextile_G(year) ? 29 : 28;
        case 4:
        case 6:
        case 9:
        case 11:
            return 30;
        default:
            return 31;
    }
}

/// Whether a date text begins with 29/02: the birthday that most years do not have.
bool is_leap_day(std::string_view date_text);

/// The day under which a person born on 29 February reads the date of a month: the 29th, but
/// `day` in the February of a common year.
constexpr int fevrier29(int day, int month, int year) {
    return month != 2 || Bissextile_G(year) ? 29 : day;
}

}  // namespace navarun
