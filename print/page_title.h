// What stands at the top of every printed page.
#pragma once

#include <string>
#include <string_view>

#include "core/calendar.h"

namespace navarun {

inline constexpr std::string_view page_title = "La Méthode Navarun";

/// "Imprimé le: ", the French name of the weekday, a blank, the date.
std::string print_date(Date today);

}  // namespace navarun
