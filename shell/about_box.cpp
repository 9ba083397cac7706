// What the about box tells, and its link.
#include "shell/about_box.h"

#include <string>

#include "core/text.h"
#include "shell/image_store.h"
#include "shell/program.h"

namespace navarun {

namespace {

constexpr std::string_view author = "L'équipe N.A.V.A.R.U.N";
constexpr std::string_view thanks = "Merci à tous les praticiens.";

std::string two_lines(std::string_view first, std::string_view second) {
    return std::string{first}.append(text::line_break).append(second);
}

void load(Program& program) {
    auto& box = program.a_propos;
    box.Stacking = screen::Stacking::topmost;
    box.Caption = std::string{"À propos de "}.append(program_title);
    box.lblTitle.Caption = program_title;
    box.lblVersion.Caption = NAVARUN_VERSION;
    box.lblDescription.Caption = two_lines("Concepteur", author);
    box.LblInternet.Caption = program.url_defaut.front();
    box.Lbl_merci.Caption = two_lines("- remerciements -", thanks);
    box.LblInternet.MouseIcon = picture::hand_cursor;
}

}  // namespace

void wire_about_box(Program& program) {
    auto& box = program.a_propos;
    program.form1.MnuPropos.on_click = [&program] { program.a_propos.open(); };
    box.on_load = [&program] { load(program); };
    box.on_close = box.cmdOK.on_click = [&program] { program.a_propos.unload(); };
    box.LblInternet.on_click = [&program] {
        program.platform.open(program.a_propos.LblInternet.Caption.get());
    };
}

}  // namespace navarun
