// The lords of days and hours.
#pragma once

#include <string>
#include <vector>

#include "core/calendar.h"
#include "core/lords.h"

namespace navarun {

/// The lord of an hour of the day that runs from 6 h to 6 h.
/// @param weekday  of the day, 1 for Sunday to 7
/// @param hour     0..23; those before 6 are the day's last
Lord lord_of_hour(int weekday, int hour);

/// The day to which a moment belongs: before 6 h still the day before.
Date day_of_lords(Date date, int hour);

struct LordListing {
    std::string name;        // of the person; empty for none
    std::string birth_date;  // as shown
    Date today;
    int hour = 0;    // 0..23, now
    Date first_day;  // of the cycle year listed, both inside
    Date last_day;
};

/// The lines of the window of day and hour.
std::vector<std::string> lord_lines(LordListing const& listing);

}  // namespace navarun
