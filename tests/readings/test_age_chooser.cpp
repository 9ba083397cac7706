// The chooser of ages and the partial cycle.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/scenarios/persons.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

std::string label(int index) { return "choix_age.Label2(" + std::to_string(index) + ")"; }

std::vector<std::string> page(Visit& visit) {
    std::vector<std::string> captions;
    for (int i = 1; i <= 100; ++i) captions.push_back(visit.text(label(i) + ".Caption"));
    return captions;
}

std::vector<std::string> ages_from(int first) {
    std::vector<std::string> captions;
    for (int age = first; age < first + 100; ++age) {
        captions.push_back(age > 350 ? "" : (age < 10 ? "0" : "") + std::to_string(age));
    }
    return captions;
}

std::string prompt(Visit& visit) { return visit.text("choix_age.Label_choix_age.Caption"); }

/// Opened by a click on the age.
struct Chooser : Visit {
    Chooser() { click("Label_age"); }
};

TEST(AgeChooser, TurnsForwardThroughFourPagesAndBeginsAgain) {
    Chooser chooser;
    for (int first : {1, 101, 201, 301, 1, 101}) {
        EXPECT_EQ(page(chooser), ages_from(first)) << first;
        chooser.click("choix_age.Image2");
    }
}

TEST(AgeChooser, TurnsBackFromTheFirstPageToTheLast) {
    Chooser chooser;
    for (int first : {1, 301, 201, 101, 1}) {
        EXPECT_EQ(page(chooser), ages_from(first)) << first;
        chooser.click("choix_age.Image1");
    }
}

TEST(AgeChooser, NewlyOpenedStandsOnTheFirstPage) {
    Chooser chooser;
    chooser.click("choix_age.Image2");
    chooser.ask({{"op", "close"}, {"form", "choix_age"}});
    EXPECT_FALSE(chooser.truth("choix_age.Visible"));
    chooser.click("Label_age");
    EXPECT_EQ(page(chooser), ages_from(1));
    chooser.click("choix_age.Image1");
    chooser.click(label(50));
    chooser.click("Label_age");
    EXPECT_EQ(page(chooser), ages_from(1));
}

TEST(AgeChooser, PromptsTheAgeUnderThePointer) {
    Chooser chooser;
    EXPECT_EQ(prompt(chooser), "Choisissez un âge");
    chooser.hover(label(1));
    EXPECT_EQ(prompt(chooser), "01 an");
    chooser.hover(label(2));
    EXPECT_EQ(prompt(chooser), "02 ans");
    chooser.hover(label(100));
    EXPECT_EQ(prompt(chooser), "100 ans");
    chooser.hover("choix_age.Label_choix_age");
    EXPECT_EQ(prompt(chooser), "Choisissez un âge");
    chooser.click("choix_age.Image2");
    chooser.hover(label(1));
    EXPECT_EQ(prompt(chooser), "101 ans");
    chooser.click("choix_age.Image2");
    chooser.click("choix_age.Image2");
    chooser.hover(label(50));
    EXPECT_EQ(prompt(chooser), "350 ans");
    chooser.hover(label(51));
    EXPECT_EQ(prompt(chooser), "Choisissez un âge max 350");
}

TEST(AgeChooser, BlocksTheOtherWindowsWhileItIsOpen) {
    Visit visit;
    visit.click("MnuCalendrier");
    visit.click("Label_age");
    for (char const* control : {"Command2", "Label_age", "MnuCalendrier", "Bouton_seigneurjour",
                                "frmCalend.BtnToday", "Label_mois(3)"}) {
        EXPECT_EQ(visit.ask({{"op", "click"}, {"control", control}})["error"], "refused")
            << control;
    }
    EXPECT_EQ(visit.ask({{"op", "close"}, {"form", "frmCalend"}})["error"], "refused");
    visit.ask({{"op", "close"}, {"form", "choix_age"}});
    visit.click("Command2");
    visit.click("frmCalend.BtnToday");
}

TEST(AgeChooser, AClickOnAnAgeLetsTheGridFollow) {
    Visit clicked;
    clicked.generate_for(birth_of("Kuja"));
    clicked.click("Label_age");
    clicked.hover(label(41));
    clicked.click(label(41));
    EXPECT_FALSE(clicked.truth("choix_age.Visible"));
    EXPECT_EQ(prompt(clicked), "Choisissez un âge");
    EXPECT_EQ(clicked.number("HScroll_age.Value"), 41);
    EXPECT_EQ(clicked.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(clicked.text("Label_age.Caption"), "41");
    EXPECT_EQ(clicked.text("Label_anneedefile.Caption"), "08/06/2011");
    EXPECT_EQ(clicked.text("Label_Lal_Kitab.Caption"), "KUJA (6 / 6 ans)");
}

TEST(AgeChooser, AsksAgainAfterItWasClosedOverAnAge) {
    Chooser chooser;
    chooser.hover(label(12));
    EXPECT_EQ(prompt(chooser), "12 ans");
    chooser.ask({{"op", "close"}, {"form", "choix_age"}});
    chooser.click("Label_age");
    EXPECT_EQ(prompt(chooser), "Choisissez un âge");
}

TEST(AgeChooser, AClickOnAnEmptyCellRefreshesAtTheAgeInForce) {
    Chooser chooser;
    chooser.ask({{"op", "close"}, {"form", "choix_age"}});
    chooser.set("HScroll_age", 40);
    EXPECT_EQ(chooser.text("HScroll_age.Tag"), "ROUGE");
    chooser.click("Label_age");
    chooser.click("choix_age.Image1");
    chooser.click(label(100));
    EXPECT_FALSE(chooser.truth("choix_age.Visible"));
    EXPECT_EQ(chooser.number("HScroll_age.Value"), 40);
    EXPECT_EQ(chooser.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(prompt(chooser), "Choisissez un âge");
}

TEST(AgeChooser, Its350ShowsTheTenthTurn) {
    Visit visit;
    visit.generate_for(birth_of("Kuja"));
    visit.click("Label_age");
    visit.click("choix_age.Image1");
    visit.click(label(50));
    EXPECT_EQ(visit.number("HScroll_age.Value"), 350);
    // The Kuja sequence ends with Shukra.
    EXPECT_EQ(visit.text("Label_Lal_Kitab.Caption"), "SHUKRA (3 / 3 ans)");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "08/06/2320");
}

TEST(AgeChooser, LeavesTheMarksOfTheTripleCoincidenceWhereTheyWere) {
    Visit visit;
    visit.generate_for(birth_of("Kuja"));
    visit.generate_at(4);
    ASSERT_TRUE(visit.truth("ImageTriDeva(4).Visible"));
    visit.click("Label_age");
    visit.click(label(5));
    EXPECT_TRUE(visit.truth("ImageTriDeva(4).Visible"));
    visit.click("Command2");
    EXPECT_FALSE(visit.truth("ImageTriDeva(4).Visible"));
}

TEST(AgeChooser, TakesTheColoursOfTheScheme) {
    Visit visit;
    visit.click("MnuMauve_Aum");
    visit.click("Label_age");
    EXPECT_EQ(visit.text("choix_age.BackColor"), "#CCB2FC");
    EXPECT_EQ(visit.text("choix_age.Label_choix_age.BackColor"), "#2C8EDC");
}

// --- the partial cycle

constexpr char const* rows[]{"Label_mois", "Label_MoisDate", "Label_Dasha", "Label_DashaDate"};

void expect_alone(Visit& visit, int month, int period) {
    for (int i = 1; i <= 12; ++i) {
        for (char const* row : rows) {
            bool const of_month = std::string_view{row}.starts_with("Label_m") ||
                                  std::string_view{row}.starts_with("Label_M");
            EXPECT_EQ(visit.truth(cell(row, i, "Visible")), i == (of_month ? month : period))
                << row << ' ' << i;
        }
    }
}

void expect_whole(Visit& visit) {
    for (int i = 1; i <= 12; ++i) {
        for (char const* row : rows) EXPECT_TRUE(visit.truth(cell(row, i, "Visible")));
    }
}

TEST(PartialCycle, LeavesTheSelectedMonthAndPeriodAlone) {
    Visit visit;
    visit.generate_for(birth_of("Rahu"));
    visit.generate_at(56);
    visit.click("Btn_cycle_partiel");
    EXPECT_TRUE(visit.truth("cycle_partiel_actif"));
    expect_alone(visit, visit.number("colonne_mois"), visit.number("colonne_dasha"));
    visit.click("Btn_cycle_partiel");
    EXPECT_FALSE(visit.truth("cycle_partiel_actif"));
    expect_whole(visit);
}

TEST(PartialCycle, LeavesTheCellsPickedByClick) {
    Visit visit;
    visit.click("Label_mois(3)");
    visit.click("Label_Dasha(8)");
    visit.click("Btn_cycle_partiel");
    expect_alone(visit, 3, 8);
}

TEST(PartialCycle, EndsWithAGeneration) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    visit.click("Command2");
    EXPECT_FALSE(visit.truth("cycle_partiel_actif"));
    expect_whole(visit);
}

TEST(PartialCycle, EndsWithTheShortNames) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    visit.click("Mnu_abrege");
    EXPECT_FALSE(visit.truth("cycle_partiel_actif"));
    expect_whole(visit);
}

TEST(PartialCycle, EndsWithAReset) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    visit.click("Command_reset");
    EXPECT_FALSE(visit.truth("cycle_partiel_actif"));
    expect_whole(visit);
}

}  // namespace
}  // namespace navarun::test
