// The lords of days and hours: the ring of the hours and the listing.
#include <array>
#include <chrono>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/scenarios/date_fields.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

// From 6 h to 5 h, Sunday to Saturday.
constexpr std::array hour_rows{
    "06 h   Su  Ca  Ku  Bu  Gu  Sk  Sa", "07 h   Sk  Sa  Su  Ca  Ku  Bu  Gu",
    "08 h   Bu  Gu  Sk  Sa  Su  Ca  Ku", "09 h   Ca  Ku  Bu  Gu  Sk  Sa  Su",
    "10 h   Sa  Su  Ca  Ku  Bu  Gu  Sk", "11 h   Gu  Sk  Sa  Su  Ca  Ku  Bu",
    "12 h   Ku  Bu  Gu  Sk  Sa  Su  Ca", "13 h   Su  Ca  Ku  Bu  Gu  Sk  Sa",
    "14 h   Sk  Sa  Su  Ca  Ku  Bu  Gu", "15 h   Bu  Gu  Sk  Sa  Su  Ca  Ku",
    "16 h   Ca  Ku  Bu  Gu  Sk  Sa  Su", "17 h   Sa  Su  Ca  Ku  Bu  Gu  Sk",
    "18 h   Gu  Sk  Sa  Su  Ca  Ku  Bu", "19 h   Ku  Bu  Gu  Sk  Sa  Su  Ca",
    "20 h   Su  Ca  Ku  Bu  Gu  Sk  Sa", "21 h   Sk  Sa  Su  Ca  Ku  Bu  Gu",
    "22 h   Bu  Gu  Sk  Sa  Su  Ca  Ku", "23 h   Ca  Ku  Bu  Gu  Sk  Sa  Su",
    "00 h   Sa  Su  Ca  Ku  Bu  Gu  Sk", "01 h   Gu  Sk  Sa  Su  Ca  Ku  Bu",
    "02 h   Ku  Bu  Gu  Sk  Sa  Su  Ca", "03 h   Su  Ca  Ku  Bu  Gu  Sk  Sa",
    "04 h   Sk  Sa  Su  Ca  Ku  Bu  Gu", "05 h   Bu  Gu  Sk  Sa  Su  Ca  Ku",
};

constexpr std::array month_names{"JANVIER",   "FÉVRIER", "MARS",     "AVRIL",
                                 "MAI",       "JUIN",    "JUILLET",  "AOÛT",
                                 "SEPTEMBRE", "OCTOBRE", "NOVEMBRE", "DÉCEMBRE"};
constexpr std::array day_names{"Dim", "Lun", "Mar", "Mer", "Jeu", "Ven", "Sam"};
constexpr std::array day_lords{"Surya", "Chandra", "Kuja", "Budha", "Guru", "Shukra", "Shani"};

std::string digits(int number, std::size_t width) {
    std::string text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

std::string written(sys_days date) {
    year_month_day const fields{date};
    return digits(static_cast<int>(unsigned{fields.day()}), 2) + "/" +
           digits(static_cast<int>(unsigned{fields.month()}), 2) + "/" +
           digits(int{fields.year()}, 4);
}

std::vector<std::string> lines(Visit& visit) {
    return visit.value("FrmSeigneurJour.List_SeigneurJour.List")
        .get<std::vector<std::string>>();
}

/// From row 32 on.
std::vector<std::string> year_rows(sys_days first, sys_days last) {
    std::vector<std::string> rows;
    for (sys_days day = first; day <= last; day += days{1}) {
        year_month_day const fields{day};
        if (day == first || unsigned{fields.day()} == 1) {
            rows.push_back(std::string{month_names[unsigned{fields.month()} - 1]} + " " +
                           std::to_string(int{fields.year()}));
        }
        auto const weekday = std::chrono::weekday{day}.c_encoding();
        rows.push_back(std::string{day_names[weekday]} + " " + written(day) + "   " +
                       day_lords[weekday]);
    }
    return rows;
}

std::vector<std::string> year_rows_of(Visit& visit) {
    auto const all = lines(visit);
    return all.size() < 32 ? all : std::vector<std::string>{all.begin() + 32, all.end()};
}

sys_days date(int day, int month, int year) {
    return sys_days{std::chrono::year{year} / month / day};
}

constexpr char const* full_name(std::string_view short_name) {
    if (short_name == "Su") return "Surya";
    if (short_name == "Ca") return "Chandra";
    if (short_name == "Ku") return "Kuja";
    if (short_name == "Bu") return "Budha";
    if (short_name == "Gu") return "Guru";
    if (short_name == "Sk") return "Shukra";
    return "Shani";
}

// 15 November 2026 is a Sunday.
TEST(LordsWindow, EveryHourOfAWeekHasTheLordOfItsDayAndOfTheRing) {
    Visit visit{"15/11/2026", "06:00:00"};
    for (int hours = 6; hours < 6 + 7 * 24; ++hours) {
        std::string const today = written(date(15, 11, 2026) + days{hours / 24});
        visit.clock(today, digits(hours % 24, 2) + ":30:00");
        visit.click("Bouton_seigneurjour");
        auto const found = lines(visit);
        auto const day = static_cast<std::size_t>((hours - 6) / 24);
        auto const row = static_cast<std::size_t>((hours - 6) % 24);
        std::string const lord = std::string{hour_rows[row]}.substr(7 + day * 4, 2);
        EXPECT_EQ(found[2], std::string{"Seigneur du jour: "} + day_lords[day]) << hours;
        EXPECT_EQ(found[3], std::string{"Seigneur de l'heure: "} + full_name(lord)) << hours;
    }
}

TEST(LordsWindow, ListsTheHoursBelowItsTitles) {
    Visit visit;
    visit.click("Bouton_seigneurjour");
    auto const found = lines(visit);
    EXPECT_EQ(found[4], "");
    EXPECT_EQ(found[5], "Heure   Di  Lu  Ma  Me  Je  Ve  Sa");
    std::string overlines;
    for (int i = 0; i < 30; ++i) overlines += "¯";
    EXPECT_EQ(found[6], overlines);
    for (std::size_t i = 0; i < hour_rows.size(); ++i) EXPECT_EQ(found[7 + i], hour_rows[i]);
    EXPECT_EQ(found[31], "");
}

struct MomentCase {
    char const* name;
    char const* time;
    char const* day_lord;
    char const* hour_lord;
    friend std::ostream& operator<<(std::ostream& out, MomentCase const& row) {
        return out << row.name;
    }
};
// Saturday 21 November 2026, and the Friday before it.
// clang-format off
constexpr MomentCase moment_cases[] = {
    {"midnight_belongs_to_the_day_before", "00:00:00", "Shukra", "Guru"   },
    {"last_minute_before_6",               "05:59:59", "Shukra", "Chandra"},
    {"first_hour_is_the_lord_of_the_day",  "06:00:00", "Shani",  "Shani"  },
    {"still_the_first_hour",               "06:59:59", "Shani",  "Shani"  },
    {"last_minute_of_the_civil_day",       "23:59:59", "Shani",  "Surya" },
};
// clang-format on
class Moment : public testing::TestWithParam<MomentCase> {};
TEST_P(Moment, HasItsLords) {
    Visit visit{"21/11/2026", GetParam().time};
    visit.click("Bouton_seigneurjour");
    EXPECT_EQ(lines(visit)[2], std::string{"Seigneur du jour: "} + GetParam().day_lord);
    EXPECT_EQ(lines(visit)[3], std::string{"Seigneur de l'heure: "} + GetParam().hour_lord);
}
INSTANTIATE_TEST_SUITE_P(LordsWindow, Moment, testing::ValuesIn(moment_cases),
                         [](auto const& row) { return row.param.name; });

TEST(LordsWindow, OfNobodySaysSoAndATrimmedNameOtherwise) {
    Visit visit;
    visit.click("Bouton_seigneurjour");
    EXPECT_EQ(lines(visit)[0], "NOM INCONNU");
    EXPECT_EQ(lines(visit)[1], "01/01/1900");
    visit.set("Text_nom", "Zola");
    visit.click("Bouton_seigneurjour");
    EXPECT_EQ(lines(visit)[0], "Zola");
    visit.set("Text_nom", "");
    visit.set("Text_prenom", "Luc");
    visit.click("Bouton_seigneurjour");
    EXPECT_EQ(lines(visit)[0], "Luc");
    visit.set("Text_nom", "Roux");
    choose_date(visit, "29", "02", "19", "60");
    visit.click("Command2");
    visit.click("Bouton_seigneurjour");
    EXPECT_EQ(lines(visit)[0], "Luc Roux");
    EXPECT_EQ(lines(visit)[1], "29/02/1960");
}

TEST(LordsWindow, AYearFromAFirstOfJanuaryHasOneHeadingAMonth) {
    Visit visit;
    visit.click("Bouton_seigneurjour");
    auto const found = year_rows_of(visit);
    EXPECT_EQ(found[0], "JANVIER 1901");
    EXPECT_EQ(found[1], "Mar 01/01/1901   Kuja");
    EXPECT_EQ(found.size(), 365u + 12u);
    EXPECT_EQ(found, year_rows(date(1, 1, 1901), date(31, 12, 1901)));
}

TEST(LordsWindow, ALeapCycleYearHas366Days) {
    Visit visit;
    visit.generate_at(4);
    visit.click("Bouton_seigneurjour");
    auto const found = year_rows_of(visit);
    EXPECT_EQ(found.size(), 366u + 12u);
    EXPECT_EQ(found, year_rows(date(1, 1, 1904), date(31, 12, 1904)));
}

TEST(LordsWindow, AYearFromTheMiddleOfAMonthHasTheHeadingOfItsFirstDayToo) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(1);
    visit.click("Bouton_seigneurjour");
    auto const found = year_rows_of(visit);
    EXPECT_EQ(found[0], "MAI 1963");
    EXPECT_EQ(found[1], "Ven 17/05/1963   Shukra");
    EXPECT_EQ(found.size(), 366u + 13u);
    EXPECT_EQ(found, year_rows(date(17, 5, 1963), date(16, 5, 1964)));
}

TEST(LordsWindow, ABirthOnALeapDayHasItsYearsBetweenTheLabels) {
    for (int age : {1, 3, 4, 5, 8}) {
        Visit visit;
        choose_date(visit, "29", "02", "19", "60");
        visit.generate_at(age);
        visit.click("Bouton_seigneurjour");
        int const year = 1960 + age;
        bool const leap = year % 4 == 0;
        sys_days const first = leap ? date(29, 2, year) : date(28, 2, year);
        // The day before the anniversary, a year on.
        sys_days const last = leap ? date(28, 2, year + 1) : date(27, 2, year + 1);
        EXPECT_EQ(year_rows_of(visit), year_rows(first, last)) << age;
    }
}

TEST(LordsWindow, IsFilledAgainAtEachOpening) {
    Visit visit;
    visit.click("Bouton_seigneurjour");
    visit.click("FrmSeigneurJour.Btn_Fermez");
    EXPECT_FALSE(visit.truth("FrmSeigneurJour.Visible"));
    visit.clock("22/11/2026", "06:00:00");
    visit.generate_for("17051962");
    auto const stale = lines(visit);
    EXPECT_EQ(stale[1], "01/01/1900");
    EXPECT_EQ(stale[2], "Seigneur du jour: Shani");
    visit.click("Bouton_seigneurjour");
    EXPECT_TRUE(visit.truth("FrmSeigneurJour.Visible"));
    EXPECT_EQ(lines(visit)[1], "17/05/1962");
    EXPECT_EQ(lines(visit)[2], "Seigneur du jour: Surya");
    visit.ask({{"op", "close"}, {"form", "FrmSeigneurJour"}});
    EXPECT_FALSE(visit.truth("FrmSeigneurJour.Visible"));
    visit.clock("23/11/2026", "06:00:00");
    visit.click("Bouton_seigneurjour");
    EXPECT_EQ(lines(visit)[2], "Seigneur du jour: Chandra");
}

TEST(LordsWindow, AClickInItsListDoesNothing) {
    Visit visit;
    visit.click("Bouton_seigneurjour");
    auto const before = lines(visit);
    visit.ask(
        {{"op", "choose"}, {"control", "FrmSeigneurJour.List_SeigneurJour"}, {"index", 12}});
    EXPECT_EQ(lines(visit), before);
    EXPECT_TRUE(visit.effects().empty());
}

TEST(LordsWindow, HasItsCaptionTooltipsAndColours) {
    Visit visit;
    visit.click("MnuMauve_cycle");
    visit.click("Bouton_seigneurjour");
    EXPECT_EQ(visit.text("FrmSeigneurJour.Caption"), "Seigneur du Jour");
    EXPECT_EQ(visit.text("FrmSeigneurJour.Btn_Imprime.ToolTipText"),
              "Imprime les seigneurs du jour");
    EXPECT_EQ(visit.text("FrmSeigneurJour.Btn_Fermez.ToolTipText"), "Ferme la fenêtre");
    EXPECT_EQ(visit.text("FrmSeigneurJour.BackColor"), "#CCB2FC");
}

}  // namespace
}  // namespace navarun::test
