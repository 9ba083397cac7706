// Which of the twelve dated steps of a period is the one in progress.
#pragma once

#include <functional>
#include <optional>

#include "core/calendar.h"

namespace navarun {

/// Reads the date of a cell, 1..12; empty where the cell shows none. The searches ask for no
/// more cells than they need.
using DateOfCell = std::function<std::optional<Date>(int cell)>;

/// Whether today lies in the cycle year that starts on `anniversary`: from the day after it to
/// the 366th. On the day itself it does not.
bool in_year_in_progress(Date anniversary, Date today);

/// Where today lies in the cycle year shown: looked for from the period's start cell, forward
/// round the grid, the first cell that starts after today.
/// @return the cell found, 1..12: the one after the cell of the step in progress.
int cell_after_today(DateOfCell const& date_of_cell, int start_cell, Date today);

/// The first cell, 1 to 12, that starts on `anniversary`; empty where none does.
std::optional<int> cell_starting_on(DateOfCell const& date_of_cell, Date anniversary);

}  // namespace navarun
