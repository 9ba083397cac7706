// The rescued record.
#include "files/rescue.h"

#include "files/folders.h"
#include "shell/program.h"

namespace navarun {

std::string rescue_consultation(Program& program) {
    std::string name;
    try {
        name = write_under_free_name(program, program.folders.dossier_actif, "SAUVETAGE",
                                     ".fcy", record_bytes(record_on_screen(program)));
    } catch (FatalError const& error) {
        return std::string{"La consultation à l'écran n'a pas pu être gardée : "} +
               error.what();
    }
    return "La consultation à l'écran est gardée dans la fiche « " + name + " ».";
}

}  // namespace navarun
