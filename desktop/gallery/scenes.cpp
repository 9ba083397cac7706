// The table of scenes. All persons are invented.
#include "desktop/gallery/scenes.h"

#include <stdexcept>

#include "desktop/gallery/stage.h"
#include "print/report.h"

namespace navarun::gallery {

namespace {

QPixmap at_start(Stage& stage) { return stage.picture(stage.form()); }

QPixmap consultation(Stage& stage) {
    stage.consult_camille();
    stage.type(stage.form().Text_Note, "Première visite.\nQuestion : changer de métier ?");
    stage.save();
    return stage.picture(stage.form());
}

template <auto Entry>
QPixmap in_scheme(Stage& stage) {
    stage.consult_camille();
    // The scheme of the start is chosen already.
    if (!(stage.form().*Entry).Checked) stage.click(stage.form().*Entry);
    return stage.picture(stage.form());
}

// Another age, not yet generated.
QPixmap stale(Stage& stage) {
    stage.consult_camille();
    stage.act([&](screen::User& user) { user.set_position(stage.form().HScroll_age, 45); });
    return stage.picture(stage.form());
}

QPixmap palace_colours(Stage& stage) {
    stage.consult_camille();
    stage.click(stage.form().Command_categorie);
    return stage.picture(stage.form());
}

QPixmap palace_definition(Stage& stage) {
    stage.consult_camille();
    stage.act([&](screen::User& user) { user.double_click(stage.form().Label_Solaire(10)); });
    return stage.picture(stage.form());
}

QPixmap partial_cycle(Stage& stage) {
    stage.consult_camille();
    stage.click(stage.form().Btn_cycle_partiel);
    return stage.picture(stage.form());
}

QPixmap short_names(Stage& stage) {
    stage.consult_camille();
    stage.click(stage.form().Mnu_abrege);
    return stage.picture(stage.form());
}

QPixmap julian_birth(Stage& stage) {
    stage.consult("Isaac", "Newton", "25121642");
    stage.click(stage.form().Mnu_Julien);
    stage.click(stage.form().Command2);
    stage.act([&](screen::User& user) { user.focus(stage.form().Text_Note); });
    return stage.picture(stage.form());
}

void save_some_records(Stage& stage) {
    struct Client {
        char const* first_name;
        char const* last_name;
        char const* birth_date;
    };
    constexpr Client clients[] = {
        {"Alix", "Modèle", "07031952"},     {"Dominique", "Essai", "15081971"},
        {"Morgan", "Fictif", "29021988"},   {"Sacha", "Témoin", "03112001"},
        {"Camille", "Exemple", "22101986"},
    };
    for (auto const& client : clients) {
        stage.consult(client.first_name, client.last_name, client.birth_date);
        stage.save();
    }
}

QPixmap records(Stage& stage) {
    save_some_records(stage);
    stage.click(stage.form().Charge(1));
    stage.type(stage.form().Text_Cherche, "ex");
    return stage.picture(stage.form());
}

QPixmap address_list(Stage& stage) {
    stage.consult_camille();
    stage.click(stage.form().Bouton_Internet);
    return stage.picture(stage.form());
}

QPixmap save_question(Stage& stage) {
    stage.consult_camille();
    return stage.question(
        [&](screen::User& user) { user.click(stage.form().Command_Disk_Vert); });
}

QPixmap saved_message(Stage& stage) {
    stage.consult_camille();
    return stage.message(
        [&](screen::User& user) { user.click(stage.form().Command_Disk_Vert); });
}

QPixmap arrows(Stage& stage) {
    auto& chart = stage.form().Picture_KUNDALI;
    stage.consult_camille();
    stage.click(stage.form().MnuFleche);
    stage.act([&](screen::User& user) {
        user.mouse(chart, screen::MouseEvent::down, {1, 1900, 4300});
        user.mouse(chart, screen::MouseEvent::move, {1, 4400, 1500});
        user.mouse(chart, screen::MouseEvent::up, {1, 4400, 1500});
    });
    return stage.picture(stage.form());
}

QPixmap arrow_dialog(Stage& stage) {
    stage.click(stage.form().MnuFleche);
    return stage.picture(stage.program().fleche);
}

QPixmap age_chooser(Stage& stage) {
    stage.consult_camille();
    stage.click(stage.form().Label_age);
    auto& chooser = stage.program().choix_age;
    stage.act([&](screen::User& user) { user.hover(chooser.Label2(45)); });
    return stage.picture(chooser);
}

QPixmap cycle_list(Stage& stage) {
    stage.consult_camille();
    stage.click(stage.form().Mnuperiode);
    return stage.picture(stage.program().affiche_cycle);
}

QPixmap lord_of_the_day(Stage& stage) {
    stage.consult_camille();
    stage.click(stage.form().Bouton_seigneurjour);
    return stage.picture(stage.program().frm_seigneur_jour);
}

QPixmap palace_of_destiny(Stage& stage) {
    stage.consult_camille();
    stage.click(stage.form().Mnu_palaisdestin);
    return stage.picture(stage.program().palais_du_destin);
}

QPixmap calendar(Stage& stage) {
    stage.click(stage.form().MnuCalendrier);
    auto& calendar = stage.program().frm_calend;
    stage.act([&](screen::User& user) {
        user.choose(calendar.cMois, "Mai");
        user.click(calendar.chkWeek);
        user.click(calendar.chkFerie);
    });
    return stage.picture(calendar);
}

void open_preview(Stage& stage) {
    stage.consult_camille();
    stage.type(stage.form().Text_Note,
               "Première rencontre. Camille voudrait changer de métier ; le mois de Guru s'y "
               "prête mieux que celui de Shani. Revoir ensemble le palais 7 au printemps.");
    stage.click(stage.form().MnuApercu_Impression);
}

QPixmap preview(Stage& stage) {
    open_preview(stage);
    return stage.picture(stage.form());
}

QPixmap print_options(Stage& stage) {
    open_preview(stage);
    return stage.picture(stage.program().option_impression);
}

QPixmap printed_page(Stage& stage) {
    open_preview(stage);
    auto const page = PrintRoutine(stage.program(), 1);
    if (!page) throw std::runtime_error{"no page"};
    return stage.sheet(*page);
}

QPixmap about_box(Stage& stage) {
    stage.click(stage.form().MnuPropos);
    return stage.picture(stage.program().a_propos);
}

template <auto Entry>
QPixmap menu(Stage& stage) {
    stage.consult_camille();
    return stage.menu(stage.form().*Entry);
}

constexpr Scene all_scenes[] = {
    {"depart", at_start},
    {"consultation", consultation},
    {"azur-cycle", in_scheme<&Form1::MnuAzur_cycle>},
    {"azur-aum", in_scheme<&Form1::MnuAzur_Aum>},
    {"mauve-cycle", in_scheme<&Form1::MnuMauve_cycle>},
    {"mauve-aum", in_scheme<&Form1::MnuMauve_Aum>},
    {"cycle-faux", stale},
    {"palais-en-couleur", palace_colours},
    {"definition-palais", palace_definition},
    {"trois-cycles", partial_cycle},
    {"noms-abreges", short_names},
    {"julien", julian_birth},
    {"fiches", records},
    {"adresses", address_list},
    {"question-sauver", save_question},
    {"message-sauve", saved_message},
    {"fleches", arrows},
    {"outil-fleches", arrow_dialog},
    {"choix-age", age_chooser},
    {"periodes", cycle_list},
    {"seigneur-jour", lord_of_the_day},
    {"palais-destin", palace_of_destiny},
    {"calendrier", calendar},
    {"apercu", preview},
    {"options-impression", print_options},
    {"page-imprimee", printed_page},
    {"a-propos", about_box},
    {"menu-menu", menu<&Form1::MnuBouton_Menu>},
    {"menu-impression", menu<&Form1::MnuBouton_impression>},
    {"menu-outils", menu<&Form1::MnuBouton_Outil>},
    {"menu-afficher", menu<&Form1::Mnu_afficher>},
    {"menu-apparence", menu<&Form1::MnuBouton_Apparence>},
    {"menu-couleurs", menu<&Form1::MnuCouleur_Navarun>},
};

}  // namespace

std::span<Scene const> scenes() { return all_scenes; }

}  // namespace navarun::gallery
