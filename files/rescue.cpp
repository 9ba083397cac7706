// The rescued record.
#include "files/rescue.h"

#include "files/durable_file.h"
#include "files/record_format.h"
#include "shell/program.h"

namespace navarun {

namespace {

Record record_on_screen(Program& program) {
    auto const& form = program.form1;
    auto const& birth = program.consultation.birth;
    return {
        .first_name = form.Text_prenom.Text.get(),
        .last_name = form.Text_nom.Text.get(),
        .day = birth.jour_naissance(),
        .month = birth.mois_naissance(),
        .century = birth.siecle_naissance(),
        .year = birth.annee_naissance(),
        .julian = program.consultation.julien_actif,
        .portrait = program.consultation.fichier_photo,
        .note = form.Text_Note.Text.get(),
    };
}

std::string free_name(Program& program) {
    std::string name = "SAUVETAGE.fcy";
    for (int number = 2; FileExists(program.path_of(program.folders.dossier_actif + name));
         ++number) {
        name = "SAUVETAGE (" + std::to_string(number) + ").fcy";
    }
    return name;
}

}  // namespace

std::string rescue_consultation(Program& program) {
    std::string const name = free_name(program);
    try {
        write_file(program.path_of(program.folders.dossier_actif + name),
                   record_bytes(record_on_screen(program)), name);
    } catch (FatalError const& error) {
        return std::string{"La consultation à l'écran n'a pas pu être gardée : "} +
               error.what();
    }
    return "La consultation à l'écran est gardée dans la fiche « " + name + " ».";
}

}  // namespace navarun
