// Which of the twelve dated steps of a period is the one in progress.
#pragma once

#include <array>
#include <optional>

#include "core/calendar.h"

namespace navarun {

/// The dates of the cells 1 to 12 (at 0 to 11); empty where a cell shows no date.
using CellDates = std::array<std::optional<Date>, 12>;

/// Whether today lies in the cycle year that starts on `anniversary`: from the day after it to
/// the 366th. On the day itself it does not.
bool in_year_in_progress(Date anniversary, Date today);

/// Where today lies in the cycle year shown: looked for from the period's start cell, forward
/// round the grid, the first cell that starts after today.
/// @return the cell found, 1..12: the one after the cell of the step in progress.
int cell_after_today(CellDates const& dates, int start_cell, Date today);

/// The first cell, 1 to 12, that starts on `anniversary`; empty where none does.
std::optional<int> cell_starting_on(CellDates const& dates, Date anniversary);

}  // namespace navarun
