// The panel that lists the files of a folder: consultation records, or portraits. Which of the
// two it shows is told by the list's back colour.
#pragma once

namespace navarun {

class Program;

/// Hides the panel, empties the search and gives the reset button its own role back.
void close_browser(Program& program);

/// Reads the list anew; nothing is selected in it then.
void refresh_list(Program& program);

/// Whether the list shows portraits.
bool browser_shows_images(Program const& program);

/// Gives the list the ground of its record mode back.
void leave_image_mode(Program& program);

/// Opens the panel on the portraits, or closes it.
void Bouton_Image_click(Program& program);

/// Asks, and deletes the selected file, record or portrait.
void Efface_fichier(Program& program);

/// The folder buttons, the list, the search and the drag of a record.
void wire_browser(Program& program);

}  // namespace navarun
