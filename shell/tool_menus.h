// The menu entries that leave the consultation alone: documents, outside programs, the place of
// the window among the others.
#pragma once

namespace navarun {

class Program;

/// The entries of those documents and programs, and the one of that place.
void wire_tool_menus(Program& program);

}  // namespace navarun
