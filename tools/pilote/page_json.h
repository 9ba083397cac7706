// A drawn page as the pilot tells it.
#pragma once

#include <string_view>

#include <nlohmann/json.hpp>

#include "shell/screen/page.h"

namespace navarun::pilot {

/// @param target  "printer" or "preview"
nlohmann::ordered_json page_as_json(std::string_view target, screen::Page const& page);

}  // namespace navarun::pilot
