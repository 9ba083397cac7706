// What the drawing of arrows remembers between two moves of the mouse.
#pragma once

#include "shell/screen/colour.h"

namespace navarun {

struct ArrowValues {
    double depart_x = 0;  // start of the drag, in the units of the chart
    double depart_y = 0;
    double delta_x = 0;  // vector of the drag
    int delta_y = 0;
    bool fleche_fixee = false;     // drawn: the rubber line no longer clears
    bool fleche_dessinee = false;  // an arrow stands in the picture
    screen::Colour couleur_fleche;
    int epaisseur_fleche = 0;
    int style_fleche = 0;
};

}  // namespace navarun
