// The generate command: what it makes true, what it leaves alone, and the oddities that
// practitioners know.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/generate.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

std::vector<std::string> twelve(std::string const& text) {
    return std::vector<std::string>(12, text);
}

constexpr char const* cell_arrays[]{"Label_Solaire",  "Label_annee", "Label_mois",
                                    "Label_MoisDate", "Label_Dasha", "Label_DashaDate"};

std::vector<std::vector<std::string>> grid(Visit& visit) {
    std::vector<std::vector<std::string>> rows;
    for (char const* array : cell_arrays) rows.push_back(visit.cells(array, "Caption"));
    return rows;
}

TEST(Generate, TwoInARowAreOne) {
    for (int const age : {1, 40, 200}) {
        Visit visit;
        visit.generate_for("17051962");
        visit.generate_at(age);
        Json const first = visit.dump();
        visit.click("Command2");
        EXPECT_EQ(visit.dump(), first) << age;
        EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    }
}

TEST(Generate, TheAgeIsNotTouched) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(40);
    visit.click("Command2");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 40);
    EXPECT_EQ(visit.number("age_courant"), 40);
    EXPECT_EQ(visit.text("Label_age.Caption"), "40");
}

// 17/05/1962: sign 2 from 13 May on, position 4, mansion 3, Surya first; a Thursday, Guru.
TEST(Generate, APersonIsWorkedOut) {
    Visit visit;
    visit.generate_for("17051962");
    EXPECT_EQ(visit.text("Label_zodiac.Caption"), "4 °  Taureau");
    EXPECT_EQ(visit.text("Label_nomNakshatra.Caption"), "3 Krittika");
    EXPECT_EQ(visit.text("Label_Nak.Caption"), "Surya");
    EXPECT_EQ(visit.text("Label_Nak.BackColor"), "#800000");
    EXPECT_EQ(visit.text("Label_Nak.ForeColor"), "#FFFFFF");
    EXPECT_EQ(visit.text("Label_dinanka_Purnanka.Caption"), "Dinânka: 8  Purnânka: 4");
    // 3 + 17 + 5 + 63 = 88, that is 7.
    EXPECT_EQ(visit.text("Label_annee(2).Caption"), "Ketu");
    // The first month: 0 x 12 + 4 + 7 = 11, that is 2.
    EXPECT_EQ(visit.text("Label_mois(2).Caption"), "Chandra");
    EXPECT_EQ(visit.text("Label_mois(1).Caption"), "Rahu");
    EXPECT_EQ(visit.text("Label_MoisDate(1).Caption"), "17/04/1964");
    EXPECT_EQ(visit.text("Label_DashaDate(3).Caption"), "17/07/1963");
}

TEST(Generate, AfterAChangeOfTheDayTheOldCellsStandUntilTheNextGeneration) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(40);
    auto const old_cells = grid(visit);
    std::string const old_sign = visit.text("Label_zodiac.Caption");
    visit.choose("Combo_jourNaiss", "02");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.number("age_courant"), 1);
    EXPECT_EQ(grid(visit), old_cells);
    EXPECT_EQ(visit.text("Label_zodiac.Caption"), old_sign);
    visit.click("Command2");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_NE(grid(visit), old_cells);
}

struct StateLook {
    char const* state;
    char const* picture;
    char const* tooltip;
    char const* age_colour;
    bool menus;
};
constexpr StateLook true_look{"VERT", "CycleBouton(0)", "Cycle vrai !", "#C0FFC0", true};
constexpr StateLook stale_look{"ROUGE", "CycleBouton(1)", "Cycle faux !", "#FFC0C0", false};

void expect_look(Visit& visit, StateLook const& look) {
    EXPECT_EQ(visit.text("HScroll_age.Tag"), look.state);
    EXPECT_EQ(visit.text("Command2.Picture"), look.picture);
    EXPECT_EQ(visit.text("Command2.ToolTipText"), look.tooltip);
    EXPECT_EQ(visit.text("Label_age.BackColor"), look.age_colour);
    for (char const* entry :
         {"Mnuperiode", "MnuImprime", "MnuApercu_Impression", "Mnu_palaisdestin"}) {
        EXPECT_EQ(visit.truth(std::string{entry} + ".Enabled"), look.menus) << entry;
    }
}

TEST(Generate, ATrueAndAStaleGridAreSeenOnButtonAgeAndMenus) {
    Visit visit;
    expect_look(visit, true_look);
    visit.choose("Combo_jourNaiss", "02");
    expect_look(visit, stale_look);
    visit.click("Command2");
    expect_look(visit, true_look);
}

TEST(Generate, ThePrintEntriesAreRefusedWhileTheGridIsStale) {
    Visit visit;
    visit.choose("Combo_jourNaiss", "02");
    for (char const* entry :
         {"Mnuperiode", "MnuImprime", "MnuApercu_Impression", "Mnu_palaisdestin"}) {
        EXPECT_EQ(visit.ask({{"op", "click"}, {"control", entry}})["error"], "refused")
            << entry;
    }
}

// Also where the state was true already: the entry of the periods is given back by itself.
TEST(Generate, TheEntryOfThePeriodsIsGivenBack) {
    Visit visit;
    visit.program().form1.Mnuperiode.Enabled = false;
    visit.click("Command2");
    EXPECT_TRUE(visit.truth("Mnuperiode.Enabled"));
}

TEST(Generate, TheChartTakesThePictureOfItsScheme) {
    Visit visit;
    visit.program().form1.Picture_KUNDALI.Picture = screen::Picture{};
    visit.click("Command2");
    EXPECT_EQ(visit.text("Picture_KUNDALI.Picture"), "Image_Kundali(0)");
}

TEST(Cycle, ClearsTheNamesOfTheYearAndHidesThePalaces) {
    Visit visit;
    visit.generate_for("17051962");
    auto const months = visit.cells("Label_mois", "Caption");
    auto const month_dates = visit.cells("Label_MoisDate", "Caption");
    auto const periods = visit.cells("Label_Dasha", "Caption");
    auto const period_dates = visit.cells("Label_DashaDate", "Caption");
    visit.set("HScroll_age", 3);
    cycle(visit.program());
    EXPECT_EQ(visit.cells("Label_annee", "Caption"), twelve(""));
    EXPECT_EQ(visit.cells("Label_Solaire", "Visible"), twelve("false"));
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    // The other texts stand until they are overwritten.
    EXPECT_EQ(visit.cells("Label_mois", "Caption"), months);
    EXPECT_EQ(visit.cells("Label_MoisDate", "Caption"), month_dates);
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), periods);
    EXPECT_EQ(visit.cells("Label_DashaDate", "Caption"), period_dates);
    EXPECT_EQ(visit.text("Label_zodiac.Caption"), "4 °  Taureau");
}

// Not the number of the cell: the palaces get theirs afterwards.
TEST(Cycle, WritesALiteralOneIntoAllTwelvePalaces) {
    Visit visit;
    cycle(visit.program());
    EXPECT_EQ(visit.cells("Label_Solaire", "Caption"), twelve("1"));
}

TEST(Cycle, TakesColourAndBoldAway) {
    Visit visit{"20/06/1962"};
    visit.generate_for("17051961");
    visit.click("Label_Dasha(3)");
    visit.click("Label_mois(3)");
    cycle(visit.program());
    EXPECT_EQ(visit.cells("Label_Dasha", "ForeColor"), twelve("#808000"));
    EXPECT_EQ(visit.cells("Label_DashaDate", "ForeColor"), twelve("#808000"));
    EXPECT_EQ(visit.cells("Label_mois", "ForeColor"), twelve("#808000"));
    EXPECT_EQ(visit.cells("Label_MoisDate", "ForeColor"), twelve("#808080"));
    EXPECT_EQ(visit.cells("Label_Dasha", "FontBold"), twelve("false"));
    EXPECT_EQ(visit.cells("Label_mois", "FontBold"), twelve("false"));
}

TEST(Generate, ALordOfTheYearLeavesNoTraceInOtherCells) {
    Visit visit;
    visit.generate_for("17051962");
    for (int const age : {1, 40, 39, 12, 13, 350, 1}) {
        visit.generate_at(age);
        auto const lords = visit.cells("Label_annee", "Caption");
        EXPECT_EQ(std::count(lords.begin(), lords.end(), ""), 11) << age;
    }
}

// A year of two digits is typed away by hand: the date is then one of the year 19.
TEST(YearWithoutRows, TheSunsCellOfBeforeStaysHiddenAndTheOthersAreNumberedFromIt) {
    Visit visit;
    visit.set("Combo_AnNaiss2", "");
    ASSERT_EQ(visit.text("date_naissance"), "01/01/19");
    visit.click("Command2");
    EXPECT_EQ(visit.effects(), Json::array());
    EXPECT_EQ(visit.number("annee_calcul"), 19);
    EXPECT_EQ(visit.number("palais_index"), 9);
    EXPECT_EQ(visit.number("signe_solaire"), 9);
    EXPECT_EQ(visit.number("degre_solaire"), 19);
    EXPECT_EQ(visit.number("numero_nakshatra"), 20);
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "01/01/0020");
    EXPECT_FALSE(visit.truth("Label_Solaire(9).Visible"));
    for (int palace = 2; palace <= 12; ++palace) {
        std::string const cell = "Label_Solaire(" + std::to_string((palace + 7) % 12 + 1) + ")";
        EXPECT_TRUE(visit.truth(cell + ".Visible")) << cell;
        EXPECT_EQ(visit.text(cell + ".Caption"), std::to_string(palace)) << cell;
    }
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
}

TEST(YearWithoutRows, ACenturyOfOneDigitIsOne) {
    Visit visit;
    visit.generate_for("17051962");
    visit.set("Combo_AnNaiss1", "1");
    ASSERT_EQ(visit.text("date_naissance"), "17/05/0162");
    visit.click("Command2");
    EXPECT_EQ(visit.number("palais_index"), 2);
    EXPECT_FALSE(visit.truth("Label_Solaire(2).Visible"));
    EXPECT_EQ(visit.text("Label_Solaire(3).Caption"), "2");
    EXPECT_EQ(visit.text("Label_zodiac.Caption"), "4 °  Taureau");
    EXPECT_EQ(visit.text("Label_DashaDate(2).Caption"), "17/05/0163");
}

TEST(YearWithoutRows, AYearOfTheTableBringsTheSunBack) {
    Visit visit;
    visit.set("Combo_AnNaiss1", "1");
    visit.click("Command2");
    ASSERT_FALSE(visit.truth("Label_Solaire(9).Visible"));
    visit.set("Combo_AnNaiss1", "16");
    visit.click("Command2");
    EXPECT_TRUE(visit.truth("Label_Solaire(9).Visible"));
    EXPECT_EQ(visit.text("Label_Solaire(9).Caption"), "1");
}

struct EdgeYear {
    char const* digits;
    int sign;
    int degree;
    friend std::ostream& operator<<(std::ostream& out, EdgeYear const& row) {
        return out << row.digits;
    }
};

// Both ends of the eras, and the days round them.
// clang-format off
constexpr EdgeYear edge_years[] = {
    {"13041949",  1,  1},
    {"12041950", 12, 29},
    {"01011950",  9, 18},
    {"14121949",  9,  0},
    {"31121949",  9, 17},
    {"01011600",  9, 24},
    {"31121649",  9, 22},
    {"31121699",  9, 21},
    {"01011900",  9, 19},
    {"31122199",  9, 14},
    {"31051962",  2, 18},
    {"01061962",  2, 17},
};
// clang-format on

class SunOfTheYear : public testing::TestWithParam<EdgeYear> {};
TEST_P(SunOfTheYear, StandsWhereTheRowsOfItsHalfCenturySay) {
    Visit visit;
    visit.generate_for(GetParam().digits);
    EXPECT_EQ(visit.number("signe_solaire"), GetParam().sign);
    EXPECT_EQ(visit.number("degre_solaire"), GetParam().degree);
    EXPECT_EQ(visit.number("palais_index"), GetParam().sign);
}
INSTANTIATE_TEST_SUITE_P(Generate, SunOfTheYear, testing::ValuesIn(edge_years),
                         [](auto const& row) { return std::string{row.param.digits}; });

struct Unreadable {
    char const* name;
    char const* field;
    char const* text;
    friend std::ostream& operator<<(std::ostream& out, Unreadable const& row) {
        return out << row.name;
    }
};
constexpr Unreadable unreadable_dates[] = {
    {"no_day", "Combo_jourNaiss", ""},
    {"day_zero", "Combo_jourNaiss", "0"},
    {"no_month", "Combo_moisNaiss", ""},
};

class UnreadableDate : public testing::TestWithParam<Unreadable> {};
TEST_P(UnreadableDate, IsToldAndChangesNothing) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(40);
    visit.set(GetParam().field, GetParam().text);
    visit.focus("Command2");
    ASSERT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    Json const before = visit.dump();
    visit.effects();
    visit.click("Command2");
    EXPECT_EQ(visit.dump(), before);
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"box","title":"Erreur",
        "text":"Date de naissance invalide !","answer":1}])"));
}

TEST_P(UnreadableDate, IsToldByTheButtonOfTheDayToo) {
    Visit visit;
    visit.set(GetParam().field, GetParam().text);
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.text("Label_annee(9).Caption"), "Budha");
    EXPECT_EQ(visit.effects()[0]["text"], "Date de naissance invalide !");
}
INSTANTIATE_TEST_SUITE_P(Generate, UnreadableDate, testing::ValuesIn(unreadable_dates),
                         [](auto const& row) { return std::string{row.param.name}; });

TEST(Generate, ARepairedDateIsGeneratedAfterTheBox) {
    Visit visit;
    visit.set("Combo_jourNaiss", "");
    visit.click("Command2");
    visit.set("Combo_jourNaiss", "17");
    visit.click("Command2");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(visit.text("date_naissance"), "17/01/1900");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "17/01/1901");
}

std::string overlines() {
    std::string line;
    for (int i = 0; i < 21; ++i) line += "¯";
    return line;
}

TEST(Definition, TellsPalaceQualityElementAndDescription) {
    Visit visit;
    visit.generate_for("17051962");
    // Sign 7 is palace 6 of a sun in sign 2.
    visit.double_click("Label_Solaire(7)");
    EXPECT_TRUE(visit.truth("Text_definition_palais.Visible"));
    EXPECT_EQ(visit.text("Text_definition_palais.Text"),
              "PALAIS 6 - M - AIR\r\n" + overlines() +
                  "\r\nDescription:\r\nMaladie - Accident -  Blessure - Ennemis - Les luttes - "
                  "Les efforts - Compétitions - Ruptures - divorces - Ennuis - Animaux de "
                  "compagnies.\r\n" +
                  overlines() + "Personnages: \r\nLes serviteurs - Les ennemis. \r\n" +
                  overlines() + "Parties du corps:\r\n Les intestins.");
}

// The second heading of palace 2 holds its own content.
TEST(Definition, PalaceTwoNamesNobody) {
    Visit visit;
    visit.double_click("Label_Solaire(10)");
    EXPECT_EQ(visit.text("Text_definition_palais.Text"),
              "PALAIS 2 - N - TERRE\r\n" + overlines() +
                  "\r\nDescription:\r\nRichesse / Acquis - la famille - Nourriture - Les biens "
                  "matériels - L'instruction - La parole - La mort.\r\n" +
                  overlines() + "Personnages:  Aucun\r\n" + overlines() +
                  "Parties du corps:\r\n visage, gorge, dentition, oeil droit.");
}

// Here the heading is followed by a line of four blanks.
TEST(Definition, PalaceEightNamesNobodyAboveAnEmptyLine) {
    Visit visit;
    visit.double_click("Label_Solaire(4)");
    EXPECT_EQ(visit.text("Text_definition_palais.Text"),
              "PALAIS 8 - M - EAU\r\n" + overlines() +
                  "\r\nDescription:\r\nTransformation - Bouleversement - Danger - Mort - "
                  "Héritage - Changements soudains - souffrance psychique  - Crise  -  les "
                  "secrets.\r\n" +
                  overlines() + "Personnages:  Aucun \r\n    \r\n" + overlines() +
                  "Parties du corps:\r\nSystème de reproduction externe (pénis; vagin), "
                  "bas-ventre.");
}

// A cell that once was the sun's keeps the tag 1, and with it the element of the first sign.
TEST(Definition, AFormerSunsCellKeepsTheElementOfTheFirstSign) {
    Visit visit;
    visit.generate_for("17051962");
    EXPECT_EQ(visit.text("Label_Solaire(2).Tag"), "1");
    visit.double_click("Label_Solaire(2)");
    std::string const as_sun = visit.text("Text_definition_palais.Text");
    EXPECT_EQ(as_sun.substr(0, as_sun.find('\r')), "PALAIS 1 - B - FEU");
    visit.double_click("Label_Solaire(2)");

    visit.generate_for("20081962");
    EXPECT_EQ(visit.number("palais_index"), 5);
    visit.double_click("Label_Solaire(2)");
    // Sign 2 is an earth sign, palace 10 of a sun in sign 5.
    std::string const former = visit.text("Text_definition_palais.Text");
    EXPECT_EQ(former.substr(0, former.find('\r')), "PALAIS 10 - B - FEU");
    EXPECT_EQ(visit.text("Label_Solaire(2).Tag"), "1");
    EXPECT_EQ(visit.text("Label_Solaire(5).Tag"), "1");
    EXPECT_EQ(visit.text("Label_Solaire(9).Tag"), "1");
    EXPECT_EQ(visit.text("Label_Solaire(3).Tag"), "3");
}

// Nothing but the fresh start of a person or a record takes the boxes off again.
TEST(Generate, TheBoxOfAFormerSunsCellStays) {
    Visit visit;
    visit.generate_for("17051962");
    EXPECT_TRUE(visit.truth("Label_Solaire(9).Border"));
    EXPECT_TRUE(visit.truth("Label_Solaire(9).Opaque"));
    EXPECT_TRUE(visit.truth("Label_Solaire(2).Border"));
    EXPECT_FALSE(visit.truth("Label_Solaire(3).Border"));
}

TEST(Definition, ASecondDoubleClickHidesItWhateverTheCell) {
    Visit visit;
    visit.double_click("Label_Solaire(4)");
    std::string const shown = visit.text("Text_definition_palais.Text");
    visit.double_click("Label_Solaire(5)");
    EXPECT_FALSE(visit.truth("Text_definition_palais.Visible"));
    EXPECT_EQ(visit.text("Text_definition_palais.Text"), shown);
    visit.double_click("Label_Solaire(5)");
    EXPECT_TRUE(visit.truth("Text_definition_palais.Visible"));
    EXPECT_NE(visit.text("Text_definition_palais.Text"), shown);
}

TEST(Definition, IsHiddenByTheAgeBar) {
    Visit visit;
    visit.double_click("Label_Solaire(4)");
    visit.set("HScroll_age", 2);
    EXPECT_FALSE(visit.truth("Text_definition_palais.Visible"));
    visit.double_click("Label_Solaire(4)");
    visit.drag("HScroll_age", 7);
    EXPECT_FALSE(visit.truth("Text_definition_palais.Visible"));
}

TEST(Definition, IsHiddenByTheButtonOfThePresentAge) {
    Visit visit;
    visit.generate_for("12031601");
    visit.double_click("Label_Solaire(4)");
    // Even where nothing but a message follows.
    visit.click("Command_DateNow");
    EXPECT_FALSE(visit.truth("Text_definition_palais.Visible"));
    EXPECT_EQ(visit.number("HScroll_age.Value"), 1);
}

TEST(Definition, StaysOverAGenerationThatMovesNoAge) {
    Visit visit;
    visit.double_click("Label_Solaire(4)");
    visit.click("Command2");
    EXPECT_TRUE(visit.truth("Text_definition_palais.Visible"));
}

TEST(Definition, APalaceThatIsHiddenTellsNothing) {
    Visit visit;
    visit.set("Combo_AnNaiss2", "");
    visit.click("Command2");
    EXPECT_EQ(visit.ask({{"op", "dblclick"}, {"control", "Label_Solaire(9)"}})["error"],
              "refused");
    EXPECT_FALSE(visit.truth("Text_definition_palais.Visible"));
}

// The readings of the two numbers are chosen when the program starts and when a record comes
// in.
TEST(Generate, TheTextsOfTheNumbersStayThoseOfTheStart) {
    Visit visit;
    visit.generate_for("17051962");
    EXPECT_EQ(visit.number("dinanka"), 8);
    EXPECT_EQ(visit.text("texte_dinanka").substr(0, 9), "DINANKA:1");
}

}  // namespace
}  // namespace navarun::test
