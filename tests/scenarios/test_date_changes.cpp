// What every change of the date brings with it, whether it was typed, left half typed or
// chosen.
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "tests/scenarios/almanac.h"
#include "tests/scenarios/date_fields.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

// --- leaving a field half typed

struct HalfTyped {
    char const* field;
    char const* digit;
    char const* text;
    char const* date;
    friend std::ostream& operator<<(std::ostream& out, HalfTyped const& row) {
        return out << row.field << ' ' << row.digit;
    }
};
// Left on 04/07/2026.
// clang-format off
constexpr HalfTyped half_typed[] = {
    {"Combo_jourNaiss", "1", "04", "04/01/1900"},
    {"Combo_jourNaiss", "9", "04", "04/01/1900"},
    {"Combo_jourNaiss", "0", "04", "04/01/1900"},
    {"Combo_moisNaiss", "1", "07", "01/07/1900"},
    {"Combo_moisNaiss", "0", "07", "01/07/1900"},
    {"Combo_moisNaiss", "2", "07", "01/07/1900"},
    {"Combo_AnNaiss1",  "1", "20", "01/01/2000"},
    {"Combo_AnNaiss2",  "6", "26", "01/01/1926"},
};
// clang-format on
class HalfTypedPart : public testing::TestWithParam<HalfTyped> {};
TEST_P(HalfTypedPart, TakesTodaysValueWhenItIsLeft) {
    for (char const* next : {"Text_Note", "Text_prenom", "Command2", "HScroll_age"}) {
        Visit visit{"04/07/2026"};
        visit.type(GetParam().field, GetParam().digit);
        EXPECT_EQ(visit.number("nombre_touches"), 1);
        visit.focus(next);
        EXPECT_EQ(visit.text(std::string{GetParam().field} + ".Text"), GetParam().text) << next;
        EXPECT_EQ(date(visit), GetParam().date) << next;
        EXPECT_EQ(visit.number("nombre_touches"), 0) << next;
    }
}
INSTANTIATE_TEST_SUITE_P(Left, HalfTypedPart, testing::ValuesIn(half_typed),
                         [](auto const& row) {
                             return std::string{row.param.field} + "_" + row.param.digit;
                         });

TEST(HalfTyped, ThePresentDayIsKeptInsideTheMonth) {
    Visit visit{"31/08/2026"};
    visit.choose("Combo_moisNaiss", "02");
    visit.type("Combo_jourNaiss", "1");
    visit.focus("Text_Note");
    EXPECT_EQ(date(visit), "28/02/1900");
}

TEST(HalfTyped, ALetterTypedAndLeftChangesNothing) {
    Visit visit;
    choose_date(visit, "17", "05", "19", "62");
    for (char const* field : date_fields) {
        visit.type(field, "x");
        visit.focus("Text_Note");
        EXPECT_EQ(date(visit), "17/05/1962") << field;
    }
}

TEST(HalfTyped, PassingThroughTheFieldsChangesNothing) {
    Visit visit;
    Json const before = visit.dump();
    for (char const* field : date_fields) visit.focus(field);
    visit.focus("Text_prenom");
    EXPECT_EQ(visit.dump(), before);
}

// --- a choice from a list

TEST(Choice, ActsAtOnceAndCountsAsNoDigit) {
    Visit visit;
    visit.type("Combo_moisNaiss", "0");
    ASSERT_EQ(visit.number("nombre_touches"), 1);
    visit.choose("Combo_moisNaiss", "11");
    EXPECT_EQ(visit.number("nombre_touches"), 0);
    EXPECT_EQ(date(visit), "01/11/1900");
    visit.focus("Text_Note");
    EXPECT_EQ(date(visit), "01/11/1900");
}

TEST(Choice, OfTheEntryThatStandsMarksTheGridAsStaleAll) {
    Visit visit;
    visit.choose("Combo_jourNaiss", "01");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(1)");
    EXPECT_EQ(visit.text("jour_mois_anniv"), "01/01");
}

TEST(Choice, EndsThePartialView) {
    struct Row {
        char const* field;
        char const* item;
    };
    for (Row const& row : {Row{"Combo_jourNaiss", "02"}, Row{"Combo_moisNaiss", "02"},
                           Row{"Combo_AnNaiss1", "20"}, Row{"Combo_AnNaiss2", "01"}}) {
        Visit visit;
        visit.click("Btn_cycle_partiel");
        visit.choose(row.field, row.item);
        EXPECT_FALSE(visit.truth("cycle_partiel_actif")) << row.field;
        EXPECT_TRUE(visit.truth("Label_mois(1).Visible")) << row.field;
    }
}

TEST(Choice, TypingLeavesThePartialViewAlone) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    visit.type("Combo_jourNaiss", "17051962");
    EXPECT_TRUE(visit.truth("cycle_partiel_actif"));
}

// --- what every change brings

struct Change {
    char const* name;
    char const* field;
    char const* text;
    bool chosen;
    friend std::ostream& operator<<(std::ostream& out, Change const& row) {
        return out << row.name;
    }
};
constexpr Change changes[] = {
    {"day_typed", "Combo_jourNaiss", "17", false},
    {"month_typed", "Combo_moisNaiss", "05", false},
    {"century_typed", "Combo_AnNaiss1", "18", false},
    {"year_typed", "Combo_AnNaiss2", "62", false},
    {"day_chosen", "Combo_jourNaiss", "17", true},
    {"month_chosen", "Combo_moisNaiss", "05", true},
    {"century_chosen", "Combo_AnNaiss1", "18", true},
    {"year_chosen", "Combo_AnNaiss2", "62", true},
};
class DateChange : public testing::TestWithParam<Change> {
  protected:
    void change(Visit& visit) {
        if (GetParam().chosen) {
            visit.choose(GetParam().field, GetParam().text);
        } else {
            visit.type(GetParam().field, GetParam().text);
        }
    }
};
TEST_P(DateChange, PutsTheAgeBackToOne) {
    Visit visit;
    visit.generate_at(40);
    change(visit);
    EXPECT_EQ(visit.number("HScroll_age.Value"), 1);
    EXPECT_EQ(visit.number("age_courant"), 1);
    EXPECT_EQ(visit.text("Label_age.Caption"), "1");
}
TEST_P(DateChange, TurnsTheGridStaleAndTheDisketteRed) {
    Visit visit;
    change(visit);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(1)");
}
TEST_P(DateChange, LeavesTheJulianMode) {
    Visit visit;
    visit.click("Mnu_Julien");
    ASSERT_TRUE(visit.truth("Mnu_Julien.Checked"));
    change(visit);
    EXPECT_FALSE(visit.truth("Mnu_Julien.Checked"));
    EXPECT_FALSE(visit.truth("Image_cal_Julien.Visible"));
    EXPECT_EQ(visit.text("Label_cal_julien.Caption"), "Naissance 1600 - 2199");
    EXPECT_EQ(visit.text("Label_cal_julien.ForeColor"), "#000000");
    // The record keeps what was chosen by hand.
    EXPECT_EQ(visit.number("julien_actif"), 1);
}
INSTANTIATE_TEST_SUITE_P(Every, DateChange, testing::ValuesIn(changes),
                         [](auto const& row) { return std::string{row.param.name}; });

struct FirstDigit {
    char const* field;
    char const* digit;
};
TEST(FirstDigit, TurnsTheGridStaleAlready) {
    for (FirstDigit const& row :
         {FirstDigit{"Combo_jourNaiss", "2"}, FirstDigit{"Combo_moisNaiss", "1"},
          FirstDigit{"Combo_AnNaiss1", "2"}, FirstDigit{"Combo_AnNaiss2", "7"}}) {
        Visit visit;
        visit.type(row.field, row.digit);
        EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE") << row.field;
        EXPECT_FALSE(visit.truth("MnuImprime.Enabled")) << row.field;
    }
}

// Digit by digit: the weekday and the numbers are always those of the date on screen.
TEST(Weekday, IsThatOfTheDateOnScreenAfterEveryDigit) {
    for (std::string const digits :
         {"17051962", "14071789", "29022000", "31129999", "00000000", "28022101", "95209545"}) {
        Visit visit;
        visit.focus("Combo_jourNaiss");
        char const* field = "Combo_jourNaiss";
        for (std::size_t i = 0; i < digits.size(); ++i) {
            if (i % 2 == 0) field = date_fields[i / 2];
            visit.type(field, digits.substr(i, 1));
            std::string shown = date(visit);
            if (shown.size() == 9) shown.insert(0, "0");  // a day of one digit
            auto const day = read_day(shown);
            if (!day) continue;
            EXPECT_EQ(visit.number("numero_jour"), weekday_number(*day)) << shown;
            EXPECT_EQ(visit.number("seigneur_jour"), weekday_lord_number(weekday_number(*day)))
                << shown;
            int const rest = day->day % 9;
            EXPECT_EQ(visit.number("dinanka"), rest == 0 ? 9 : rest) << shown;
        }
        EXPECT_TRUE(read_day(date(visit))) << digits;
    }
}

// While a day of 0 stands no weekday can be told, and the last one stays.
TEST(Weekday, OfABegunZeroStaysThatOfTheLastDate) {
    Visit visit;
    visit.type("Combo_jourNaiss", "0");
    EXPECT_EQ(date(visit), "0/01/1900");
    EXPECT_EQ(visit.text("Label_jourdeSemaine.Caption"), "Lundi");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "01/01/1901");
}

struct DayOfWeek {
    char const* digits;
    char const* name;
    char const* divinity;
    int lord;
    char const* back;
    char const* fore;
    char const* reading;
    friend std::ostream& operator<<(std::ostream& out, DayOfWeek const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr DayOfWeek days_of_week[] = {
    {"07011900", "Dimanche", "Surya 1",   1, "#800000", "#FFFFFF",
     "(^_^) Orgueilleux, ambitieux, autoritaire, confiant en lui, enthousiaste, esprit clair et "
     "cartésien. Recherche d'élévation.\r\n\r\n(>_<) Égoïsme, autoritaire, domination, impose "
     "son point de vue."},
    {"01011900", "Lundi",    "Chandra 2", 2, "#FFFFFF", "#000000",
     "(^_^) Nature réceptive et sensible, émotif, rêveur, imaginatif, intuitif, réceptif, "
     "créatif, fécond,goût des relations.\r\n\r\n(>_<) Irréalisme, caractère lunatique ou "
     "instable, émotif, faiblesse."},
    {"14071789", "Mardi",    "Kuja 9",    9, "#FF8080", "#000000",
     "(^_^) Combativité, force,Impulsif, passionné, brave, actif, courageux, audacieux, franc, "
     "volontaire et ardent. \r\n\r\n(>_<) Tempérament colérique, Impulsif, Intransigeance, "
     "arrogance ou agressivité, ne prend pas le temps."},
    {"01092021", "Mercredi", "Budha 5",   5, "#80FF80", "#000000",
     "(^_^) vivacité d'esprit, Communicatif, habile, diplomate, souple, adaptable,sens des "
     "échanges, qualités intellectuelles.\r\n\r\n(>_<) Tendance aux mensonge,a l'hypocrisie, "
     "rusé, menteur, instable, hésitant,nerveux."},
    {"17051962", "Jeudi",    "Guru 3",    3, "#FFFF80", "#000000",
     "(^_^) Ambitieux, loyal, moral, optimiste, franc, jovial, expansif, sensuel, sens de la "
     "justice et des règles.\r\n\r\n(>_<) Excès de toute nature, à l’exagération, "
     "éparpillement, aventure risquées."},
    {"31122100", "Vendredi", "Shukra 6",  6, "#FFFFFF", "#000000",
     "(^_^) Sensible, sensuel, créatif, gentil, sentimental, recherche l'harmonie, sociable, "
     "gai, rieur, charmant, sens de l'humain.\r\n\r\n(>_<) Versatilité, indécision, caprices, "
     "désordre, matérialiste, inclinations douteuses."},
    {"01012000", "Samedi",   "Shani 8",   8, "#000000", "#FFFFFF",
     "(^_^) Sens du devoir, réfléchi, patient, fidèle, concentré,prudent, persévérant, cérébral "
     "et solitaire.\r\n\r\n(>_<) Pessimiste, froideur, introversion, manque de dynamisme, "
     "esprit limité."},
};
// clang-format on
class WeekdayOf : public testing::TestWithParam<DayOfWeek> {};
TEST_P(WeekdayOf, HasItsLordItsColoursAndItsReading) {
    Visit visit;
    visit.type("Combo_jourNaiss", GetParam().digits);
    EXPECT_EQ(visit.text("Label_jourdeSemaine.Caption"), GetParam().name);
    EXPECT_EQ(visit.text("Label_divinite.Caption"), GetParam().divinity);
    EXPECT_EQ(visit.number("seigneur_jour"), GetParam().lord);
    EXPECT_EQ(visit.text("Label_divinite.BackColor"), GetParam().back);
    EXPECT_EQ(visit.text("Label_divinite.ForeColor"), GetParam().fore);
    EXPECT_EQ(visit.text("Text_jourdeSemaine.Text"), GetParam().reading);
    EXPECT_EQ(visit.text("texte_jour"), GetParam().reading);
}
INSTANTIATE_TEST_SUITE_P(Weekday, WeekdayOf, testing::ValuesIn(days_of_week),
                         [](auto const& row) { return std::string{row.param.name}; });

TEST(Numbers, TheYearCountsAsTwoNumbers) {
    Visit visit;
    choose_date(visit, "17", "05", "19", "62");
    EXPECT_EQ(visit.text("Label_dinanka_Purnanka.Caption"), "Dinânka: 8  Purnânka: 4");
    choose_date(visit, "09", "09", "19", "09");
    EXPECT_EQ(visit.text("Label_dinanka_Purnanka.Caption"), "Dinânka: 9  Purnânka: 1");
    choose_date(visit, "18", "01", "17", "00");
    EXPECT_EQ(visit.text("Label_dinanka_Purnanka.Caption"), "Dinânka: 9  Purnânka: 9");
}

TEST(JulianEntry, IsOpenForBirthYearsBelow2000) {
    Visit visit;
    for (auto const& [century, year, open] :
         {std::tuple{"19", "99", true}, std::tuple{"20", "00", false},
          std::tuple{"16", "00", true}, std::tuple{"21", "99", false}}) {
        choose_date(visit, "01", "01", century, year);
        EXPECT_EQ(visit.truth("Mnu_Julien.Enabled"), open) << century << year;
    }
}

}  // namespace
}  // namespace navarun::test
