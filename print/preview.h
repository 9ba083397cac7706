// The print preview on the main window.
#pragma once

namespace navarun::screen {
class PictureBox;
}

namespace navarun {

class Program;

/// Sets a box up for a page of the printer's proportions: its height follows its width, and
/// what was drawn on it goes.
/// @return what an inch of the page measures on the box.
double ScalePicPreviewToPrinterInches(Program& program, screen::PictureBox& box);

/// Draws the report on the preview anew.
void draw_preview(Program& program);

/// Closes the preview and its options: wherever the display changes under it.
void apercu_impression_Invisible(Program& program);

/// The menu entry opens and closes the preview.
void wire_preview(Program& program);

}  // namespace navarun
