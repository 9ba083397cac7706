// The week: each day's name, its lord and its reading.
#pragma once

#include <string>
#include <string_view>

#include "core/lords.h"

namespace navarun {

struct Weekday {
    std::string_view name;
    std::string_view short_name;  // as the desktop abbreviates it
    Lord lord;
    std::string_view positive;
    std::string_view negative;
};

/// @param number  1 for Sunday to 7 for Saturday; another one is a programming error.
Weekday const& weekday(int number);

/// The caption of the day's lord: name, a blank, number.
std::string divinity_caption(Weekday const& day);
/// Both lines of the day's reading, two line breaks between.
std::string weekday_reading(Weekday const& day);

}  // namespace navarun
