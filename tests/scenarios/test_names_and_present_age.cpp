// The two names, and the button that places the consultation on the person's present age.
#include <string>

#include <gtest/gtest.h>

#include "tests/scenarios/date_fields.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

struct Name {
    char const* typed;
    char const* proper;
};
TEST(Names, AreWrittenInProperCaseWhenTheyAreLeft) {
    for (Name const& row :
         {Name{"jean-pierre dupont", "Jean-pierre Dupont"}, Name{"ÉLODIE", "Élodie"},
          Name{"émile ÀÇÈ", "Émile Àçè"}, Name{"o'neill", "O'neill"}, Name{"", ""},
          Name{"  de  la tour", "  De  La Tour"}, Name{"œuf ŒIL", "Œuf Œil"}}) {
        for (char const* field : {"Text_prenom", "Text_nom"}) {
            Visit visit;
            visit.set(field, row.typed);
            EXPECT_EQ(visit.text(std::string{field} + ".Text"), row.typed);
            visit.focus("Text_Note");
            EXPECT_EQ(visit.text(std::string{field} + ".Text"), row.proper);
        }
    }
}

TEST(Names, PassingThroughMarksNothingAsUnsaved) {
    Visit visit;
    visit.focus("Text_nom");
    visit.focus("Text_prenom");
    visit.focus("Text_Note");
    EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(0)");
}

TEST(Names, ALetterTurnsTheDisketteRedAndLeavesTheGridTrue) {
    for (char const* field : {"Text_prenom", "Text_nom"}) {
        Visit visit;
        visit.type(field, "a");
        EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(1)") << field;
        EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT") << field;
    }
}

TEST(Names, HoldTwentyFiveCharacters) {
    std::string const letters = "Éabcdefghijklmnopqrstuvwxy";  // 26
    for (char const* field : {"Text_prenom", "Text_nom"}) {
        Visit typed;
        typed.type(field, letters);
        EXPECT_EQ(typed.text(std::string{field} + ".Text"), "Éabcdefghijklmnopqrstuvwx");
        Visit pasted;
        pasted.set(field, letters + letters);
        EXPECT_EQ(pasted.text(std::string{field} + ".Text"), "Éabcdefghijklmnopqrstuvwx");
    }
}

// --- the present age

struct Present {
    char const* name;
    char const* birth;  // ddmmyyyy
    char const* today;
    int age;
    friend std::ostream& operator<<(std::ostream& out, Present const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr Present presents[] = {
    {"the_day_before_the_birthday",          "17051962", "16/05/2026",  63},
    {"the_birthday",                         "17051962", "17/05/2026",  64},
    {"the_day_after",                        "17051962", "18/05/2026",  64},
    {"new_years_eve",                        "01011900", "31/12/2026", 126},
    {"born_on_new_years_eve",                "31121999", "30/12/2026",  26},
    {"greatest_age",                         "17051676", "17/05/2026", 350},
    {"greatest_age_still_to_come",           "17051676", "16/05/2026", 349},
    {"first_birthday",                       "17052025", "17/05/2026",   1},
    {"born_last_year_birthday_to_come",      "17052025", "16/05/2026",   1},
    {"born_this_year",                       "17052026", "18/05/2026",   1},
    {"born_later_this_year",                 "17052026", "16/05/2026",   1},
    {"born_in_a_century",                    "17052126", "16/05/2026",   1},
};
// clang-format on
class PresentAge : public testing::TestWithParam<Present> {};
TEST_P(PresentAge, IsThatOfTheLastBirthday) {
    Visit visit{GetParam().today};
    visit.type("Combo_jourNaiss", GetParam().birth);
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.number("HScroll_age.Value"), GetParam().age);
    EXPECT_EQ(visit.number("age_courant"), GetParam().age);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(visit.effects(), Json::array());
}
INSTANTIATE_TEST_SUITE_P(Button, PresentAge, testing::ValuesIn(presents),
                         [](auto const& row) { return std::string{row.param.name}; });

TEST(PresentAge, OfALeapDayTurnsOnTheTwentyEighthOfACommonYear) {
    struct Row {
        char const* today;
        int age;
    };
    for (Row const& row : {Row{"27/02/2026", 65}, Row{"28/02/2026", 66}, Row{"01/03/2026", 66},
                           Row{"28/02/2028", 67}, Row{"29/02/2028", 68}}) {
        Visit visit{row.today};
        choose_date(visit, "29", "02", "19", "60");
        visit.click("Command_DateNow");
        EXPECT_EQ(visit.number("HScroll_age.Value"), row.age) << row.today;
    }
}

TEST(PresentAge, BeyondTheTableIsToldAndChangesNothing) {
    Visit visit{"17/05/2026"};
    visit.set("Text_prenom", "louis");
    visit.set("Text_nom", "de france");
    visit.type("Combo_jourNaiss", "17051675");
    visit.click("Command2");
    visit.set("HScroll_age", 20);
    visit.focus("Command_DateNow");
    Json before = visit.dump();
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"message",
                  "text":"Louis De France\r\n à plus de 350 ans !","seconds":1.4}])"));
    Json after = visit.dump();
    EXPECT_EQ(after["Label_message"]["Caption"], "Louis De France\r\n à plus de 350 ans !");
    before.erase("Label_message");
    after.erase("Label_message");
    EXPECT_EQ(after, before);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
}

// Only the years are subtracted before the table's end is asked for.
TEST(PresentAge, BeyondTheTableCountsTheYearEvenBeforeTheBirthday) {
    Visit visit{"16/05/2026"};
    visit.type("Combo_jourNaiss", "17051675");
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 1);
    EXPECT_EQ(visit.effects()[0]["kind"], "message");
}

TEST(PresentAge, AHalfTypedDateIsRepairedByTheClick) {
    Visit visit{"21/11/2026"};
    choose_date(visit, "17", "05", "19", "62");
    visit.type("Combo_moisNaiss", "1");
    visit.click("Command_DateNow");
    EXPECT_EQ(date(visit), "17/11/1962");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 64);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
}

// A century alone does not renew the year from which ages are counted; the generation does.
TEST(PresentAge, AfterACenturyAloneIsCountedFromTheYearBefore) {
    Visit visit{"21/11/2026"};
    choose_date(visit, "17", "05", "19", "62");
    visit.choose("Combo_AnNaiss1", "18");
    EXPECT_EQ(visit.number("annee_calcul"), 1962);
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 64);
    EXPECT_EQ(visit.number("annee_calcul"), 1862);
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 164);
}

TEST(PresentAge, IsSeenOnTheGrid) {
    Visit visit{"21/11/2026"};
    visit.type("Combo_jourNaiss", "17051962");
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "17/05/2026");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "16/05/2027");
    // Age 64 stands in cell 2 + 63 = 65, that is 5. The month of 17/11 is the seventh.
    EXPECT_EQ(visit.number("colonne_age"), 5);
    EXPECT_TRUE(visit.truth("Label_mois(11).FontBold"));
    EXPECT_EQ(visit.text("Label_MoisDate(11).Caption"), "17/11/2026");
}

}  // namespace
}  // namespace navarun::test
