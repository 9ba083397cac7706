// Choices of the arrow window.
#include "chart/arrow_dialog.h"

#include <cmath>

#include "chart/arrow_shape.h"
#include "chart/kundali.h"
#include "shell/program.h"

namespace navarun {

namespace {

// The samples of the five widths, in twips down the picture.
constexpr int sample_count = 5;
constexpr int sample_step = 215;
constexpr int first_sample_at = 100;

constexpr int colour_at_start = 5;
constexpr int sample_at_start = 1;

int width_of_sample(int sample) { return sample * 2 + 1; }

void draw_samples(Fleche& window) {
    window.Picture1.Picture = screen::Picture{};
    for (int i = 0; i < sample_count; ++i) {
        double const y = i * sample_step + first_sample_at;
        window.Picture1.draw(screen::Layer::persistent,
                             {.x1 = 0,
                              .y1 = y,
                              .x2 = static_cast<double>(window.Picture1.Width),
                              .y2 = y,
                              .width = width_of_sample(i),
                              .colour = screen::black});
    }
}

// The frame round the chosen sample.
void frame_sample(Fleche& window, double top, double bottom) {
    window.Picture1.clear_rubber();
    double const right = window.Picture1.Width - 30;
    auto const line = [&](double x1, double y1, double x2, double y2) {
        window.Picture1.draw(
            screen::Layer::rubber,
            {.x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .colour = screen::standard_colour(12)});
    };
    line(15, top, right, top);
    line(right, top, right, bottom);
    line(right, bottom, 15, bottom);
    line(15, bottom, 15, top);
}

void choose_colour(Program& program, int index) {
    auto& window = program.fleche;
    auto const& field = window.Label_couleur(index);
    window.Shape_selection.Left = field.Left.get();
    window.Shape_selection.Top = field.Top.get();
    program.arrow.couleur_fleche = field.BackColor;
}

void load(Program& program) {
    auto& window = program.fleche;
    window.Stacking = screen::Stacking::topmost;
    draw_samples(window);
    frame_sample(window, sample_step, 440);
    for (int i = 0; i < 16; ++i) window.Label_couleur(i).BackColor = screen::standard_colour(i);
    choose_colour(program, colour_at_start);
    window.Option_Fleche(open_arrow).Value = true;
    program.arrow.style_fleche = open_arrow;
    program.arrow.epaisseur_fleche = width_of_sample(sample_at_start);
}

// The window goes, and with it its settings: it opens anew with those of its load.
void close(Program& program) {
    efface_fleche(program);
    program.form1.MnuFleche.Checked = false;
    program.fleche.unload();
}

void MnuFleche_click(Program& program) {
    auto& window = program.fleche;
    auto const ground = program.scheme_colours.couleur_fond_fenetre;
    window.BackColor = ground;
    window.Frame1.BackColor = ground;
    for (int const index : window.Option_Fleche.indexes()) {
        window.Option_Fleche(index).BackColor = ground;
    }
    if (window.Visible) {
        close(program);
        return;
    }
    program.form1.MnuFleche.Checked = true;
    window.open();
}

void choose_width(Program& program, screen::Mouse const& mouse) {
    double const place = std::trunc(std::nearbyint(mouse.y) / sample_step);
    if (mouse.button != 1 || place < 0 || place >= sample_count) return;
    int const sample = static_cast<int>(place);
    frame_sample(program.fleche, sample * sample_step, (sample + 1) * sample_step);
    program.arrow.epaisseur_fleche = width_of_sample(sample);
}

void wipe_arrows(Program& program) {
    if (program.arrow.fleche_dessinee) load_chart(program);
    program.arrow.fleche_dessinee = false;
}

}  // namespace

void wire_arrow_dialog(Program& program) {
    auto& window = program.fleche;
    program.form1.MnuFleche.on_click = [&program] { MnuFleche_click(program); };
    window.on_load = [&program] { load(program); };
    window.on_close = [&program] { close(program); };
    for (int const index : window.Option_Fleche.indexes()) {
        window.Option_Fleche(index).on_click = [&program, index] {
            program.arrow.style_fleche = index;
        };
    }
    for (int const index : window.Label_couleur.indexes()) {
        window.Label_couleur(index).on_click = [&program, index] {
            choose_colour(program, index);
        };
    }
    window.Picture1.on_mouse_down = [&program](screen::Mouse const& mouse) {
        choose_width(program, mouse);
    };
    window.Command1.on_click = [&program] { wipe_arrows(program); };
}

}  // namespace navarun
