// The shortest script that still shows what a long one showed.
#pragma once

#include <functional>
#include <vector>

#include "tests/monkeys/event.h"

namespace navarun::monkeys {

/// Leaves out what is not needed: larger parts first, then single events, what is done during
/// pauses, and parts of texts.
/// @param shows  whether a script still shows it. REQUIRES shows(script).
std::vector<Event> shortest(std::vector<Event> script,
                            std::function<bool(std::vector<Event> const&)> const& shows);

}  // namespace navarun::monkeys
