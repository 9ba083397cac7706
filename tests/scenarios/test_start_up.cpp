// The window as it opens: the grid of 01/01/1900 at the age of 1, worked out by hand.
//
// The first of January 1900 is a Monday. The sun entered sign 9 on 14 December and leaves it on
// 11 January: position 1 + 29 - 11 = 19, mansion 20, whose lord is Shukra. The year 1901 has
// the sum 2 + 1 + 1 + 1 = 5, Budha.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {
namespace {

struct Cell {
    int number;
    char const* palace;
    char const* quality;
    char const* tooltip;
    char const* year_lord;
    char const* month_lord;
    char const* month_date;
    char const* period_date;
    friend std::ostream& operator<<(std::ostream& out, Cell const& row) {
        return out << row.number;
    }
};

// clang-format off
constexpr Cell first_grid[] = {
    { 1, "5",  "B", "Bénéfique",      "",      "Kuja",   "01/05/1901", "01/01/1902"},
    { 2, "6",  "M", "Maléfique",      "",      "Surya",  "01/06/1901", "01/04/1902"},
    { 3, "7",  "V", "Vedha",          "",      "Chandra","01/07/1901", "01/07/1902"},
    { 4, "8",  "M", "Maléfique",      "",      "Guru",   "01/08/1901", "01/10/1902"},
    { 5, "9",  "B", "Bénéfique",      "",      "Rahu",   "01/09/1901", "01/01/1903"},
    { 6, "10", "B", "Bénéfique",      "",      "Budha",  "01/10/1901", "01/04/1903"},
    { 7, "11", "B", "Bénéfique",      "",      "Shukra", "01/11/1901", "01/07/1903"},
    { 8, "12", "M", "Maléfique",      "",      "Ketu",   "01/12/1901", "01/10/1903"},
    { 9, "1",  "B", "Bénéfique",      "Budha", "Budha",  "01/01/1901", "01/01/1901"},
    {10, "2",  "N", "Neutre(Maraka)", "",      "Shukra", "01/02/1901", "01/04/1901"},
    {11, "3",  "I", "Instable",       "",      "Ketu",   "01/03/1901", "01/07/1901"},
    {12, "4",  "V", "Vedha",          "",      "Shani",  "01/04/1901", "01/10/1901"},
};
// clang-format on

class FirstGrid : public testing::TestWithParam<Cell> {
  protected:
    std::string field(char const* array, char const* property) {
        std::string name{array};
        name.append("(").append(std::to_string(GetParam().number)).append(").");
        return visit.text(name.append(property));
    }
    Visit visit;
};

TEST_P(FirstGrid, HoldsPalaceMonthYearAndPeriod) {
    auto const& cell = GetParam();
    EXPECT_EQ(field("Label_Solaire", "Caption"), cell.palace);
    EXPECT_EQ(field("Label_Solaire", "ToolTipText"), cell.tooltip);
    EXPECT_EQ(visit.text("categorie_palais(" + std::to_string(cell.number) + ")"),
              cell.quality);
    EXPECT_EQ(field("Label_annee", "Caption"), cell.year_lord);
    EXPECT_EQ(field("Label_mois", "Caption"), cell.month_lord);
    EXPECT_EQ(field("Label_MoisDate", "Caption"), cell.month_date);
    EXPECT_EQ(field("Label_Dasha", "Caption"), "Shukra");
    EXPECT_EQ(field("Label_DashaDate", "Caption"), cell.period_date);
}

TEST_P(FirstGrid, ShowsAllFieldsButTheEmptyCellsOfTheYear) {
    EXPECT_EQ(field("Label_Solaire", "Visible"), "true");
    EXPECT_EQ(field("Label_mois", "Visible"), "true");
    EXPECT_EQ(field("Label_MoisDate", "Visible"), "true");
    EXPECT_EQ(field("Label_Dasha", "Visible"), "true");
    EXPECT_EQ(field("Label_DashaDate", "Visible"), "true");
    EXPECT_EQ(field("Label_annee", "Visible"), GetParam().number == 9 ? "true" : "false");
}

TEST_P(FirstGrid, OpensTheBoxOfTheSunAlone) {
    char const* const sun = GetParam().number == 9 ? "true" : "false";
    EXPECT_EQ(field("Label_Solaire", "Border"), sun);
    EXPECT_EQ(field("Label_Solaire", "Opaque"), sun);
}

INSTANTIATE_TEST_SUITE_P(StartUp, FirstGrid, testing::ValuesIn(first_grid),
                         [](auto const& row) {
                             return "cell_" + std::to_string(row.param.number);
                         });

struct Field {
    char const* name;
    char const* value;
};

// clang-format off
constexpr Field first_fields[] = {
    {"jour_naissance",                  "01"},
    {"mois_naissance",                  "01"},
    {"siecle_naissance",                "19"},
    {"annee_naissance",                 "00"},
    {"date_naissance",                  "01/01/1900"},
    {"Combo_jourNaiss.Text",            "01"},
    {"Combo_moisNaiss.Text",            "01"},
    {"Combo_AnNaiss1.Text",             "19"},
    {"Combo_AnNaiss2.Text",             "00"},
    {"Text_prenom.Text",                ""},
    {"Text_nom.Text",                   ""},
    {"annee_calcul",                    "1900"},
    {"annee_solaire",                   "1900"},
    {"signe_solaire",                   "9"},
    {"degre_solaire",                   "19"},
    {"palais_index",                    "9"},
    {"numero_nakshatra",                "20"},
    {"age_courant",                     "1"},
    {"age_scroll",                      "1"},
    {"colonne_age",                     "9"},
    {"colonne_dasha",                   "9"},
    {"colonne_mois",                    "9"},
    {"annee_defile",                    "1901"},
    {"fin_annee_defile",                "31/12/1900"},
    {"seigneur_an",                     "5"},
    {"seigneur_dasha",                  "6"},
    {"numero_jour",                     "2"},
    {"seigneur_jour",                   "2"},
    {"dinanka",                         "1"},
    {"purnanka",                        "3"},
    {"julien_actif",                    "0"},
    {"nombre_cycles",                   "10"},
    {"decalage_nom_seigneur",           "0"},
    {"couleur_kundali",                 "0"},
    {"cycle_partiel_actif",             "false"},
    {"nombre_touches",                  "0"},
    {"genre_trideva",                   ""},
    {"HScroll_age.Value",               "1"},
    {"HScroll_age.Tag",                 "VERT"},
    {"Label_age.Caption",               "1"},
    {"Label_age.BackColor",             "#C0FFC0"},
    {"Label_anneedefile.Caption",       "01/01/1901"},
    {"Label_anneedefile_Suite.Caption", "31/12/1901"},
    {"Label_Lal_Kitab.Caption",         "SHUKRA (1 / 3 ans)"},
    {"Label_zodiac.Caption",            "19 °  Arc"},
    {"Label_nomNakshatra.Caption",      "20 Purva Shadha"},
    {"Label_Nak.Caption",               "Shukra"},
    {"Label_Nak.BackColor",             "#FFFFFF"},
    {"Label_Nak.ForeColor",             "#000000"},
    {"Label_jourdeSemaine.Caption",     "Lundi"},
    {"Label_divinite.Caption",          "Chandra 2"},
    {"Label_divinite.BackColor",        "#FFFFFF"},
    {"Label_divinite.ForeColor",        "#000000"},
    {"Label_dinanka_Purnanka.Caption",  "Dinânka: 1  Purnânka: 3"},
    {"Label_cal_julien.Caption",        "Naissance 1600 - 2199"},
    {"Image_cal_Julien.Visible",        "false"},
    {"Mnu_Julien.Enabled",              "true"},
    {"Mnu_Julien.Checked",              "false"},
    {"Command2.Picture",                "CycleBouton(0)"},
    {"Command2.ToolTipText",            "Cycle vrai !"},
    {"Command_Disk_Vert.Picture",       "Diskette(0)"},
    {"Command_reset.Picture",           "reset_efface(0)"},
    {"Charge(1).Picture",               "DOSSIER(1)"},
    {"Charge(1).ToolTipText",           "Dossier 1 Actif"},
    {"Charge(2).Picture",               "DOSSIER(4)"},
    {"Charge(2).ToolTipText",           "Dossier 2 Inactif"},
    {"Picture_PHOTO.Picture",           "Image_Ganesha"},
    {"Picture_KUNDALI.Picture",         "Image_Kundali(0)"},
    {"MnuImprime.Enabled",              "true"},
    {"MnuApercu_Impression.Enabled",    "true"},
    {"Mnuperiode.Enabled",              "true"},
    {"Mnu_palaisdestin.Enabled",        "true"},
    {"url_defaut(1)",                   "www.navarun.example"},
    {"url_defaut(10)",                  "www.geneanet.org"},
    {"Text_zodiac.Text",                "Optimiste, indépendant, impatient, le voyage, les "
                                        "animaux, le sport, le philosophe, l'enseignant, ne "
                                        "s'engage pas."},
    {"Text_jourdeSemaine.Text",         "(^_^) Nature réceptive et sensible, émotif, rêveur, "
                                        "imaginatif, intuitif, réceptif, créatif, "
                                        "fécond,goût des relations.\r\n\r\n(>_<) Irréalisme, "
                                        "caractère lunatique ou instable, émotif, "
                                        "faiblesse."},
    {"texte_dinanka",                   "DINANKA:1\r\nMots clé: Direction\r\n\r\n(^_^): "
                                        "habileté, ambition, débrouillardise.\r\n\r\n(>_<): "
                                        "arrivisme, vantardise, agitation.\r\n"
                                        "___________________\r\n"},
    {"texte_purnanka",                  "PURNANKA:3\r\nVie d'expression.\r\n\r\nQualiter à "
                                        "développer : La créativité, l'ouverture aux autres, "
                                        "l'ambition."},
};
// clang-format on

TEST(StartUp, FieldsAndValuesAreThoseOfTheFirstDate) {
    Visit visit;
    for (auto const& row : first_fields) EXPECT_EQ(visit.text(row.name), row.value) << row.name;
}

TEST(StartUp, NothingReachesTheOutside) {
    Visit visit;
    EXPECT_EQ(visit.effects(), Json::array());
}

TEST(StartUp, TheFirstNameHasTheKeyboard) {
    Visit visit;
    visit.type("Text_prenom", "ma");
    visit.focus("Text_nom");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "Ma");
}

// The day and the month are parted by blanks until the date changes for the first time.
TEST(StartUp, TheBirthdayHasBlanksRoundItsStroke) {
    Visit visit;
    EXPECT_EQ(visit.text("jour_mois_anniv"), "01 / 01");
    EXPECT_EQ(visit.text("dates_age(1)"), "01 / 01/1901");
    EXPECT_EQ(visit.text("dates_age(2)"), "01 / 01/1936");
    EXPECT_EQ(visit.text("dates_age(11)"), "01 / 01/1904");
    EXPECT_EQ(visit.text("dates_age(81)"), "01 / 01/1935");
    EXPECT_EQ(visit.text("dates_age(90)"), "01 / 01/2250");
}

TEST(StartUp, AGenerationAloneKeepsTheBlanks) {
    Visit visit;
    visit.click("Command2");
    EXPECT_EQ(visit.text("dates_age(11)"), "01 / 01/1904");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
}

TEST(StartUp, TheFirstChangeOfTheDateTakesTheBlanksAway) {
    Visit visit;
    visit.choose("Combo_jourNaiss", "02");
    EXPECT_EQ(visit.text("jour_mois_anniv"), "02/01");
    EXPECT_EQ(visit.text("dates_age(11)"), "01 / 01/1904");
    visit.click("Command2");
    EXPECT_EQ(visit.text("dates_age(11)"), "02/01/1904");
}

// Moving the age writes the birthday anew as well.
TEST(StartUp, AnAgeMovedToTakesTheBlanksAwayToo) {
    Visit visit;
    visit.set("HScroll_age", 4);
    EXPECT_EQ(visit.text("jour_mois_anniv"), "01/01");
    EXPECT_EQ(visit.text("dates_age(11)"), "01 / 01/1904");
    visit.click("Command2");
    EXPECT_EQ(visit.text("dates_age(11)"), "01/01/1904");
}

// Nothing clears the cells before the first calculation: what it does not colour has the
// colours of the design, and only a generation turns names and steps to the brown of the grid.
TEST(StartUp, TheCellsKeepTheColoursOfTheDesignUntilTheFirstGeneration) {
    Visit visit;
    EXPECT_EQ(visit.text("Label_mois(3).ForeColor"), "#808080");
    EXPECT_EQ(visit.text("Label_DashaDate(3).ForeColor"), "#808080");
    EXPECT_EQ(visit.text("Label_Dasha(3).ForeColor"), "#808000");
    visit.click("Command2");
    EXPECT_EQ(visit.text("Label_mois(3).ForeColor"), "#808000");
    EXPECT_EQ(visit.text("Label_DashaDate(3).ForeColor"), "#808000");
    EXPECT_EQ(visit.text("Label_Dasha(3).ForeColor"), "#808000");
}

TEST(StartUp, TheFirstMonthAndThePeriodsFirstStepStandOut) {
    Visit visit;
    EXPECT_EQ(visit.text("Label_mois(9).ForeColor"), "#0000FF");
    EXPECT_EQ(visit.text("Label_MoisDate(9).ForeColor"), "#000000");
    EXPECT_EQ(visit.text("Label_Dasha(9).ForeColor"), "#0000FF");
    EXPECT_EQ(visit.text("Label_DashaDate(9).ForeColor"), "#000000");
    for (auto const& bold : visit.cells("Label_mois", "FontBold")) EXPECT_EQ(bold, "false");
    for (auto const& bold : visit.cells("Label_Dasha", "FontBold")) EXPECT_EQ(bold, "false");
}

TEST(StartUp, OnADayOfTheFirstYearTheStepInProgressIsMarked) {
    Visit visit{"15/05/1901"};
    // Period steps: 01/04/1901 in cell 10, 01/07/1901 in cell 11. Months: 01/05/1901 in cell 1.
    EXPECT_TRUE(visit.truth("Label_Dasha(10).FontBold"));
    EXPECT_EQ(visit.number("colonne_dasha"), 11);
    EXPECT_TRUE(visit.truth("Label_mois(1).FontBold"));
    EXPECT_EQ(visit.number("colonne_mois"), 1);
}

// Only the sun's own cell lost its number; the others carry the one they were designed with.
TEST(StartUp, TheTagsOfTheOtherPalacesAreTheirSigns) {
    Visit visit;
    std::vector<std::string> const tags{"1", "2", "3", "4",  "5",  "6",
                                        "7", "8", "1", "10", "11", "12"};
    EXPECT_EQ(visit.cells("Label_Solaire", "Tag"), tags);
}

TEST(StartUp, TheQualitiesHaveTheirColours) {
    Visit visit;
    EXPECT_EQ(visit.cells("Label_Solaire", "BackColor"),
              (std::vector<std::string>{"#80FF80", "#FF8080", "system:title-bar", "#FF8080",
                                        "#80FF80", "#80FF80", "#80FF80", "#FF8080", "#80FF80",
                                        "#FFFFFF", "#FFFF80", "system:title-bar"}));
}

TEST(StartUp, TheScheduleOfAgesCoversTenTurns) {
    Visit visit;
    EXPECT_EQ(visit.number("ages_seigneurs(1,1)"), 1);
    EXPECT_EQ(visit.number("ages_seigneurs(10,1)"), 316);
    EXPECT_EQ(visit.number("ages_seigneurs(11,4)"), 7);
    EXPECT_EQ(visit.number("ages_seigneurs(90,9)"), 348);
}

TEST(StartUp, AnyDayBringsTheSameFirstGridUp) {
    for (char const* today : {"01/01/1600", "31/12/1899", "29/02/2024", "31/12/2199"}) {
        Visit visit{today, "23:59:59"};
        EXPECT_EQ(visit.text("date_naissance"), "01/01/1900") << today;
        EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT") << today;
        EXPECT_EQ(visit.text("Label_annee(9).Caption"), "Budha") << today;
    }
}

}  // namespace
}  // namespace navarun::test
