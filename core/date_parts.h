// A date text in its three parts, for whom the day's serial would be a detour: from the parts a
// row of other dates is written.
#pragma once

#include <optional>
#include <string_view>

#include "core/calendar.h"

namespace navarun {

/// As read_date().
std::optional<YearMonthDay> read_date_parts(std::string_view text);

}  // namespace navarun
