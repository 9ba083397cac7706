// The print preview on the main window.
#pragma once

namespace navarun {

class Program;

/// Draws the report on the preview anew, in the proportions of the printer's page.
void draw_preview(Program& program);

/// Closes the preview and its options: wherever the display changes under it.
void apercu_impression_Invisible(Program& program);

/// The menu entry opens and closes the preview.
void wire_preview(Program& program);

}  // namespace navarun
