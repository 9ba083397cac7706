// Filling and showing the cycle list.
#include "periods/cycle_window.h"

#include <algorithm>

#include "core/text.h"
#include "periods/cycle_list.h"
#include "shell/program.h"

namespace navarun {

namespace {

// The lord named by the mansion's label; empty where it names none.
std::optional<Lord> lord_on_label(Program const& program) {
    std::string const name = text::upper(program.form1.Label_Nak.Caption.get());
    auto const row = std::ranges::find(circle, name, &CircleRow::capitals);
    if (row == circle.end()) return {};
    return row->lord;
}

void Mnuperiode_click(Program& program) {
    auto& window = program.affiche_cycle;
    auto& entry = program.form1.Mnuperiode;
    entry.Checked = !window.Visible;
    if (window.Visible) {
        window.hide();
        return;
    }
    window.BackColor = program.scheme_colours.couleur_fond_fenetre;
    window.List_periode.BackColor = program.scheme_colours.couleur_liste;
    cycle20ans(program);
    window.open();
}

}  // namespace

std::vector<std::string> period_lines(Program const& program) {
    auto const& consultation = program.consultation;
    auto const& birth = consultation.birth;
    auto const lord = lord_on_label(program);
    auto const date = read_date(birth.date_naissance());
    if (!lord || !date) return {};
    return cycle_lines({
        .first_lord = *lord,
        .birth = *date,
        .year_of_century = text::number_of(text::last(birth.date_naissance(), 2)),
        .weekday_lord = consultation.seigneur_jour,
        .day = text::number_of(birth.jour_naissance()),
        .month = text::number_of(birth.mois_naissance()),
        .age_shown = consultation.age_courant,
    });
}

void cycle20ans(Program& program) {
    auto const lines = period_lines(program);
    if (lines.empty()) return;
    auto& list = program.affiche_cycle.List_periode;
    list.clear();
    for (auto const& line : lines) list.add(line);
    auto const shown = read_date(program.form1.Label_anneedefile.Caption.get());
    if (!shown) return;
    if (auto const place = line_starting_on(list.entries(), *shown)) list.ListIndex = *place;
}

void wire_cycle_window(Program& program) {
    program.affiche_cycle.on_load = [&program] {
        program.affiche_cycle.Stacking = screen::Stacking::topmost;
    };
    program.form1.Mnuperiode.on_click = [&program] { Mnuperiode_click(program); };
    program.affiche_cycle.on_close = [&program] {
        program.form1.Mnuperiode.Checked = false;
        program.affiche_cycle.unload();
    };
}

}  // namespace navarun
