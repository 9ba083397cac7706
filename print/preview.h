// The print preview on the main window.
#pragma once

namespace navarun {

class Program;

/// Closes the preview: wherever the display changes under it.
void apercu_impression_Invisible(Program& program);

}  // namespace navarun
