// Which period an age falls in, from which cell and in which steps it is shown, and which step
// is in progress.
#include <cctype>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "periods/lord_circle.h"
#include "periods/maha_dasha.h"
#include "tests/scenarios/persons.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

using testing::ValuesIn;

TEST(Sequence, OfEveryMansionStartsWithItsLord) {
    for (auto const& row : births) {
        Visit visit;
        visit.generate_for(row.digits);
        EXPECT_EQ(visit.text("Label_Nak.Caption"), row.lord);
        EXPECT_EQ(visit.number("palais_index"), row.sun_cell) << row.lord;
        std::string const caption = visit.text("Label_Lal_Kitab.Caption");
        std::string capitals = row.lord;
        for (char& c : capitals) c = static_cast<char>(std::toupper(c));
        EXPECT_EQ(caption.substr(0, caption.find(' ')), capitals);
        EXPECT_EQ(visit.text(cell("Label_DashaDate", row.sun_cell, "Caption")),
                  visit.text("Label_anneedefile.Caption"));
    }
}

// --- which period, from which cell, in which steps

struct PeriodCase {
    char const* sequence;
    int age;
    int start_cell;
    char const* start;
    char const* second;
    char const* shown;  // the lord in the cells, after the grid of the start
    char const* caption;
    friend std::ostream& operator<<(std::ostream& out, PeriodCase const& row) {
        return out << row.sequence << ' ' << row.age;
    }
};
// clang-format off
constexpr PeriodCase period_cases[] = {
    // The rule.
    {"Kuja",    1,    2, "08/06/1971", "08/12/1971", "Kuja",    "KUJA (1 / 6 ans)"},
    {"Kuja",    6,    2, "08/06/1971", "08/12/1971", "Kuja",    "KUJA (6 / 6 ans)"},
    {"Kuja",    9,   10, "08/06/1979", "08/12/1979", "Shani",   "SHANI (1 / 6 ans)"},
    {"Kuja",   10,   10, "08/06/1979", "08/12/1979", "Shani",   "SHANI (2 / 6 ans)"},
    {"Kuja",   15,    4, "08/06/1985", "08/12/1985", "Rahu",    "RAHU (1 / 6 ans)"},
    {"Kuja",   36,    1, "08/06/2006", "08/12/2006", "Kuja",    "KUJA (1 / 6 ans)"},
    {"Chandra", 1,    2, "25/05/1971", "25/06/1971", "Chandra", "CHANDRA (1 / 1 an)"},
    {"Chandra", 35,  11, "25/05/2004", "25/07/2004", "Surya",   "SURYA (2 / 2 ans)"},
    {"Chandra", 11,  12, "25/05/1981", "25/07/1981", "Budha",   "BUDHA (1 / 2 ans)"},
    {"Budha",  24,    3, "05/08/1994", "05/10/1994", "Surya",   "SURYA (1 / 2 ans)"},
    {"Budha", 350,   12, "05/08/2315", "05/02/2316", "Kuja",    "KUJA (6 / 6 ans)"},
    {"Surya",   1,    1, "10/05/1971", "10/07/1971", "Surya",   "SURYA (1 / 2 ans)"},
    {"Surya",   3,    3, "10/05/1973", "10/06/1973", "Chandra", "CHANDRA (1 / 1 an)"},
    {"Surya",  35,    6, "10/05/2000", "10/11/2000", "Guru",    "GURU (6 / 6 ans)"},
    {"Surya",  36,   12, "10/05/2006", "10/07/2006", "Surya",   "SURYA (1 / 2 ans)"},
    // The cells of a Shukra or Ketu period read Surya in this sequence alone.
    {"Surya",   4,    4, "10/05/1974", "10/08/1974", "Surya",   "SHUKRA (1  / 3 ans)"},
    {"Surya",   5,    4, "10/05/1974", "10/08/1974", "Surya",   "SHUKRA (2  / 3 ans)"},
    {"Surya",  27,    3, "10/05/1997", "10/08/1997", "Surya",   "KETU (1 / 3 ans)"},
    // Two sequences name only some lords, three none: the cells keep the start's Shukra.
    {"Guru",    1,    3, "06/07/1971", "06/01/1972", "Shukra",  "GURU (1 / 6 ans)"},
    {"Guru",  350,    2, "06/07/2318", "06/10/2318", "Shukra",  "KETU (3 / 3 ans)"},
    {"Ketu",    4,    4, "15/04/1974", "15/10/1974", "Shukra",  "GURU (1 / 6 ans)"},
    {"Shani",   1,    4, "22/07/1971", "22/01/1972", "Shukra",  "SHANI (1 / 6 ans)"},
    {"Shani",   4,    4, "22/07/1971", "22/01/1972", "Shukra",  "SHANI (4 / 6 ans)"},
    {"Rahu",    7,    9, "24/06/1977", "24/09/1977", "Shukra",  "KETU (1 / 3 ans)"},
    {"Rahu",    1,    3, "24/06/1971", "24/12/1971", "Rahu",    "RAHU (1 / 6 ans)"},
    // The hand-kept ages.
    {"Shukra", 33,    9, "28/04/2003", "28/07/2003", "Surya",   "SURYA (1 / 2 ans)"},
    {"Shukra", 34,    9, "28/04/2003", "28/07/2003", "Surya",   "SURYA (2 / 2 ans)"},
    {"Shukra", 103,   7, "28/04/2073", "28/07/2073", "Surya",   "SURYA (1 / 2 ans)"},
    {"Shukra", 104,   8, "28/04/2073", "28/07/2073", "Surya",   "SURYA (2 / 2 ans)"},
    {"Shukra", 139,   6, "28/04/2108", "28/07/2108", "Surya",   "SURYA (2 / 2 ans)"},
    {"Surya", 240,   12, "10/05/2210", "10/11/2210", "Guru",    "GURU (1 / 6 ans)"},
    {"Surya", 241,   12, "10/05/2216", "10/11/2216", "Guru",    "GURU (2 / 6 ans)"},
    {"Surya", 245,   12, "10/05/2216", "10/11/2216", "Guru",    "GURU (6 / 6 ans)"},
    {"Surya", 246,    6, "10/05/2216", "10/07/2216", "Surya",   "SURYA (1 / 2 ans)"},
    {"Ketu",  259,    7, "15/04/2229", "15/07/2229", "Shukra",  "SHUKRA (2 / 3 ans)"},
    {"Ketu",  260,    6, "15/04/2228", "15/07/2228", "Shukra",  "SHUKRA (3 / 3 ans)"},
    {"Ketu",  261,    6, "15/04/2228", "15/07/2228", "Shukra",  "KUJA (1 / 6 ans)"},
    {"Ketu",  262,    9, "15/04/2231", "15/10/2231", "Shukra",  "KUJA (2 / 6 ans)"},
    {"Ketu",  284,    8, "15/04/2254", "15/10/2254", "Shukra",  "GURU (1 / 6 ans)"},
    {"Ketu",  290,    2, "15/04/2260", "15/06/2260", "Shukra",  "SURYA (1 / 2 ans)"},
    {"Ketu",  291,    8, "15/04/2254", "15/10/2254", "Shukra",  "SURYA (2 / 2 ans)"},
    {"Ketu",  292,    8, "15/04/2254", "15/10/2254", "Shukra",  "CHANDRA (1 / 1 an)"},
    {"Ketu",  295,    8, "15/04/2254", "15/10/2254", "Shukra",  "SHUKRA (3 / 3 ans)"},
    {"Ketu",  296,    8, "15/04/2266", "15/10/2266", "Shukra",  "KUJA (1 / 6 ans)"},
    {"Ketu",  326,    7, "15/04/2289", "15/10/2289", "Shukra",  "SURYA (2 / 2 ans)"},
    {"Ketu",  330,    7, "15/04/2289", "15/10/2289", "Shukra",  "SHUKRA (3 / 3 ans)"},
};
// clang-format on

class PeriodOfAge : public testing::TestWithParam<PeriodCase> {};
TEST_P(PeriodOfAge, FillsTheRowFromItsCell) {
    auto const& row = GetParam();
    Visit visit;
    visit.type("Combo_jourNaiss", birth_of(row.sequence));
    visit.set("HScroll_age", row.age);
    // The sequence runs on the mansion of the person, known once it has been generated; the
    // first generation is this one.
    visit.click("Command2");
    EXPECT_EQ(visit.text("Label_Lal_Kitab.Caption"), row.caption);
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), twelve(row.shown));
    EXPECT_EQ(visit.number("colonne_age_mod"), row.start_cell);
    EXPECT_EQ(visit.text(cell("Label_DashaDate", row.start_cell, "Caption")), row.start);
    EXPECT_EQ(visit.text(cell("Label_DashaDate", row.start_cell % 12 + 1, "Caption")),
              row.second);
    EXPECT_EQ(visit.text(cell("Label_Dasha", row.start_cell, "ForeColor")), "#0000FF");
}
INSTANTIATE_TEST_SUITE_P(Sequences, PeriodOfAge, ValuesIn(period_cases), [](auto const& row) {
    return std::string{row.param.sequence} + "_" + std::to_string(row.param.age);
});

// The row of the schedule as practitioners quote it: mansion 5, palace 1 in the first cell,
// born on 15/03/1970.
TEST(Schedule, TheQuotedRowsOfAKujaSequence) {
    Visit visit;
    visit.type("Combo_jourNaiss", "15031970");
    auto& person = visit.program().consultation;
    auto const maha_dasha = [&](int age) {
        visit.set("HScroll_age", age);
        person.palais_index = 1;
        person.numero_nakshatra = 5;
        Maha_Dasha(visit.program());
    };
    maha_dasha(9);
    for (auto const& [number, date] :
         {std::pair{9, "15/03/1979"}, std::pair{10, "15/09/1979"}, std::pair{11, "15/03/1980"},
          std::pair{12, "15/09/1980"}, std::pair{1, "15/03/1981"},
          std::pair{8, "15/09/1984"}}) {
        EXPECT_EQ(visit.text(cell("Label_DashaDate", number, "Caption")), date);
    }
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), twelve("Shani"));
    auto const at_nine = visit.cells("Label_DashaDate", "Caption");
    // A later year takes its date from the schedule of the person, third period, first turn.
    visit.program().periods.dates_age = {"15/03", 1970, circle_place(Lord::Kuja)};
    ASSERT_EQ(visit.text("dates_age(21)"), "15/03/1979");
    maha_dasha(10);
    EXPECT_EQ(visit.cells("Label_DashaDate", "Caption"), at_nine);
    EXPECT_EQ(visit.number("colonne_age_mod"), 9);
    EXPECT_EQ(visit.text("date_annee_courante"), "15/03/1979");
    maha_dasha(15);
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), twelve("Rahu"));
    EXPECT_EQ(visit.text("Label_DashaDate(3).Caption"), "15/03/1985");
}

TEST(Schedule, TheDatesOfAPersonFollowTheTurns) {
    Visit visit;
    visit.generate_for("15061970");
    // Row 10 x (period - 1) + turn; Kuja first: 1, 7, 9, 15, 21, 24, 30, 32, 33.
    EXPECT_EQ(visit.text("dates_age(1)"), "15/06/1971");
    EXPECT_EQ(visit.text("dates_age(2)"), "15/06/2006");
    EXPECT_EQ(visit.text("dates_age(11)"), "15/06/1977");
    EXPECT_EQ(visit.text("dates_age(21)"), "15/06/1979");
    EXPECT_EQ(visit.text("dates_age(81)"), "15/06/2003");
    EXPECT_EQ(visit.text("dates_age(90)"), "15/06/2318");
}

struct NoCase {
    char const* sequence;
    int age;
    int before;  // the last age that has a case
    friend std::ostream& operator<<(std::ostream& out, NoCase const& row) {
        return out << row.sequence << ' ' << row.age;
    }
};
// clang-format off
constexpr NoCase ages_without_case[] = {
    {"Guru",   265, 264}, {"Guru",   300, 299}, {"Guru",   335, 334},
    {"Ketu",   258, 257}, {"Ketu",   285, 284}, {"Ketu",   289, 284},
    {"Ketu",   320, 319}, {"Ketu",   324, 319}, {"Rahu",   155, 154},
    {"Shani",    2,   1}, {"Shani",    3,   1}, {"Shani",  268, 267},
    {"Budha",  343, 342}, {"Budha",  344, 342}, {"Kuja",   171, 170},
    {"Kuja",   288, 287}, {"Kuja",   300, 299}, {"Shukra", 242, 241},
    {"Surya",  296, 295}, {"Surya",  300, 295}, {"Surya",  321, 320},
    {"Surya",  335, 334},
};
// clang-format on

class AgeWithoutCase : public testing::TestWithParam<NoCase> {};
TEST_P(AgeWithoutCase, LeavesThePeriodOfBeforeInTheCells) {
    auto const& row = GetParam();
    Visit visit;
    visit.generate_for(birth_of(row.sequence));
    visit.generate_at(row.before);
    auto const lords = visit.cells("Label_Dasha", "Caption");
    auto const dates = visit.cells("Label_DashaDate", "Caption");
    auto const months = visit.cells("Label_MoisDate", "Caption");
    visit.generate_at(row.age);
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), lords);
    EXPECT_EQ(visit.cells("Label_DashaDate", "Caption"), dates);
    EXPECT_NE(visit.cells("Label_MoisDate", "Caption"), months);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(visit.number("colonne_age_mod"), visit.number("colonne_age") % 12);
}
// What stands in the cells is what was there, even of another person.
TEST_P(AgeWithoutCase, ComingFromAnotherPersonKeepsThatPersonsPeriod) {
    auto const& row = GetParam();
    Visit visit;
    auto const lords = visit.cells("Label_Dasha", "Caption");
    auto const dates = visit.cells("Label_DashaDate", "Caption");
    visit.type("Combo_jourNaiss", birth_of(row.sequence));
    visit.generate_at(row.age);
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), lords);
    EXPECT_EQ(visit.cells("Label_DashaDate", "Caption"), dates);
}
INSTANTIATE_TEST_SUITE_P(Sequences, AgeWithoutCase, ValuesIn(ages_without_case),
                         [](auto const& row) {
                             return std::string{row.param.sequence} + "_" +
                                    std::to_string(row.param.age);
                         });

// The neighbours of the forgotten ages have their case.
TEST(AgeWithoutCase, HasNeighboursWithOne) {
    struct Row {
        char const* sequence;
        int age;
    };
    for (Row const& row :
         {Row{"Guru", 264}, Row{"Guru", 266}, Row{"Guru", 301}, Row{"Rahu", 154},
          Row{"Rahu", 156}, Row{"Shani", 4}, Row{"Shani", 269}, Row{"Budha", 345},
          Row{"Kuja", 172}, Row{"Kuja", 301}, Row{"Shukra", 243}, Row{"Surya", 301},
          Row{"Surya", 322}, Row{"Surya", 336}, Row{"Chandra", 258}, Row{"Ketu", 257}}) {
        Visit visit;
        auto const dates = visit.cells("Label_DashaDate", "Caption");
        visit.type("Combo_jourNaiss", birth_of(row.sequence));
        visit.generate_at(row.age);
        EXPECT_NE(visit.cells("Label_DashaDate", "Caption"), dates)
            << row.sequence << ' ' << row.age;
    }
}

// Three sequences never say whose period it is: the cells go on with the last lord that any
// sequence named, while the age's own caption tells the right one.
TEST(LordInTheCells, OfTheFirstPersonOfASilentSequenceIsShukra) {
    for (char const* sequence : {"Guru", "Ketu", "Shani"}) {
        Visit visit;
        visit.generate_for(birth_of(sequence));
        EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), twelve("Shukra")) << sequence;
        EXPECT_EQ(visit.number("seigneur_dasha"), 6) << sequence;
        EXPECT_EQ(visit.text("Label_Nak.Caption"), sequence);
    }
}

TEST(LordInTheCells, OfASilentSequenceIsThatOfThePersonBefore) {
    Visit visit;
    visit.generate_for(birth_of("Budha"));
    visit.generate_for(birth_of("Guru"));
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), twelve("Budha"));
    visit.generate_for(birth_of("Kuja"));
    visit.generate_for(birth_of("Shani"));
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), twelve("Kuja"));
    visit.generate_at(30);
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), twelve("Kuja"));
}

TEST(LordInTheCells, OfARahuSequenceIsNamedInRahusOwnPeriodAlone) {
    Visit visit;
    visit.generate_for(birth_of("Rahu"));
    visit.generate_at(7);
    EXPECT_EQ(visit.cells("Label_Dasha", "Caption"), twelve("Rahu"));

    Visit fresh;
    fresh.generate_for("28041970");  // Shukra
    fresh.type("Combo_jourNaiss", birth_of("Rahu"));
    // The generation of the age 10 alone, with no age of Rahu's own before it.
    fresh.set("HScroll_age", 10);
    fresh.click("Command2");
    EXPECT_EQ(fresh.text("Label_Lal_Kitab.Caption"), "GURU (1 / 6 ans)");
    EXPECT_EQ(fresh.cells("Label_Dasha", "Caption"), twelve("Shukra"));
}

// --- the step in progress

// Born on 15/06/1970: Kuja from 15/06/1971 in cell 3, a step every six months.
class StepInProgress : public testing::Test {
  protected:
    static void expect_marked(Visit& visit, int marked, int selected) {
        for (int number = 1; number <= 12; ++number) {
            EXPECT_EQ(visit.truth(cell("Label_Dasha", number, "FontBold")), number == marked)
                << number;
        }
        EXPECT_EQ(visit.text(cell("Label_Dasha", marked, "ForeColor")), "#C04000");
        EXPECT_EQ(visit.text(cell("Label_DashaDate", marked, "ForeColor")), "#000000");
        EXPECT_EQ(visit.number("colonne_dasha"), selected);
    }
    static void expect_unmarked(Visit& visit, int selected) {
        EXPECT_EQ(visit.cells("Label_Dasha", "FontBold"), twelve("false"));
        EXPECT_EQ(visit.number("colonne_dasha"), selected);
    }
};

TEST_F(StepInProgress, OnTheAnniversaryItselfThePeriodsCellNeedsNoMark) {
    Visit visit{"15/06/1971"};
    visit.generate_for("15061970");
    expect_unmarked(visit, 3);
    EXPECT_EQ(visit.text("Label_Dasha(3).ForeColor"), "#0000FF");
}

TEST_F(StepInProgress, ADayAfterItThePeriodsCellIsMarkedAndTheNextOneSelected) {
    Visit visit{"16/06/1971"};
    visit.generate_for("15061970");
    expect_marked(visit, 3, 4);
}

TEST_F(StepInProgress, TheDayBeforeTheAnniversaryIsOfNoYearYet) {
    Visit visit{"14/06/1971"};
    visit.generate_for("15061970");
    expect_unmarked(visit, 3);
}

TEST_F(StepInProgress, MovesOnTheFirstDayOfTheNextStep) {
    Visit eve{"14/12/1971"};
    eve.generate_for("15061970");
    expect_marked(eve, 3, 4);
    Visit day{"15/12/1971"};
    day.generate_for("15061970");
    expect_marked(day, 4, 5);
}

// 1972 has a 29 February: the anniversary is the 366th day, and still belongs to the year.
TEST_F(StepInProgress, TheThreeHundredAndSixtySixthDayIsStillInside) {
    Visit inside{"15/06/1972"};
    inside.generate_for("15061970");
    expect_marked(inside, 5, 6);
    Visit outside{"16/06/1972"};
    outside.generate_for("15061970");
    expect_unmarked(outside, 3);
}

// Without a leap day between them the 366th day is the day after the next anniversary.
TEST_F(StepInProgress, InACommonYearTheDayAfterTheNextAnniversaryIsInsideToo) {
    Visit visit{"16/06/1973"};
    visit.generate_for("15061970");
    visit.generate_at(2);
    expect_marked(visit, 7, 8);
    Visit outside{"17/06/1973"};
    outside.generate_for("15061970");
    outside.generate_at(2);
    expect_marked(outside, 5, 5);
}

TEST_F(StepInProgress, TheLastStepLeadsBackToThePeriodsCell) {
    Visit visit{"20/12/1976"};
    visit.generate_for("15061970");
    visit.generate_at(6);
    EXPECT_EQ(visit.text("Label_DashaDate(2).Caption"), "15/12/1976");
    expect_marked(visit, 2, 3);
}

TEST_F(StepInProgress, OfAFarAgeIsTheOneThatStartsOnItsAnniversary) {
    Visit visit{"21/11/2026"};
    visit.generate_for("15061970");
    visit.generate_at(2);
    // 15/06/1972 is the third step.
    expect_marked(visit, 5, 5);
    // Kuja from 281 on, in cell 3 + 280, that is 7; four steps later the age is 283.
    visit.generate_at(283);
    EXPECT_EQ(visit.text("Label_DashaDate(11).Caption"), "15/06/2253");
    expect_marked(visit, 11, 11);
}

// The odd year of a period of three-month steps over three years always has its anniversary;
// the age that has no case may have none.
TEST_F(StepInProgress, WithoutAStepOnTheAnniversaryNothingIsMarked) {
    Visit visit{"21/11/2026"};
    visit.generate_for(birth_of("Ketu"));
    // The steps of 284 run to 2259; the anniversary of 291 is in 2261.
    visit.generate_at(291);
    expect_unmarked(visit, 3);
    EXPECT_EQ(visit.number("colonne_age"), 3);
}

TEST_F(StepInProgress, InAnAgeWithoutCaseIsLookedForInTheOldRow) {
    Visit visit{"21/11/2026"};
    visit.generate_for(birth_of("Shani"));
    // Age 2: the row is that of age 1, from 22/07/1971 in cell 4; 22/07/1972 is its third step.
    visit.generate_at(2);
    expect_marked(visit, 6, 6);
    EXPECT_EQ(visit.text("Label_Dasha(4).ForeColor"), "#808000");
}

TEST_F(StepInProgress, IsPickedByHandToo) {
    Visit visit{"16/06/1971"};
    visit.generate_for("15061970");
    visit.click("Label_Dasha(8)");
    expect_marked(visit, 8, 8);
    for (int const number : {1, 3, 4, 12}) {
        EXPECT_EQ(visit.text(cell("Label_Dasha", number, "ForeColor")), "#808080");
        EXPECT_EQ(visit.text(cell("Label_DashaDate", number, "ForeColor")), "#808080");
    }
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    visit.click("Label_Dasha(1)");
    expect_marked(visit, 1, 1);
    visit.click("Command2");
    expect_marked(visit, 3, 4);
}

// --- births on 29 February

void choose_leap_day(Visit& visit, char const* century, char const* year) {
    visit.choose("Combo_AnNaiss1", century);
    visit.choose("Combo_AnNaiss2", year);
    visit.choose("Combo_moisNaiss", "02");
    visit.choose("Combo_jourNaiss", "29");
}

std::vector<std::string> row_from(Visit& visit, char const* array, int first) {
    std::vector<std::string> dates;
    for (int k = 0; k < 12; ++k) {
        dates.push_back(visit.text(cell(array, (first + k - 1) % 12 + 1, "Caption")));
    }
    return dates;
}

using Dates = std::vector<std::string>;

// Rahu's sequence alone knows the day: all its steps fall on the 29th where there is one.
TEST(LeapDayBirth, InARahuSequenceEveryStepFallsOnThe29thWhereThereIsOne) {
    Visit visit;
    choose_leap_day(visit, "19", "60");
    visit.click("Command2");
    ASSERT_EQ(visit.text("Label_Nak.Caption"), "Rahu");
    Dates const first_year{"28/02/1961", "29/08/1961", "28/02/1962", "29/08/1962",
                           "28/02/1963", "29/08/1963", "29/02/1964", "29/08/1964",
                           "28/02/1965", "29/08/1965", "28/02/1966", "29/08/1966"};
    EXPECT_EQ(row_from(visit, "Label_DashaDate", 11), first_year);
    // A later year finds 29/02/1961 in the schedule, which no calendar has.
    EXPECT_EQ(visit.text("dates_age(1)"), "29/02/1961");
    visit.generate_at(3);
    EXPECT_EQ(row_from(visit, "Label_DashaDate", 11), first_year);
    EXPECT_EQ(visit.text("date_annee_courante"), "28/02/1961");
}

TEST(LeapDayBirth, ARahuPeriodThatStartsInALeapYearStartsOnThe29th) {
    Visit visit;
    choose_leap_day(visit, "19", "60");
    // Guru from 10, Surya from 16: 1976 is a leap year.
    visit.generate_at(16);
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "29/02/1976");
    Dates const dates = row_from(visit, "Label_DashaDate", visit.number("colonne_age_mod"));
    EXPECT_EQ(dates[0], "29/02/1976");
    EXPECT_EQ(dates[1], "29/04/1976");
    EXPECT_EQ(dates[6], "28/02/1977");
    visit.generate_at(17);
    EXPECT_EQ(row_from(visit, "Label_DashaDate", visit.number("colonne_age_mod")), dates);
}

// 29/02/1824: the sun at 20 of sign 11, mansion 25, Guru first. Nothing is repaired there.
TEST(LeapDayBirth, InAnotherSequenceTheStepsKeepTheClippedDay) {
    Visit visit;
    choose_leap_day(visit, "18", "24");
    visit.click("Command2");
    ASSERT_EQ(visit.text("Label_Nak.Caption"), "Guru");
    ASSERT_EQ(visit.number("palais_index"), 11);
    Dates const dates = row_from(visit, "Label_DashaDate", 11);
    EXPECT_EQ(dates[0], "28/02/1825");
    EXPECT_EQ(dates[1], "28/08/1825");
    EXPECT_EQ(dates[6], "28/02/1828");
    // In a later year the schedule's 29/02/1825 is read as the month's last day.
    EXPECT_EQ(visit.text("dates_age(1)"), "29/02/1825");
    visit.generate_at(2);
    EXPECT_EQ(row_from(visit, "Label_DashaDate", 11), dates);
}

TEST(LeapDayBirth, InAnotherSequenceAPeriodOfALeapYearSteps29AndClips) {
    Visit visit;
    choose_leap_day(visit, "18", "24");
    visit.generate_at(36);
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "29/02/1860");
    // Cell 11 + 35 = 46, that is 10.
    Dates const dates{"29/02/1860", "29/08/1860", "28/02/1861", "29/08/1861",
                      "28/02/1862", "29/08/1862", "28/02/1863", "29/08/1863",
                      "29/02/1864", "29/08/1864", "28/02/1865", "29/08/1865"};
    EXPECT_EQ(row_from(visit, "Label_DashaDate", 10), dates);
    visit.generate_at(38);
    EXPECT_EQ(row_from(visit, "Label_DashaDate", 10), dates);
}

TEST(LeapDayBirth, TheMonthsFallOnThe29thWhateverTheSequence) {
    for (auto const& [century, year] : {std::pair{"19", "60"}, std::pair{"18", "24"}}) {
        Visit visit;
        choose_leap_day(visit, century, year);
        visit.click("Command2");
        Dates const dates = row_from(visit, "Label_MoisDate", 11);
        EXPECT_EQ(dates[0].substr(0, 5), "28/02");
        EXPECT_EQ(dates[1].substr(0, 5), "29/03");
        EXPECT_EQ(dates[2].substr(0, 5), "29/04");
        EXPECT_EQ(dates[11].substr(0, 5), "29/01");
        visit.generate_at(4);
        EXPECT_EQ(
            row_from(visit, "Label_MoisDate", visit.number("colonne_age"))[0].substr(0, 5),
            "29/02");
    }
}

TEST(LeapDayBirth, TheCycleYearStartsOnThe28thOfACommonYear) {
    Visit visit;
    choose_leap_day(visit, "19", "60");
    visit.set("HScroll_age", 5);
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "28/02/1965");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "27/02/1966");
    visit.set("HScroll_age", 4);
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "29/02/1964");
    EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), "28/02/1965");
}

}  // namespace
}  // namespace navarun::test
