// The second reckoning. Everything here is counted out step by step; nothing is shared with the
// program.
#include "tests/scenarios/almanac.h"

#include <algorithm>
#include <cctype>

namespace navarun::test {

namespace {

bool is_leap(int year) { return year % 400 == 0 || (year % 4 == 0 && year % 100 != 0); }

int wrapped(int cell) { return (cell + 11) % 12 + 1; }

std::size_t at(int cell) { return static_cast<std::size_t>(cell - 1); }

std::string digits(int number, int count) {
    std::string text = std::to_string(number);
    return std::string(static_cast<std::size_t>(count) - text.size(), '0') + text;
}

enum Number { surya = 1, chandra, guru, rahu, budha, shukra, ketu, shani, kuja };

constexpr int circle_lords[9]{surya, chandra, shukra, kuja, budha, shani, rahu, ketu, guru};
constexpr int circle_years[9]{2, 1, 3, 6, 2, 6, 6, 3, 6};

// The day on which the sun enters the signs 1 to 12, from 1600 on, each row for fifty years.
// Sign 1 is entered in April, sign 9 in December, sign 12 in March.
// clang-format off
constexpr int entries[12][12]{
    { 7,  8,  8,  9, 10, 10, 10,  9,  9,  7,  6,  7},
    { 8,  8,  9, 10, 11, 11, 11, 10, 10,  8,  6,  8},
    { 8,  9, 10, 11, 11, 11, 12, 11, 11,  9,  7,  9},
    { 9, 10, 10, 12, 12, 12, 13, 12, 11, 10,  8, 10},
    {10, 11, 11, 13, 13, 13, 14, 13, 12, 10,  9, 11},
    {11, 12, 12, 13, 14, 14, 14, 13, 13, 11, 10, 12},
    {12, 13, 13, 14, 15, 15, 15, 14, 14, 12, 11, 12},
    {13, 13, 14, 15, 15, 15, 16, 15, 15, 13, 11, 13},
    {12, 13, 13, 15, 15, 15, 16, 15, 14, 13, 11, 13},
    {13, 14, 14, 16, 16, 16, 17, 16, 15, 13, 12, 14},
    {14, 15, 15, 17, 17, 17, 17, 16, 16, 14, 13, 15},
    {15, 16, 16, 17, 18, 18, 18, 17, 17, 15, 14, 15},
};
// clang-format on

int place_in_circle(int lord) {
    return static_cast<int>(std::ranges::find(circle_lords, lord) - circle_lords);
}

int lord_of_mansion(int mansion) {
    constexpr int lords[9]{ketu, shukra, surya, chandra, kuja, rahu, guru, shani, budha};
    return lords[(mansion - 1) % 9];
}

struct Span {
    int lord;
    int years;
    int start_age;
};

// Walks the circle from the first lord on, period by period.
Span span_at(int first_lord, int age) {
    int place = place_in_circle(first_lord);
    int start = 1;
    while (start + circle_years[place] <= age) {
        start += circle_years[place];
        place = (place + 1) % 9;
    }
    return {circle_lords[place], circle_years[place], start};
}

bool among(int age, std::initializer_list<int> ages) {
    return std::ranges::find(ages, age) != ages.end();
}

bool within(int age, int first, int last) { return first <= age && age <= last; }

// The ages that the hand-kept lists forgot.
bool forgotten(int first_lord, int age) {
    switch (first_lord) {
        case guru:
            return among(age, {265, 300, 335});
        case ketu:
            return age == 258 || within(age, 285, 289) || within(age, 320, 324);
        case rahu:
            return age == 155;
        case shani:
            return among(age, {2, 3, 268});
        case budha:
            return among(age, {343, 344});
        case kuja:
            return among(age, {171, 288, 300});
        case shukra:
            return age == 242;
        case surya:
            return within(age, 296, 300) || among(age, {321, 335});
        default:
            return false;
    }
}

}  // namespace

int days_of_month(int month, int year) {
    constexpr int lengths[12]{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return lengths[month - 1] + (month == 2 && is_leap(year) ? 1 : 0);
}

std::optional<CivilDay> read_day(std::string_view text) {
    if (text.size() != 10 || text[2] != '/' || text[5] != '/') return {};
    auto const number = [&](std::size_t from, std::size_t count) {
        int value = 0;
        for (char const c : text.substr(from, count)) {
            if (std::isdigit(static_cast<unsigned char>(c)) == 0) return -1;
            value = value * 10 + (c - '0');
        }
        return value;
    };
    CivilDay const day{number(0, 2), number(3, 2), number(6, 4)};
    bool const there = day.year >= 1 && within(day.month, 1, 12) && day.day >= 1 &&
                       day.day <= days_of_month(day.month, day.year);
    if (!there) return {};
    return day;
}

std::string written(CivilDay day) {
    return digits(day.day, 2) + "/" + digits(day.month, 2) + "/" + digits(day.year, 4);
}

int serial(CivilDay day) {
    int const before = day.year - 1;
    int days = 365 * before + before / 4 - before / 100 + before / 400;
    for (int month = 1; month < day.month; ++month) days += days_of_month(month, day.year);
    return days + day.day;
}

// 01/01/0001 is a Monday.
int weekday_number(CivilDay day) { return serial(day) % 7 + 1; }

CivilDay months_later(CivilDay day, int months) {
    int const count = day.year * 12 + day.month - 1 + months;
    int const year = count / 12;
    int const month = count % 12 + 1;
    return {std::min(day.day, days_of_month(month, year)), month, year};
}

CivilDay days_later(CivilDay day, int days) {
    day.day += days;
    while (day.day < 1) {
        day.month = day.month == 1 ? 12 : day.month - 1;
        if (day.month == 12) --day.year;
        day.day += days_of_month(day.month, day.year);
    }
    while (day.day > days_of_month(day.month, day.year)) {
        day.day -= days_of_month(day.month, day.year);
        day.month = day.month == 12 ? 1 : day.month + 1;
        if (day.month == 1) ++day.year;
    }
    return day;
}

std::string lord_name(int number) {
    static constexpr char const* names[]{"Surya",  "Chandra", "Guru",  "Rahu", "Budha",
                                         "Shukra", "Ketu",    "Shani", "Kuja"};
    return names[number - 1];
}

int weekday_lord_number(int weekday) {
    constexpr int lords[7]{surya, chandra, kuja, budha, guru, shukra, shani};
    return lords[weekday - 1];
}

void Reckoning::place_the_sun(CivilDay birth) {
    int const era = (birth.year - 1600) / 50;
    int const entered = (birth.month + 8) % 12 + 1;  // the sign entered in that month
    int const entry = entries[era][entered - 1];
    if (birth.day >= entry) {
        sun_cell = entered;
        degree = birth.day - entry;
    } else {
        sun_cell = wrapped(entered - 1);
        degree = birth.day + 29 - (entry - 1);
    }
    // Two cuts in a sign part three mansions; the table comes again every four signs.
    constexpr int cuts[4][2]{{13, 27}, {10, 23}, {7, 20}, {3, 17}};
    constexpr int first_mansions[12]{1, 3, 5, 7, 10, 12, 14, 16, 19, 21, 23, 25};
    auto const& cut = cuts[(sun_cell - 1) % 4];
    mansion =
        first_mansions[sun_cell - 1] + (degree >= cut[0] ? 1 : 0) + (degree >= cut[1] ? 1 : 0);
    for (int palace = 1; palace <= 12; ++palace) {
        palaces[at(wrapped(sun_cell + palace - 1))] = std::to_string(palace);
    }
}

void Reckoning::fill_months(CivilDay birth, int age, CivilDay today) {
    bool const leap_birth = birth.day == 29 && birth.month == 2;
    int lord = ((age - 1) * 12 + birth.month - 1 + year_lord) % 9;
    if (lord == 0) lord = 9;
    for (int k = 0; k < 12; ++k) {
        int const cell = wrapped(age_cell + k);
        month_lords[at(cell)] = lord_name(lord);
        lord = lord % 9 + 1;
        CivilDay day = months_later(first_day, k);
        if (leap_birth && (day.month != 2 || is_leap(day.year))) day.day = 29;
        month_dates[at(cell)] = written(day);
    }
    selected_month = age_cell;
    bold_month.reset();
    int const past = serial(today) - serial(first_day);
    if (past < 0 || past > 365) return;
    int cell = 1;
    while (read_day(month_dates[at(cell)])->month != today.month) ++cell;
    if (today.day < birth.day) cell = wrapped(cell - 1);
    bold_month = selected_month = cell;
}

void Reckoning::fill_period(CivilDay birth, int age) {
    int const first_lord = lord_of_mansion(mansion);
    Span const span = span_at(first_lord, age);

    bool const no_caption = (first_lord == budha && within(age, 324, 329)) ||
                            (first_lord == guru && within(age, 328, 333));
    if (!no_caption) {
        std::string capitals = lord_name(span.lord);
        for (char& c : capitals) {
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        }
        bool const wide = first_lord == surya && span.lord == shukra;
        age_caption = span.lord == chandra
                          ? "CHANDRA (1 / 1 an)"
                          : capitals + " (" + std::to_string(age - span.start_age + 1) +
                                (wide ? "  / " : " / ") + std::to_string(span.years) + " ans)";
    }

    m_start_cell_coloured = false;
    period_cell = age_cell;
    selected_period = age_cell;
    if (forgotten(first_lord, age)) return;

    int date_age = span.start_age;
    int cell_age = span.start_age;
    int step = span.years;
    bool own_year = age == span.start_age;  // dated by the cycle year itself
    if (first_lord == ketu) {
        if (age == 259) {
            own_year = true;
            cell_age = 259;
        }
        int const other = age == 261              ? 258
                          : within(age, 291, 295) ? 284
                          : within(age, 326, 330) ? 319
                                                  : 0;
        if (other != 0) {
            date_age = cell_age = other;
            step = other == 258 ? 3 : 6;
            own_year = false;
        }
    }
    if (first_lord == shukra && span.lord == surya) step = 3;
    if (first_lord == shukra && age == 104) cell_age = 104;
    if (first_lord == surya && within(age, 241, 245)) date_age = 246;

    int assigned = span.lord;
    if (first_lord == guru || first_lord == ketu || first_lord == shani) assigned = 0;
    if (first_lord == rahu && span.lord != rahu) assigned = 0;
    if (first_lord == surya && (span.lord == shukra || span.lord == ketu)) assigned = surya;
    if (assigned != 0) m_shown_lord = assigned;

    bool const leap_birth = birth.day == 29 && birth.month == 2;
    bool const repairs = first_lord == rahu;
    CivilDay start = own_year ? first_day : months_later(birth, 12 * date_age);
    if (repairs && start.day == 29 && start.month == 2) start.day = 28;
    period_cell = wrapped(sun_cell + cell_age - 1);
    m_start_cell_coloured = true;
    for (int k = 0; k < 12; ++k) {
        int const cell = wrapped(period_cell + k);
        CivilDay day = months_later(start, k * step);
        if (repairs && leap_birth && (day.month != 2 || is_leap(day.year))) day.day = 29;
        period_lords[at(cell)] = lord_name(m_shown_lord);
        period_dates[at(cell)] = written(day);
    }
}

void Reckoning::find_step_in_progress(CivilDay today) {
    bold_period.reset();
    int const past = serial(today) - serial(first_day);
    if (within(past, 1, 366)) {
        int steps = 0;
        while (steps < 12 &&
               serial(*read_day(period_dates[at(wrapped(period_cell + steps))])) <=
                   serial(today)) {
            ++steps;
        }
        selected_period = wrapped(period_cell + steps);
        bold_period = wrapped(selected_period - 1);
        return;
    }
    for (int cell = 1; cell <= 12; ++cell) {
        if (period_dates[at(cell)] != written(first_day)) continue;
        if (m_start_cell_coloured && cell == period_cell) return;
        bold_period = selected_period = cell;
        return;
    }
}

void Reckoning::generate(CivilDay birth, int age, CivilDay today) {
    place_the_sun(birth);
    weekday = weekday_number(birth);
    first_day = months_later(birth, 12 * age);
    last_day = months_later(days_later(first_day, -1), 12);
    age_cell = wrapped(sun_cell + age - 1);
    int const sum =
        weekday_lord_number(weekday) + birth.day + birth.month + first_day.year % 100;
    year_lord = sum % 9 == 0 ? 9 : sum % 9;
    fill_months(birth, age, today);
    fill_period(birth, age);
    find_step_in_progress(today);
    marks.clear();
    if (lord_name(year_lord) != period_lords[0]) return;
    for (int cell = 1; cell <= 12; ++cell) {
        if (month_lords[at(cell)] == period_lords[0]) marks.push_back(cell);
    }
}

}  // namespace navarun::test
