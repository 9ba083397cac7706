// Writing a sequence's step into the cells.
#include "periods/maha_dasha.h"

#include <cstddef>

#include "core/cells.h"
#include "periods/current_period.h"
#include "periods/dasha_schedule.h"
#include "periods/row_dates.h"
#include "periods/year_month_lords.h"
#include "shell/program.h"

namespace navarun {

namespace {

constexpr screen::Colour couleur_dasha = screen::standard_colour(9);

void run_sequence(Program& program, int column, DashaStep const& step) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    auto& periods = program.periods;
    if (step.date_row) {
        consultation.date_annee_courante = periods.dates_age(*step.date_row);
    }
    consultation.colonne_age_mod = cell_of_age(consultation.palais_index, step.column_age);
    if (step.assigned) periods.seigneur_dasha = number_of(*step.assigned);
    periods.pas_mois = 0;
    form.Label_Dasha(consultation.colonne_age_mod).ForeColor = periods.couleur_dasha;

    auto& start_text = consultation.date_annee_courante;
    if (repairs_leap_days(column) && is_leap_day(start_text)) start_text.replace(0, 2, "28");
    auto const name = program.name_of_lord(periods.seigneur_dasha);
    bool const shows_29th =
        repairs_leap_days(column) && is_leap_day(consultation.birth.date_naissance());
    auto const dates = row_dates(start_text, step.months, shows_29th);
    int cell = consultation.colonne_age_mod;
    for (std::size_t i = 0; i < 12; ++i, cell = cell_after(cell)) {
        form.Label_Dasha(cell).Caption = name;
        if (dates) form.Label_DashaDate(cell).Caption = std::string_view{(*dates)[i]};
        periods.pas_mois += step.months;
    }
}

}  // namespace

void Maha_Dasha(Program& program) {
    auto& consultation = program.consultation;
    auto& periods = program.periods;
    take_year_shown(program);
    consultation.colonne_age_mod =
        (consultation.palais_index + consultation.age_courant - 1) % 12;
    consultation.colonne_dasha =
        cell_of_age(consultation.palais_index, consultation.age_courant);
    periods.couleur_dasha = couleur_dasha;
    program.form1.Label_DashaDate(consultation.colonne_age).ForeColor = screen::black;
    if (auto const column = sequence_of_mansion(consultation.numero_nakshatra)) {
        auto const step = dasha_step(*column, consultation.age_courant);
        if (step) run_sequence(program, *column, *step);
    }
    Trouve_ActuelMahaDasha(program);
}

}  // namespace navarun
