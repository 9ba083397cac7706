// Saving a consultation as a record, and bringing one back.
#pragma once

#include <string>

#include "files/record_format.h"

namespace navarun {

class Program;

/// What saving and loading remember.
struct RecordValues {
    std::string chemin_fichier;       // the record last written
    std::string fichier_selectionne;  // the file chosen in the list
    std::string note_consultant;
    std::string prenom_lu;
    std::string nom_lu;
};

/// The consultation as its fields show it.
Record record_on_screen(Program& program);

/// Loads the selected record: fields, computation, marks; then closes the browser. A birth date
/// that cannot be read ends the load before its computation with a message box.
void load_selected_record(Program& program);

/// Throws FatalError for a file name that would leave its folder, or that another platform
/// refuses.
void refuse_bad_file_name(std::string const& name);

/// The diskette saves, after its question.
void wire_records(Program& program);

}  // namespace navarun
