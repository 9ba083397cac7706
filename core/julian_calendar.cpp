// The steps by which the Julian calendar falls behind the Gregorian one.
#include "core/julian_calendar.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace navarun {

namespace {

struct CenturyCorrection {
    int year;
    int days;
};

// The century years hold the steps of the table below; these put each of their days on the
// right side of the Julian 29 February. 1700 needs none.
constexpr std::array<CenturyCorrection, 10> century_corrections{{
    {1000, -5},
    {1100, -4},
    {1200, -4},
    {1300, -3},
    {1400, -2},
    {1500, -1},
    {1600, -1},
    {1800, +1},
    {1900, +2},
    {2000, +2},
}};

struct Lag {
    int first_day;  // day numbers, both ends inside
    int last_day;
    int days;
};

// Each row starts at 29 February of a century year of the Julian calendar, 1000 to 2000.
// clang-format off
constexpr std::array<Lag, 11> lags{{
    {2086367, 2122891,  6},
    {2122892, 2159416,  7},
    {2159417, 2195941,  7},
    {2195942, 2232466,  8},
    {2232467, 2268991,  9},
    {2268992, 2305516, 10},
    {2305517, 2342041, 10},
    {2342042, 2378566, 11},
    {2378567, 2415091, 12},
    {2415092, 2451616, 13},
    {2451617, 2488140, 13},
}};
// clang-format on

constexpr bool rows_join_without_a_gap() {
    for (std::size_t i = 1; i < lags.size(); ++i) {
        if (lags[i].first_day != lags[i - 1].last_day + 1) return false;
    }
    return true;
}
static_assert(rows_join_without_a_gap());
static_assert(std::ranges::is_sorted(lags, {}, &Lag::days), "the lag never shrinks");

constexpr int day_number_of_2000 = 2451555;  // of 1/1/2000, as the table counts

int day_number(Date date, int year) {
    Date const zero = *date_of(1, 1, 2000);
    int number = days_between(zero, date) + day_number_of_2000;
    for (auto const& row : century_corrections) {
        if (row.year == year) number += row.days;
    }
    return number;
}

}  // namespace

JulianConversion julian_to_gregorian(std::string const& date_text) {
    JulianConversion result;
    result.read_as = date_text;
    auto const year_text = text::last(date_text, 4);
    int const year = text::number_of(year_text);
    int extra_day = 0;
    if (is_leap_day(date_text) && !Bissextile_G(year)) {
        result.read_as = std::string{"28/02/"}.append(year_text);
        extra_day = 1;
    }
    auto const date = read_date(result.read_as);
    if (!date) return result;
    int const number = day_number(*date, year);
    auto const row = std::ranges::find_if(lags, [&](Lag const& lag) {
        return lag.first_day <= number && number <= lag.last_day;
    });
    if (row == lags.end()) {
        result.outcome = JulianConversion::Outcome::outside_the_table;
        return result;
    }
    result.outcome = JulianConversion::Outcome::converted;
    result.gregorian = *date + std::chrono::days{row->days + extra_day};
    return result;
}

}  // namespace navarun
