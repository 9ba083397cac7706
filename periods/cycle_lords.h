// The lords of the cycle year and of its twelve months, as sums of the person's numbers.
#pragma once

namespace navarun {

/// The lord of a year: digit sum of weekday lord, day, month and the last two digits of the
/// year. The century does not enter.
/// @return 1..9
int lord_of_year(int weekday_lord, int day, int month, int year_of_century);

/// The lord of the first month of a cycle year.
/// @return 1..9
int lord_of_first_month(int age, int month_of_birth, int year_lord);

/// Month lords follow the numbers of the lords, 9 before 1, not the circle of the periods.
constexpr int next_month_lord(int lord) { return lord >= 9 ? 1 : lord + 1; }

/// The cell of the grid in which an age stands.
/// @param sun_cell  1..12, the cell of age 1
/// @return 1..12
constexpr int cell_of_age(int sun_cell, int age) {
    int const cell = (sun_cell + age - 1) % 12;
    return cell == 0 ? 12 : cell;
}

/// The cell before `cell` round the grid.
constexpr int cell_before(int cell) { return cell == 1 ? 12 : cell - 1; }
/// The cell after `cell` round the grid.
constexpr int cell_after(int cell) { return cell == 12 ? 1 : cell + 1; }

}  // namespace navarun
