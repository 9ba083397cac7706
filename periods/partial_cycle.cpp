// Hiding and showing the rows.
#include "periods/partial_cycle.h"

#include "shell/program.h"

namespace navarun {

namespace {

// Shows the selected period and month alone, or the whole rows again.
void Cycle_partiel(Program& program) {
    auto& form = program.form1;
    bool const whole = !program.periods.cycle_partiel_actif;
    auto const show = [&](int month, int dasha, bool visible) {
        form.Label_mois(month).Visible = visible;
        form.Label_MoisDate(month).Visible = visible;
        form.Label_Dasha(dasha).Visible = visible;
        form.Label_DashaDate(dasha).Visible = visible;
    };
    for (int i = 1; i <= 12; ++i) show(i, i, whole);
    show(program.consultation.colonne_mois, program.consultation.colonne_dasha, true);
}

}  // namespace

void CyclePartiel_annule(Program& program) {
    if (!program.periods.cycle_partiel_actif) return;
    program.periods.cycle_partiel_actif = false;
    Cycle_partiel(program);
}

void wire_partial_cycle(Program& program) {
    program.form1.Btn_cycle_partiel.on_click = [&program] {
        program.periods.cycle_partiel_actif = !program.periods.cycle_partiel_actif;
        Cycle_partiel(program);
    };
}

}  // namespace navarun
