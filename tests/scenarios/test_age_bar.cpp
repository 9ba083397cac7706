// Moving the age: what follows at once, what waits for a generation, the marks of the last one
// and the reduced view.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "periods/age_scroll.h"
#include "tests/scenarios/persons.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

using testing::ValuesIn;

TEST(AgeBar, MovesTheAgeFieldsAndLeavesEveryCell) {
    Visit visit;
    visit.generate_for("17051962");
    Json before = visit.dump();
    visit.set("HScroll_age", 2);
    Json after = visit.dump();
    for (auto const& [name, control] : before.items()) {
        bool const is_cell =
            name.starts_with("Label_Solaire(") || name.starts_with("Label_annee(") ||
            name.starts_with("Label_mois(") || name.starts_with("Label_MoisDate(") ||
            name.starts_with("Label_Dasha(") || name.starts_with("Label_DashaDate(") ||
            name.starts_with("ImageTriDeva(");
        if (is_cell) {
            EXPECT_EQ(after[name], control) << name;
        }
    }
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.text("Label_age.BackColor"), "#FFC0C0");
    EXPECT_EQ(visit.text("Label_age.Caption"), "2");
    EXPECT_EQ(visit.number("age_scroll"), 2);
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "17/05/1964");
    EXPECT_EQ(visit.text("fin_annee_defile"), "16/05/1964");
    EXPECT_EQ(visit.text("Label_Lal_Kitab.Caption"), "SURYA (2 / 2 ans)");
    EXPECT_EQ(visit.number("pas_defile"), 2);
}

TEST(AgeBar, TheEndsOfATurnAndOfTheTable) {
    Visit visit;
    visit.generate_for("17051962");
    for (auto const& [age, caption] :
         {std::pair{35, "GURU (6 / 6 ans)"}, std::pair{36, "SURYA (1 / 2 ans)"},
          std::pair{38, "CHANDRA (1 / 1 an)"}, std::pair{350, "GURU (6 / 6 ans)"},
          std::pair{1, "SURYA (1 / 2 ans)"}}) {
        visit.set("HScroll_age", age);
        EXPECT_EQ(visit.text("Label_Lal_Kitab.Caption"), caption) << age;
    }
    EXPECT_EQ(visit.number("pas_defile"), 1);
    visit.set("HScroll_age", 38);
    EXPECT_EQ(visit.number("pas_defile"), 0);
}

// The Surya sequence writes its Shukra periods with two blanks before the stroke.
TEST(AgeBar, OnlyTheSuryaSequenceWritesShukraWide) {
    for (auto const& row : births) {
        Visit visit;
        visit.generate_for(row.digits);
        bool const wide = std::string{row.lord} == "Surya";
        int shukra_years = 0;
        for (int age = 1; age <= 35; ++age) {
            if (age > 1) visit.set("HScroll_age", age);
            std::string const caption = visit.text("Label_Lal_Kitab.Caption");
            bool const is_shukra = caption.starts_with("SHUKRA");
            shukra_years += is_shukra ? 1 : 0;
            EXPECT_EQ(caption.find("  / ") != std::string::npos, wide && is_shukra)
                << row.lord << ' ' << age << ' ' << caption;
        }
        EXPECT_EQ(shukra_years, 3) << row.lord;
    }
}

struct Gap {
    char const* sequence;
    int first;
    int last;
};
TEST(AgeBar, ForgottenAgesKeepTheCaptionOfBefore) {
    for (Gap const& gap : {Gap{"Budha", 324, 329}, Gap{"Guru", 328, 333}}) {
        Visit visit;
        visit.generate_for(birth_of(gap.sequence));
        visit.set("HScroll_age", gap.first - 1);
        std::string const before = visit.text("Label_Lal_Kitab.Caption");
        int const rank = visit.number("pas_defile");
        for (int age = gap.first; age <= gap.last; ++age) {
            visit.set("HScroll_age", age);
            EXPECT_EQ(visit.text("Label_Lal_Kitab.Caption"), before) << gap.sequence << age;
            EXPECT_EQ(visit.number("pas_defile"), rank) << gap.sequence << age;
        }
        visit.set("HScroll_age", gap.last + 1);
        EXPECT_NE(visit.text("Label_Lal_Kitab.Caption"), before) << gap.sequence;
    }
}

TEST(AgeBar, ADraggedThumbLeavesWhatAMoveLeaves) {
    for (int const age : {2, 36, 350}) {
        Visit moved;
        moved.generate_for("17051962");
        moved.set("HScroll_age", age);
        Visit dragged;
        dragged.generate_for("17051962");
        dragged.drag("HScroll_age", age);
        EXPECT_EQ(dragged.dump(), moved.dump()) << age;
        EXPECT_EQ(dragged.number("age_courant"), age);
        EXPECT_EQ(dragged.number("age_scroll"), age);
        EXPECT_EQ(dragged.text("fin_annee_defile"), moved.text("fin_annee_defile"));
    }
}

TEST(AgeBar, AThumbLetGoWhereItWasLeavesTheGridTrue) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(40);
    visit.drag("HScroll_age", 40);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    visit.set("HScroll_age", 40);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
}

TEST(AgeBar, EnterMakesTheGridFollow) {
    Visit visit;
    visit.generate_for("17051962");
    visit.set("HScroll_age", 40);
    visit.key("HScroll_age", 13);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(visit.text("Label_age.BackColor"), "#C0FFC0");
    EXPECT_TRUE(visit.truth("MnuImprime.Enabled"));
    EXPECT_EQ(visit.text("Label_annee(5).Caption"), "Kuja");
    EXPECT_EQ(visit.text("Label_DashaDate(1).Caption"), "17/08/2003");
    EXPECT_EQ(visit.number("colonne_age"), 5);

    Visit other;
    other.generate_for("17051962");
    other.generate_at(40);
    for (char const* array : {"Label_Solaire", "Label_annee", "Label_mois", "Label_MoisDate",
                              "Label_Dasha", "Label_DashaDate"}) {
        EXPECT_EQ(visit.cells(array, "Caption"), other.cells(array, "Caption")) << array;
    }
}

TEST(AgeBar, NoOtherKeyDoes) {
    Visit visit;
    visit.generate_for("17051962");
    visit.set("HScroll_age", 40);
    for (int const code : {8, 27, 32, 37, 38, 39, 40, 46, 49, 65, 113}) {
        visit.key("HScroll_age", code);
        EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE") << code;
        EXPECT_EQ(visit.text("Label_annee(5).Caption"), "") << code;
    }
}

TEST(AgeBar, EnterElsewhereDoesNothing) {
    Visit visit;
    visit.generate_for("17051962");
    visit.set("HScroll_age", 40);
    for (char const* control : {"Text_prenom", "Combo_jourNaiss", "Command_DateNow"}) {
        visit.key(control, 13);
        EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE") << control;
    }
}

// Enter runs the periods before the lords: the column then still is the sun's cell, and it is
// that cell's step whose date turns black.
TEST(AgeBar, EnterBlackensTheStepInTheSunsCell) {
    Visit visit;
    visit.generate_for("15061970");
    visit.generate_at(10);
    // The age stands in cell 12, the sun in cell 3; the step of the anniversary is in cell 1.
    EXPECT_EQ(visit.text("Label_DashaDate(12).ForeColor"), "#000000");
    EXPECT_EQ(visit.text("Label_DashaDate(3).ForeColor"), "#808000");
    EXPECT_EQ(visit.text("Label_DashaDate(1).ForeColor"), "#000000");
    visit.key("HScroll_age", 13);
    EXPECT_EQ(visit.text("Label_DashaDate(12).ForeColor"), "#808000");
    EXPECT_EQ(visit.text("Label_DashaDate(3).ForeColor"), "#000000");
    EXPECT_EQ(visit.text("Label_DashaDate(1).ForeColor"), "#000000");
}

TEST(AgeBar, EnterLeavesThePartialViewAlone) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    visit.key("HScroll_age", 13);
    EXPECT_TRUE(visit.truth("cycle_partiel_actif"));
    // The months show again, the rest of the reduced rows does not.
    EXPECT_TRUE(visit.truth("Label_mois(4).Visible"));
    EXPECT_FALSE(visit.truth("Label_MoisDate(4).Visible"));
    EXPECT_FALSE(visit.truth("Label_Dasha(4).Visible"));
}

TEST(GridState, ACallWithTheStateInForceChangesNothing) {
    Visit visit;
    Json const before = visit.dump();
    change_couleurAge(visit.program(), "Vert");
    EXPECT_EQ(visit.dump(), before);
    visit.set("HScroll_age", 2);
    Json const stale = visit.dump();
    change_couleurAge(visit.program(), "rOUGE");
    EXPECT_EQ(visit.dump(), stale);
}

// A state that is none is kept as it is told, and from it neither colour is reached.
TEST(GridState, AnyOtherWordIsKeptInTheTagAlone) {
    Visit visit;
    change_couleurAge(visit.program(), "bleu");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "BLEU");
    EXPECT_EQ(visit.text("Label_age.BackColor"), "#C0FFC0");
    change_couleurAge(visit.program(), "rouge");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.text("Label_age.BackColor"), "#C0FFC0");
    EXPECT_TRUE(visit.truth("MnuImprime.Enabled"));
}

// --- the triple coincidence

struct Mark {
    int left;
    int top;
};
constexpr Mark mark_of_cell[]{{2080, 400},  {3720, 400},  {5360, 400},  {5360, 2020},
                              {5360, 3620}, {5360, 5220}, {3720, 5220}, {2080, 5220},
                              {450, 5220},  {450, 3620},  {450, 2020},  {450, 400}};

struct Coincidence {
    char const* name;
    char const* digits;
    int age;
    std::vector<int> cells;
    friend std::ostream& operator<<(std::ostream& out, Coincidence const& row) {
        return out << row.name;
    }
};
// 28/04/1970 (Shukra first), 15/06/1970 (Kuja first), 17/05/1962 (Surya first).
Coincidence const coincidences[] = {
    {"none", "15061970", 1, {}},
    {"one_in_cell_1", "28041970", 19, {1}},
    {"one_in_cell_2", "28041970", 11, {2}},
    {"one_in_cell_3", "15061970", 6, {3}},
    {"one_in_cell_4", "15061970", 22, {4}},
    {"one_in_cell_5", "28041970", 14, {5}},
    {"one_in_cell_6", "17051962", 33, {6}},
    {"one_in_cell_7", "17051962", 25, {7}},
    {"two_in_cells_8_and_11", "17051962", 20, {8, 11}},
    {"one_in_cell_9", "17051962", 12, {9}},
    {"one_in_cell_10", "28041970", 64, {10}},
    {"one_in_cell_11", "28041970", 56, {11}},
    {"one_in_cell_12", "15061970", 27, {12}},
    {"two_in_cells_3_and_12", "28041970", 3, {3, 12}},
    {"two_in_cells_2_and_5", "15061970", 14, {2, 5}},
};

class TriDevaOf : public testing::TestWithParam<Coincidence> {};
TEST_P(TriDevaOf, MarksItsMonths) {
    auto const& row = GetParam();
    Visit visit;
    visit.type("Combo_jourNaiss", row.digits);
    visit.generate_at(row.age);
    EXPECT_EQ(visit.text("genre_trideva"), row.cells.empty() ? "" : "T");
    EXPECT_FALSE(visit.truth("ImageTriDeva(1).Visible"));
    EXPECT_FALSE(visit.truth("ImageTriDeva(2).Visible"));
    for (std::size_t n = 0; n < 2; ++n) {
        int const member = static_cast<int>(n) + 4;
        bool const shown = n < row.cells.size();
        EXPECT_EQ(visit.truth(cell("ImageTriDeva", member, "Visible")), shown);
        if (!shown) continue;
        Mark const& place = mark_of_cell[row.cells[n] - 1];
        EXPECT_EQ(visit.number(cell("ImageTriDeva", member, "Left")), place.left);
        EXPECT_EQ(visit.number(cell("ImageTriDeva", member, "Top")), place.top);
        EXPECT_EQ(visit.number("cellules_tridevas(" + std::to_string(n + 1) + ")"),
                  row.cells[n]);
        EXPECT_EQ(visit.text(cell("Label_mois", row.cells[n], "Caption")),
                  visit.text("Label_Dasha(1).Caption"));
    }
    if (!row.cells.empty()) {
        EXPECT_EQ(visit.number("nombre_tridevas"), static_cast<int>(row.cells.size()));
    }
}
INSTANTIATE_TEST_SUITE_P(Marks, TriDevaOf, ValuesIn(coincidences),
                         [](auto const& row) { return std::string{row.param.name}; });

// The names of the cells are compared, not the lords themselves: in a Ketu period that reads
// Surya a year of Ketu finds no coincidence.
TEST(TriDeva, APeriodUnderAnotherLordsNameIsNoCoincidence) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(28);
    ASSERT_EQ(visit.text("Label_Lal_Kitab.Caption"), "KETU (2 / 3 ans)");
    ASSERT_EQ(visit.text("nom_seigneur_an"), "Ketu");
    ASSERT_EQ(visit.cells("Label_Dasha", "Caption"), twelve("Surya"));
    EXPECT_EQ(visit.text("genre_trideva"), "");
}

// Without the year's lord the months of the period's lord are counted all the same.
TEST(TriDeva, MonthsAreCountedAlsoWithoutACoincidence) {
    Visit visit;
    visit.generate_for("15061970");
    EXPECT_EQ(visit.text("genre_trideva"), "");
    EXPECT_GE(visit.number("nombre_tridevas"), 1);
}

TEST(TriDeva, TheNextGenerationWithoutOneTakesTheMarksAway) {
    Visit visit;
    visit.type("Combo_jourNaiss", "28041970");
    visit.generate_at(3);
    ASSERT_TRUE(visit.truth("ImageTriDeva(5).Visible"));
    visit.generate_at(4);
    EXPECT_FALSE(visit.truth("ImageTriDeva(4).Visible"));
    EXPECT_FALSE(visit.truth("ImageTriDeva(5).Visible"));
}

TEST(TriDeva, MarksStandForTheLastGenerationWhileTheBarAndEnterMoveTheAge) {
    Visit visit;
    visit.type("Combo_jourNaiss", "28041970");
    visit.generate_at(3);
    visit.set("HScroll_age", 4);
    EXPECT_TRUE(visit.truth("ImageTriDeva(4).Visible"));
    visit.key("HScroll_age", 13);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_TRUE(visit.truth("ImageTriDeva(4).Visible"));
    EXPECT_TRUE(visit.truth("ImageTriDeva(5).Visible"));
    EXPECT_EQ(visit.text("genre_trideva"), "T");
    EXPECT_EQ(visit.number("ImageTriDeva(4).Left"), 5360);
}

// --- the reduced view

TEST(PartialView, LeavesTheSelectedCellsAlone) {
    Visit visit{"16/06/1971"};
    visit.generate_for("15061970");
    // The step after the one marked, and the month in progress.
    ASSERT_EQ(visit.number("colonne_dasha"), 4);
    ASSERT_EQ(visit.number("colonne_mois"), 3);
    visit.click("Btn_cycle_partiel");
    EXPECT_TRUE(visit.truth("cycle_partiel_actif"));
    for (int number = 1; number <= 12; ++number) {
        EXPECT_EQ(visit.truth(cell("Label_Dasha", number, "Visible")), number == 4);
        EXPECT_EQ(visit.truth(cell("Label_DashaDate", number, "Visible")), number == 4);
        EXPECT_EQ(visit.truth(cell("Label_mois", number, "Visible")), number == 3);
        EXPECT_EQ(visit.truth(cell("Label_MoisDate", number, "Visible")), number == 3);
        EXPECT_TRUE(visit.truth(cell("Label_Solaire", number, "Visible")));
    }
}

TEST(PartialView, IsTakenBackByTheSameButton) {
    Visit visit;
    Json before = visit.dump();
    visit.click("Btn_cycle_partiel");
    EXPECT_NE(visit.dump(), before);
    visit.click("Btn_cycle_partiel");
    EXPECT_FALSE(visit.truth("cycle_partiel_actif"));
    EXPECT_EQ(visit.dump(), before);
}

TEST(PartialView, EndsWithAGeneration) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    visit.click("Command2");
    EXPECT_FALSE(visit.truth("cycle_partiel_actif"));
    for (char const* array :
         {"Label_Dasha", "Label_DashaDate", "Label_mois", "Label_MoisDate"}) {
        EXPECT_EQ(visit.cells(array, "Visible"), twelve("true")) << array;
    }
}

TEST(PartialView, LeavesTheStateOfTheGrid) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    visit.set("HScroll_age", 5);
    visit.click("Btn_cycle_partiel");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
}

}  // namespace
}  // namespace navarun::test
