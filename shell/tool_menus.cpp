// Opening what lies outside, and telling what is missing.
#include "shell/tool_menus.h"

#include <string_view>

#include "core/dialogue.h"
#include "files/folders.h"
#include "shell/program.h"

namespace navarun {

namespace {

struct Document {
    std::string_view path;  // from the application folder on
    std::string_view missing;
    float seconds;  // how long its absence is told
};

constexpr Document manual{"RESSOURCES/DOCS/AIDE NAVARUN.pdf",
                          "Le fichier d'aide de N.A.V.A.R.U.N est inexistant !\r\n"
                          "Fichier déplacé ou effacé !",
                          4.5F};
// Half a second less than the manual's: the two differ.
constexpr Document celebrities{"RESSOURCES/DOCS/CELEBRITES.pdf",
                               "Le fichier est inexistant.\r\n"
                               "Fichier déplacé ou effacé !",
                               4.0F};

// Looked for at each click: it may have come or gone since the start.
void open(Program& program, Document const& document) {
    auto const file = program.path_of(document.path);
    if (!FileExists(file)) {
        transient_message(program, document.missing, document.seconds);
        return;
    }
    program.platform.open_file(file, document.path);
}

void start(Program& program, OutsideProgram wanted) {
    if (!program.platform.has_program(wanted)) {
        transient_message(program, "Vous n'avez plus\r\nce fichier !", 2);
        return;
    }
    program.platform.start_program(wanted);
}

// Taken off the top, the window goes behind all others.
void MnuDevant_click(Program& program) {
    auto& form = program.form1;
    form.MnuDevant.Checked = !form.MnuDevant.Checked;
    form.Stacking =
        form.MnuDevant.Checked ? screen::Stacking::topmost : screen::Stacking::bottom;
}

}  // namespace

void wire_tool_menus(Program& program) {
    auto& form = program.form1;
    form.MnuAide.on_click = [&program] { open(program, manual); };
    form.Mnucelebrites.on_click = [&program] { open(program, celebrities); };
    form.MnuBlocNotes.on_click = [&program] { start(program, OutsideProgram::text_editor); };
    form.MnuCalculatrice.on_click = [&program] { start(program, OutsideProgram::calculator); };
    form.MnuNavarun.on_click = [&program] {
        program.platform.start_program(OutsideProgram::navarun);
    };
    form.MnuDevant.on_click = [&program] { MnuDevant_click(program); };
}

}  // namespace navarun
