// The panel that lists the files of a folder: consultation records, or portraits. Which of the
// two it shows is told by the list's back colour.
#pragma once

namespace navarun {

class Form1;
class Program;

/// Shows on the buttons of the two record folders which of them is active.
/// @param active  1 or 2; another one is a programming error.
void show_folder_buttons(Form1& form, int active);

/// The reset button begins anew again, where it erased while a list was in front.
void give_reset_its_role_back(Form1& form);

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
