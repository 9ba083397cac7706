// Schemes and arrows of the chart.
#include "chart/kundali.h"

#include <array>
#include <cstdint>

#include "chart/arrow_shape.h"
#include "chart/colour_schemes.h"
#include "core/fatal_error.h"
#include "core/small_number.h"
#include "files/browser.h"
#include "files/settings.h"
#include "shell/image_store.h"
#include "shell/program.h"

namespace navarun {

namespace {

std::array<screen::MenuEntry*, scheme_count> scheme_entries(Form1& form) {
    return {&form.MnuAzur_cycle, &form.MnuAzur_Aum, &form.MnuMauve_cycle, &form.MnuMauve_Aum};
}

void colour_window(Program& program, SchemeFamily const& family) {
    auto& form = program.form1;
    auto const member = [&](std::string_view name) {
        return screen::Picture{name, family.picture_member};
    };
    form.Bouton_seigneurjour.Picture = member("Image_heure");
    form.Image_Titre.Picture = member("Image_Titre_Navarun");
    form.BackColor = family.window;
    form.Text_zodiac.BackColor = family.reading_field;
    form.Text_jourdeSemaine.BackColor = family.reading_field;
    form.File_Fichier.BackColor = family.record_list;
    form.Image1.Picture = member("Image_nuage_Bas");
    form.Image2.Picture = member("Image_nuage_haut");
    for (auto* label : {&form.Label_jourdeSemaine, &form.Label_zodiac, &form.Label_nomNakshatra,
                        &form.Label_dinanka_Purnanka, &form.Label_Lal_Kitab}) {
        label->BackColor = family.band;
    }
    form.Command_DateNow.Picture = member("Image_DateNow");
    form.Text_definition_palais.BackColor = family.definition;
    program.scheme_colours.couleur_fond_fenetre = family.small_window;
    program.scheme_colours.couleur_liste = family.list;
    program.scheme_colours.couleur_titre_fenetre = family.small_window_title;
}

void choose_scheme(Program& program, int scheme) {
    if (scheme_entries(program.form1)[static_cast<std::size_t>(scheme)]->Checked) return;
    program.settings.couleur_kundali = static_cast<std::uint8_t>(scheme);
    Choix_Couleur_Kundali(program);
}

screen::DrawnLine in_arrow_colour(Program const& program, Segment const& segment) {
    return {.x1 = segment.from.x,
            .y1 = segment.from.y,
            .x2 = segment.to.x,
            .y2 = segment.to.y,
            .width = program.form1.Picture_KUNDALI.draw_width(),
            .colour = program.arrow.couleur_fleche};
}

// Draws the arrow of the last drag, for good.
void dessine_fleche(Program& program) {
    auto& arrow = program.arrow;
    arrow.fleche_fixee = true;
    Point const start{arrow.depart_x, arrow.depart_y};
    Point const tip{start.x + arrow.delta_x, start.y + arrow.delta_y};
    for (auto const& segment : arrow_shape(start, tip, arrow.style_fleche)) {
        program.form1.Picture_KUNDALI.draw(screen::Layer::persistent,
                                           in_arrow_colour(program, segment));
    }
}

void chart_mouse_down(Program& program, screen::Mouse const& mouse) {
    auto& arrow = program.arrow;
    arrow.fleche_fixee = false;
    program.form1.Picture_KUNDALI.clear_rubber();
    if (mouse.button != 1) return;
    arrow.depart_x = mouse.x;
    arrow.depart_y = mouse.y;
    arrow.delta_x = 0;
    arrow.delta_y = 0;
}

void chart_mouse_move(Program& program, screen::Mouse const& mouse) {
    if (!program.fleche.Visible) return;
    auto& arrow = program.arrow;
    auto& chart = program.form1.Picture_KUNDALI;
    if (!arrow.fleche_fixee) chart.clear_rubber();
    if (mouse.button != 1) return;
    arrow.delta_x = mouse.x - arrow.depart_x;
    arrow.delta_y =
        small_number(mouse.y - arrow.depart_y, "Une flèche a été tirée trop loin du dessin.");
    chart.set_draw_width(arrow.epaisseur_fleche);
    Segment const rubber{{arrow.depart_x, arrow.depart_y}, {mouse.x, mouse.y}};
    chart.draw(screen::Layer::rubber, in_arrow_colour(program, rubber));
}

void chart_mouse_up(Program& program) {
    if (program.fleche.Visible) dessine_fleche(program);
    program.arrow.fleche_dessinee = true;
}

}  // namespace

void load_chart(Program& program) {
    int const scheme = program.settings.couleur_kundali;
    if (scheme >= scheme_count) {
        throw FatalError{
            "L'image du thème numéro " + std::to_string(scheme) + " a été demandée.",
            "Il n'y a que quatre thèmes, de 0 à 3. Au prochain lancement le thème sera Azur."};
    }
    program.form1.Picture_KUNDALI.Picture = picture::charts[static_cast<std::size_t>(scheme)];
}

void Choix_Couleur_Kundali(Program& program) {
    auto& form = program.form1;
    int const scheme = program.settings.couleur_kundali;
    write_settings(program);
    if (scheme < scheme_count) colour_window(program, family_of(scheme));
    auto const entries = scheme_entries(form);
    for (int i = 0; i < scheme_count; ++i) {
        entries[static_cast<std::size_t>(i)]->Checked = i == scheme;
    }
    load_chart(program);
    // The browser takes the colour of its record mode back from here.
    form.File_Fichier.Tag = to_text(form.File_Fichier.BackColor.get());
    if (form.File_Fichier.ForeColor.get() == screen::black) {
        form.Frame_FileFichier.Visible = false;
        give_reset_its_role_back(form);
    }
}

void efface_fleche(Program& program) {
    if (!program.arrow.fleche_dessinee) return;
    load_chart(program);
    program.fleche.hide();  // it keeps its settings
    program.form1.MnuFleche.Checked = false;
    program.arrow.fleche_dessinee = false;
}

void wire_kundali(Program& program) {
    auto const entries = scheme_entries(program.form1);
    for (int i = 0; i < scheme_count; ++i) {
        entries[static_cast<std::size_t>(i)]->on_click = [&program, i] {
            choose_scheme(program, i);
        };
    }
    auto& chart = program.form1.Picture_KUNDALI;
    chart.on_mouse_down = [&program](screen::Mouse const& mouse) {
        chart_mouse_down(program, mouse);
    };
    chart.on_mouse_move = [&program](screen::Mouse const& mouse) {
        chart_mouse_move(program, mouse);
    };
    chart.on_mouse_up = [&program](screen::Mouse const&) { chart_mouse_up(program); };
}

}  // namespace navarun
