// The lord of the cycle year, who walks round the grid, and the lords of its months.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "periods/year_month_lords.h"
#include "tests/scenarios/persons.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

TEST(YearLord, ANineIsNeverAZero) {
    Visit visit;
    // 17/05/1962, age 40: 3 + 17 + 5 + 02 = 27.
    visit.generate_for("17051962");
    visit.generate_at(40);
    EXPECT_EQ(visit.number("annee_2chiffres"), 2);
    EXPECT_EQ(visit.number("seigneur_an"), 9);
    EXPECT_EQ(visit.text("nom_seigneur_an"), "Kuja");
    EXPECT_EQ(visit.text("Label_annee(5).Caption"), "Kuja");
}

TEST(YearLord, TheCenturyDoesNotEnter) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(40);
    int const lord = visit.number("seigneur_an");
    visit.generate_at(140);
    EXPECT_EQ(visit.number("seigneur_an"), lord);
}

TEST(YearLord, ItsFieldsAreShownOnceTheLordHasPassed) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(2);
    EXPECT_TRUE(visit.truth("Label_annee(3).Visible"));
    EXPECT_TRUE(visit.truth("Label_annee(2).Visible"));
    EXPECT_FALSE(visit.truth("Label_annee(4).Visible"));
}

// Only a step forward leaves the column on the cell before the name, whence the next call
// clears it; a step backward leaves it on the cell itself.
TEST(YearLord, AStepForwardLeavesTheColumnACellBehindTheName) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(5);
    ASSERT_EQ(visit.number("colonne_age"), 6);
    visit.set("HScroll_age", 6);
    seigneur_annee(visit.program());
    EXPECT_EQ(visit.number("colonne_age"), 6);
    EXPECT_EQ(visit.text("Label_annee(7).Caption"), visit.text("nom_seigneur_an"));
    EXPECT_EQ(visit.text("Label_annee(6).Caption"), "");
    EXPECT_EQ(visit.number("age_compare"), 5);
    EXPECT_EQ(visit.number("age_precedent"), 6);
}

TEST(YearLord, AStepBackwardLeavesTheColumnOnTheName) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(5);
    visit.set("HScroll_age", 4);
    seigneur_annee(visit.program());
    EXPECT_EQ(visit.number("colonne_age"), 5);
    EXPECT_EQ(visit.text("Label_annee(5).Caption"), visit.text("nom_seigneur_an"));
    EXPECT_EQ(visit.number("age_compare"), 5);
    EXPECT_EQ(visit.number("age_precedent"), 4);
}

TEST(YearLord, AnAgeThatHasNotMovedCountsAsAStepForward) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(5);
    seigneur_annee(visit.program());
    EXPECT_EQ(visit.number("age_compare"), 4);
    EXPECT_EQ(visit.number("colonne_age"), 5);
    EXPECT_EQ(visit.text("Label_annee(6).Caption"), visit.text("nom_seigneur_an"));
}

TEST(YearLord, TheColumnBeforeTheFirstCellIsTheTwelfth) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(11);
    ASSERT_EQ(visit.number("colonne_age"), 12);
    visit.set("HScroll_age", 12);
    seigneur_annee(visit.program());
    EXPECT_EQ(visit.text("Label_annee(1).Caption"), visit.text("nom_seigneur_an"));
    EXPECT_EQ(visit.number("colonne_age"), 12);
}

TEST(YearLord, WithoutAColumnThereIsNone) {
    Visit visit;
    visit.program().consultation.colonne_age = 0;
    auto const before = visit.cells("Label_annee", "Caption");
    seigneur_annee(visit.program());
    EXPECT_EQ(visit.number("seigneur_an"), 0);
    EXPECT_EQ(visit.cells("Label_annee", "Caption"), before);
}

TEST(Months, TheLordAfterTheNinthIsTheFirst) {
    Visit visit;
    // 17/05/1962, age 40: 39 x 12 + 4 + 9 = 481, that is 4.
    visit.generate_for("17051962");
    visit.generate_at(40);
    char const* const lords[]{"Rahu",  "Budha",   "Shukra", "Ketu", "Shani", "Kuja",
                              "Surya", "Chandra", "Guru",   "Rahu", "Budha", "Shukra"};
    for (int k = 0; k < 12; ++k) {
        EXPECT_EQ(visit.text("noms_mois(" + std::to_string(k + 1) + ")"), lords[k]);
        EXPECT_EQ(visit.text(cell("Label_mois", (5 + k - 1) % 12 + 1, "Caption")), lords[k]);
    }
}

TEST(Months, AnAgeInTheTwelfthCellRunsFromItToTheEleventh) {
    Visit visit;
    visit.generate_for("15031970");
    ASSERT_EQ(visit.number("palais_index"), 12);
    EXPECT_EQ(visit.number("colonne_age"), 12);
    EXPECT_EQ(visit.text("Label_MoisDate(12).Caption"), "15/03/1971");
    EXPECT_EQ(visit.text("Label_MoisDate(1).Caption"), "15/04/1971");
    EXPECT_EQ(visit.text("Label_MoisDate(11).Caption"), "15/02/1972");
}

TEST(Months, ADayThatAMonthDoesNotHaveIsItsLast) {
    Visit visit;
    visit.generate_for("31011970");
    ASSERT_EQ(visit.number("colonne_age"), 10);
    EXPECT_EQ(visit.text("Label_MoisDate(10).Caption"), "31/01/1971");
    EXPECT_EQ(visit.text("Label_MoisDate(11).Caption"), "28/02/1971");
    EXPECT_EQ(visit.text("Label_MoisDate(12).Caption"), "31/03/1971");
    EXPECT_EQ(visit.text("Label_MoisDate(1).Caption"), "30/04/1971");
}

// Born on 15/06/1970, age 56 in the year from 15/06/2026: cell 3 + 55, that is 10.
class MonthInProgress : public testing::Test {
  protected:
    static void expect_bold(Visit& visit, int bold) {
        for (int number = 1; number <= 12; ++number) {
            EXPECT_EQ(visit.truth(cell("Label_mois", number, "FontBold")), number == bold)
                << number;
        }
        EXPECT_EQ(visit.text(cell("Label_mois", bold, "ForeColor")), "#C04000");
        EXPECT_EQ(visit.text(cell("Label_MoisDate", bold, "ForeColor")), "#000000");
        EXPECT_EQ(visit.number("colonne_mois"), bold);
    }
    static void generate(Visit& visit) {
        visit.generate_for("15061970");
        visit.generate_at(56);
        ASSERT_EQ(visit.number("colonne_age"), 10);
    }
};

TEST_F(MonthInProgress, StartsOnTheDayOfTheBirthday) {
    Visit visit{"15/09/2026"};
    generate(visit);
    EXPECT_EQ(visit.text("Label_MoisDate(1).Caption"), "15/09/2026");
    expect_bold(visit, 1);
    EXPECT_EQ(visit.text("Label_MoisDate(10).ForeColor"), "#808080");
    EXPECT_EQ(visit.text("Label_mois(10).ForeColor"), "#0000FF");
}

// Before the day the first month's date keeps its black.
TEST_F(MonthInProgress, ADayEarlierIsTheOneBefore) {
    Visit visit{"14/09/2026"};
    generate(visit);
    expect_bold(visit, 12);
    EXPECT_EQ(visit.text("Label_MoisDate(10).ForeColor"), "#000000");
}

TEST_F(MonthInProgress, BeforeTheFirstCellIsTheTwelfth) {
    Visit visit{"14/09/2026"};
    generate(visit);
    EXPECT_EQ(visit.number("colonne_mois"), 12);
}

TEST_F(MonthInProgress, OnTheAnniversaryIsTheFirst) {
    Visit visit{"15/06/2026"};
    generate(visit);
    EXPECT_TRUE(visit.truth("Label_mois(10).FontBold"));
    EXPECT_EQ(visit.text("Label_mois(10).ForeColor"), "#C04000");
    EXPECT_EQ(visit.text("Label_MoisDate(10).ForeColor"), "#000000");
    EXPECT_EQ(visit.number("colonne_mois"), 10);
}

TEST_F(MonthInProgress, InTheLastDaysOfTheYearIsTheTwelfthMonth) {
    Visit visit{"14/06/2027"};
    generate(visit);
    expect_bold(visit, 9);
}

// 365 days on, the year shown still counts as the one in progress.
TEST_F(MonthInProgress, OnTheNextAnniversaryIsTheFirstAgain) {
    Visit visit{"15/06/2027"};
    generate(visit);
    EXPECT_TRUE(visit.truth("Label_mois(10).FontBold"));
    Visit later{"16/06/2027"};
    generate(later);
    EXPECT_EQ(later.cells("Label_mois", "FontBold"), twelve("false"));
}

TEST_F(MonthInProgress, OutsideTheYearNoneIsBold) {
    for (char const* today : {"14/06/2026", "16/06/2027", "21/11/2100"}) {
        Visit visit{today};
        generate(visit);
        EXPECT_EQ(visit.cells("Label_mois", "FontBold"), twelve("false")) << today;
        EXPECT_EQ(visit.text("Label_mois(10).ForeColor"), "#0000FF") << today;
        EXPECT_EQ(visit.text("Label_MoisDate(10).ForeColor"), "#000000") << today;
        EXPECT_EQ(visit.number("colonne_mois"), 10) << today;
    }
}

TEST_F(MonthInProgress, IsPickedByHandToo) {
    Visit visit{"15/09/2026"};
    generate(visit);
    int const period = visit.number("colonne_dasha");
    visit.click("Label_mois(6)");
    expect_bold(visit, 6);
    for (int const number : {1, 5, 10}) {
        EXPECT_EQ(visit.text(cell("Label_mois", number, "ForeColor")), "#808080");
        EXPECT_EQ(visit.text(cell("Label_MoisDate", number, "ForeColor")), "#808080");
    }
    EXPECT_EQ(visit.number("colonne_dasha"), period);
}

}  // namespace
}  // namespace navarun::test
