// The consultation report: one page of what the main window shows.
#pragma once

#include <optional>

#include "shell/screen/page.h"

namespace navarun {

class Program;

/// Composes the report from what stands on the main window; it computes no period itself. The
/// marks of the triple coincidence are drawn once: they take `imprime_tri_deva` off.
/// @param ratio  what an inch of the page measures where it is shown, 1 on paper; > 0
/// @return one page; none where a caption that must be a date is none: nothing is then printed.
std::optional<screen::Page> PrintRoutine(Program& program, double ratio);

/// Asks for the printer, and prints the report on it. A cancel prints nothing, and a printer
/// that fails is not told.
void print_report(Program& program);

/// The menu entry that prints everything.
void wire_report(Program& program);

}  // namespace navarun
