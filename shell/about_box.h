// Opening and closing the about box.
#pragma once

namespace navarun {

class Program;

/// The menu entry opens the box; its button and its frame close it, its link opens the site.
void wire_about_box(Program& program);

}  // namespace navarun
