// The date of Easter in the Gregorian calendar.
#pragma once

namespace navarun {

struct EasterSunday {
    int day = 0;
    int month = 0;  // 3 or 4
};

/// @param year  1583 and later; earlier years are reckoned by the same rule.
EasterSunday easter_sunday(int year);

}  // namespace navarun
