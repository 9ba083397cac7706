// Opening and closing the about box.
#pragma once

namespace navarun {

class Program;

void wire_about_box(Program& program);

}  // namespace navarun
