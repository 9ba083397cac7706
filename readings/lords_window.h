// The window of the lords of days and hours.
#pragma once

namespace navarun {

class Program;

/// The button opens the window, filled for this moment; it closes by its own button and frame.
void wire_lords_window(Program& program);

}  // namespace navarun
