// The tool window of the arrows: while it is visible the chart takes the mouse.
#pragma once

namespace navarun {

class Program;

/// The menu entry opens and closes the window; its controls choose kind, colour and width.
void wire_arrow_dialog(Program& program);

}  // namespace navarun
