// How the program speaks to the user: question boxes, waits and transient messages.
#pragma once

#include <string_view>

namespace navarun {

class Program;

/// Shows `titre_dialogue` and `texte_dialogue` with OK and Cancel; `reponse_dialogue` takes the
/// answer, 1 for OK and 2 for Cancel.
void boiteDialogue(Program& program);

/// Asks whether `entry`, shown in capitals, is to be erased; answers whether the user agrees.
bool agrees_to_erase(Program& program, std::string_view entry);

/// Waits, letting pending events run. A wait over midnight ends the run with a fatal error: the
/// timer counts from midnight.
/// @param seconds  as a single-precision number, >= 0
void Pause(Program& program, float seconds);

/// Shows a text in the middle of the chart for some seconds.
void transient_message(Program& program, std::string_view text, float seconds);

}  // namespace navarun
