// The sun's sign at birth, and the twelve palaces hung on the chart from it.
#pragma once

namespace navarun {

class Program;

/// Finds the sun's sign and position, makes its cell palace 1, numbers the other eleven round
/// the chart and determines the lunar mansion. A date in no row of the boundary table keeps the
/// palace, position and mansion in force; the eleven other cells are then numbered from there.
void Position_solaire(Program& program);

/// A double click on a palace shows or hides its definition.
void wire_solar_position(Program& program);

}  // namespace navarun
