// The dates between which the sun stands in each sign, by half century of birth.
#pragma once

#include <array>
#include <optional>

#include "core/calendar.h"

namespace navarun {

struct DayMonth {
    int day = 0;
    int month = 0;
    constexpr bool operator==(DayMonth const&) const = default;
};

/// First and last day of the sun in a sign, both inside. Sign 9 crosses the new year.
struct SignDates {
    DayMonth first;
    DayMonth last;
};

struct Era {
    int first_year;
    int last_year;
    std::array<SignDates, 12> signs;  // signs 1 to 12
};

/// The eras of all birth years from 1600 to 2199, each of fifty years.
extern std::array<Era, 12> const eras;

struct SunSign {
    int sign = 0;  // 1..12
    SignDates dates;
};

/// The sign in which the sun stands on `date`, by the table of the year `year`, whose new year
/// bounds the rows. Empty where the year lies outside 1600..2199 or the date outside the year.
std::optional<SunSign> sun_sign(Date date, int year);

/// The position of the sun in its sign, in day steps: 0 on the first day, 29 on the last. The
/// step between the two months of a sign is not smoothed. Empty where `month` is neither the
/// first nor the last month of the sign.
std::optional<int> degree_in_sign(SignDates const& dates, int day, int month);

}  // namespace navarun
