// The word wrap of the notes.
#include "print/note_lines.h"

#include <algorithm>

#include "core/text.h"

namespace navarun {

namespace {

using Characters = std::vector<char32_t>;

// The characters from `position` (from 0) on, at most `count`.
std::string part(Characters const& text, std::size_t position, std::size_t count) {
    std::string result;
    std::size_t const end = std::min(text.size(), position + count);
    for (std::size_t i = position; i < end; ++i) result += text::encoded(text[i]);
    return result;
}

}  // namespace

void ligne_charactere(std::string_view texte, int nombre_maximum, int largeur,
                      NoteLines& lignes) {
    if (texte.empty()) return;
    auto characters = text::characters(texte);
    characters.push_back(U' ');
    auto const width = static_cast<std::size_t>(largeur);
    lignes.nombre_lignes = nombre_maximum;
    lignes.lignes_note.assign(static_cast<std::size_t>(nombre_maximum), "");
    std::size_t position = 0;
    for (std::size_t k = 0; k < lignes.lignes_note.size(); ++k) {
        auto& line = lignes.lignes_note[k];
        line = part(characters, position, width);
        bool const shorter_than_one_line = characters.size() < width;
        if (shorter_than_one_line) return;
        auto const blank_at = [&](std::size_t place) {
            return place < characters.size() && characters[place] == U' ';
        };
        std::size_t taken = width;
        while (taken > 0 && !blank_at(position + taken - 1)) --taken;
        if (taken == 0) return;
        line = part(characters, position, taken);
        position += taken;
        bool const at_the_end = position + 1 >= characters.size();
        if (at_the_end) {
            lignes.lignes_note.resize(k + 1);
            lignes.nombre_lignes = static_cast<int>(k + 1);
            return;
        }
    }
}

}  // namespace navarun
