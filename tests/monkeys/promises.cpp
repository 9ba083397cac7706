// The promises, one row each.
#include "tests/monkeys/promises.h"

#include <algorithm>
#include <array>

#include "chart/colour_schemes.h"
#include "core/cells.h"
#include "core/code_page.h"
#include "core/julian_calendar.h"
#include "core/text.h"
#include "periods/lord_circle.h"
#include "shell/image_store.h"
#include "shell/names.h"
#include "zodiac/eras.h"
#include "zodiac/palaces.h"

namespace navarun::monkeys {

namespace {

// The program as it stands after an event.
struct Standing {
    Program const& program;
    PracticeRun const& run;
    Form1 const& form = program.form1;
    Consultation const& person = program.consultation;

    bool grid_is_true() const { return form.HScroll_age.Tag.get() == "VERT"; }
};

bool is_date(std::string const& text) {
    auto const date = read_date(text);
    return date && write_date(*date) == text;
}

// The day on which the sun is looked up; empty where there is none.
std::optional<Date> day_looked_up(Standing const& now) {
    auto const& birth = now.person.birth;
    std::string const date = birth.jour_naissance() + "/" + birth.mois_naissance() + "/" +
                             birth.siecle_naissance() + birth.annee_naissance();
    if (!now.form.Mnu_Julien.Checked) return read_date(date);
    return julian_to_gregorian(date).gregorian;
}

bool cells_are_numbered_from_the_suns(Standing const& now) {
    for (int palace = 1, cell = now.person.palais_index; palace <= 12; ++palace) {
        if (now.form.Label_Solaire(cell).Caption.get() != std::to_string(palace)) return false;
        cell = cell_after(cell);
    }
    return true;
}

bool all_cells_show_where_the_year_has_rows(Standing const& now) {
    int shown = 0;
    for (int cell = 1; cell <= 12; ++cell) shown += now.form.Label_Solaire(cell).Visible;
    bool const the_suns = now.form.Label_Solaire(now.person.palais_index).Visible;
    if (shown != 12 && (shown != 11 || the_suns)) return false;
    if (!now.grid_is_true()) return true;
    auto const day = day_looked_up(now);
    bool const has_row = day && sun_sign(*day, year_of(*day));
    return has_row == (shown == 12);
}

bool suns_cell_is_that_of_the_birth(Standing const& now) {
    auto const day = day_looked_up(now);
    if (!now.grid_is_true() || !day) return true;
    auto const row = sun_sign(*day, year_of(*day));
    return !row || row->sign == now.person.palais_index;
}

bool cells_tell_their_quality(Standing const& now) {
    for (int cell = 1; cell <= 12; ++cell) {
        auto const& label = now.form.Label_Solaire(cell);
        if (!label.Visible) continue;
        int const palace = text::number_of(label.Caption.get());
        auto const& quality = row_of(quality_of_palace(palace));
        auto const letter = now.person.categorie_palais[static_cast<std::size_t>(cell - 1)];
        if (label.ToolTipText.get() != quality.tooltip || letter != quality.letter ||
            label.BackColor.get() != quality.back) {
            return false;
        }
    }
    return true;
}

bool state_is_told_alike_everywhere(Standing const& now) {
    auto const& form = now.form;
    std::string const& tag = form.HScroll_age.Tag.get();
    if (tag != "VERT" && tag != "ROUGE") return false;
    bool const is_true = now.grid_is_true();
    auto const& button = is_true ? picture::true_cycle : picture::false_cycle;
    auto const back = is_true ? screen::Colour{192, 255, 192} : screen::Colour{255, 192, 192};
    return form.Command2.Picture.get() == button &&
           form.Command2.ToolTipText.get() == (is_true ? "Cycle vrai !" : "Cycle faux !") &&
           form.Label_age.BackColor.get() == back && form.Mnuperiode.Enabled == is_true &&
           form.MnuImprime.Enabled == is_true && form.MnuApercu_Impression.Enabled == is_true &&
           form.Mnu_palaisdestin.Enabled == is_true;
}

bool captions_of_dates_are_dates(Standing const& now) {
    auto const& form = now.form;
    if (!is_date(form.Label_anneedefile.Caption.get())) return false;
    if (!is_date(form.Label_anneedefile_Suite.Caption.get())) return false;
    for (int cell = 1; cell <= 12; ++cell) {
        if (!is_date(form.Label_DashaDate(cell).Caption.get())) return false;
        if (!is_date(form.Label_MoisDate(cell).Caption.get())) return false;
    }
    auto const& options = now.program.option_impression;
    if (!options.Visible) return true;
    return is_date(options.Label_afficheAnnee(0).Caption.get()) &&
           is_date(options.Label_afficheAnnee(1).Caption.get());
}

bool cycle_year_is_that_of_the_age(Standing const& now) {
    auto const birth = read_date(now.person.birth.date_naissance());
    if (!now.grid_is_true() || !birth) return true;
    // The captions follow a new day when its field is left; a label leaves the keyboard there.
    if (now.program.screen.focus() == &now.form.Combo_jourNaiss) return true;
    auto const& told = now.form.Label_anneedefile.Caption.get();
    // Leaving the day field tells the first year of life, whatever the age.
    return told == write_date(add_years(*birth, now.person.age_courant)) ||
           told == write_date(add_years(*birth, 1));
}

bool one_scheme_is_checked(Standing const& now) {
    auto const& form = now.form;
    std::array<screen::MenuEntry const*, scheme_count> const entries{
        &form.MnuAzur_cycle, &form.MnuAzur_Aum, &form.MnuMauve_cycle, &form.MnuMauve_Aum};
    int checked = 0;
    for (auto const* entry : entries) checked += entry->Checked;
    auto const scheme = now.program.settings.couleur_kundali;
    return checked == 1 && scheme < scheme_count && entries[scheme]->Checked &&
           form.Picture_KUNDALI.Picture.get() == picture::charts[scheme];
}

bool ages_are_alike_and_of_the_table(Standing const& now) {
    int const age = now.form.HScroll_age.Value;
    int const told = now.program.option_impression.HScroll_annee.Value;
    return age >= 1 && age <= greatest_age && now.person.age_courant == age &&
           now.form.Label_age.Caption.get() == std::to_string(age) &&
           now.program.periods.age_scroll == age && told >= 1 && told <= greatest_age;
}

bool columns_are_cells(Standing const& now) {
    auto const& person = now.person;
    auto const is_cell = [](int column) { return column >= 1 && column <= 12; };
    return is_cell(person.palais_index) && is_cell(person.colonne_age) &&
           is_cell(person.colonne_dasha) && is_cell(person.colonne_mois) &&
           is_cell(person.signe_solaire) && person.numero_nakshatra >= 1 &&
           person.numero_nakshatra <= 27 && person.degre_solaire >= 0 &&
           person.degre_solaire <= 29 && person.seigneur_an >= 1 && person.seigneur_an <= 9;
}

bool year_has_one_lord(Standing const& now) {
    if (!now.grid_is_true()) return true;
    int named = 0;
    for (int cell = 1; cell <= 12; ++cell) {
        auto const& label = now.form.Label_annee(cell);
        named += label.Visible && !label.Caption.get().empty();
    }
    return named == 1;
}

bool one_period_fills_the_row(Standing const& now) {
    auto const& first = now.form.Label_Dasha(1).Caption.get();
    for (int cell = 2; cell <= 12; ++cell) {
        if (now.form.Label_Dasha(cell).Caption.get() != first) return false;
    }
    return !first.empty();
}

bool rows_are_whole_or_reduced(Standing const& now) {
    int shown = 0;
    for (int cell = 1; cell <= 12; ++cell) {
        bool const dasha = now.form.Label_Dasha(cell).Visible;
        if (dasha != now.form.Label_DashaDate(cell).Visible) return false;
        shown += dasha;
        bool const month = now.form.Label_mois(cell).Visible;
        // The reduced view brings the date of a month back without asking for its name.
        if (!now.program.periods.cycle_partiel_actif && !(dasha && month)) return false;
    }
    return now.program.periods.cycle_partiel_actif ? shown >= 1 : shown == 12;
}

bool preview_is_open_or_closed(Standing const& now) {
    bool const options = now.program.option_impression.Visible;
    if (options != now.form.MnuApercu_Impression.Checked) return false;
    bool const page = now.form.Picture2.Visible;
    // Printing from the menu hides the page and leaves the options.
    return page == options || (options && now.run.printed_from_menu());
}

bool marks_follow_their_windows(Standing const& now) {
    return now.form.MnuFleche.Checked == now.program.fleche.Visible &&
           now.form.Mnu_palaisdestin.Checked == now.program.palais_du_destin.Visible;
}

bool palace_of_destiny_belongs_to_a_true_grid(Standing const& now) {
    return !now.program.palais_du_destin.Visible || now.grid_is_true();
}

bool selection_is_in_range(screen::List const& list) {
    return list.ListIndex == -1 || (list.ListIndex >= 0 && list.ListIndex < list.count());
}

bool selections_are_in_range(Standing const& now) {
    auto const& program = now.program;
    return selection_is_in_range(now.form.File_Fichier) &&
           selection_is_in_range(now.form.List_Internet) &&
           selection_is_in_range(program.affiche_cycle.List_periode) &&
           selection_is_in_range(program.frm_seigneur_jour.List_SeigneurJour) &&
           selection_is_in_range(program.frm_calend.cMois) &&
           selection_is_in_range(program.frm_calend.cAn);
}

bool what_is_dragged_is_selected(Standing const& now) {
    return now.program.screen.dragged() == nullptr ||
           now.program.record_values.fichier_selectionne == now.form.File_Fichier.selected();
}

bool messages_are_gone(Standing const& now) { return !now.form.frame_messageSauve.Visible; }

bool no_key_is_held(Standing const& now) { return now.program.user.key_held() == 0; }

bool date_fields_hold_digits(Standing const& now) {
    auto const& form = now.form;
    // What a record of the practice holds in place of digits, a load puts in.
    static constexpr std::array<std::string_view, 4> of_a_record{"ab", "cd", "ef", "gh"};
    for (auto const* combo : {&form.Combo_jourNaiss, &form.Combo_moisNaiss,
                              &form.Combo_AnNaiss1, &form.Combo_AnNaiss2}) {
        auto const& text = combo->Text.get();
        bool const digits =
            std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
        bool const loaded = std::ranges::find(of_a_record, text) != of_a_record.end();
        if (!(digits || loaded) || text.size() > 2) return false;
    }
    return true;
}

bool texts_fit_the_files(Standing const& now) {
    for (auto const* field :
         {&now.form.Text_prenom, &now.form.Text_nom, &now.form.Text_New_URL}) {
        if (fitted_to_code_page(field->Text.get()) != field->Text.get()) return false;
    }
    return fitted_to_code_page(now.form.Text_Note.Text.get()) == now.form.Text_Note.Text.get();
}

bool weekday_is_that_of_the_birth(Standing const& now) {
    auto const day = day_looked_up(now);
    return !day || now.person.numero_jour == weekday_of(*day);
}

bool diskette_and_bin_have_a_known_picture(Standing const& now) {
    auto const& disk = now.form.Command_Disk_Vert.Picture.get();
    auto const& bin = now.form.Command_reset.Picture.get();
    return (disk == picture::saved || disk == picture::unsaved) &&
           (bin == picture::begin_anew || bin == picture::erase ||
            bin == picture::erase_portrait || bin == picture::erase_address);
}

bool focus_is_on_what_takes_it(Standing const& now) {
    auto const* const focus = now.program.screen.focus();
    return focus == nullptr || focus->takes_focus();
}

bool calendar_stands_on_a_day(Standing const& now) {
    if (!now.program.frm_calend.Visible) return true;
    auto const& values = now.program.calendar;
    return date_of(values.cal_jour_n, values.cal_mois_n, values.cal_annee_n).has_value() &&
           now.program.frm_calend.cMois.ListIndex == values.cal_mois_n - 1 &&
           !values.cal_calcul;
}

struct Promise {
    std::string_view says;
    bool (*is_kept)(Standing const&);
};

// clang-format off
constexpr Promise promises[]{
    {"the twelve cells are numbered 1 to 12, from the sun's cell on", cells_are_numbered_from_the_suns},
    {"all twelve cells show where the year has rows, and all but the sun's elsewhere", all_cells_show_where_the_year_has_rows},
    {"the sun's cell of a true grid is that of the birth", suns_cell_is_that_of_the_birth},
    {"a cell's tool tip, letter and ground tell the quality of its palace", cells_tell_their_quality},
    {"tag, button, tool tip, colour of the age and four menu entries tell one state", state_is_told_alike_everywhere},
    {"every caption of a date is a date", captions_of_dates_are_dates},
    {"the cycle year of a true grid is that of birth and age, or the first", cycle_year_is_that_of_the_age},
    {"exactly one scheme is checked, that of the settings and of the chart", one_scheme_is_checked},
    {"the ages are alike and lie within 1 and 350", ages_are_alike_and_of_the_table},
    {"columns, sign, mansion, position and lord of the year lie in their ranges", columns_are_cells},
    {"a true grid names the lord of the year once", year_has_one_lord},
    {"one period fills the row", one_period_fills_the_row},
    {"the rows are whole or reduced to the chosen cells", rows_are_whole_or_reduced},
    {"page, options and mark tell one preview", preview_is_open_or_closed},
    {"the menu's marks follow their windows", marks_follow_their_windows},
    {"the palace of destiny stands open over a true grid alone", palace_of_destiny_belongs_to_a_true_grid},
    {"what is selected is in the list", selections_are_in_range},
    {"what is dragged is what is selected", what_is_dragged_is_selected},
    {"no message stays", messages_are_gone},
    {"no key stays held", no_key_is_held},
    {"the date fields hold at most two digits", date_fields_hold_digits},
    {"what is written can be kept in a file", texts_fit_the_files},
    {"the weekday is that of the birth", weekday_is_that_of_the_birth},
    {"diskette and bin have one of their pictures", diskette_and_bin_have_a_known_picture},
    {"the keyboard is on a control that takes it", focus_is_on_what_takes_it},
    {"the calendar stands on a day", calendar_stands_on_a_day},
};

constexpr std::string_view refused_name =
    "a name that a file cannot bear is typed, or comes from a record, and then saved";
constexpr ToldError errors[]{
    {"L'écriture du fichier ", "Un nom de fichier ne prend aucun de ces signes", refused_name},
    {"L'écriture du fichier ", "Le nom est trop long.",
     "a record holds names longer than a file's may be, and is saved"},
    {"La lecture du fichier ", "Le fichier finit",
     "a record is cut short, or a quote typed into a text ended it early"},
    {"La lecture du fichier ", "n'est pas un nombre de 0 à 255.",
     "a record's mark of its calendar is no byte"},
    {"Minuit est passé pendant une attente", "Dépassement de capacité.",
     "midnight falls into the seconds of a message"},
    {"Une flèche a été tirée trop loin du dessin.", "Dépassement de capacité.",
     "the mouse is dragged further than sixteen bits count"},
    {"L'image du thème numéro 9 a été demandée.", "Il n'y a que quatre thèmes",
     "the start after the short names were chosen reads their number as that of a scheme"},
    {"L'image « ", "Ce n'est pas une image GIF, BMP ou JPEG.",
     "a file with the ending of a picture is none"},
};
// clang-format on

// The program ends where the user said so, and nowhere else.
bool user_left(pilot::Json const& effects) {
    return std::ranges::any_of(effects, [](auto const& effect) {
        return effect.value("title", "") == "QUITTER" && effect.value("answer", 0) == 1;
    });
}

std::optional<std::string> broken_by_an_end(Outcome const& outcome,
                                            pilot::Json const& effects) {
    switch (outcome.kind) {
        case Outcome::Kind::broken:
            return "only a told error ends a run, not: " + outcome.text;
        case Outcome::Kind::ended:
            if (user_left(effects)) return {};
            return "the program ends where the user says so";
        case Outcome::Kind::fatal: {
            bool const told = std::ranges::any_of(errors, [&](ToldError const& error) {
                return outcome.text.starts_with(error.attempted) &&
                       outcome.text.find(error.reason) != std::string::npos;
            });
            if (!told) return "only a told error ends a run, not: " + outcome.text;
            bool const reported = std::ranges::any_of(effects, [&](pilot::Json const& effect) {
                return effect.value("title", "") == program_title &&
                       effect.value("text", "").starts_with(outcome.text);
            });
            if (!reported) return "what ends a run is reported";
            return {};
        }
        default:
            return {};
    }
}

}  // namespace

std::span<ToldError const> told_errors() { return errors; }

std::optional<std::string> broken_promise(PracticeRun& run, Outcome const& outcome) {
    if (auto broken = broken_by_an_end(outcome, run.effects())) return broken;
    if (run.program() == nullptr) return {};
    Standing const now{*run.program(), run};
    for (auto const& promise : promises) {
        if (!promise.is_kept(now)) return std::string{promise.says};
    }
    return {};
}

}  // namespace navarun::monkeys
