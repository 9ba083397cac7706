// The portrait of the consultant.
#pragma once

#include <string>

#include "files/file_list.h"

namespace navarun {

class Program;

/// The picture files that can be a portrait.
extern Endings const portrait_endings;

/// Paints a picture of the portrait folder into the portrait's box, fitted and centred. Throws
/// FatalError where the file cannot be shown.
/// @param name  file name without folder
void affiche_image_ajustee(Program& program, std::string const& name);

/// Takes a picture of the portrait folder as the portrait, as a choice in the list does: the
/// record has changes to be saved, and the browser closes. Of a name that no record can hold a
/// copy under a fitting one is taken.
void choose_portrait(Program& program, std::string const& name);

/// The double click, the pointer and the files dropped on the portrait.
void wire_portrait(Program& program);

}  // namespace navarun
