// The panel that lists the files of a folder: consultation records, or portraits. Which of the
// two it shows is told by the list's back colour.
#pragma once

namespace navarun {

class Program;

/// Hides the panel, empties the search and gives the reset button its own role back.
void close_browser(Program& program);

/// Reads the list anew; nothing is selected in it then.
void refresh_list(Program& program);

/// Gives the list the ground of its record mode back.
void leave_image_mode(Program& program);

/// Asks, and deletes the selected file, record or portrait.
void Efface_fichier(Program& program);

/// The buttons of folders and portraits, the list, the search and the drag of a record.
void wire_browser(Program& program);

}  // namespace navarun
