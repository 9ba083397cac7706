// Pages and choices of the age chooser.
#include "periods/age_chooser.h"

#include "core/text.h"
#include "periods/age_scroll.h"
#include "periods/lord_circle.h"
#include "shell/program.h"

namespace navarun {

namespace {

constexpr int ages_a_page = 100;
constexpr int page_count = 4;
constexpr std::string_view prompt = "Choisissez un âge";

// The page is known from its last cell; the last page has it empty.
int page_shown(Program const& program) {
    int const last = text::number_of(program.choix_age.Label2(ages_a_page).Caption.get());
    return last == 0 ? page_count - 1 : last / ages_a_page - 1;
}

void show_page(Program& program, int page) {
    for (int i = 1; i <= ages_a_page; ++i) {
        int const age = page * ages_a_page + i;
        program.choix_age.Label2(i).Caption =
            age <= greatest_age ? text::padded(age, 2) : std::string{};
    }
}

// Turns to the next page.
void choix_page_age(Program& program) {
    show_page(program, (page_shown(program) + 1) % page_count);
}

void show_page_before(Program& program) {
    show_page(program, (page_shown(program) + page_count - 1) % page_count);
}

void Label_age_click(Program& program) {
    auto& window = program.choix_age;
    window.BackColor = program.scheme_colours.couleur_fond_fenetre;
    window.Label_choix_age.BackColor = program.scheme_colours.couleur_titre_fenetre;
    window.open();
}

void tell_age(Program& program, int index) {
    auto const& age = program.choix_age.Label2(index).Caption.get();
    auto& told = program.choix_age.Label_choix_age.Caption;
    if (age.empty()) {
        told = std::string{prompt} + " max " + std::to_string(greatest_age);
    } else {
        told = age + (age == "01" ? " an" : " ans");
    }
}

void choose_age(Program& program, int index) {
    auto& window = program.choix_age;
    auto const& age = window.Label2(index).Caption.get();
    if (!age.empty()) program.form1.HScroll_age.Value = text::number_of(age);
    recalculate_for_age(program);
    close_age_chooser(program);
    window.Label_choix_age.Caption = prompt;
}

}  // namespace

void close_age_chooser(Program& program) { program.choix_age.unload(); }

void wire_age_chooser(Program& program) {
    auto& window = program.choix_age;
    program.form1.Label_age.on_click = [&program] { Label_age_click(program); };
    window.on_load = [&program] {
        program.choix_age.Stacking = screen::Stacking::topmost;
        show_page(program, 0);
        program.choix_age.Label_choix_age.Caption = prompt;
    };
    window.on_close = [&program] { close_age_chooser(program); };
    for (int const index : window.Label2.indexes()) {
        window.Label2(index).on_click = [&program, index] { choose_age(program, index); };
        window.Label2(index).on_mouse_move = [&program, index](screen::Mouse const&) {
            tell_age(program, index);
        };
    }
    window.Label_choix_age.on_mouse_move = [&program](screen::Mouse const&) {
        program.choix_age.Label_choix_age.Caption = prompt;
    };
    window.Image1.on_click = [&program] { show_page_before(program); };
    window.Image2.on_click = [&program] { choix_page_age(program); };
    show_page(program, 0);
}

}  // namespace navarun
