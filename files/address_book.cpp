// The first address book.
#include "files/address_book.h"

#include "files/delimited.h"
#include "files/durable_file.h"
#include "shell/program.h"

namespace navarun {

void create_address_book(Program& program) {
    auto const& shown_as = program.folders.chemin_internet;
    auto const path = program.path_of(shown_as);
    if (FileExists(path)) return;
    DelimitedWriter writer;
    for (auto const& address : program.url_defaut) writer.text(address).end_record();
    write_file(path, writer.bytes(), shown_as);
}

}  // namespace navarun
