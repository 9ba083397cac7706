// Filling the palace of destiny.
#include "readings/destiny_palace.h"

#include "core/cells.h"
#include "core/lords.h"
#include "core/text.h"
#include "shell/program.h"

namespace navarun {

namespace {

// The date, and below it the age that the year numbers alone make. One year is told without the
// full stop.
std::string date_and_age(Consultation const& consultation, std::string const& date) {
    int const years = text::number_of(text::last(date, 4)) - consultation.annee_calcul;
    std::string told = date;
    told.append(text::line_break).append(std::to_string(years));
    return told.append(years == 1 ? " an" : " ans.");
}

void Mnu_palaisdestin_click(Program& program) {
    if (program.form1.Mnu_palaisdestin.Checked) {
        close_destiny_palace(program);
        return;
    }
    program.form1.Mnu_palaisdestin.Checked = true;
    program.palais_du_destin.BackColor = program.scheme_colours.couleur_fond_fenetre;
    program.palais_du_destin.open();
}

}  // namespace

void palaisDudestin(Program& program) {
    auto& window = program.palais_du_destin;
    auto const& form = program.form1;
    auto const& consultation = program.consultation;
    window.Stacking = screen::Stacking::topmost;
    int const column = cell_of_column(consultation.colonne_age_mod);
    std::string const& date = form.Label_DashaDate(column).Caption.get();
    int const lord =
        reduced_to_nine(text::number_of(text::last(date, 2)) + consultation.seigneur_jour +
                        text::number_of(consultation.birth.jour_naissance()) +
                        text::number_of(consultation.birth.mois_naissance()));
    auto& facts = window.Label_Palais_du_destin;
    facts(2).Caption = program.name_of_lord(lord);
    facts(1).Caption = form.Label_Dasha(column).Caption.get();
    facts(3).Caption = form.Label_mois(column).Caption.get();
    facts(0).Caption = form.Label_Solaire(column).Caption.get();
    facts(4).Caption = date_and_age(consultation, date);
}

void close_destiny_palace(Program& program) {
    if (!program.palais_du_destin.Visible) return;
    program.palais_du_destin.unload();
    program.form1.Mnu_palaisdestin.Checked = false;
}

void wire_destiny_palace(Program& program) {
    program.palais_du_destin.on_load = [&program] { palaisDudestin(program); };
    program.palais_du_destin.on_close = [&program] { close_destiny_palace(program); };
    program.form1.Mnu_palaisdestin.on_click = [&program] { Mnu_palaisdestin_click(program); };
}

}  // namespace navarun
