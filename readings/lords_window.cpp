// Filling the list of lords.
#include "readings/lords_window.h"

#include "readings/hour_lords.h"
#include "shell/program.h"

namespace navarun {

namespace {

std::string trimmed(std::string text) {
    text.erase(0, text.find_first_not_of(' '));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

void fill(Program& program) {
    auto const& form = program.form1;
    auto& list = program.frm_seigneur_jour.List_SeigneurJour;
    auto const first = read_date(form.Label_anneedefile.Caption.get());
    auto const last = read_date(form.Label_anneedefile_Suite.Caption.get());
    if (!first || !last) return;
    list.clear();
    int const hour = static_cast<int>(program.platform.seconds_since_midnight()) / 3600;
    auto const lines = lord_lines({
        .name = trimmed(form.Text_prenom.Text.get() + " " + form.Text_nom.Text.get()),
        .birth_date = program.consultation.birth.date_naissance(),
        .today = program.platform.today(),
        .hour = hour,
        .first_day = *first,
        .last_day = *last,
    });
    for (auto const& line : lines) list.add(line);
}

}  // namespace

void wire_lords_window(Program& program) {
    auto& window = program.frm_seigneur_jour;
    program.form1.Bouton_seigneurjour.on_click = [&program] {
        auto& opened = program.frm_seigneur_jour;
        opened.BackColor = program.scheme_colours.couleur_fond_fenetre;
        opened.List_SeigneurJour.BackColor = program.scheme_colours.couleur_liste;
        fill(program);
        opened.open();
    };
    window.on_load = [&program] {
        program.frm_seigneur_jour.Stacking = screen::Stacking::topmost;
    };
    window.Btn_Fermez.on_click = [&program] { program.frm_seigneur_jour.hide(); };
    window.on_close = [&program] { program.frm_seigneur_jour.unload(); };
}

}  // namespace navarun
