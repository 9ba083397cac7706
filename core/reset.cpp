// Beginning anew.
#include "core/reset.h"

#include "chart/kundali.h"
#include "chart/palace_colours.h"
#include "core/birth_date_entry.h"
#include "core/generate.h"
#include "files/address_book.h"
#include "files/browser.h"
#include "print/options.h"
#include "shell/image_store.h"
#include "shell/program.h"

namespace navarun {

namespace {

void empty_the_fields(Form1& form) {
    form.Label_zodiac.Caption = "";
    form.Text_zodiac.Text = "";
    form.Label_nomNakshatra.Caption = "";
    form.Label_Lal_Kitab.Caption = "";
    form.Label_Nak.Caption = "";
    form.Text_prenom.Text = "";
    form.Text_nom.Text = "";
    form.Text_Note.Text = "";
}

void set_birth_to(Program& program, Date date) {
    auto& birth = program.consultation.birth;
    birth.set(date);
    write_date_combos(program);
    birth.rebuild_date_naissance();
}

void Command_reset_click(Program& program) {
    auto& form = program.form1;
    if (form.Frame_Internet.Visible) Efface_Url(program);
    auto const& role = form.Command_reset.Picture.get();
    if (role == picture::begin_anew) {
        reset(program);
    } else if (role == picture::erase || role == picture::erase_portrait) {
        Efface_fichier(program);
    }
}

}  // namespace

void reset(Program& program) {
    auto& form = program.form1;
    program.affiche_cycle.hide();
    program.frm_calend.hide();
    efface_fleche(program);
    form.Picture_PHOTO.Picture = picture::ganesha;
    program.consultation.fichier_photo = std::string{};
    empty_the_fields(form);
    set_birth_to(program, program.platform.today());
    close_print_options(program);
    program.screen.move_focus(form.Text_prenom);
    form.HScroll_age.Value = 1;
    form.Picture2.Visible = false;
    take_boxes_off(program);
    generate(program);
}

void wire_reset(Program& program) {
    program.form1.Command_reset.on_click = [&program] { Command_reset_click(program); };
}

}  // namespace navarun
