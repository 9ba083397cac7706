// The dates below the twelve names of a row of the grid.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "core/date_parts.h"

namespace navarun {

/// In the order of the steps, not of the cells.
using RowDates = std::array<DateText, 12>;

/// Twelve date texts, the first the one of `first_day`, each `months` months (1 or more) after
/// the one before, reckoned from the first day. None where `first_day` is no date text.
/// @param shows_29th  a person born on 29 February keeps that day in all months that have it
std::optional<RowDates> row_dates(std::string_view first_day, int months, bool shows_29th);

}  // namespace navarun
