// The menu bar: five menus, their entries in order, the captions that a practitioner reads.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/shell/design.h"

namespace navarun::test {
namespace {

struct Entry {
    char const* name;
    char const* caption;  // none for a line between entries
    char const* menu;     // none for a menu of the bar
};

// clang-format off
constexpr Entry tree[] = {
    {"MnuBouton_Menu",       "Menu",                          nullptr},
    {"MnuDevant",            "N.A.V.A.R.U.N  devant",         "MnuBouton_Menu"},
    {"MnuNavarun",           "Lancer N.A.V.A.R.U.N",          "MnuBouton_Menu"},
    {"MnuPersonalite",       "Description de la personnalité","MnuBouton_Menu"},
    {"Mnucelebrites",        "Date de Naiss des Célébrités",  "MnuBouton_Menu"},
    {"separation1",          nullptr,                         "MnuBouton_Menu"},
    {"MnuAide",              "Aide",                          "MnuBouton_Menu"},
    {"MnuPropos",            "À propos",                      "MnuBouton_Menu"},
    {"MnuQuitter",           "Quitter",                       "MnuBouton_Menu"},
    {"MnuBouton_impression", "Impression",                    nullptr},
    {"MnuImprime",           "Imprime",                       "MnuBouton_impression"},
    {"MnuApercu_Impression", "Aperçu / impression / Option",  "MnuBouton_impression"},
    {"MnuBouton_Outil",      "Outils",                        nullptr},
    {"Mnu_Julien",           "Cal.Julien < 2000",             "MnuBouton_Outil"},
    {"MnuFleche",            "Dessiner  les Flêches",         "MnuBouton_Outil"},
    {"MnuCalendrier",        "Calendrier",                    "MnuBouton_Outil"},
    {"separation",           nullptr,                         "MnuBouton_Outil"},
    {"MnuCalculatrice",      "Calculatrice",                  "MnuBouton_Outil"},
    {"MnuBlocNotes",         "Bloc-Notes",                    "MnuBouton_Outil"},
    {"Mnu_afficher",         "Afficher",                      nullptr},
    {"Mnu_palaisdestin",     "Palais du destin",              "Mnu_afficher"},
    {"Mnuperiode",           "Affiche les périodes",          "Mnu_afficher"},
    {"MnuBouton_Apparence",  "Apparence",                     nullptr},
    {"MnuCouleur_Navarun",   "&Couleur N.A.V.A.R.U.N",        "MnuBouton_Apparence"},
    {"MnuAzur_cycle",        "Azur (cycle)",                  "MnuCouleur_Navarun"},
    {"MnuAzur_Aum",          "Azur (Aum)",                    "MnuCouleur_Navarun"},
    {"MnuMauve_cycle",       "Mauve (cycle)",                 "MnuCouleur_Navarun"},
    {"MnuMauve_Aum",         "Mauve (Aum)",                   "MnuCouleur_Navarun"},
    {"séparation",           nullptr,                         "MnuBouton_Apparence"},
    {"Mnu_abrege",           "Divinités en abrégé",           "MnuBouton_Apparence"},
};
// clang-format on

TEST_F(Designed, TheMenuTreeHasItsEntriesInTheirOrder) {
    std::vector<std::string> told;
    for (auto const& row : tree) told.emplace_back(row.name);
    std::vector<std::string> found;
    for (auto const* each : form.controls()) {
        if (each->kind() == screen::Kind::menu_entry ||
            each->kind() == screen::Kind::menu_separator) {
            found.push_back(each->full_name());
        }
    }
    EXPECT_EQ(found, told);
}

TEST_F(Designed, EveryMenuEntryHasItsCaptionAndItsMenu) {
    int menus = 0;
    for (auto const& row : tree) {
        SCOPED_TRACE(row.name);
        ASSERT_NE(control(row.name), nullptr);
        if (row.menu == nullptr) {
            ++menus;
            EXPECT_EQ(control(row.name)->container(), nullptr);
        } else {
            EXPECT_EQ(control(row.name)->container(), control(row.menu));
        }
        if (row.caption == nullptr) {
            EXPECT_EQ(control(row.name)->kind(), screen::Kind::menu_separator);
            continue;
        }
        EXPECT_EQ(control(row.name)->kind(), screen::Kind::menu_entry);
        EXPECT_EQ(get<std::string>(row.name, "Caption"), row.caption);
        EXPECT_TRUE(get<bool>(row.name, "Visible"));
    }
    EXPECT_EQ(menus, 5);
}

TEST_F(Designed, TheMarksOfTheToolsAreOff) {
    for (char const* name : {"MnuDevant", "Mnu_Julien", "MnuFleche", "MnuApercu_Impression",
                             "Mnu_palaisdestin", "Mnuperiode", "Mnu_abrege"}) {
        EXPECT_FALSE(get<bool>(name, "Checked")) << name;
    }
}

}  // namespace
}  // namespace navarun::test
