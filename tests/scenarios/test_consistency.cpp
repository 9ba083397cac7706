// Walks through many lives: whatever the birth and the age, the grid is whole and holds what a
// second reckoning finds.
#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/scenarios/almanac.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

struct Life {
    CivilDay birth;
    CivilDay today;
};

// Sixty births over the whole range of years, each read on a day of its own; leap days, new
// years and ends of months among them.
std::vector<Life> sixty_lives() {
    std::vector<Life> lives;
    // clang-format off
    std::vector<CivilDay> const chosen{
        {29,  2, 1600}, {29,  2, 1704}, {29,  2, 1824}, {29,  2, 1896}, {29,  2, 1904},
        {29,  2, 1960}, {29,  2, 2000}, {29,  2, 2096}, {29,  2, 2196}, {31, 12, 1699},
        { 1,  1, 1700}, {31,  1, 1949}, {31, 12, 1949}, { 1,  1, 1950}, {31,  8, 2199},
    };
    // clang-format on
    for (auto const& birth : chosen) lives.push_back({birth, {}});
    for (int i = 0; i < 45; ++i) {
        int const year = 1603 + i * 13;
        int const month = i * 7 % 12 + 1;
        lives.push_back({{i * 17 % days_of_month(month, year) + 1, month, year}, {}});
    }
    // Today falls into the cycle year of one of the ages walked to, on another day for each
    // life.
    for (std::size_t i = 0; i < lives.size(); ++i) {
        int const n = static_cast<int>(i);
        lives[i].today =
            days_later(months_later(lives[i].birth, 12 * (n % 35 + 1)), n * 31 % 367);
    }
    return lives;
}

// Twenty ages: the ends of the first and the last turn, the age in progress, and others
// between.
std::vector<int> twenty_ages(int life) {
    std::set<int> ages{1, 2, 7, 35, 36, 350, life % 35 + 1};
    for (int age = 11 + life; ages.size() < 20; age = (age + 97) % 350 + 1) ages.insert(age);
    return {ages.begin(), ages.end()};
}

void enter(Visit& visit, CivilDay birth) {
    std::string const date = written(birth);
    visit.choose("Combo_AnNaiss1", date.substr(6, 2));
    visit.choose("Combo_AnNaiss2", date.substr(8, 2));
    visit.choose("Combo_moisNaiss", date.substr(3, 2));
    visit.choose("Combo_jourNaiss", date.substr(0, 2));
    ASSERT_EQ(visit.text("date_naissance"), date);
}

std::vector<std::string> listed(CellTexts const& cells) { return {cells.begin(), cells.end()}; }

// Every generation of every life, each given to `check` with what the second reckoning found.
template <typename Check>
void walk(Check&& check) {
    int number = 0;
    for (auto const& life : sixty_lives()) {
        Visit visit{written(life.today)};
        Reckoning reckoning;
        reckoning.generate({1, 1, 1900}, 1, life.today);
        enter(visit, life.birth);
        for (int const age : twenty_ages(number)) {
            visit.generate_at(age);
            reckoning.generate(life.birth, age, life.today);
            SCOPED_TRACE("born " + written(life.birth) + ", aged " + std::to_string(age) +
                         ", on " + written(life.today));
            check(visit, reckoning, age);
            if (testing::Test::HasFailure()) return;
        }
        ++number;
    }
}

std::vector<std::string> steps_from(std::vector<std::string> cells, int first_cell) {
    std::rotate(cells.begin(), cells.begin() + (first_cell - 1), cells.end());
    return cells;
}

TEST(Consistency, SixtyLivesAreWalkedAtTwentyAgesEach) {
    EXPECT_EQ(sixty_lives().size(), 60U);
    for (int life = 0; life < 60; ++life) EXPECT_EQ(twenty_ages(life).size(), 20U);
}

TEST(Consistency, ThePalacesAreNumberedOneToTwelveFromTheSun) {
    walk([](Visit& visit, Reckoning const& reckoning, int) {
        auto const palaces = visit.cells("Label_Solaire", "Caption");
        EXPECT_EQ(std::set<std::string>(palaces.begin(), palaces.end()).size(), 12U);
        EXPECT_EQ(visit.number("palais_index"), reckoning.sun_cell);
        EXPECT_EQ(palaces, listed(reckoning.palaces));
        for (auto const& shown : visit.cells("Label_Solaire", "Visible")) {
            EXPECT_EQ(shown, "true");
        }
    });
}

TEST(Consistency, SunAndMansionAreThoseOfTheSecondReckoning) {
    walk([](Visit& visit, Reckoning const& reckoning, int) {
        EXPECT_EQ(visit.number("degre_solaire"), reckoning.degree);
        EXPECT_EQ(visit.number("numero_nakshatra"), reckoning.mansion);
        EXPECT_EQ(visit.number("numero_jour"), reckoning.weekday);
    });
}

TEST(Consistency, TheLordOfTheYearStandsInOneCellAlone) {
    walk([](Visit& visit, Reckoning const& reckoning, int age) {
        auto const lords = visit.cells("Label_annee", "Caption");
        EXPECT_EQ(std::ranges::count(lords, ""), 11);
        EXPECT_EQ(lords[static_cast<std::size_t>(reckoning.age_cell - 1)],
                  lord_name(reckoning.year_lord));
        EXPECT_EQ(visit.number("seigneur_an"), reckoning.year_lord);
        EXPECT_EQ(visit.number("colonne_age"), reckoning.age_cell);
        EXPECT_EQ(visit.number("age_courant"), age);
    });
}

TEST(Consistency, TheMonthsRunFromTheCellOfTheAge) {
    walk([](Visit& visit, Reckoning const& reckoning, int) {
        EXPECT_EQ(visit.cells("Label_mois", "Caption"), listed(reckoning.month_lords));
        EXPECT_EQ(visit.cells("Label_MoisDate", "Caption"), listed(reckoning.month_dates));
        EXPECT_EQ(visit.number("colonne_mois"), reckoning.selected_month);
    });
}

TEST(Consistency, EveryMonthIsADateOneMonthAfterTheOneBefore) {
    walk([](Visit& visit, Reckoning const& reckoning, int) {
        auto const dates =
            steps_from(visit.cells("Label_MoisDate", "Caption"), reckoning.age_cell);
        EXPECT_EQ(dates.front(), visit.text("Label_anneedefile.Caption"));
        std::vector<int> months;
        for (auto const& text : dates) {
            auto const day = read_day(text);
            ASSERT_TRUE(day) << text;
            months.push_back(day->year * 12 + day->month);
        }
        for (std::size_t k = 1; k < 12; ++k)
            EXPECT_EQ(months[k], months[0] + static_cast<int>(k));
    });
}

TEST(Consistency, OnePeriodFillsTheWholeRow) {
    walk([](Visit& visit, Reckoning const& reckoning, int) {
        auto const lords = visit.cells("Label_Dasha", "Caption");
        EXPECT_EQ(std::set<std::string>(lords.begin(), lords.end()).size(), 1U);
        EXPECT_EQ(lords, listed(reckoning.period_lords));
        EXPECT_EQ(visit.cells("Label_DashaDate", "Caption"), listed(reckoning.period_dates));
        EXPECT_EQ(visit.text("Label_Lal_Kitab.Caption"), reckoning.age_caption);
    });
}

TEST(Consistency, ThePeriodsStepsAreDatesAtEqualDistances) {
    walk([](Visit& visit, Reckoning const&, int) {
        auto const dates = visit.cells("Label_DashaDate", "Caption");
        std::vector<int> months;
        for (auto const& text : dates) {
            auto const day = read_day(text);
            ASSERT_TRUE(day) << text;
            months.push_back(day->year * 12 + day->month);
        }
        std::rotate(months.begin(), std::ranges::min_element(months), months.end());
        int const step = months[1] - months[0];
        EXPECT_TRUE(step == 1 || step == 2 || step == 3 || step == 6) << step;
        for (std::size_t k = 1; k < 12; ++k) EXPECT_EQ(months[k] - months[k - 1], step);
    });
}

TEST(Consistency, TheStepAndTheMonthInProgressAreBoldAndNothingElseIs) {
    walk([](Visit& visit, Reckoning const& reckoning, int) {
        auto const bold_cells = [&](std::string_view array) {
            std::vector<int> bold;
            auto const cells = visit.cells(array, "FontBold");
            for (int cell = 1; cell <= 12; ++cell) {
                if (cells[static_cast<std::size_t>(cell - 1)] == "true") bold.push_back(cell);
            }
            return bold;
        };
        auto const expected = [](std::optional<int> cell) {
            return cell ? std::vector<int>{*cell} : std::vector<int>{};
        };
        EXPECT_EQ(bold_cells("Label_mois"), expected(reckoning.bold_month));
        EXPECT_EQ(bold_cells("Label_Dasha"), expected(reckoning.bold_period));
        EXPECT_EQ(visit.number("colonne_dasha"), reckoning.selected_period);
    });
}

TEST(Consistency, TheCycleYearHasItsFirstAndItsLastDay) {
    walk([](Visit& visit, Reckoning const& reckoning, int age) {
        EXPECT_EQ(visit.text("Label_anneedefile.Caption"), written(reckoning.first_day));
        EXPECT_EQ(visit.text("Label_anneedefile_Suite.Caption"), written(reckoning.last_day));
        EXPECT_EQ(visit.text("Label_age.Caption"), std::to_string(age));
        EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    });
}

TEST(Consistency, MarksStandOnTheMonthsOfTheTripleCoincidence) {
    std::map<std::size_t, int> found;
    walk([&](Visit& visit, Reckoning const& reckoning, int) {
        ++found[reckoning.marks.size()];
        EXPECT_EQ(visit.text("genre_trideva"), reckoning.marks.empty() ? "" : "T");
        std::vector<int> marked;
        for (int n = 0; n < 2; ++n) {
            std::string const image = "ImageTriDeva(" + std::to_string(n + 4) + ").Visible";
            if (visit.truth(image)) {
                std::string const cell = "cellules_tridevas(" + std::to_string(n + 1) + ")";
                marked.push_back(visit.number(cell));
            }
        }
        EXPECT_EQ(marked, reckoning.marks);
    });
    // The lives chosen show all three.
    EXPECT_GT(found[0], 0);
    EXPECT_GT(found[1], 0);
    EXPECT_GT(found[2], 0);
}

TEST(Consistency, TheYearsLordIsNeverZero) {
    std::set<int> lords;
    walk([&](Visit& visit, Reckoning const&, int) {
        lords.insert(visit.number("seigneur_an"));
    });
    EXPECT_EQ(lords, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

}  // namespace
}  // namespace navarun::test
