// The handlers of the entry fields.
#include "core/birth_date_entry.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "chart/palace_colours.h"
#include "core/date_parts.h"
#include "core/dialogue.h"
#include "core/generate.h"
#include "core/julian_mode.h"
#include "core/text.h"
#include "core/weekday_lord.h"
#include "periods/age_scroll.h"
#include "periods/lord_circle.h"
#include "periods/partial_cycle.h"
#include "print/preview.h"
#include "shell/program.h"

namespace navarun {

namespace {

constexpr int first_century = 16;
constexpr int last_century = 21;

// The focus goes on once the two digits of a field are typed.
bool both_digits_typed(Program& program) {
    if (program.date_entry.nombre_touches != 2) return false;
    program.date_entry.nombre_touches = 0;
    return true;
}

// Keeps the day inside its month. The comparison is one of texts: for two digits it agrees with
// the numbers, and a single "9" counts as greater than "31".
void Mois30_31(Program& program) {
    auto& birth = program.consultation.birth;
    auto& day = program.form1.Combo_jourNaiss;
    std::string const last =
        std::to_string(NbrJours(text::number_of(birth.mois_naissance()), birth.year()));
    if (day.Text.get() > last) {
        birth.set_jour_naissance(last);
        day.Text = last;
    } else if (day.Text.get() == "00") {
        day.Text = "01";
    }
}

// The common repair after a change of day, month or year.
void annee99(Program& program) {
    auto& birth = program.consultation.birth;
    Mois30_31(program);
    birth.rebuild_date_naissance();
    if (auto const date = read_date_parts(birth.date_naissance())) {
        show_cycle_year(program, *date, 1);
    }
    program.consultation.annee_calcul = birth.year();
}

void jour_change(Program& program) {
    auto& form = program.form1;
    JG_reset(program);
    program.consultation.birth.set_jour_naissance(form.Combo_jourNaiss.Text.get());
    form.HScroll_age.Value = 1;
    if (both_digits_typed(program)) {
        trouverJourdeSemaine(program);
        program.screen.move_focus(form.Combo_moisNaiss);
    }
}

void mois_change(Program& program) {
    auto& form = program.form1;
    auto& birth = program.consultation.birth;
    auto& month = form.Combo_moisNaiss;
    JG_reset(program);
    if (form.Combo_AnNaiss2.Text.get().empty()) return;
    if (month.Text.get() > "12") {
        month.Text = "12";
    } else if (month.Text.get() == "00") {
        month.Text = "01";
    } else if (month.Text.get() == "0") {
        return;  // a first digit is being typed
    }
    birth.set_mois_naissance(month.Text.get());
    if (both_digits_typed(program)) program.screen.move_focus(form.Combo_AnNaiss1);
    form.HScroll_age.Value = 1;
    annee99(program);
    birth.rebuild_jour_mois_anniv();
    trouverJourdeSemaine(program);
}

// The two captions as a change of century leaves them. The second is a day later than annee99
// would put it, until the next annee99.
void show_first_years_of_century(Program& program) {
    auto& form = program.form1;
    auto& birth = program.consultation.birth;
    birth.rebuild_date_naissance();
    auto const date = read_date(birth.date_naissance());
    if (!date) return;
    form.Label_anneedefile.Caption = write_date(add_years(*date, 1));
    form.Label_anneedefile_Suite.Caption = write_date(add_years(*date, 2));
}

void siecle_change(Program& program) {
    auto& form = program.form1;
    auto& century = form.Combo_AnNaiss1;
    JG_reset(program);
    int const number = text::number_of(century.Text.get());
    if (century.Text.get().size() == 2 && (number < first_century || number > last_century)) {
        // The change that this fires does the rest.
        century.Text = std::to_string(std::clamp(number, first_century, last_century));
        return;
    }
    if (both_digits_typed(program)) program.screen.move_focus(form.Combo_AnNaiss2);
    program.consultation.birth.set_siecle_naissance(text::two_digits(century.Text.get()));
    show_first_years_of_century(program);
    form.HScroll_age.Value = 1;
    trouverJourdeSemaine(program);
}

void annee_change(Program& program) {
    auto& form = program.form1;
    JG_reset(program);
    form.HScroll_age.Value = 1;
    program.consultation.birth.set_annee_naissance(
        text::two_digits(form.Combo_AnNaiss2.Text.get()));
    annee99(program);
    if (both_digits_typed(program)) program.screen.move_focus(form.Text_Note);
    trouverJourdeSemaine(program);
}

// One row for each of the four fields, in the order in which they are typed.
struct DateField {
    screen::Combo Form1::*combo;
    void (*change)(Program&);
    std::string const& (BirthDate::*part)() const;
    void (BirthDate::*store)(std::string_view);
    bool two_digits;        // the part is stored in the format "00"
    bool is_century;        // its choice shows the two captions of a century
    bool part_of_birthday;  // day and month
    bool leaving_repairs;   // leaving the field repairs the date
};

// clang-format off
constexpr std::array<DateField, 4> date_fields{{
    {&Form1::Combo_jourNaiss, jour_change,
     &BirthDate::jour_naissance, &BirthDate::set_jour_naissance, false, false, true, true},
    {&Form1::Combo_moisNaiss, mois_change,
     &BirthDate::mois_naissance, &BirthDate::set_mois_naissance, false, false, true, false},
    {&Form1::Combo_AnNaiss1, siecle_change,
     &BirthDate::siecle_naissance, &BirthDate::set_siecle_naissance, true, true, false, false},
    {&Form1::Combo_AnNaiss2, annee_change,
     &BirthDate::annee_naissance, &BirthDate::set_annee_naissance, true, false, false, false},
}};
// clang-format on

// Answers whether the key is swallowed: all but digits are, Backspace included, and a digit
// that finds no room.
bool date_key(Program& program, screen::Combo const& combo, char32_t character) {
    if (character < U'0' || character > U'9' || !combo.has_room()) return true;
    ++program.date_entry.nombre_touches;
    couleur_Disk_Rouge_Vert(program);
    return false;
}

void date_click(Program& program, DateField const& field) {
    auto& form = program.form1;
    auto& birth = program.consultation.birth;
    program.date_entry.nombre_touches = 0;
    JG_reset(program);
    CyclePartiel_annule(program);
    std::string const& text = (form.*field.combo).Text;
    (birth.*field.store)(field.two_digits ? text::two_digits(text) : text);
    if (field.is_century) {
        show_first_years_of_century(program);
    } else {
        annee99(program);
    }
    form.HScroll_age.Value = 1;
    if (field.part_of_birthday) birth.rebuild_jour_mois_anniv();
    couleur_Disk_Rouge_Vert(program);
    trouverJourdeSemaine(program);
}

// A field left with one digit takes today's value.
void date_left(Program& program, DateField const& field) {
    bool const half_typed = program.date_entry.nombre_touches == 1;
    program.date_entry.nombre_touches = 0;
    if (half_typed) {
        BirthDate of_today;
        of_today.set(program.platform.today());
        (program.form1.*field.combo).Text = (of_today.*field.part)();
    }
    if (field.leaving_repairs) annee99(program);
}

// Whatever a handler does, weekday and numbers end as those of the date on screen.
template <typename Handler>
void keeping_weekday(Program& program, Handler&& handler) {
    handler();
    if (!weekday_is_current(program)) trouverJourdeSemaine(program);
}

void wire_date_field(Program& program, DateField const& field) {
    auto& combo = program.form1.*field.combo;
    combo.on_key_press = [&program, &combo](char32_t character) {
        return date_key(program, combo, character);
    };
    combo.on_change = [&program, &field] {
        keeping_weekday(program, [&] { field.change(program); });
    };
    combo.on_click = [&program, &field] {
        keeping_weekday(program, [&] { date_click(program, field); });
    };
    combo.on_lost_focus = [&program, &field] {
        keeping_weekday(program, [&] { date_left(program, field); });
    };
}

void wire_name(Program& program, screen::TextField& name) {
    name.on_change = [&program] { couleur_Disk_Rouge_Vert(program); };
    name.on_lost_focus = [&name] {
        // Only where it changes something, so that passing through marks nothing as unsaved.
        std::string const proper = text::proper_case(name.Text.get());
        if (proper != name.Text.get()) name.Text = proper;
    };
}

// The age of the person today; empty beyond the greatest age of the table.
std::optional<int> present_age(Program& program) {
    auto const& birth = program.consultation.birth;
    Date const today = program.platform.today();
    int const present_year = year_of(today);
    int const age = present_year - program.consultation.annee_calcul;
    if (age > greatest_age) return {};
    auto const birthday = date_of(text::number_of(birth.jour_naissance()),
                                  text::number_of(birth.mois_naissance()), present_year);
    bool const still_to_come = birthday && *birthday > today;
    return std::max(1, still_to_come ? age - 1 : age);
}

void Command_DateNow_click(Program& program) {
    auto& form = program.form1;
    form.Picture2.Visible = false;
    apercu_impression_Invisible(program);
    form.Text_definition_palais.Visible = false;
    auto const age = present_age(program);
    if (!age) {
        std::string message = form.Text_prenom.Text.get() + " " + form.Text_nom.Text.get();
        message.append(text::line_break).append(" à plus de ");
        message.append(std::to_string(greatest_age)).append(" ans !");
        transient_message(program, message, 1.4F);
        return;
    }
    form.HScroll_age.Value = *age;
    generate(program);
}

}  // namespace

void write_date_combos(Program& program) {
    auto& form = program.form1;
    // The changes write the parts too; what stands in them now is what is meant.
    BirthDate const birth = program.consultation.birth;
    form.Combo_jourNaiss.Text = birth.jour_naissance();
    form.Combo_moisNaiss.Text = birth.mois_naissance();
    form.Combo_AnNaiss1.Text = birth.siecle_naissance();
    form.Combo_AnNaiss2.Text = birth.annee_naissance();
}

void wire_birth_date_entry(Program& program) {
    for (auto const& field : date_fields) wire_date_field(program, field);
    wire_name(program, program.form1.Text_prenom);
    wire_name(program, program.form1.Text_nom);
    program.form1.Command_DateNow.on_click = [&program] { Command_DateNow_click(program); };
}

}  // namespace navarun
