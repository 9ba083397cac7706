// The two numbers of the person on screen, and the readings that go with numbers and mansion.
#pragma once

namespace navarun {

class Program;

/// Works Dinanka and Purnanka out from the birth date and shows them.
void Dinanka_Purnanka(Program& program);

/// Selects the readings of both numbers. Nothing changes before the numbers are known.
void Dinaka_Punanka_Text(Program& program);

/// Selects the reading of the mansion; a number outside 1..27 leaves it as it stands.
void Nakshatra_Text(Program& program);

}  // namespace navarun
