// The palace of destiny: its five facts, and all that closes it.
#include <array>
#include <string>

#include <gtest/gtest.h>

#include "tests/scenarios/persons.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

constexpr std::array names{"Surya",  "Chandra", "Guru",  "Rahu", "Budha",
                           "Shukra", "Ketu",    "Shani", "Kuja"};

std::string fact(Visit& visit, int index) {
    return visit.text("Palais_du_destin.Label_Palais_du_destin(" + std::to_string(index) +
                      ").Caption");
}

bool open(Visit& visit) { return visit.truth("Palais_du_destin.Visible"); }
bool marked(Visit& visit) { return visit.truth("Mnu_palaisdestin.Checked"); }

TEST(DestinyPalace, LordOf63IsTheNinth) {
    Visit visit;
    // A Sunday: 52 + 1 + 7 + 3.
    visit.generate_for("07031943");
    visit.generate_at(9);
    visit.click("Mnu_palaisdestin");
    EXPECT_EQ(visit.text("Label_DashaDate(7).Caption"), "07/03/1952");
    EXPECT_EQ(fact(visit, 2), "Kuja");
    EXPECT_EQ(fact(visit, 4), "07/03/1952\r\n9 ans.");
}

TEST(DestinyPalace, TellsTheColumnOfTheAgeForEverySequence) {
    for (auto const& birth : births) {
        Visit visit;
        visit.generate_for(birth.digits);
        int const day = std::stoi(std::string{birth.digits}.substr(0, 2));
        int const month = std::stoi(std::string{birth.digits}.substr(2, 2));
        for (int age : {1, 2, 12, 13, 34, 35, 36, 57, 80}) {
            visit.generate_at(age);
            visit.click("Mnu_palaisdestin");
            int column = visit.number("colonne_age_mod");
            if (column == 0) column = 12;
            std::string const date = visit.text(cell("Label_DashaDate", column, "Caption"));
            ASSERT_EQ(date.size(), 10u);
            int const year = std::stoi(date.substr(6));
            int const sum = year % 100 + visit.number("seigneur_jour") + day + month;
            EXPECT_EQ(fact(visit, 0), visit.text(cell("Label_Solaire", column, "Caption")));
            EXPECT_EQ(fact(visit, 1), visit.text(cell("Label_Dasha", column, "Caption")));
            EXPECT_EQ(fact(visit, 2), names[static_cast<std::size_t>((sum + 8) % 9)])
                << birth.lord << ' ' << age;
            EXPECT_EQ(fact(visit, 3), visit.text(cell("Label_mois", column, "Caption")));
            EXPECT_EQ(fact(visit, 4), date + "\r\n" + std::to_string(year - 1970) +
                                          (year == 1971 ? " an" : " ans."));
        }
    }
}

TEST(DestinyPalace, OneYearHasNoFullStopAndTwoHave) {
    Visit visit;
    visit.generate_for(birth_of("Chandra"));
    visit.click("Mnu_palaisdestin");
    EXPECT_TRUE(fact(visit, 4).ends_with("/1971\r\n1 an")) << fact(visit, 4);
    visit.generate_at(2);
    visit.click("Mnu_palaisdestin");
    EXPECT_TRUE(fact(visit, 4).ends_with(" ans.")) << fact(visit, 4);
}

TEST(DestinyPalace, FollowsTheShortNames) {
    Visit visit;
    visit.generate_for("07031943");
    visit.generate_at(9);
    visit.click("Mnu_abrege");
    visit.click("Mnu_palaisdestin");
    EXPECT_EQ(fact(visit, 2), "Ku");
    EXPECT_EQ(fact(visit, 1), visit.text("Label_Dasha(7).Caption"));
    EXPECT_EQ(fact(visit, 1).size(), 2u);
    EXPECT_EQ(fact(visit, 3).size(), 2u);
}

TEST(DestinyPalace, OpensWithItsMarkAndClosesByItsEntryAndItsFrame) {
    Visit visit;
    EXPECT_FALSE(open(visit));
    visit.click("Mnu_palaisdestin");
    EXPECT_TRUE(open(visit));
    EXPECT_TRUE(marked(visit));
    EXPECT_EQ(visit.text("Palais_du_destin.Caption"), "  PALAIS DU DESTIN");
    visit.click("Mnu_palaisdestin");
    EXPECT_FALSE(open(visit));
    EXPECT_FALSE(marked(visit));
    visit.click("Mnu_palaisdestin");
    visit.ask({{"op", "close"}, {"form", "Palais_du_destin"}});
    EXPECT_FALSE(open(visit));
    EXPECT_FALSE(marked(visit));
}

struct ClosingCase {
    char const* name;
    void (*act)(Visit& visit);
    friend std::ostream& operator<<(std::ostream& out, ClosingCase const& row) {
        return out << row.name;
    }
};
// clang-format off
ClosingCase const closing_cases[] = {
    {"generation",        [](Visit& visit) { visit.click("Command2"); }},
    {"change_of_age",     [](Visit& visit) { visit.set("HScroll_age", 5); }},
    {"change_of_date",    [](Visit& visit) { visit.choose("Combo_moisNaiss", "07"); }},
    {"present_age",       [](Visit& visit) { visit.click("Command_DateNow"); }},
    {"Julian_calendar",   [](Visit& visit) { visit.click("Mnu_Julien"); }},
    {"choice_of_an_age",  [](Visit& visit) { visit.click("Label_age");
                                             visit.click("choix_age.Label2(7)"); }},
    {"active_folder",     [](Visit& visit) { visit.click("Charge(1)"); }},
    {"other_folder",      [](Visit& visit) { visit.click("Charge(2)"); }},
    {"addresses",         [](Visit& visit) { visit.click("Bouton_Internet"); }},
    {"reset",             [](Visit& visit) { visit.click("Command_reset"); }},
};
// clang-format on
class Closing : public testing::TestWithParam<ClosingCase> {};
TEST_P(Closing, TakesTheWindowAndItsMarkAway) {
    Visit visit;
    visit.click("Mnu_palaisdestin");
    ASSERT_TRUE(open(visit));
    GetParam().act(visit);
    EXPECT_FALSE(open(visit));
    EXPECT_FALSE(marked(visit));
}
INSTANTIATE_TEST_SUITE_P(DestinyPalace, Closing, testing::ValuesIn(closing_cases),
                         [](auto const& row) { return row.param.name; });

TEST(DestinyPalace, StaysAsItOpenedWhereOnlyTheNamesChange) {
    Visit visit;
    visit.generate_for("07031943");
    visit.generate_at(9);
    visit.click("Mnu_palaisdestin");
    visit.click("Mnu_abrege");
    EXPECT_TRUE(open(visit));
    EXPECT_EQ(fact(visit, 2), "Kuja");
}

}  // namespace
}  // namespace navarun::test
