// The list of the periods, year by year.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/readings/golden.h"
#include "tests/scenarios/date_fields.h"
#include "tests/scenarios/persons.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

std::vector<std::string> listed(Visit& visit) {
    return visit.value("Affiche_cycle.List_periode.List").get<std::vector<std::string>>();
}

std::string selected(Visit& visit) {
    int const place = visit.number("Affiche_cycle.List_periode.ListIndex");
    return place < 0 ? "" : listed(visit).at(static_cast<std::size_t>(place));
}

void open_at(Visit& visit, char const* lord, int age) {
    visit.generate_for(birth_of(lord));
    visit.generate_at(age);
    visit.click("Mnuperiode");
}

std::string const underlines(22, '_');
std::string overlines() {
    std::string line;
    for (int i = 0; i < 20; ++i) line += "¯";
    return line;
}

struct ListCase {
    char const* lord;
    char const* file;
    int age;
    friend std::ostream& operator<<(std::ostream& out, ListCase const& row) {
        return out << row.lord;
    }
};
// clang-format off
constexpr ListCase list_cases[] = {
    {"Chandra", "cycle_chandra",           1},
    {"Surya",   "cycle_surya",            35},
    {"Shukra",  "cycle_shukra",           17},
    {"Kuja",    "cycle_kuja",              6},
    {"Guru",    "cycle_guru",             30},
    {"Ketu",    "cycle_ketu",             34},
    {"Rahu",    "cycle_rahu_three_turns", 71},
};
// clang-format on
class CycleList : public testing::TestWithParam<ListCase> {};
TEST_P(CycleList, IsTheKeptOne) {
    Visit visit;
    open_at(visit, GetParam().lord, GetParam().age);
    EXPECT_EQ(listed(visit), golden_lines(GetParam().file));
}
TEST_P(CycleList, SelectsTheYearShown) {
    Visit visit;
    open_at(visit, GetParam().lord, GetParam().age);
    std::string const line = selected(visit);
    ASSERT_EQ(line.size(), 28u);
    EXPECT_EQ(std::stoi(line.substr(0, 3)), GetParam().age);
    EXPECT_EQ(line.substr(11, 10), visit.text("Label_anneedefile.Caption"));
}
INSTANTIATE_TEST_SUITE_P(Persons, CycleList, testing::ValuesIn(list_cases),
                         [](auto const& row) { return row.param.lord; });

TEST(CycleLines, OfTheChandraSequenceBeginWithOneYear) {
    Visit visit;
    open_at(visit, "Chandra", 1);
    auto const lines = listed(visit);
    EXPECT_EQ(lines[0], underlines);
    EXPECT_EQ(lines[1], "CHAND    25/05/1971   (01)");
    EXPECT_EQ(lines[2], overlines());
    // Monday is 2; 2 + 25 + 5 + 71 is 103, and 4 is Rahu.
    EXPECT_EQ(lines[3], "001   Ra   25/05/1971   (01)");
    EXPECT_EQ(lines[4], underlines);
    EXPECT_EQ(lines[5], "SHUKR    25/05/1972   (03)");
    EXPECT_EQ(visit.number("Affiche_cycle.List_periode.ListIndex"), 3);
}

struct TurnCase {
    int age;
    std::size_t turns;
};
constexpr TurnCase turn_cases[] = {{1, 1},  {35, 1},  {36, 2},   {70, 2},
                                   {71, 3}, {315, 9}, {316, 10}, {350, 10}};

TEST(CycleLines, AreAsManyTurnsAsTheAgeTakes) {
    for (auto const& row : turn_cases) {
        Visit visit;
        open_at(visit, "Kuja", row.age);
        auto const lines = listed(visit);
        ASSERT_EQ(lines.size(), row.turns * 62) << row.age;
        EXPECT_EQ(std::stoul(lines.back().substr(0, 3)), row.turns * 35) << row.age;
        EXPECT_EQ(std::stoi(selected(visit).substr(0, 3)), row.age);
        for (std::size_t i = 0; i < lines.size(); i += 62) {
            EXPECT_EQ(lines[i], underlines);
            EXPECT_TRUE(lines[i + 1].starts_with("KUJA     08/06/")) << lines[i + 1];
            EXPECT_EQ(lines[i + 2], overlines());
        }
    }
}

TEST(CycleLines, OfTheTenthTurnCountAgesCellsAndDatesOn) {
    Visit visit;
    open_at(visit, "Kuja", 350);
    // 350 years are 29 rounds of twelve cells and two more.
    EXPECT_TRUE(selected(visit).starts_with("350   "));
    EXPECT_TRUE(selected(visit).ends_with("   08/06/2320   (02)"));
}

TEST(CycleLines, CountTheYearPast99SoThatTheirLordLeavesTheGridsAfterTheCentury) {
    Visit visit;
    open_at(visit, "Kuja", 29);
    // Monday: 2 + 8 + 6 + 99 is 115, and 7 is Ketu; on the grid too.
    EXPECT_EQ(selected(visit), "029   Ke   08/06/1999   (05)");
    EXPECT_EQ(visit.number("seigneur_an"), 7);
    visit.click("Mnuperiode");
    visit.generate_at(30);
    visit.click("Mnuperiode");
    // 2 + 8 + 6 + 100 is 116, and 8 is Shani; the grid counts 2 + 8 + 6 + 0.
    EXPECT_EQ(selected(visit), "030   Sa   08/06/2000   (06)");
    EXPECT_EQ(visit.number("seigneur_an"), 7);
}

TEST(CycleLines, OfABirthOnALeapDayFallOnThe28thInCommonYears) {
    Visit visit;
    choose_date(visit, "29", "02", "19", "60");
    visit.generate_at(3);
    visit.click("Mnuperiode");
    EXPECT_EQ(selected(visit).substr(11, 10), "28/02/1963");
    visit.click("Mnuperiode");
    visit.generate_at(4);
    visit.click("Mnuperiode");
    EXPECT_EQ(selected(visit).substr(11, 10), "29/02/1964");
}

TEST(CycleWindow, IsNotKeptUpToDateWhileItIsOpen) {
    Visit visit;
    open_at(visit, "Kuja", 3);
    auto const lines = listed(visit);
    std::string const line = selected(visit);
    visit.generate_for(birth_of("Surya"));
    EXPECT_TRUE(visit.truth("Affiche_cycle.Visible"));
    EXPECT_EQ(listed(visit), lines);
    EXPECT_EQ(selected(visit), line);
    visit.click("Mnuperiode");
    visit.click("Mnuperiode");
    EXPECT_EQ(listed(visit), golden_lines("cycle_surya"));
    EXPECT_EQ(selected(visit).substr(0, 3), "001");
}

TEST(CycleWindow, OpensAndClosesByItsEntryAndTheMarkFollows) {
    Visit visit;
    EXPECT_FALSE(visit.truth("Mnuperiode.Checked"));
    visit.click("Mnuperiode");
    EXPECT_TRUE(visit.truth("Mnuperiode.Checked"));
    EXPECT_TRUE(visit.truth("Affiche_cycle.Visible"));
    visit.click("Mnuperiode");
    EXPECT_FALSE(visit.truth("Mnuperiode.Checked"));
    EXPECT_FALSE(visit.truth("Affiche_cycle.Visible"));
    visit.click("Mnuperiode");
    visit.ask({{"op", "close"}, {"form", "Affiche_cycle"}});
    EXPECT_FALSE(visit.truth("Mnuperiode.Checked"));
    EXPECT_FALSE(visit.truth("Affiche_cycle.Visible"));
    visit.click("Mnuperiode");
    EXPECT_TRUE(visit.truth("Affiche_cycle.Visible"));
}

TEST(CycleWindow, HiddenByAResetOpensAgainByItsEntry) {
    Visit visit;
    visit.click("Mnuperiode");
    visit.click("Command_reset");
    EXPECT_FALSE(visit.truth("Affiche_cycle.Visible"));
    visit.click("Mnuperiode");
    EXPECT_TRUE(visit.truth("Affiche_cycle.Visible"));
    EXPECT_TRUE(visit.truth("Mnuperiode.Checked"));
    EXPECT_EQ(selected(visit).substr(11, 10), "21/11/2027");
}

TEST(CycleWindow, CannotBeOpenedOnAStaleGrid) {
    Visit visit;
    visit.set("HScroll_age", 12);
    EXPECT_EQ(visit.ask({{"op", "click"}, {"control", "Mnuperiode"}})["error"], "refused");
    visit.click("Command2");
    visit.click("Mnuperiode");
    EXPECT_TRUE(visit.truth("Affiche_cycle.Visible"));
}

}  // namespace
}  // namespace navarun::test
