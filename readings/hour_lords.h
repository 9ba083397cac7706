// The lords of days and hours.
#pragma once

#include <string>
#include <vector>

#include "core/calendar.h"

namespace navarun {

struct LordListing {
    std::string name;        // of the person; empty for none
    std::string birth_date;  // as shown
    Date today;
    int hour = 0;    // 0..23, now
    Date first_day;  // of the cycle year listed, both inside
    Date last_day;
};

/// The lines of the window of day and hour. Its day runs from 6 h to 6 h: a moment before 6 h
/// belongs to the day before.
std::vector<std::string> lord_lines(LordListing const& listing);

}  // namespace navarun
