// Any note, any width and number of lines: what is printed is the beginning of the note.
#include "core/text.h"
#include "print/note_lines.h"
#include "tests/fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using navarun::fuzz::require;
    if (size < 2) return 0;
    int const most = 1 + data[0] % 16;
    int const width = 1 + data[1] % 128;
    std::string const note = navarun::fuzz::text_of(data + 2, size - 2);
    navarun::NoteLines const before{.lignes_note = {"avant"}, .nombre_lignes = 1};
    navarun::NoteLines lines = before;
    navarun::ligne_charactere(note, most, width, lines);
    if (note.empty()) {
        require(lines == before, "an empty note leaves the lines");
        return 0;
    }
    require(lines.nombre_lignes == static_cast<int>(lines.lignes_note.size()), "as counted");
    require(lines.nombre_lignes >= 1 && lines.nombre_lignes <= most, "at most as many");
    std::string printed;
    for (auto const& line : lines.lignes_note) {
        require(navarun::text::length(line) <= width, "no line is longer");
        printed += line;
    }
    auto const all = navarun::text::characters(note + " ");
    auto const beginning = navarun::text::characters(printed);
    require(beginning.size() <= all.size(), "nothing is made up");
    for (std::size_t i = 0; i < beginning.size(); ++i) {
        require(beginning[i] == all[i], "in the order of the note");
    }
    return 0;
}
