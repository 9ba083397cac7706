// The pipeline of a generation, in its order.
#include "core/generate.h"

#include "chart/kundali.h"
#include "periods/age_chooser.h"
#include "periods/age_scroll.h"
#include "periods/maha_dasha.h"
#include "periods/partial_cycle.h"
#include "periods/tri_deva.h"
#include "periods/year_month_lords.h"
#include "readings/destiny_palace.h"
#include "shell/program.h"
#include "zodiac/solar_position.h"

namespace navarun {

using screen::standard_colour;

void generate(Program& program) {
    auto& form = program.form1;
    if (!read_date(program.consultation.birth.date_naissance())) {
        program.platform.box("Erreur", "Date de naissance invalide !", BoxButtons::ok);
        return;
    }
    load_chart(program);
    close_age_chooser(program);
    change_couleurAge(program, "VERT");
    CyclePartiel_annule(program);
    form.Mnuperiode.Enabled = true;
    close_destiny_palace(program);
    cycle(program);
    Position_solaire(program);
    seigneur_annee(program);
    Seigneur_Mois(program);
    Maha_Dasha(program);
    defile_MahaDasha(program);
    triDeva(program);
}

void cycle(Program& program) {
    auto& form = program.form1;
    for (int i = 1; i <= 12; ++i) {
        auto& palace = form.Label_Solaire(i);
        auto& period = form.Label_Dasha(i);
        auto& month = form.Label_mois(i);
        form.Label_annee(i).Caption = "";
        palace.Visible = false;
        // The literal 1 in all twelve; Position_solaire gives each its number afterwards.
        palace.Caption = "1";
        period.ForeColor = standard_colour(6);
        form.Label_DashaDate(i).ForeColor = standard_colour(6);
        month.ForeColor = standard_colour(6);
        form.Label_MoisDate(i).ForeColor = screen::grey;
        period.FontBold = false;
        month.FontBold = false;
    }
    change_couleurAge(program, "VERT");
}

void wire_generate(Program& program) {
    program.form1.Command2.on_click = [&program] { generate(program); };
}

}  // namespace navarun
