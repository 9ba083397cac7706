// Boxes of the palaces.
#include "chart/palace_colours.h"

#include "core/cells.h"
#include "core/text.h"
#include "shell/image_store.h"
#include "shell/program.h"
#include "zodiac/palaces.h"

namespace navarun {

namespace {

// Gives a palace's cell its box, or takes it: thin border and opaque ground.
void set_box(screen::Label& palace, bool boxed) {
    palace.Border = boxed;
    palace.Opaque = boxed;
}

void colour_by_quality(screen::Label& palace) {
    int const number = text::number_of(palace.Caption.get());
    set_box(palace, true);
    if (number >= 1 && number <= 12) palace.BackColor = row_of(quality_of_palace(number)).back;
}

// Switches between the sun's cell in a green box and all twelve boxes coloured by quality.
void categorie_couleur(Program& program) {
    auto& form = program.form1;
    int& sun_cell = program.consultation.palais_index;
    bool const coloured = form.Label_Solaire(cell_after(sun_cell)).Opaque;
    for (int i = 1; i <= 12; ++i) {
        if (!coloured) {
            // The walk ends where it began.
            colour_by_quality(form.Label_Solaire(sun_cell));
            sun_cell = cell_after(sun_cell);
            continue;
        }
        set_box(form.Label_Solaire(i), false);
        // The tag marks every cell that once was the sun's; the box goes to the present one.
        if (form.Label_Solaire(i).Tag.get() != "1") continue;
        set_box(form.Label_Solaire(sun_cell), true);
        form.Label_Solaire(sun_cell).BackColor = row_of(Quality::benefic).back;
    }
}

}  // namespace

void take_boxes_off(Program& program) {
    auto& form = program.form1;
    int const sun_cell = program.consultation.palais_index;
    bool const all = form.Label_Solaire(cell_after(sun_cell)).Border;
    if (!all) {
        set_box(form.Label_Solaire(sun_cell), false);
        return;
    }
    for (int cell = 1; cell <= 12; ++cell) set_box(form.Label_Solaire(cell), false);
}

void couleur_Disk_Rouge_Vert(Program& program) {
    program.form1.Command_Disk_Vert.Picture = picture::unsaved;
}

void wire_palace_colours(Program& program) {
    program.form1.Command_categorie.on_click = [&program] { categorie_couleur(program); };
}

}  // namespace navarun
