// The four date fields as they are typed in: every key acts at once, and the date is repaired,
// never refused.
#include <string>

#include <gtest/gtest.h>

#include "tests/scenarios/date_fields.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

// --- typing a whole date

TEST(TypedDate, RunsThroughTheFieldsByItself) {
    Visit visit;
    visit.type("Combo_jourNaiss", "17051962");
    EXPECT_EQ(date(visit), "17/05/1962");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "17");
    EXPECT_EQ(visit.text("Combo_moisNaiss.Text"), "05");
    EXPECT_EQ(visit.text("Combo_AnNaiss1.Text"), "19");
    EXPECT_EQ(visit.text("Combo_AnNaiss2.Text"), "62");
    EXPECT_EQ(visit.text("jour_mois_anniv"), "17/05");
    EXPECT_EQ(visit.number("annee_calcul"), 1962);
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "17/05/1963");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "16/05/1964");
    EXPECT_EQ(visit.text("fin_annee_defile"), "16/05/1963");
    EXPECT_EQ(visit.number("nombre_touches"), 0);
}

TEST(TypedDate, EndsInTheNotes) {
    Visit visit;
    visit.type("Combo_jourNaiss", "17051962Vue le 3 mai");
    EXPECT_EQ(visit.text("Text_Note.Text"), "Vue le 3 mai");
    EXPECT_EQ(date(visit), "17/05/1962");
}

struct Move {
    char const* from;
    char const* typed;
    char const* to;
    char const* part;
    friend std::ostream& operator<<(std::ostream& out, Move const& row) {
        return out << row.from;
    }
};
// Two digits, then one more, which shows where the keyboard is.
constexpr Move moves[] = {
    {"Combo_jourNaiss", "170", "Combo_moisNaiss", "0"},
    {"Combo_moisNaiss", "052", "Combo_AnNaiss1", "2"},
    {"Combo_AnNaiss1", "187", "Combo_AnNaiss2", "7"},
};
class FocusMove : public testing::TestWithParam<Move> {};
TEST_P(FocusMove, FollowsTheSecondDigit) {
    Visit visit;
    visit.type(GetParam().from, GetParam().typed);
    EXPECT_EQ(visit.text(std::string{GetParam().to} + ".Text"), GetParam().part);
    EXPECT_EQ(visit.number("nombre_touches"), 1);
}
INSTANTIATE_TEST_SUITE_P(TypedDate, FocusMove, testing::ValuesIn(moves),
                         [](auto const& row) { return std::string{row.param.from}; });

TEST(TypedDate, AFieldEnteredAnewIsReplacedAsAWhole) {
    Visit visit;
    visit.type("Combo_jourNaiss", "17");
    visit.type("Combo_jourNaiss", "2");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "2");
}

TEST(TypedDate, AClickInAFieldOffersItsWholeTextToTheNextDigit) {
    Visit visit;
    visit.type("Combo_AnNaiss2", "6");
    ASSERT_EQ(visit.text("Combo_AnNaiss2.Text"), "6");
    visit.click("Combo_AnNaiss2");
    visit.type("Combo_AnNaiss2", "7");
    EXPECT_EQ(visit.text("Combo_AnNaiss2.Text"), "7");
}

TEST(TypedDate, AChosenEntryIsReplacedByTheNextDigit) {
    Visit visit;
    visit.choose("Combo_AnNaiss2", "62");
    visit.type("Combo_AnNaiss2", "75");
    EXPECT_EQ(date(visit), "01/01/1975");
}

// --- keys

TEST(DateKey, LettersSignsAndBlanksAreSwallowed) {
    for (char const* field : date_fields) {
        Visit visit;
        std::string const before = visit.text(std::string{field} + ".Text");
        visit.type(field, "aZé -/.,+\b\t");
        EXPECT_EQ(visit.text(std::string{field} + ".Text"), before) << field;
        EXPECT_EQ(visit.number("nombre_touches"), 0) << field;
        EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(0)") << field;
        EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT") << field;
    }
}

TEST(DateKey, ALetterBetweenTwoDigitsCountsNothing) {
    Visit visit;
    visit.type("Combo_jourNaiss", "1x");
    EXPECT_EQ(visit.number("nombre_touches"), 1);
    visit.type("Combo_jourNaiss", "7y");
    EXPECT_EQ(visit.text("jour_naissance"), "17");
    EXPECT_EQ(visit.number("nombre_touches"), 0);
}

TEST(DateKey, BackspaceIsSwallowedToo) {
    for (char const* field : date_fields) {
        Visit visit;
        std::string const before = visit.text(std::string{field} + ".Text");
        visit.key(field, 8);
        EXPECT_EQ(visit.text(std::string{field} + ".Text"), before) << field;
        EXPECT_EQ(visit.number("nombre_touches"), 0) << field;
    }
}

TEST(DateKey, BackspaceTakesNoHalfTypedDigitBack) {
    Visit visit;
    visit.type("Combo_jourNaiss", "1");
    visit.key("Combo_jourNaiss", 8);
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "1");
    EXPECT_EQ(visit.number("nombre_touches"), 1);
}

TEST(DateKey, ADigitWithoutRoomIsSwallowedAndNotCounted) {
    for (char const* field : date_fields) {
        Visit visit;
        visit.set(field, "17");  // the caret stands behind it, nothing is selected
        std::string const stands = visit.text(std::string{field} + ".Text");
        visit.set(field, stands);
        visit.type(field, "5");
        EXPECT_EQ(visit.text(std::string{field} + ".Text"), stands) << field;
        EXPECT_EQ(visit.number("nombre_touches"), 0) << field;
    }
}

TEST(DateKey, ADigitTurnsTheDisketteRed) {
    for (char const* field : date_fields) {
        Visit visit;
        visit.type(field, "0");
        EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(1)") << field;
        EXPECT_EQ(visit.number("nombre_touches"), 1) << field;
    }
}

TEST(DateField, APastedTextKeepsItsFirstTwoDigits) {
    Visit visit;
    visit.set("Combo_jourNaiss", "1a7b9");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "17");
    visit.set("Combo_AnNaiss2", " 6-2/4");
    EXPECT_EQ(visit.text("Combo_AnNaiss2.Text"), "62");
    EXPECT_EQ(date(visit), "17/01/1962");
}

// --- the day

struct Repair {
    char const* field;
    char const* typed;
    char const* becomes;
    friend std::ostream& operator<<(std::ostream& out, Repair const& row) {
        return out << row.field << ' ' << row.typed;
    }
};
// clang-format off
constexpr Repair typed_repairs[] = {
    {"Combo_jourNaiss", "00", "01/01/1900"},
    {"Combo_jourNaiss", "01", "01/01/1900"},
    {"Combo_jourNaiss", "31", "31/01/1900"},
    {"Combo_jourNaiss", "32", "31/01/1900"},
    {"Combo_jourNaiss", "95", "31/01/1900"},
    {"Combo_moisNaiss", "00", "01/01/1900"},
    {"Combo_moisNaiss", "01", "01/01/1900"},
    {"Combo_moisNaiss", "10", "01/10/1900"},
    {"Combo_moisNaiss", "12", "01/12/1900"},
    {"Combo_moisNaiss", "13", "01/12/1900"},
    {"Combo_moisNaiss", "19", "01/12/1900"},
    {"Combo_moisNaiss", "29", "01/12/1900"},
    {"Combo_moisNaiss", "99", "01/12/1900"},
    {"Combo_AnNaiss1",  "00", "01/01/1600"},
    {"Combo_AnNaiss1",  "15", "01/01/1600"},
    {"Combo_AnNaiss1",  "16", "01/01/1600"},
    {"Combo_AnNaiss1",  "18", "01/01/1800"},
    {"Combo_AnNaiss1",  "21", "01/01/2100"},
    {"Combo_AnNaiss1",  "22", "01/01/2100"},
    {"Combo_AnNaiss1",  "99", "01/01/2100"},
    {"Combo_AnNaiss2",  "00", "01/01/1900"},
    {"Combo_AnNaiss2",  "07", "01/01/1907"},
    {"Combo_AnNaiss2",  "99", "01/01/1999"},
};
// clang-format on
class TypedPart : public testing::TestWithParam<Repair> {};
TEST_P(TypedPart, IsTakenOrRepaired) {
    Visit visit;
    visit.type(GetParam().field, GetParam().typed);
    visit.focus("Text_Note");
    EXPECT_EQ(date(visit), GetParam().becomes);
    EXPECT_EQ(visit.number("nombre_touches"), 0);
    // What stands in the fields is the date.
    std::string fields;
    for (char const* field : date_fields) fields += visit.text(std::string{field} + ".Text");
    std::string const shown = date(visit);
    EXPECT_EQ(fields, shown.substr(0, 2) + shown.substr(3, 2) + shown.substr(6));
    EXPECT_EQ(visit.effects(), Json::array());
}
INSTANTIATE_TEST_SUITE_P(Typed, TypedPart, testing::ValuesIn(typed_repairs),
                         [](auto const& row) {
                             return std::string{row.param.field} + "_" + row.param.typed;
                         });

TEST(Day, TheThirtyFirstBecomesTheThirtiethWhereTheMonthIsShorter) {
    Visit visit;
    visit.type("Combo_jourNaiss", "3104");
    EXPECT_EQ(date(visit), "30/04/1900");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "30");
    EXPECT_EQ(visit.text("jour_mois_anniv"), "30/04");
    visit.choose("Combo_moisNaiss", "05");
    EXPECT_EQ(date(visit), "30/05/1900");
}

// The comparison is one of texts: a single digit from 4 on stands above "31".
TEST(Day, ASingleDigitAboveTheMonthsEndAsATextBecomesTheLastDay) {
    for (char const* digit : {"4", "5", "9"}) {
        Visit visit;
        visit.set("Combo_jourNaiss", digit);
        visit.focus("Text_Note");
        EXPECT_EQ(date(visit), "31/01/1900") << digit;
    }
}

TEST(Day, ASingleDigitBelowItStaysAsItStands) {
    for (char const* digit : {"1", "2", "3"}) {
        Visit visit;
        visit.set("Combo_jourNaiss", digit);
        visit.focus("Text_Note");
        EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), digit);
        EXPECT_EQ(visit.text("jour_naissance"), digit);
        EXPECT_EQ(visit.text("Label_anneedefile.Caption"),
                  std::string{"0"} + digit + "/01/1901");
    }
}

TEST(Day, InAFebruaryAThreeStandsAboveTheEndToo) {
    Visit visit;
    visit.choose("Combo_moisNaiss", "02");
    visit.set("Combo_jourNaiss", "3");
    visit.focus("Text_Note");
    EXPECT_EQ(date(visit), "28/02/1900");
}

TEST(Day, TwoZerosBecomeTheFirst) {
    Visit visit;
    choose_date(visit, "17", "05", "19", "62");
    visit.type("Combo_jourNaiss", "00");
    EXPECT_EQ(date(visit), "01/05/1962");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "01");
}

// --- 29 February

TEST(LeapDay, TypedOverACommonYearBecomesTheTwentyEighthWithTheMonth) {
    Visit visit;
    visit.type("Combo_jourNaiss", "2902");
    EXPECT_EQ(date(visit), "28/02/1900");
    visit.type("Combo_AnNaiss1", "2000");
    EXPECT_EQ(date(visit), "28/02/2000");
}

TEST(LeapDay, StaysWhereTheYearIsChosenFirst) {
    Visit visit;
    visit.choose("Combo_AnNaiss2", "96");
    visit.type("Combo_jourNaiss", "2902");
    EXPECT_EQ(date(visit), "29/02/1996");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "28/02/1997");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "27/02/1998");
}

TEST(LeapDay, BecomesTheTwentyEighthWhereACommonYearIsChosen) {
    Visit visit;
    choose_date(visit, "29", "02", "19", "96");
    ASSERT_EQ(date(visit), "29/02/1996");
    visit.choose("Combo_AnNaiss2", "97");
    EXPECT_EQ(date(visit), "28/02/1997");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "28");
    EXPECT_EQ(visit.text("jour_mois_anniv"), "28/02");
}

// The first digit alone makes the year 09, a common one.
TEST(LeapDay, IsLostWhereItsYearIsTypedAnew) {
    Visit visit;
    choose_date(visit, "29", "02", "19", "96");
    visit.type("Combo_AnNaiss2", "96");
    EXPECT_EQ(date(visit), "28/02/1996");
}

TEST(LeapDay, IsKeptWhereBothDigitsMakeLeapYears) {
    Visit visit;
    choose_date(visit, "29", "02", "19", "96");
    visit.type("Combo_AnNaiss2", "88");
    EXPECT_EQ(date(visit), "29/02/1988");
}

// The day is rewritten while two digits count, and its field takes them for its own: the
// keyboard goes to the month, not to the notes.
TEST(LeapDay, AYearThatTakesItAwaySendsTheKeyboardToTheMonth) {
    Visit visit;
    choose_date(visit, "29", "02", "20", "00");
    visit.type("Combo_AnNaiss2", "01");
    EXPECT_EQ(date(visit), "28/02/2001");
    EXPECT_EQ(visit.number("nombre_touches"), 0);
    visit.type("Combo_moisNaiss", "03");
    EXPECT_EQ(date(visit), "28/03/2001");

    choose_date(visit, "29", "02", "20", "00");
    visit.type("Combo_AnNaiss2", "0111");
    EXPECT_EQ(date(visit), "28/11/2001");
    EXPECT_EQ(visit.text("Text_Note.Text"), "");
}

// The century does not repair the day: the year 1900 keeps its 29 February for the Julian mode.
TEST(LeapDay, StaysOverAChangeOfTheCentury) {
    Visit visit;
    choose_date(visit, "29", "02", "20", "00");
    visit.choose("Combo_AnNaiss1", "19");
    EXPECT_EQ(date(visit), "29/02/1900");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "29");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "28/02/1901");
}

// --- the month

TEST(Month, AFirstDigitZeroDoesNothingUntilTheNext) {
    Visit visit;
    choose_date(visit, "17", "05", "19", "62");
    visit.click("Command2");
    visit.type("Combo_moisNaiss", "0");
    EXPECT_EQ(visit.text("Combo_moisNaiss.Text"), "0");
    EXPECT_EQ(visit.text("mois_naissance"), "05");
    EXPECT_EQ(date(visit), "17/05/1962");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(visit.number("nombre_touches"), 1);
    visit.type("Combo_moisNaiss", "7");
    EXPECT_EQ(date(visit), "17/07/1962");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
}

// Compared as texts a "2" stands above "12".
TEST(Month, AFirstDigitTwoBecomesDecemberAtOnce) {
    Visit visit;
    visit.type("Combo_moisNaiss", "2");
    EXPECT_EQ(visit.text("Combo_moisNaiss.Text"), "12");
    EXPECT_EQ(date(visit), "01/12/1900");
    EXPECT_EQ(visit.number("nombre_touches"), 1);
    // The rewritten month is selected: the next digit replaces it, and moves on.
    visit.type("Combo_moisNaiss", "1");
    EXPECT_EQ(visit.text("Combo_moisNaiss.Text"), "1");
    EXPECT_EQ(visit.number("nombre_touches"), 0);
}

// The zero replaces the December that the two had become, and waits for a digit of its own.
TEST(Month, ATwoAndAZeroLeaveDecemberBehindAZero) {
    Visit visit;
    visit.type("Combo_moisNaiss", "20");
    EXPECT_EQ(visit.text("Combo_moisNaiss.Text"), "0");
    EXPECT_EQ(date(visit), "01/12/1900");
    visit.type("Combo_moisNaiss", "7");
    EXPECT_EQ(date(visit), "01/07/1900");
}

TEST(Month, ThirteenBecomesTwelveAndTheCenturyIsNext) {
    Visit visit;
    visit.type("Combo_moisNaiss", "1318");
    EXPECT_EQ(date(visit), "01/12/1800");
}

TEST(Month, StopsWhileTheYearIsEmpty) {
    Visit visit;
    visit.set("Combo_AnNaiss2", "");
    visit.set("Combo_moisNaiss", "07");
    EXPECT_EQ(visit.text("Combo_moisNaiss.Text"), "07");
    EXPECT_EQ(visit.text("mois_naissance"), "01");
}

// --- the century

TEST(Century, IsRepairedOnceItsTwoDigitsStand) {
    Visit visit;
    visit.type("Combo_AnNaiss1", "1");
    EXPECT_EQ(visit.text("Combo_AnNaiss1.Text"), "1");
    EXPECT_EQ(visit.text("siecle_naissance"), "01");
    visit.type("Combo_AnNaiss1", "5");
    EXPECT_EQ(visit.text("Combo_AnNaiss1.Text"), "16");
    EXPECT_EQ(visit.text("siecle_naissance"), "16");
    EXPECT_EQ(visit.number("nombre_touches"), 0);
}

TEST(Century, ARepairedOneMovesTheKeyboardOn) {
    Visit visit;
    visit.type("Combo_AnNaiss1", "2262");
    EXPECT_EQ(date(visit), "01/01/2162");
}

TEST(Century, OneDigitAloneIsLeft) {
    Visit visit;
    visit.set("Combo_AnNaiss1", "3");
    visit.focus("Text_Note");
    EXPECT_EQ(visit.text("Combo_AnNaiss1.Text"), "3");
    EXPECT_EQ(date(visit), "01/01/0300");
}

// The years shown end a day later than a change of day, month or year would put it.
TEST(Century, ItsSecondDateIsADayLaterUntilTheNextRepair) {
    Visit visit;
    visit.choose("Combo_AnNaiss1", "20");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "01/01/2001");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "01/01/2002");
    visit.choose("Combo_AnNaiss2", "00");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "31/12/2001");

    visit.type("Combo_AnNaiss1", "18");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "01/01/1801");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "01/01/1802");
    visit.choose("Combo_jourNaiss", "02");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "01/01/1802");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "02/01/1801");
}

// The age bar's way back to 1 follows the two dates, and puts the second right.
TEST(Century, ChangedAtAnotherAgeItsSecondDateIsTheDayBefore) {
    Visit visit;
    visit.set("HScroll_age", 40);
    visit.set("Combo_AnNaiss1", "20");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 1);
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "01/01/2001");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "31/12/2001");
}

}  // namespace
}  // namespace navarun::test
