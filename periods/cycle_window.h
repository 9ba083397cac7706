// The window that lists the periods year by year.
#pragma once

#include <string>
#include <vector>

namespace navarun {

class Program;

/// The lines of the list for the person on screen; none where no mansion or date stands there.
std::vector<std::string> period_lines(Program const& program);

/// Makes the lines anew for the person on screen and selects the one of the cycle year shown.
void cycle20ans(Program& program);

/// The menu entry opens and closes the window.
void wire_cycle_window(Program& program);

}  // namespace navarun
