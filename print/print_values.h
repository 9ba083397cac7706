// What printing remembers: which sections the page has, and the lines it is given.
#pragma once

#include <array>
#include <string>

#include "print/note_lines.h"
#include "shell/screen/page.h"

namespace navarun {

struct PrintValues {
    bool imprime_photo = true;
    bool imprime_note = true;
    bool imprime_periode = true;
    bool imprime_palais_destin = false;
    bool imprime_mahadasha = true;
    bool imprime_seigneur_mois = true;
    bool imprime_tri_deva = false;

    std::array<std::string, 35> periodes_impression;
    NoteLines notes;

    /// The printer's page as it was when the preview was last opened.
    screen::PageSize preview_page = screen::a4;
};

}  // namespace navarun
