// The lords of the cycle year and of its twelve months, as sums of the person's numbers.
#pragma once

namespace navarun {

/// The lord of a year: digit sum of weekday lord, day, month and the last two digits of the
/// year. The century does not enter.
/// @param weekday_lord     1..9
/// @param day              1..31
/// @param month            1..12
/// @param year_of_century  >= 0; what exceeds 99 is counted as it is
/// @return 1..9
int lord_of_year(int weekday_lord, int day, int month, int year_of_century);

/// The lord of the first month of a cycle year.
/// @param age             >= 1
/// @param month_of_birth  1..12
/// @param year_lord       1..9
/// @return 1..9
int lord_of_first_month(int age, int month_of_birth, int year_lord);

/// Month lords follow the numbers of the lords, 9 before 1, not the circle of the periods.
/// @param lord  1..9
constexpr int next_month_lord(int lord) { return lord >= 9 ? 1 : lord + 1; }

}  // namespace navarun
