// The window that lists the periods year by year.
#pragma once

namespace navarun {

class Program;

/// Makes the lines anew for the person on screen and selects the one of the cycle year shown.
void cycle20ans(Program& program);

/// The menu entry opens and closes the window.
void wire_cycle_window(Program& program);

}  // namespace navarun
