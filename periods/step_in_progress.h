// Which of the twelve dated steps of a period is the one in progress.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "core/calendar.h"

namespace navarun {

/// Reads the date of a cell, 1..12; empty where the cell shows none. The searches ask for no
/// more cells than they need.
using DateOfCell = std::function<std::optional<YearMonthDay>(int cell)>;

/// Whether today lies in the cycle year that starts on `anniversary`: from the day after it to
/// the 366th. On the day itself it does not.
bool in_year_in_progress(Date anniversary, Date today);

/// Where today lies in the cycle year shown: looked for from the period's start cell, forward
/// round the grid, the first cell that starts after today.
/// @return the cell found, 1..12: the one after the cell of the step in progress.
int cell_after_today(DateOfCell const& date_of_cell, int start_cell, YearMonthDay today);

/// The date text of a cell, 1..12, as the program wrote it; empty where the cell shows none.
using TextOfCell = std::function<std::string_view(int cell)>;

/// The first cell, 1 to 12, that starts on `anniversary`, a date text as the program writes it:
/// two such texts of a day are the same. Empty where no cell does.
std::optional<int> cell_starting_on(TextOfCell const& text_of_cell,
                                    std::string_view anniversary);

}  // namespace navarun
