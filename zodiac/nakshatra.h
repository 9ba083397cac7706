// The lunar mansion of the birth, and the dates at which the lords change for this person.
#pragma once

namespace navarun {

class Program;

/// Reads sign, position and birth year; leaves the mansion, its name and lord on screen, and
/// the birthdays at which the periods of its sequence start.
void Nakshatra(Program& program);

}  // namespace navarun
