// The menu entries that leave the consultation alone: documents, outside programs, the place of
// the window among the others.
#pragma once

namespace navarun {

class Program;

void wire_tool_menus(Program& program);

}  // namespace navarun
