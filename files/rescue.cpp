// The rescued record.
#include "files/rescue.h"

#include "files/durable_file.h"
#include "shell/program.h"

namespace navarun {

namespace {

std::string free_name(Program& program) {
    std::string name = "SAUVETAGE.fcy";
    for (int number = 2; !is_free(program.path_of(program.folders.dossier_actif + name), name);
         ++number) {
        name = "SAUVETAGE (" + std::to_string(number) + ").fcy";
    }
    return name;
}

}  // namespace

std::string rescue_consultation(Program& program) {
    std::string name;
    try {
        name = free_name(program);
        write_file(program.path_of(program.folders.dossier_actif + name),
                   record_bytes(record_on_screen(program)), name);
    } catch (FatalError const& error) {
        return std::string{"La consultation à l'écran n'a pas pu être gardée : "} +
               error.what();
    }
    return "La consultation à l'écran est gardée dans la fiche « " + name + " ».";
}

}  // namespace navarun
