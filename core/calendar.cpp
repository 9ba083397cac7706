// Day serials and date texts.
#include "core/calendar.h"

#include <algorithm>
#include <array>

#include "core/date_parts.h"

namespace navarun {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using std::chrono::years;

std::string_view without_blanks_at(std::string_view text, bool front, bool back) {
    while (front && !text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (back && !text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

// A field of digits alone, of at most `digits` of them; -1 for anything else.
int read_field(std::string_view text, std::size_t digits) {
    if (text.empty() || text.size() > digits) return -1;
    int number = 0;
    for (char const c : text) {
        if (c < '0' || c > '9') return -1;
        number = 10 * number + (c - '0');
    }
    return number;
}

std::optional<YearMonthDay> parts_of(int day_number, int month_number, int year_number) {
    if (day_number < 1 || day_number > 31 || month_number < 1 || month_number > 12 ||
        year_number < 1 || year_number > 9999) {
        return {};
    }
    return clipped(year{year_number} / month{static_cast<unsigned>(month_number)},
                   day{static_cast<unsigned>(day_number)});
}

// "00" to "99": a generation writes a hundred of these pairs.
using TwoDigits = std::array<char, 2>;
constexpr auto two_digits = [] {
    std::array<TwoDigits, 100> all{};
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = {static_cast<char>('0' + i / 10), static_cast<char>('0' + i % 10)};
    }
    return all;
}();

// Writes the ten characters of a date but for its strokes.
void put_date(char* text, unsigned day_number, unsigned month_number, unsigned year_number) {
    auto const put = [text](std::size_t at, unsigned number) {
        std::ranges::copy(two_digits[number], text + at);
    };
    put(0, day_number);
    put(3, month_number);
    put(6, year_number / 100 % 100);
    put(8, year_number % 100);
}

std::optional<Date> serial_of(std::optional<YearMonthDay> const& date) {
    if (!date) return {};
    return Date{*date};
}

}  // namespace

std::optional<Date> date_of(int day_number, int month_number, int year_number) {
    return serial_of(parts_of(day_number, month_number, year_number));
}

std::optional<Date> read_date(std::string_view text) {
    return serial_of(read_date_parts(text));
}

std::optional<YearMonthDay> read_date_parts(std::string_view text) {
    // The dates that the program wrote itself are nearly all that it reads.
    if (text.size() == 10 && text[2] == '/' && text[5] == '/') {
        int const day_number = read_field(text.substr(0, 2), 2);
        int const month_number = read_field(text.substr(3, 2), 2);
        int const year_number = read_field(text.substr(6, 4), 4);
        if (day_number >= 0 && month_number >= 0 && year_number >= 0) {
            return parts_of(day_number, month_number, year_number);
        }
    }
    auto const first = text.find('/');
    if (first == std::string_view::npos) return {};
    auto const second = text.find('/', first + 1);
    if (second == std::string_view::npos) return {};
    auto const day_text = without_blanks_at(text.substr(0, first), false, true);
    auto const month_text =
        without_blanks_at(text.substr(first + 1, second - first - 1), true, true);
    auto const year_text = without_blanks_at(text.substr(second + 1), true, false);
    return parts_of(read_field(day_text, 2), read_field(month_text, 2),
                    read_field(year_text, 4));
}

std::string write_date(Date date) { return write_date(YearMonthDay{date}); }

std::string write_date(YearMonthDay date) {
    std::string text(10, '/');
    put_date(text.data(), unsigned{date.day()}, unsigned{date.month()},
             static_cast<unsigned>(int{date.year()}));
    return text;
}

void DateText::set(int day_number, int month_number, int year_number) {
    put_date(m_characters.data(), static_cast<unsigned>(day_number),
             static_cast<unsigned>(month_number), static_cast<unsigned>(year_number));
}

int year_of(Date date) { return int{YearMonthDay{date}.year()}; }

int month_of(Date date) { return static_cast<int>(unsigned{YearMonthDay{date}.month()}); }

int day_of(Date date) { return static_cast<int>(unsigned{YearMonthDay{date}.day()}); }

int weekday_of(Date date) {
    return static_cast<int>(std::chrono::weekday{date}.c_encoding()) + 1;
}

Date add_months(Date date, int count) { return add_months(YearMonthDay{date}, count); }

Date add_years(Date date, int count) { return add_years(YearMonthDay{date}, count); }

YearMonthDay add_years(YearMonthDay date, int count) {
    return clipped((date.year() + years{count}) / date.month(), date.day());
}

int days_between(Date from, Date to) { return static_cast<int>((to - from).count()); }

bool is_leap_day(std::string_view date_text) { return date_text.starts_with("29/02"); }

}  // namespace navarun
