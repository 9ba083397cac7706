// Numbers and readings of the consultation.
#include "zodiac/number_texts.h"

#include <utility>

#include "shell/program.h"
#include "zodiac/numbers.h"
#include "zodiac/readings.h"

namespace navarun {

void Dinanka_Purnanka(Program& program) {
    auto& consultation = program.consultation;
    auto const& birth = consultation.birth;
    consultation.dinanka = dinanka_of(birth.jour_naissance());
    consultation.purnanka = purnanka_of(birth.jour_naissance(), birth.mois_naissance(),
                                        birth.siecle_naissance(), birth.annee_naissance());
    program.form1.Label_dinanka_Purnanka.Caption =
        "Dinânka: " + std::to_string(consultation.dinanka) +
        "  Purnânka: " + std::to_string(consultation.purnanka);
}

void Dinaka_Punanka_Text(Program& program) {
    auto& consultation = program.consultation;
    if (consultation.dinanka == 0) return;
    consultation.texte_dinanka = dinanka_reading(consultation.dinanka);
    consultation.texte_purnanka = purnanka_reading(consultation.purnanka);
}

void Nakshatra_Text(Program& program) {
    auto& consultation = program.consultation;
    if (auto text = mansion_reading(consultation.numero_nakshatra)) {
        consultation.texte_nakshatra = *std::move(text);
    }
}

}  // namespace navarun
