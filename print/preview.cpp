// Opening, drawing and closing the preview.
#include "print/preview.h"

#include <cmath>
#include <utility>

#include "chart/kundali.h"
#include "core/calendar.h"
#include "print/options.h"
#include "print/report.h"
#include "shell/program.h"
#include "shell/screen/units.h"

namespace navarun {

namespace {

// The first span told is of twenty years; a move of the bar then tells five.
constexpr int years_told_at_first = 20;

void tell_first_span(Program& program) {
    auto& options = program.option_impression;
    options.HScroll_annee.Value = program.consultation.age_courant;
    auto const& from = program.form1.Label_anneedefile.Caption.get();
    options.Label_afficheAnnee(0).Caption = from;
    if (auto const date = read_date(from)) {
        options.Label_afficheAnnee(1).Caption =
            write_date(add_years(*date, years_told_at_first));
    }
}

// Sets a box up for a page of the printer's proportions: its height follows its width, and what
// was drawn on it goes. Answers what an inch of the page measures on the box.
double ScalePicPreviewToPrinterInches(Program& program, screen::PictureBox& box) {
    auto const& page = program.printing.preview_page;
    double const box_inches = static_cast<double>(box.Width) / screen::twips_per_inch;
    double const ratio = box_inches / page.width;
    box.Height = static_cast<int>(std::lround(page.height * ratio * screen::twips_per_inch));
    box.clear_page();
    return ratio;
}

void MnuApercu_Impression_click(Program& program) {
    auto& form = program.form1;
    tell_first_span(program);
    if (form.Picture2.Visible) {
        form.MnuApercu_Impression.Checked = false;
        apercu_impression_Invisible(program);
        return;
    }
    efface_fleche(program);
    form.MnuApercu_Impression.Checked = true;
    auto& printing = program.printing;
    printing.imprime_photo = true;
    printing.imprime_note = true;
    printing.imprime_periode = true;
    printing.imprime_palais_destin = true;
    printing.imprime_mahadasha = true;
    printing.imprime_seigneur_mois = true;
    printing.preview_page = program.platform.printer_page();
    form.Picture2.Visible = true;
    draw_preview(program);
    program.option_impression.open();
}

}  // namespace

void draw_preview(Program& program) {
    auto& box = program.form1.Picture2;
    keep_periods_of_the_person(program);
    double const ratio = ScalePicPreviewToPrinterInches(program, box);
    if (auto page = PrintRoutine(program, ratio)) box.show_page(std::move(*page));
}

void apercu_impression_Invisible(Program& program) {
    close_print_options(program);
    program.form1.Picture2.Visible = false;
}

void wire_preview(Program& program) {
    program.form1.MnuApercu_Impression.on_click = [&program] {
        MnuApercu_Impression_click(program);
    };
}

}  // namespace navarun
