// From the birth date to sign, position and palaces.
#include "zodiac/solar_position.h"

#include <optional>

#include "core/cells.h"
#include "core/julian_mode.h"
#include "core/text.h"
#include "shell/program.h"
#include "zodiac/eras.h"
#include "zodiac/nakshatra.h"
#include "zodiac/palaces.h"
#include "zodiac/signs.h"

namespace navarun {

namespace {

// The birth date as the boundary table is asked for it.
struct DateTested {
    std::optional<Date> date;
    int day;
    std::string month;  // compared with the rows as a text of two digits
};

DateTested choose_calendar(Program& program) {
    auto& consultation = program.consultation;
    auto& birth = consultation.birth;
    if (!program.form1.Mnu_Julien.Checked) {
        consultation.annee_solaire = birth.siecle_naissance() + birth.annee_naissance();
        show_calendar(program, CalendarIndicator::gregorian);
        return {read_date(birth.date_naissance()), text::number_of(birth.jour_naissance()),
                birth.mois_naissance()};
    }
    // From the parts, so that a 29 February that an earlier conversion turned into a 28th is
    // converted from the same day again.
    birth.rebuild_date_naissance();
    auto const date = read_date(Conversion_JG(program));
    consultation.annee_solaire = consultation.annee_convertie;
    show_calendar(program, CalendarIndicator::julian_generated);
    return {date, text::number_of(consultation.jour_converti), consultation.mois_converti};
}

// Where no cell is visible the year has no row, and the cell in force stays.
void make_first_visible_cell_the_suns(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    for (int cell = 1; cell <= 12; ++cell) {
        auto& label = form.Label_Solaire(cell);
        if (!label.Visible) continue;
        auto const& quality = row_of(quality_of_palace(1));
        consultation.palais_index = cell;
        label.Caption = "1";
        label.Border = true;
        label.Opaque = true;
        label.BackColor = quality.back;
        label.ToolTipText = quality.tooltip;
        consultation.categorie_palais[static_cast<std::size_t>(cell - 1)] = quality.letter;
        // An oddity of long standing: a cell that once was the sun's keeps the tag 1, and with
        // it the element of sign 1, until the program ends.
        label.Tag = "1";
        return;
    }
}

void number_the_other_palaces(Program& program) {
    auto& consultation = program.consultation;
    for (int palace = 2; palace <= 12; ++palace) {
        consultation.palais_index = cell_after(consultation.palais_index);
        auto& label = program.form1.Label_Solaire(consultation.palais_index);
        auto const& quality = row_of(quality_of_palace(palace));
        label.Visible = true;
        label.Caption = palace_number(palace);
        label.BackColor = quality.back;
        label.ToolTipText = quality.tooltip;
        consultation.categorie_palais[static_cast<std::size_t>(consultation.palais_index - 1)] =
            quality.letter;
    }
    // Back on the sun's cell.
    consultation.palais_index = cell_after(consultation.palais_index);
}

void toggle_definition(Program& program, int cell) {
    auto& form = program.form1;
    if (form.Text_definition_palais.Visible) {
        form.Text_definition_palais.Visible = false;
        return;
    }
    form.Text_definition_palais.Visible = true;
    auto const& label = form.Label_Solaire(cell);
    int const palace = text::number_of(label.Caption.get());
    int const sign_number = text::number_of(label.Tag.get());
    std::string definition = "PALAIS " + label.Caption.get() + " - ";
    definition.append(
        program.consultation.categorie_palais[static_cast<std::size_t>(cell - 1)]);
    definition.append(sign(sign_number).element);
    definition.append(text::line_break).append(palace_rule()).append(text::line_break);
    definition.append(description_palais(palace));
    form.Text_definition_palais.Text = definition;
}

}  // namespace

void Position_solaire(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    consultation.annee_calcul = consultation.birth.year();
    DateTested const tested = choose_calendar(program);
    std::optional<SunSign> found;
    if (tested.date) {
        found = sun_sign(*tested.date, text::number_of(consultation.annee_solaire));
    }
    if (found) form.Label_Solaire(found->sign).Visible = true;
    make_first_visible_cell_the_suns(program);
    consultation.signe_solaire = consultation.palais_index;
    consultation.colonne_age = consultation.palais_index;
    if (found && tested.month.size() == 2) {
        auto const degree =
            degree_in_sign(found->dates, tested.day, text::number_of(tested.month));
        if (degree) consultation.degre_solaire = *degree;
    }
    Nakshatra(program);
    number_the_other_palaces(program);
    auto const& sun = sign(consultation.signe_solaire);
    std::string zodiac = std::to_string(consultation.degre_solaire);
    form.Label_zodiac.Caption = zodiac.append(" °  ").append(sun.name);
    form.Text_zodiac.Text = sun.text;
}

void wire_solar_position(Program& program) {
    for (int cell = 1; cell <= 12; ++cell) {
        program.form1.Label_Solaire(cell).on_double_click = [&program, cell] {
            toggle_definition(program, cell);
        };
    }
}

}  // namespace navarun
