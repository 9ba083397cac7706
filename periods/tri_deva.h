// The marks of the triple coincidence on the months of the chart.
#pragma once

namespace navarun {

class Program;

/// Looks for the coincidence in the names of the grid, and marks the months concerned.
void triDeva(Program& program);

}  // namespace navarun
