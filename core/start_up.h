// Bringing the main window up, and leaving the program.
#pragma once

namespace navarun {

class Program;

/// Refuses a second instance in the same folder: throws ProgramEnded after its message. Makes
/// the folders, reads the settings, fills the fixed values, sets the date 01/01/1900 and runs
/// one whole calculation, so that the window opens on a finished grid.
void Form_Load(Program& program);

/// The menu entry and the frame of the window both ask, and end the program where the user
/// agrees: they throw ProgramEnded. Nothing is saved.
void wire_start_up(Program& program);

}  // namespace navarun
