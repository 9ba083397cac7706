// The periods of a person, year by year, as lines of text.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/calendar.h"
#include "core/lords.h"

namespace navarun {

struct CycleListing {
    Lord first_lord;  // the lord of the mansion
    Date birth;
    int year_of_century;  // last two digits of the birth year
    int weekday_lord;     // 1..9
    int day;
    int month;
    int age_shown;  // as many whole turns are listed as it takes to reach it
};

/// For each lord a heading of three lines, then a line for each of his years. The count of the
/// year grows past 99, so that after a century's turn the lords differ from the grid's: an
/// oddity of the list.
std::vector<std::string> cycle_lines(CycleListing const& listing);

/// The place, from 0, of the line of the year that starts on `anniversary`; empty where the
/// list has none.
std::optional<int> line_starting_on(std::vector<std::string> const& lines, Date anniversary);

}  // namespace navarun
