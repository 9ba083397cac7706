// The lookups by name.
#include "shell/names.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <utility>

#include "core/weekdays.h"
#include "periods/lord_circle.h"
#include "periods/tri_deva_rule.h"
#include "zodiac/mansions.h"
#include "zodiac/palaces.h"
#include "zodiac/signs.h"

namespace navarun {

namespace {

// "dates_age(7)" is dates_age with the index 7, "ages_seigneurs(11,3)" has two.
struct IndexedName {
    std::string_view base;
    std::vector<int> indexes;
};

std::optional<IndexedName> split_indexes(std::string_view name) {
    auto const open = name.find('(');
    if (open == std::string_view::npos) return IndexedName{name, {}};
    if (!name.ends_with(')')) return {};
    IndexedName result{name.substr(0, open), {}};
    char const* at = name.data() + open + 1;
    char const* const end = name.data() + name.size() - 1;
    while (true) {
        int index = 0;
        auto const [stop, error] = std::from_chars(at, end, index);
        if (error != std::errc{}) return {};
        result.indexes.push_back(index);
        if (stop == end) return result;
        if (*stop != ',') return {};
        at = stop + 1;
    }
}

NamedValue owned(screen::ValueView const& view) {
    struct Owner {
        NamedValue operator()(std::string_view text) const { return std::string{text}; }
        NamedValue operator()(bool value) const { return value; }
        NamedValue operator()(int value) const { return value; }
        NamedValue operator()(double value) const { return value; }
        NamedValue operator()(screen::Colour value) const { return value; }
        NamedValue operator()(screen::Picture const* value) const { return value->name(); }
        NamedValue operator()(std::vector<std::string> const* value) const { return *value; }
        NamedValue operator()(std::vector<screen::DrawnLine> const* value) const {
            return *value;
        }
    };
    return std::visit(Owner{}, view);
}

struct Range {
    int first = 0;  // first > last: no index
    int last = -1;
    bool holds(int index) const { return first <= index && index <= last; }
};

NamedValue as_value(std::string_view text) { return std::string{text}; }
NamedValue as_value(std::string const& text) { return text; }
NamedValue as_value(bool value) { return value; }
NamedValue as_value(int value) { return value; }
NamedValue as_value(std::uint8_t value) { return int{value}; }
NamedValue as_value(double value) { return value; }
NamedValue as_value(PortraitName const& name) {
    auto const* const gone = std::get_if<bool>(&name);
    return gone != nullptr ? NamedValue{*gone} : std::get<std::string>(name);
}
NamedValue as_value(screen::Colour value) { return value; }
NamedValue as_value(std::optional<Date> const& date) { return date ? write_date(*date) : ""; }

// Where a row reads: the program, and the indexes of the name.
struct Source {
    Program const& program;
    int i;
    int j;
    Consultation const& person = program.consultation;
    BirthDate const& birth = person.birth;
    PeriodValues const& periods = program.periods;
    PrintValues const& printing = program.printing;
};

struct StateRow {
    template <typename Read>
    StateRow(std::string_view row_name, Read, Range i = {}, Range j = {})
        : name{row_name},
          value{[](Source const& source) { return as_value(Read{}(source)); }},
          index{i},
          second_index{j} {}

    std::string_view name;
    NamedValue (*value)(Source const&);
    Range index;
    Range second_index;
};

template <typename Table>
auto at(Table const& table, int place) {
    return table.at(static_cast<std::size_t>(place));
}

StateRow const state_rows[] = {
    {"jour_naissance", [](Source const& s) { return s.birth.jour_naissance(); }},
    {"mois_naissance", [](Source const& s) { return s.birth.mois_naissance(); }},
    {"siecle_naissance", [](Source const& s) { return s.birth.siecle_naissance(); }},
    {"annee_naissance", [](Source const& s) { return s.birth.annee_naissance(); }},
    {"date_naissance", [](Source const& s) { return s.birth.date_naissance(); }},
    {"jour_mois_anniv", [](Source const& s) { return s.birth.jour_mois_anniv(); }},
    {"annee_calcul", [](Source const& s) { return s.person.annee_calcul; }},
    {"julien_actif", [](Source const& s) { return s.person.julien_actif; }},
    {"date_convertie", [](Source const& s) { return s.person.date_convertie; }},
    {"jour_converti", [](Source const& s) { return s.person.jour_converti; }},
    {"mois_converti", [](Source const& s) { return s.person.mois_converti; }},
    {"annee_convertie", [](Source const& s) { return s.person.annee_convertie; }},

    {"annee_solaire", [](Source const& s) { return s.person.annee_solaire; }},
    {"signe_solaire", [](Source const& s) { return s.person.signe_solaire; }},
    {"degre_solaire", [](Source const& s) { return s.person.degre_solaire; }},
    {"palais_index", [](Source const& s) { return s.person.palais_index; }},
    {"categorie_palais",
     [](Source const& s) { return at(s.person.categorie_palais, s.i - 1); },
     {1, 12}},
    {"numero_nakshatra", [](Source const& s) { return s.person.numero_nakshatra; }},

    {"age_courant", [](Source const& s) { return s.person.age_courant; }},
    {"colonne_age", [](Source const& s) { return s.person.colonne_age; }},
    {"colonne_age_mod", [](Source const& s) { return s.person.colonne_age_mod; }},
    {"colonne_dasha", [](Source const& s) { return s.person.colonne_dasha; }},
    {"colonne_mois", [](Source const& s) { return s.person.colonne_mois; }},
    {"annee_defile", [](Source const& s) { return s.person.annee_defile; }},
    {"date_annee_courante", [](Source const& s) { return s.person.date_annee_courante; }},
    {"fin_annee_defile", [](Source const& s) { return s.person.fin_annee_defile; }},
    {"seigneur_an", [](Source const& s) { return s.person.seigneur_an; }},

    {"numero_jour", [](Source const& s) { return s.person.numero_jour; }},
    {"seigneur_jour", [](Source const& s) { return s.person.seigneur_jour; }},
    {"texte_jour", [](Source const& s) { return s.person.texte_jour; }},
    {"dinanka", [](Source const& s) { return s.person.dinanka; }},
    {"purnanka", [](Source const& s) { return s.person.purnanka; }},
    {"texte_dinanka", [](Source const& s) { return s.person.texte_dinanka; }},
    {"texte_purnanka", [](Source const& s) { return s.person.texte_purnanka; }},
    {"texte_nakshatra", [](Source const& s) { return s.person.texte_nakshatra; }},

    // Counted from 0: lord n stands at n - 1 + decalage_nom_seigneur.
    {"noms_seigneurs", [](Source const& s) { return at(noms_seigneurs, s.i); }, {0, 17}},
    {"noms_seigneurs_longs", [](Source const& s) { return at(lords, s.i - 1).name; }, {1, 9}},
    {"noms_jours", [](Source const& s) { return weekday(s.i).name; }, {1, 7}},
    {"noms_nakshatra", [](Source const& s) { return mansion(s.i).name; }, {1, mansion_count}},
    {"seigneurs_nakshatra",
     [](Source const& s) { return row_of(mansion(s.i).lord).name; },
     {1, mansion_count}},
    {"description_palais", [](Source const& s) { return description_palais(s.i); }, {1, 12}},
    {"elements_signes", [](Source const& s) { return sign(s.i).element; }, {1, 12}},
    {"nombre_cycles", [](Source const&) { return nombre_cycles; }},
    {"ages_seigneurs",
     [](Source const& s) { return ages_seigneurs(s.i, s.j); },
     {1, 90},
     {1, 9}},
    {"dates_age", [](Source const& s) { return s.periods.dates_age(s.i); }, {1, 90}},

    {"seigneur_dasha", [](Source const& s) { return s.periods.seigneur_dasha; }},
    {"pas_mois", [](Source const& s) { return s.periods.pas_mois; }},
    {"couleur_dasha", [](Source const& s) { return s.periods.couleur_dasha; }},
    {"couleur_actuelle", [](Source const&) { return couleur_actuelle; }},
    {"annee_2chiffres", [](Source const& s) { return s.periods.annee_2chiffres; }},
    {"nom_seigneur_an", [](Source const& s) { return s.periods.nom_seigneur_an; }},
    {"age_precedent", [](Source const& s) { return s.periods.age_precedent; }},
    {"age_compare", [](Source const& s) { return s.periods.age_compare; }},
    {"noms_mois", [](Source const& s) { return at(s.periods.noms_mois, s.i - 1); }, {1, 12}},
    {"age_scroll", [](Source const& s) { return s.periods.age_scroll; }},
    {"pas_defile", [](Source const& s) { return s.periods.pas_defile; }},
    {"position_x_cellule",
     [](Source const& s) { return at(mark_places, s.i - 1).left; },
     {1, 12}},
    {"position_y_cellule",
     [](Source const& s) { return at(mark_places, s.i - 1).top; },
     {1, 12}},
    {"nombre_tridevas", [](Source const& s) { return s.periods.nombre_tridevas; }},
    {"cellules_tridevas",
     [](Source const& s) { return at(s.periods.cellules_tridevas, s.i - 1); },
     {1, 2}},
    {"genre_trideva", [](Source const& s) { return s.periods.genre_trideva; }},
    {"cycle_partiel_actif", [](Source const& s) { return s.periods.cycle_partiel_actif; }},

    {"nombre_touches", [](Source const& s) { return s.program.date_entry.nombre_touches; }},
    {"couleur_kundali", [](Source const& s) { return s.program.settings.couleur_kundali; }},
    {"decalage_nom_seigneur",
     [](Source const& s) { return s.program.settings.decalage_nom_seigneur; }},
    {"fichier_photo", [](Source const& s) { return s.person.fichier_photo; }},
    {"fichier_selectionne",
     [](Source const& s) { return s.program.record_values.fichier_selectionne; }},
    {"chemin_fichier", [](Source const& s) { return s.program.record_values.chemin_fichier; }},
    {"note_consultant",
     [](Source const& s) { return s.program.record_values.note_consultant; }},
    {"prenom_lu", [](Source const& s) { return s.program.record_values.prenom_lu; }},
    {"nom_lu", [](Source const& s) { return s.program.record_values.nom_lu; }},
    {"deplace_x", [](Source const& s) { return s.program.browser.deplace_x; }},
    {"deplace_y", [](Source const& s) { return s.program.browser.deplace_y; }},
    {"texte_initiales", [](Source const& s) { return s.program.name_reading.texte_initiales; }},
    {"texte_lettre", [](Source const& s) { return s.program.name_reading.texte_lettre; }},
    {"cal_jour", [](Source const& s) { return s.program.calendar.cal_jour; }},
    {"cal_mois", [](Source const& s) { return s.program.calendar.cal_mois; }},
    {"cal_annee", [](Source const& s) { return s.program.calendar.cal_annee; }},
    {"cal_jour_n", [](Source const& s) { return s.program.calendar.cal_jour_n; }},
    {"cal_mois_n", [](Source const& s) { return s.program.calendar.cal_mois_n; }},
    {"cal_annee_n", [](Source const& s) { return s.program.calendar.cal_annee_n; }},
    {"cal_case", [](Source const& s) { return s.program.calendar.cal_case; }},
    {"cal_calcul", [](Source const& s) { return s.program.calendar.cal_calcul; }},
    {"couleur_jour_calendrier",
     [](Source const& s) { return s.program.scheme_colours.couleur_liste; }},
    {"dossier_ressources",
     [](Source const& s) { return s.program.folders.dossier_ressources; }},
    {"dossier_actif", [](Source const& s) { return s.program.folders.dossier_actif; }},
    {"dossier_autre", [](Source const& s) { return s.program.folders.dossier_autre; }},
    {"dossier_image", [](Source const& s) { return s.program.folders.dossier_image; }},
    {"dossier_capture", [](Source const& s) { return s.program.folders.dossier_capture; }},
    {"chemin_config", [](Source const& s) { return s.program.folders.chemin_config; }},
    {"chemin_internet", [](Source const& s) { return s.program.folders.chemin_internet; }},
    {"couleur_fond_fenetre",
     [](Source const& s) { return s.program.scheme_colours.couleur_fond_fenetre; }},
    {"couleur_liste", [](Source const& s) { return s.program.scheme_colours.couleur_liste; }},
    {"couleur_titre_fenetre",
     [](Source const& s) { return s.program.scheme_colours.couleur_titre_fenetre; }},
    {"depart_x", [](Source const& s) { return s.program.arrow.depart_x; }},
    {"depart_y", [](Source const& s) { return s.program.arrow.depart_y; }},
    {"delta_x", [](Source const& s) { return s.program.arrow.delta_x; }},
    {"delta_y", [](Source const& s) { return s.program.arrow.delta_y; }},
    {"fleche_fixee", [](Source const& s) { return s.program.arrow.fleche_fixee; }},
    {"fleche_dessinee", [](Source const& s) { return s.program.arrow.fleche_dessinee; }},
    {"couleur_fleche", [](Source const& s) { return s.program.arrow.couleur_fleche; }},
    {"epaisseur_fleche", [](Source const& s) { return s.program.arrow.epaisseur_fleche; }},
    {"style_fleche", [](Source const& s) { return s.program.arrow.style_fleche; }},
    {"imprime_photo", [](Source const& s) { return s.printing.imprime_photo; }},
    {"imprime_note", [](Source const& s) { return s.printing.imprime_note; }},
    {"imprime_periode", [](Source const& s) { return s.printing.imprime_periode; }},
    {"imprime_palais_destin",
     [](Source const& s) { return s.printing.imprime_palais_destin; }},
    {"imprime_mahadasha", [](Source const& s) { return s.printing.imprime_mahadasha; }},
    {"imprime_seigneur_mois",
     [](Source const& s) { return s.printing.imprime_seigneur_mois; }},
    {"imprime_tri_deva", [](Source const& s) { return s.printing.imprime_tri_deva; }},
    // Lines 0 to 34, as the page takes them from the list without its first.
    {"periodes_impression",
     [](Source const& s) { return at(s.printing.periodes_impression, s.i); },
     {0, 34}},
    {"lignes_note",
     [](Source const& s) {
         auto const& lines = s.printing.notes.lignes_note;
         auto const place = static_cast<std::size_t>(s.i - 1);
         return place < lines.size() ? lines[place] : std::string{};
     },
     {1, 10}},
    {"nombre_lignes", [](Source const& s) { return s.printing.notes.nombre_lignes; }},
    {"titre_dialogue", [](Source const& s) { return s.program.dialogue.titre_dialogue; }},
    {"texte_dialogue", [](Source const& s) { return s.program.dialogue.texte_dialogue; }},
    {"reponse_dialogue", [](Source const& s) { return s.program.dialogue.reponse_dialogue; }},
    {"url_defaut", [](Source const& s) { return at(s.program.url_defaut, s.i - 1); }, {1, 10}},
};

bool fits(Range const& range, std::vector<int> const& indexes, std::size_t place) {
    bool const wanted = range.first <= range.last;
    bool const given = indexes.size() > place;
    return wanted == given && (!given || range.holds(indexes[place]));
}

std::optional<NamedValue> find_state(Program const& program, std::string_view name) {
    auto const split = split_indexes(name);
    if (!split || split->indexes.size() > 2) return {};
    auto const& indexes = split->indexes;
    auto const row = std::ranges::find(state_rows, split->base, &StateRow::name);
    if (row == std::end(state_rows)) return {};
    if (!fits(row->index, indexes, 0) || !fits(row->second_index, indexes, 1)) return {};
    return row->value(
        {program, indexes.empty() ? 0 : indexes[0], indexes.size() < 2 ? 0 : indexes[1]});
}

screen::Control* find_on(screen::Form const& form, std::string_view name) {
    auto const split = split_indexes(name);
    if (!split || split->indexes.size() > 1) return nullptr;
    std::optional<int> index;
    if (!split->indexes.empty()) index = split->indexes.front();
    return form.find(split->base, index);
}

}  // namespace

screen::Control* find_control(Program& program, std::string_view name) {
    if (auto* const form = program.screen.find_form(name)) return form;
    auto const dot = name.find('.');
    if (dot == std::string_view::npos) return find_on(program.form1, name);
    auto* const form = program.screen.find_form(name.substr(0, dot));
    if (form == nullptr || form == &program.form1) return nullptr;
    return find_on(*form, name.substr(dot + 1));
}

std::string name_of(screen::Control const& control) {
    auto const& form = control.form();
    bool const on_main_window = form.name() == "Form1" || &control == &form;
    return on_main_window ? control.full_name()
                          : std::string{form.name()} + "." + control.full_name();
}

std::vector<NamedProperty> properties_of(screen::Control const& control) {
    struct Collector : screen::PropertyVisitor {
        std::vector<NamedProperty> found;
        void property(std::string_view name, screen::ValueView value) override {
            found.push_back({std::string{name}, owned(value)});
        }
    } collector;
    control.visit(collector);
    return std::move(collector.found);
}

std::optional<NamedValue> find_value(Program& program, std::string_view name) {
    auto const dot = name.rfind('.');
    if (dot == std::string_view::npos) return find_state(program, name);
    auto const* const control = find_control(program, name.substr(0, dot));
    if (control == nullptr) return {};
    struct Finder : screen::PropertyVisitor {
        std::string_view wanted;
        std::optional<NamedValue> found;
        void property(std::string_view property_name, screen::ValueView value) override {
            if (property_name == wanted) found = owned(value);
        }
    } finder;
    finder.wanted = name.substr(dot + 1);
    control->visit(finder);
    return std::move(finder.found);
}

}  // namespace navarun
