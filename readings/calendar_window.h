// The calendar window: a month with its weekends and the French public holidays.
#pragma once

namespace navarun {

class Program;

/// The menu entry opens the window; its cells, lists, switches and clock.
void wire_calendar_window(Program& program);

}  // namespace navarun
