// The age bar and the state of the grid.
#include "periods/age_scroll.h"

#include "core/date_parts.h"
#include "core/generate.h"
#include "core/text.h"
#include "periods/lal_kitab.h"
#include "periods/lord_circle.h"
#include "periods/maha_dasha.h"
#include "periods/year_month_lords.h"
#include "print/preview.h"
#include "readings/destiny_palace.h"
#include "shell/image_store.h"
#include "shell/program.h"
#include "zodiac/solar_position.h"

namespace navarun {

namespace {

struct GridState {
    std::string_view tag;
    screen::Picture const& button;
    std::string_view tooltip;
    screen::Colour age_back;
    bool can_print;
};

GridState const true_grid{"VERT", picture::true_cycle, "Cycle vrai !",
                          screen::Colour{192, 255, 192}, true};
GridState const stale_grid{"ROUGE", picture::false_cycle, "Cycle faux !",
                           screen::Colour{255, 192, 192}, false};

void show_state(Program& program, GridState const& state) {
    auto& form = program.form1;
    form.Command2.Picture = state.button;
    form.Command2.ToolTipText = state.tooltip;
    for (auto* entry : {&form.Mnuperiode, &form.MnuImprime, &form.MnuApercu_Impression,
                        &form.Mnu_palaisdestin}) {
        entry->Enabled = state.can_print;
    }
    form.Label_age.BackColor = state.age_back;
}

void grid_becomes_true(Program& program) {
    auto& tag = program.form1.HScroll_age.Tag;
    if (tag.get() == stale_grid.tag) show_state(program, true_grid);
    tag = true_grid.tag;
}

void grid_becomes_stale(Program& program) {
    auto& tag = program.form1.HScroll_age.Tag;
    if (tag.get() == true_grid.tag) {
        close_destiny_palace(program);
        show_state(program, stale_grid);
    }
    tag = stale_grid.tag;
}

void show_end_of_year_from(Program& program, Date first_day) {
    YearMonthDay const last_day_before{first_day - std::chrono::days{1}};
    program.consultation.fin_annee_defile = last_day_before;
    program.form1.Label_anneedefile_Suite.Caption = write_date(add_years(last_day_before, 1));
}

// The last day of the cycle year shown, from its first day.
void follow_first_day(Program& program) {
    auto const first_day = read_date(program.form1.Label_anneedefile.Caption.get());
    if (first_day) show_end_of_year_from(program, *first_day);
}

void HScroll_age_change(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    auto& birth = consultation.birth;
    int const age = form.HScroll_age.Value;
    form.Text_definition_palais.Visible = false;
    apercu_impression_Invisible(program);
    program.periods.age_scroll = age;
    consultation.age_courant = age;
    birth.rebuild_date_naissance();
    auto const date = read_date_parts(birth.date_naissance());
    if (date) show_cycle_year(program, *date, age);
    birth.rebuild_jour_mois_anniv();
    defile_MahaDasha(program);
    grid_becomes_stale(program);
    form.Label_age.Caption = std::to_string(age);
}

void HScroll_age_scroll(Program& program) {
    auto& bar = program.form1.HScroll_age;
    program.consultation.age_courant = bar.thumb();
    bar.Value = bar.thumb();
    follow_first_day(program);
    defile_MahaDasha(program);
}

}  // namespace

void show_cycle_year(Program& program, YearMonthDay birth, int age) {
    YearMonthDay const first_day = add_years(birth, age);
    program.form1.Label_anneedefile.Caption = write_date(first_day);
    show_end_of_year_from(program, first_day);
}

void defile_MahaDasha(Program& program) {
    auto const& consultation = program.consultation;
    auto const column = sequence_of_mansion(consultation.numero_nakshatra);
    if (!column) return;
    auto const* const label = lal_kitab(*column, consultation.age_courant);
    if (label == nullptr) return;
    program.form1.Label_Lal_Kitab.Caption = label->caption;
    program.periods.pas_defile = label->year_rank;
}

void change_couleurAge(Program& program, std::string_view state) {
    if (text::equal_ignoring_case(state, true_grid.tag)) {
        grid_becomes_true(program);
    } else if (text::equal_ignoring_case(state, stale_grid.tag)) {
        grid_becomes_stale(program);
    } else {
        program.form1.HScroll_age.Tag = text::upper(state);
    }
}

void recalculate_for_age(Program& program) {
    cycle(program);
    Position_solaire(program);
    Maha_Dasha(program);
    seigneur_annee(program);
    Seigneur_Mois(program);
    defile_MahaDasha(program);
}

void wire_age_scroll(Program& program) {
    auto& bar = program.form1.HScroll_age;
    bar.on_change = [&program] { HScroll_age_change(program); };
    bar.on_scroll = [&program] { HScroll_age_scroll(program); };
    bar.on_key_press = [&program](char32_t) {
        if (program.platform.key_is_held(key::enter)) recalculate_for_age(program);
        return false;
    };
}

}  // namespace navarun
