// Cutting the practitioner's notes into the lines of the printed page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace navarun {

struct NoteLines {
    std::vector<std::string> lignes_note;
    int nombre_lignes = 0;
    bool operator==(NoteLines const&) const = default;
};

/// Cuts `texte` at its blanks into lines of at most `largeur` characters.
///
/// Where the text fits, `lignes` holds as many lines as it takes; but a text shorter than one
/// line, and a text with a word longer than a line, leave `nombre_maximum` lines, the rest of
/// them empty: a long word ends the cutting at its line. What lies beyond the last line is
/// lost.
/// @param texte           UTF-8; an empty one leaves `lignes` as it is
/// @param nombre_maximum  lines, >= 1
/// @param largeur         characters, >= 1
void ligne_charactere(std::string_view texte, int nombre_maximum, int largeur,
                      NoteLines& lignes);

}  // namespace navarun
