// Dates in words.
#pragma once

#include <string>
#include <string_view>

#include "core/calendar.h"

namespace navarun {

/// "Janvier"
/// @param month  1..12; another one is a programming error.
std::string_view month_name(int month);
/// "samedi 21 novembre 2026"
std::string long_date(Date date);

}  // namespace navarun
