// Marking the period's row.
#include "periods/current_period.h"

#include "core/cells.h"
#include "core/date_parts.h"
#include "periods/emphasis.h"
#include "periods/step_in_progress.h"
#include "shell/program.h"

namespace navarun {

void Trouve_ActuelMahaDasha(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    std::string_view const first_day = form.Label_anneedefile.Caption.get();
    auto const anniversary = read_date(first_day);
    if (!anniversary) return;
    auto const text_of_cell = [&form](int cell) -> std::string_view {
        return form.Label_DashaDate(cell).Caption.get();
    };
    Date const today = program.platform.today();
    if (in_year_in_progress(*anniversary, today)) {
        // Where no sequence had a case, the column may stand at 0 for cell 12.
        int const start = cell_of_column(consultation.colonne_age_mod);
        auto const date_of_cell = [&](int cell) { return read_date_parts(text_of_cell(cell)); };
        int const after = cell_after_today(date_of_cell, start, today);
        int const marked = cell_before(after);
        emphasise(form.Label_Dasha(marked));
        form.Label_DashaDate(marked).ForeColor = screen::black;
        // The cell after the marked one: the partial view and the report read it so.
        consultation.colonne_dasha = after;
        return;
    }
    auto const cell = cell_starting_on(text_of_cell, first_day);
    if (!cell) return;
    // The period's start cell has its colour already and needs no mark.
    if (form.Label_Dasha(*cell).ForeColor.get() == program.periods.couleur_dasha) return;
    form.Label_DashaDate(*cell).ForeColor = screen::black;
    emphasise(form.Label_Dasha(*cell));
    consultation.colonne_dasha = *cell;
}

void wire_current_period(Program& program) {
    for (int cell = 1; cell <= 12; ++cell) {
        program.form1.Label_Dasha(cell).on_click = [&program, cell] {
            auto& form = program.form1;
            pick_by_hand(form.Label_Dasha, form.Label_DashaDate, cell);
            program.consultation.colonne_dasha = cell;
        };
    }
}

}  // namespace navarun
