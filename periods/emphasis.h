// How one cell of a row of names stands out from the others.
#pragma once

#include "periods/period_values.h"
#include "shell/screen/control.h"
#include "shell/screen/control_array.h"

namespace navarun {

/// Bold, in the colour of what is in progress.
inline void emphasise(screen::Label& name) {
    name.FontBold = true;
    name.ForeColor = couleur_actuelle;
}

/// The user picks a cell: its name and date stand out, those of the other eleven turn grey.
/// @param cell  1..12
inline void pick_by_hand(screen::ControlArray<screen::Label>& names,
                         screen::ControlArray<screen::Label>& dates, int cell) {
    for (int i = 1; i <= 12; ++i) {
        names(i).FontBold = false;
        names(i).ForeColor = screen::grey;
        dates(i).ForeColor = screen::grey;
    }
    emphasise(names(cell));
    dates(cell).ForeColor = screen::black;
}

}  // namespace navarun
