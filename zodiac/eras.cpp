// The boundary rows of the sun, and the search in them.
#include "zodiac/eras.h"

namespace navarun {

// How the rows were derived: the first day of a sign is the date on which the sun enters it in
// the middle year of the half century (1625, 1675, ...), by the sun's apparent longitude (a
// low-precision solar theory), reckoned from a sidereal zero that lies at 22.70 degrees at the
// epoch 2000.0 and precesses, on a clock 3 h 11 min ahead of Greenwich's. The last day is the
// day before the next sign's first.
// clang-format off
constexpr std::array<Era, 12> eras{{
    {1600, 1649, {{
        {{ 7,  4}, { 7,  5}},  //  1
        {{ 8,  5}, { 7,  6}},  //  2
        {{ 8,  6}, { 8,  7}},  //  3
        {{ 9,  7}, { 9,  8}},  //  4
        {{10,  8}, { 9,  9}},  //  5
        {{10,  9}, { 9, 10}},  //  6
        {{10, 10}, { 8, 11}},  //  7
        {{ 9, 11}, { 8, 12}},  //  8
        {{ 9, 12}, { 6,  1}},  //  9
        {{ 7,  1}, { 5,  2}},  // 10
        {{ 6,  2}, { 6,  3}},  // 11
        {{ 7,  3}, { 6,  4}},  // 12
     }}},
    {1650, 1699, {{
        {{ 8,  4}, { 7,  5}},  //  1
        {{ 8,  5}, { 8,  6}},  //  2
        {{ 9,  6}, { 9,  7}},  //  3
        {{10,  7}, {10,  8}},  //  4
        {{11,  8}, {10,  9}},  //  5
        {{11,  9}, {10, 10}},  //  6
        {{11, 10}, { 9, 11}},  //  7
        {{10, 11}, { 9, 12}},  //  8
        {{10, 12}, { 7,  1}},  //  9
        {{ 8,  1}, { 5,  2}},  // 10
        {{ 6,  2}, { 7,  3}},  // 11
        {{ 8,  3}, { 7,  4}},  // 12
     }}},
    {1700, 1749, {{
        {{ 8,  4}, { 8,  5}},  //  1
        {{ 9,  5}, { 9,  6}},  //  2
        {{10,  6}, {10,  7}},  //  3
        {{11,  7}, {10,  8}},  //  4
        {{11,  8}, {10,  9}},  //  5
        {{11,  9}, {11, 10}},  //  6
        {{12, 10}, {10, 11}},  //  7
        {{11, 11}, {10, 12}},  //  8
        {{11, 12}, { 8,  1}},  //  9
        {{ 9,  1}, { 6,  2}},  // 10
        {{ 7,  2}, { 8,  3}},  // 11
        {{ 9,  3}, { 7,  4}},  // 12
     }}},
    {1750, 1799, {{
        {{ 9,  4}, { 9,  5}},  //  1
        {{10,  5}, { 9,  6}},  //  2
        {{10,  6}, {11,  7}},  //  3
        {{12,  7}, {11,  8}},  //  4
        {{12,  8}, {11,  9}},  //  5
        {{12,  9}, {12, 10}},  //  6
        {{13, 10}, {11, 11}},  //  7
        {{12, 11}, {10, 12}},  //  8
        {{11, 12}, { 9,  1}},  //  9
        {{10,  1}, { 7,  2}},  // 10
        {{ 8,  2}, { 9,  3}},  // 11
        {{10,  3}, { 8,  4}},  // 12
     }}},
    {1800, 1849, {{
        {{10,  4}, {10,  5}},  //  1
        {{11,  5}, {10,  6}},  //  2
        {{11,  6}, {12,  7}},  //  3
        {{13,  7}, {12,  8}},  //  4
        {{13,  8}, {12,  9}},  //  5
        {{13,  9}, {13, 10}},  //  6
        {{14, 10}, {12, 11}},  //  7
        {{13, 11}, {11, 12}},  //  8
        {{12, 12}, { 9,  1}},  //  9
        {{10,  1}, { 8,  2}},  // 10
        {{ 9,  2}, {10,  3}},  // 11
        {{11,  3}, { 9,  4}},  // 12
     }}},
    {1850, 1899, {{
        {{11,  4}, {11,  5}},  //  1
        {{12,  5}, {11,  6}},  //  2
        {{12,  6}, {12,  7}},  //  3
        {{13,  7}, {13,  8}},  //  4
        {{14,  8}, {13,  9}},  //  5
        {{14,  9}, {13, 10}},  //  6
        {{14, 10}, {12, 11}},  //  7
        {{13, 11}, {12, 12}},  //  8
        {{13, 12}, {10,  1}},  //  9
        {{11,  1}, { 9,  2}},  // 10
        {{10,  2}, {11,  3}},  // 11
        {{12,  3}, {10,  4}},  // 12
     }}},
    {1900, 1949, {{
        {{12,  4}, {12,  5}},  //  1
        {{13,  5}, {12,  6}},  //  2
        {{13,  6}, {13,  7}},  //  3
        {{14,  7}, {14,  8}},  //  4
        {{15,  8}, {14,  9}},  //  5
        {{15,  9}, {14, 10}},  //  6
        {{15, 10}, {13, 11}},  //  7
        {{14, 11}, {13, 12}},  //  8
        {{14, 12}, {11,  1}},  //  9
        {{12,  1}, {10,  2}},  // 10
        {{11,  2}, {11,  3}},  // 11
        {{12,  3}, {11,  4}},  // 12
     }}},
    {1950, 1999, {{
        {{13,  4}, {12,  5}},  //  1
        {{13,  5}, {13,  6}},  //  2
        {{14,  6}, {14,  7}},  //  3
        {{15,  7}, {14,  8}},  //  4
        {{15,  8}, {14,  9}},  //  5
        {{15,  9}, {15, 10}},  //  6
        {{16, 10}, {14, 11}},  //  7
        {{15, 11}, {14, 12}},  //  8
        {{15, 12}, {12,  1}},  //  9
        {{13,  1}, {10,  2}},  // 10
        {{11,  2}, {12,  3}},  // 11
        {{13,  3}, {12,  4}},  // 12
     }}},
    {2000, 2049, {{
        {{12,  4}, {12,  5}},  //  1
        {{13,  5}, {12,  6}},  //  2
        {{13,  6}, {14,  7}},  //  3
        {{15,  7}, {14,  8}},  //  4
        {{15,  8}, {14,  9}},  //  5
        {{15,  9}, {15, 10}},  //  6
        {{16, 10}, {14, 11}},  //  7
        {{15, 11}, {13, 12}},  //  8
        {{14, 12}, {12,  1}},  //  9
        {{13,  1}, {10,  2}},  // 10
        {{11,  2}, {12,  3}},  // 11
        {{13,  3}, {11,  4}},  // 12
     }}},
    {2050, 2099, {{
        {{13,  4}, {13,  5}},  //  1
        {{14,  5}, {13,  6}},  //  2
        {{14,  6}, {15,  7}},  //  3
        {{16,  7}, {15,  8}},  //  4
        {{16,  8}, {15,  9}},  //  5
        {{16,  9}, {16, 10}},  //  6
        {{17, 10}, {15, 11}},  //  7
        {{16, 11}, {14, 12}},  //  8
        {{15, 12}, {12,  1}},  //  9
        {{13,  1}, {11,  2}},  // 10
        {{12,  2}, {13,  3}},  // 11
        {{14,  3}, {12,  4}},  // 12
     }}},
    {2100, 2149, {{
        {{14,  4}, {14,  5}},  //  1
        {{15,  5}, {14,  6}},  //  2
        {{15,  6}, {16,  7}},  //  3
        {{17,  7}, {16,  8}},  //  4
        {{17,  8}, {16,  9}},  //  5
        {{17,  9}, {16, 10}},  //  6
        {{17, 10}, {15, 11}},  //  7
        {{16, 11}, {15, 12}},  //  8
        {{16, 12}, {13,  1}},  //  9
        {{14,  1}, {12,  2}},  // 10
        {{13,  2}, {14,  3}},  // 11
        {{15,  3}, {13,  4}},  // 12
     }}},
    {2150, 2199, {{
        {{15,  4}, {15,  5}},  //  1
        {{16,  5}, {15,  6}},  //  2
        {{16,  6}, {16,  7}},  //  3
        {{17,  7}, {17,  8}},  //  4
        {{18,  8}, {17,  9}},  //  5
        {{18,  9}, {17, 10}},  //  6
        {{18, 10}, {16, 11}},  //  7
        {{17, 11}, {16, 12}},  //  8
        {{17, 12}, {14,  1}},  //  9
        {{15,  1}, {13,  2}},  // 10
        {{14,  2}, {14,  3}},  // 11
        {{15,  3}, {14,  4}},  // 12
     }}},
}};
// clang-format on

namespace {

constexpr int days_in(int month) { return NbrJours(month, 1999); }

constexpr DayMonth day_after(DayMonth date) {
    if (date.day < days_in(date.month)) return {date.day + 1, date.month};
    return {1, date.month % 12 + 1};
}

// Grows with the days of a year.
constexpr int place_in_year(DayMonth date) { return 31 * date.month + date.day; }

// Every day of the year has its sign: each sign starts on the day after the one before it ends,
// the first after the twelfth. No boundary lies at the end of February, so that leap years join
// as well.
constexpr bool signs_join_without_a_gap(Era const& era) {
    for (std::size_t i = 0; i < 12; ++i) {
        if (era.signs[(i + 1) % 12].first != day_after(era.signs[i].last)) return false;
        if (era.signs[i].last.month == 2 && era.signs[i].last.day >= 28) return false;
        // A sign lies in two neighbouring months, so that every day in it has a position.
        if (era.signs[i].last.month != era.signs[i].first.month % 12 + 1) return false;
        // Of its days in the first month none reaches beyond position 29.
        if (days_in(era.signs[i].first.month) - era.signs[i].first.day > 29) return false;
        if (era.signs[i].last.day > 29) return false;
    }
    return true;
}

constexpr bool eras_follow_each_other() {
    for (std::size_t i = 0; i < eras.size(); ++i) {
        int const first = 1600 + 50 * static_cast<int>(i);
        if (eras[i].first_year != first || eras[i].last_year != first + 49) return false;
    }
    return true;
}

constexpr bool every_era_is_whole() {
    for (auto const& era : eras) {
        if (!signs_join_without_a_gap(era)) return false;
    }
    return true;
}

static_assert(eras_follow_each_other());
static_assert(every_era_is_whole());

}  // namespace

std::optional<SunSign> sun_sign(Date date, int year) {
    YearMonthDay const day{date};
    if (int{day.year()} != year) return {};
    DayMonth const tested{static_cast<int>(unsigned{day.day()}),
                          static_cast<int>(unsigned{day.month()})};
    for (auto const& era : eras) {
        if (year < era.first_year || year > era.last_year) continue;
        for (std::size_t i = 0; i < era.signs.size(); ++i) {
            auto const& dates = era.signs[i];
            bool const begun = place_in_year(dates.first) <= place_in_year(tested);
            bool const not_over = place_in_year(tested) <= place_in_year(dates.last);
            bool const crosses_new_year = dates.last.month < dates.first.month;
            bool const inside = crosses_new_year ? begun || not_over : begun && not_over;
            if (inside) return SunSign{static_cast<int>(i) + 1, dates};
        }
    }
    return {};
}

std::optional<int> degree_in_sign(SignDates const& dates, int day, int month) {
    if (month == dates.first.month) return day - dates.first.day;
    if (month == dates.last.month) return day + (29 - dates.last.day);
    return {};
}

}  // namespace navarun
