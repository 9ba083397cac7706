// The report of a failed file.
#include "files/failed_file.h"

#include "core/fatal_error.h"

namespace navarun {

void fail(char const* attempted, std::string const& file, std::string const& reason) {
    throw FatalError{std::string{attempted} + " « " + file + " » a échoué.", reason};
}

std::string reason::by_number(unsigned long number) {
    return "Le système a signalé l'erreur " + std::to_string(number) + ".";
}

}  // namespace navarun
