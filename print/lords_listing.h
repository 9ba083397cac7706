// The printed listing of the lords of days and hours.
#pragma once

#include <vector>

#include "shell/screen/page.h"

namespace navarun {

class Program;

/// Draws the listing that stands in the window of the lords.
/// @param paper  a line that would leave it begins the next page
/// @return the pages: four on A4.
std::vector<screen::Page> Print_seigneurdujour(Program const& program, screen::PageSize paper);

/// The print button of the window.
void wire_lords_listing(Program& program);

}  // namespace navarun
