// What the options do to the page.
#include "print/options.h"

#include <algorithm>
#include <array>

#include "chart/colour_schemes.h"
#include "core/text.h"
#include "periods/cycle_window.h"
#include "print/preview.h"
#include "print/report.h"
#include "shell/program.h"

namespace navarun {

namespace {

constexpr int years_of_span = 5;
constexpr screen::Colour outside_the_span{0xFF0000};

struct Section {
    screen::CheckBox& box;
    bool& printed;
};

std::array<Section, 6> sections(Program& program) {
    auto& options = program.option_impression;
    auto& printing = program.printing;
    return {{
        {options.Check_Mahadasha, printing.imprime_mahadasha},
        {options.Check_PhotoImprime, printing.imprime_photo},
        {options.Check_periode, printing.imprime_periode},
        {options.Check_SeigneurMois, printing.imprime_seigneur_mois},
        {options.Check_noteImprime, printing.imprime_note},
        {options.Check_palaisDestin, printing.imprime_palais_destin},
    }};
}

void switch_section(Program& program, Section const& section) {
    section.printed = section.box.Value == 1;
    draw_preview(program);
}

std::string age_with_unit(int age) {
    return text::padded(age, 2) + (age == 1 ? " an" : " ans");
}

// The ends of the span, and the age in red where it lies outside.
void tell_ages(Program& program) {
    auto& labels = program.option_impression.Label_age;
    int const first = program.option_impression.HScroll_annee.thumb();
    labels(0).Caption = age_with_unit(first);
    labels(1).Caption = age_with_unit(first + years_of_span);
    auto const told = [&](int label) {
        return text::number_of(text::first(labels(label).Caption.get(), 3));
    };
    bool const inside = told(0) <= told(2) && told(2) <= told(1);
    labels(2).ForeColor = inside ? screen::black : outside_the_span;
}

void list_periods(Program& program) {
    auto& lines = program.printing.periodes_impression;
    lines.fill("");
    // The first line of the list is a rule above the first heading.
    auto const listed = period_lines(program);
    for (std::size_t i = 0; i < lines.size() && i + 1 < listed.size(); ++i) {
        lines[i] = listed[i + 1];
    }
}

void HScroll_annee_change(Program& program) {
    auto& options = program.option_impression;
    tell_ages(program);
    auto const birth = read_date(program.consultation.birth.date_naissance());
    if (!birth) return;
    auto const from = add_years(*birth, options.HScroll_annee.thumb());
    options.Label_afficheAnnee(0).Caption = write_date(from);
    options.Label_afficheAnnee(1).Caption = write_date(add_years(from, years_of_span));
}

// The list of periods goes: the span told is not the one that it shows.
void take_periods_off(Program& program) { program.option_impression.Check_periode.Value = 0; }

void open_options(Program& program) {
    auto& options = program.option_impression;
    auto const& colours = family_of(program.settings.couleur_kundali);
    options.BackColor = colours.small_window;
    options.Label_option_impression.BackColor = colours.band;
    for (auto const& section : sections(program)) {
        section.box.BackColor = colours.small_window;
        section.box.Value.preset(1);
    }
    options.Stacking = screen::Stacking::topmost;
    options.Label_age(2).Caption = text::padded(program.consultation.age_courant, 2);
    options.HScroll_annee.Value = program.consultation.age_courant;
    tell_ages(program);
    choix_periode(program);
}

void Image_Impression_click(Program& program) {
    close_print_options(program);
    program.printing.imprime_tri_deva = true;
    print_report(program);
}

}  // namespace

void choix_periode(Program& program) {
    list_periods(program);
    auto& options = program.option_impression;
    switch_section(program, {options.Check_periode, program.printing.imprime_periode});
}

void keep_periods_of_the_person(Program& program) {
    auto const& lines = program.printing.periodes_impression;
    bool const listed =
        std::ranges::any_of(lines, [](auto const& line) { return !line.empty(); });
    if (listed) list_periods(program);
}

void close_print_options(Program& program) {
    auto& options = program.option_impression;
    if (!options.Visible) return;
    options.unload();
    program.form1.Picture2.Visible = false;
    program.form1.MnuApercu_Impression.Checked = false;
}

void wire_print_options(Program& program) {
    auto& options = program.option_impression;
    options.on_load = [&program] { open_options(program); };
    options.on_close = [&program] { close_print_options(program); };
    for (std::size_t i = 0; i < sections(program).size(); ++i) {
        sections(program)[i].box.on_click = [&program, i] {
            switch_section(program, sections(program)[i]);
        };
    }
    options.Check_periode.on_click = [&program] { choix_periode(program); };
    auto& bar = options.HScroll_annee;
    bar.on_change = bar.on_scroll = [&program] { HScroll_annee_change(program); };
    options.Btn_remise1.on_click = [&program] {
        program.option_impression.HScroll_annee.Value = 1;
    };
    bar.on_got_focus =
        options.Btn_remise1.on_got_focus = [&program] { take_periods_off(program); };
    options.Image_Impression.on_click = [&program] { Image_Impression_click(program); };
}

}  // namespace navarun
