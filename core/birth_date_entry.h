// The name and birth-date fields: each key acts at once, repairs the date, moves the focus on,
// sets the age to 1 and marks the grid as stale. A date is never refused.
#pragma once

namespace navarun {

class Program;

/// Writes the four parts of the birth date into their fields, whose changes fire.
void write_date_combos(Program& program);

/// The keys, changes, choices and leaves of the fields, and the button of the present age.
void wire_birth_date_entry(Program& program);

}  // namespace navarun
