// The mansion of a consultation.
#include "zodiac/nakshatra.h"

#include "periods/lord_circle.h"
#include "shell/program.h"
#include "zodiac/mansions.h"

namespace navarun {

void Nakshatra(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    if (auto const number =
            mansion_at(consultation.signe_solaire, consultation.degre_solaire)) {
        consultation.numero_nakshatra = *number;
    }
    int const number = consultation.numero_nakshatra;
    auto const& found = mansion(number);
    form.Label_nomNakshatra.Caption = std::to_string(number).append(" ").append(found.name);
    auto const& lord = row_of(found.lord);
    form.Label_Nak.Caption = lord.name;
    form.Label_Nak.BackColor = lord.back;
    form.Label_Nak.ForeColor = lord.fore;

    program.periods.dates_age = {consultation.birth.jour_mois_anniv(),
                                 consultation.annee_calcul, circle_place(found.lord)};
}

}  // namespace navarun
