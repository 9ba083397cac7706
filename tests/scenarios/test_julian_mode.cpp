// A birth entered in the Julian calendar: converted, never stored converted.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {
namespace {

struct Conversion {
    char const* digits;  // Julian, ddmmyyyy
    char const* gregorian;
    char const* weekday;
    char const* tooltip;
    friend std::ostream& operator<<(std::ostream& out, Conversion const& row) {
        return out << row.digits;
    }
};

// Ten days from 1600 on, eleven from March 1700, twelve from March 1800, thirteen from March
// 1900. The leap days of 1700, 1800 and 1900 that only the Julian calendar has come by the
// century, see below.
// clang-format off
constexpr Conversion conversions[] = {
    {"01011950", "14/01/1950", "Samedi",   "sam. 14/01/1950"},
    {"25121949", "07/01/1950", "Samedi",   "sam. 07/01/1950"},
    {"01031900", "14/03/1900", "Mercredi", "mer. 14/03/1900"},
    {"28021900", "12/03/1900", "Lundi",    "lun. 12/03/1900"},
    {"28021800", "11/03/1800", "Mardi",    "mar. 11/03/1800"},
    {"01031800", "13/03/1800", "Jeudi",    "jeu. 13/03/1800"},
    {"28021700", "10/03/1700", "Mercredi", "mer. 10/03/1700"},
    {"01031700", "12/03/1700", "Vendredi", "ven. 12/03/1700"},
    {"01011600", "11/01/1600", "Mardi",    "mar. 11/01/1600"},
    {"31121699", "10/01/1700", "Dimanche", "dim. 10/01/1700"},
    {"31121999", "13/01/2000", "Jeudi",    "jeu. 13/01/2000"},
};
// clang-format on

class Julian : public testing::TestWithParam<Conversion> {};
TEST_P(Julian, DateIsTheGregorianOneOfTheSameDay) {
    Visit visit;
    visit.type("Combo_jourNaiss", GetParam().digits);
    visit.click("Mnu_Julien");
    std::string const gregorian = GetParam().gregorian;
    EXPECT_EQ(visit.text("date_convertie"), gregorian);
    EXPECT_EQ(visit.text("jour_converti"), gregorian.substr(0, 2));
    EXPECT_EQ(visit.text("mois_converti"), gregorian.substr(3, 2));
    EXPECT_EQ(visit.text("annee_convertie"), gregorian.substr(6));
    EXPECT_EQ(visit.text("annee_solaire"), gregorian.substr(6));
    EXPECT_EQ(visit.text("Label_jourdeSemaine.Caption"), GetParam().weekday);
    visit.hover("Image_cal_Julien");
    EXPECT_EQ(visit.text("Image_cal_Julien.ToolTipText"),
              std::string{"Grégorien: "} + GetParam().tooltip);
}
INSTANTIATE_TEST_SUITE_P(Mode, Julian, testing::ValuesIn(conversions),
                         [](auto const& row) { return std::string{row.param.digits}; });

struct Look {
    bool checked;
    char const* caption;
    char const* colour;
    bool image;
};
void expect_look(Visit& visit, Look const& look) {
    EXPECT_EQ(visit.truth("Mnu_Julien.Checked"), look.checked);
    EXPECT_EQ(visit.text("Label_cal_julien.Caption"), look.caption);
    EXPECT_EQ(visit.text("Label_cal_julien.ForeColor"), look.colour);
    EXPECT_EQ(visit.truth("Image_cal_Julien.Visible"), look.image);
}
constexpr Look gregorian{false, "Naissance 1600 - 2199", "#000000", false};
constexpr Look clicked{true, "Date du cal. Julien", "#FF0000", true};
constexpr Look generated{true, "Date en cal. Julien", "#FF0000", true};

TEST(JulianMode, HasTwoWordingsTheClicksAndTheGenerations) {
    Visit visit;
    expect_look(visit, gregorian);
    visit.click("Mnu_Julien");
    expect_look(visit, clicked);
    visit.click("Command2");
    expect_look(visit, generated);
    visit.click("Mnu_Julien");
    expect_look(visit, gregorian);
    visit.click("Command2");
    expect_look(visit, gregorian);
}

TEST(JulianMode, EnterOnTheAgeBarBringsTheGenerationsWording) {
    Visit visit;
    visit.click("Mnu_Julien");
    visit.key("HScroll_age", 13);
    expect_look(visit, generated);
}

TEST(JulianMode, IsSwitchedOffByAClickOnItsImage) {
    Visit visit;
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.number("julien_actif"), 1);
    visit.click("Image_cal_Julien");
    EXPECT_EQ(visit.number("julien_actif"), 0);
    expect_look(visit, gregorian);
    EXPECT_EQ(visit.text("Label_jourdeSemaine.Caption"), "Lundi");
}

TEST(JulianMode, TheImageCannotBeReachedInTheGregorianCalendar) {
    Visit visit;
    EXPECT_EQ(visit.ask({{"op", "click"}, {"control", "Image_cal_Julien"}})["error"],
              "refused");
    EXPECT_EQ(visit.ask({{"op", "hover"}, {"control", "Image_cal_Julien"}})["error"],
              "refused");
}

TEST(JulianMode, TurnsTheDisketteRed) {
    Visit visit;
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(1)");
}

TEST(JulianMode, PutsTheAgeBackToOne) {
    Visit visit;
    visit.generate_at(40);
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 1);
    EXPECT_EQ(visit.text("Label_annee(9).Caption"), "");
}

TEST(JulianMode, EndsThePartialView) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    visit.click("Mnu_Julien");
    EXPECT_FALSE(visit.truth("cycle_partiel_actif"));
}

// The boundary rows and their year are those of the converted date.
TEST(JulianMode, TheSunIsTestedAfterTheConversion) {
    Visit visit;
    visit.type("Combo_jourNaiss", "25121949");
    visit.click("Command2");
    EXPECT_EQ(visit.number("degre_solaire"), 11);
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.number("signe_solaire"), 9);
    // 07/01/1950 in the rows that end on 12/01: 7 + 29 - 12.
    EXPECT_EQ(visit.number("degre_solaire"), 24);
    EXPECT_EQ(visit.text("annee_solaire"), "1950");
    EXPECT_EQ(visit.number("annee_calcul"), 1949);
}

TEST(JulianMode, CanLeadOutOfTheYearsOfTheEntry) {
    Visit visit;
    visit.type("Combo_jourNaiss", "31121999");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("annee_solaire"), "2000");
    // The year 2000 on 13/01 enters sign 10.
    EXPECT_EQ(visit.number("signe_solaire"), 10);
    EXPECT_EQ(visit.number("degre_solaire"), 0);
    EXPECT_TRUE(visit.truth("Mnu_Julien.Enabled"));
}

// The dates of the person stay those that were entered.
TEST(JulianMode, TheCycleYearsCountFromTheDateEntered) {
    Visit visit;
    visit.type("Combo_jourNaiss", "25121949");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("date_naissance"), "25/12/1949");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "25/12/1950");
    EXPECT_EQ(visit.text("Label_DashaDate(9).Caption"), "25/12/1950");
    EXPECT_EQ(visit.text("Label_dinanka_Purnanka.Caption"), "Dinânka: 7  Purnânka: 6");
}

// A whole recalculation, and yet the grid stays stale: the weekday is worked out after it.
TEST(JulianMode, LeavesTheGridStaleUntilTheNextGeneration) {
    Visit visit;
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.text("Command2.ToolTipText"), "Cycle faux !");
    EXPECT_FALSE(visit.truth("MnuImprime.Enabled"));
    // 01/01/1900 is 13/01/1900, the second day of sign 10.
    EXPECT_EQ(visit.text("Label_zodiac.Caption"), "1 °  Crocodile");
    EXPECT_EQ(visit.text("Label_Solaire(10).Caption"), "1");
    EXPECT_EQ(visit.text("Label_Solaire(9).Caption"), "12");
    // Saturday: 8 + 1 + 1 + 1 = 11, that is 2.
    EXPECT_EQ(visit.text("Label_annee(10).Caption"), "Chandra");
    visit.click("Command2");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(visit.text("Label_annee(10).Caption"), "Chandra");
}

// 06/01/1970 has marks at the age of 1; the calendar's switch leaves them where they stand.
TEST(JulianMode, LeavesTheMarksOfTheLastGeneration) {
    Visit visit;
    visit.generate_for("06011970");
    ASSERT_EQ(visit.text("genre_trideva"), "T");
    auto const marks = [&] {
        std::vector<Json> found;
        for (char const* image : {"ImageTriDeva(4)", "ImageTriDeva(5)"}) {
            for (char const* property : {".Visible", ".Left", ".Top"}) {
                found.push_back(visit.value(std::string{image} + property));
            }
        }
        return found;
    };
    auto const before = marks();
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("genre_trideva"), "T");
    EXPECT_EQ(marks(), before);
    visit.click("Command2");
    EXPECT_NE(marks(), before);
}

TEST(JulianMode, IsClosedFromTheYear2000On) {
    Visit visit;
    visit.choose("Combo_AnNaiss1", "20");
    EXPECT_FALSE(visit.truth("Mnu_Julien.Enabled"));
    EXPECT_EQ(visit.ask({{"op", "click"}, {"control", "Mnu_Julien"}})["error"], "refused");
    visit.choose("Combo_AnNaiss1", "19");
    EXPECT_TRUE(visit.truth("Mnu_Julien.Enabled"));
}

// Chosen over 29/02/2000, the century leaves a day that only the Julian calendar has.
class JulianLeapDay : public testing::Test {
  protected:
    JulianLeapDay() {
        visit.choose("Combo_AnNaiss1", "20");
        visit.choose("Combo_AnNaiss2", "00");
        visit.choose("Combo_moisNaiss", "02");
        visit.choose("Combo_jourNaiss", "29");
        visit.choose("Combo_AnNaiss1", "19");
    }
    Visit visit;
};

TEST_F(JulianLeapDay, Of1900IsThe13thOfMarch) {
    ASSERT_EQ(visit.text("date_naissance"), "29/02/1900");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("date_convertie"), "13/03/1900");
    EXPECT_EQ(visit.text("Label_jourdeSemaine.Caption"), "Mardi");
    EXPECT_EQ(visit.text("jour_naissance"), "29");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "29");
}

// The conversion rewords the date until it is next made from its parts.
TEST_F(JulianLeapDay, IsWordedAsThe28thUntilTheDateIsNextBuilt) {
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("date_naissance"), "28/02/1900");
    visit.set("HScroll_age", 2);
    EXPECT_EQ(visit.text("date_naissance"), "29/02/1900");
}

TEST_F(JulianLeapDay, TwoGenerationsInARowGiveTheSameDay) {
    visit.click("Mnu_Julien");
    visit.click("Command2");
    EXPECT_EQ(visit.text("date_convertie"), "13/03/1900");
    Json const first = visit.dump();
    visit.click("Command2");
    EXPECT_EQ(visit.text("date_convertie"), "13/03/1900");
    EXPECT_EQ(visit.dump(), first);
}

TEST_F(JulianLeapDay, Of1800And1700AreConvertedToo) {
    visit.choose("Combo_AnNaiss1", "18");
    ASSERT_EQ(visit.text("date_naissance"), "29/02/1800");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("date_convertie"), "12/03/1800");
    visit.choose("Combo_AnNaiss1", "17");
    ASSERT_EQ(visit.text("date_naissance"), "29/02/1700");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("date_convertie"), "11/03/1700");
}

TEST_F(JulianLeapDay, OfTheGregorianYear1600NeedsNoRewording) {
    visit.choose("Combo_AnNaiss1", "16");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.text("date_naissance"), "29/02/1600");
    EXPECT_EQ(visit.text("date_convertie"), "10/03/1600");
}

TEST(JulianMode, ADateThatCannotBeReadIsTold) {
    Visit visit;
    visit.type("Combo_jourNaiss", "01011950");
    visit.click("Mnu_Julien");
    ASSERT_EQ(visit.text("date_convertie"), "14/01/1950");
    visit.effects();
    visit.type("Combo_jourNaiss", "0");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"box","title":"Erreur",
        "text":"Mauvais format de date !","answer":1}])"));
    // What was converted last is kept, and the sun's cell is that of a year without rows.
    EXPECT_EQ(visit.text("date_convertie"), "14/01/1950");
    EXPECT_EQ(visit.text("jour_converti"), "14");
    EXPECT_EQ(visit.text("annee_convertie"), "1950");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_TRUE(visit.truth("Mnu_Julien.Checked"));
    int const sun = visit.number("palais_index");
    EXPECT_EQ(sun, 10);
    EXPECT_FALSE(visit.truth("Label_Solaire(10).Visible"));
    EXPECT_EQ(visit.text("Label_Solaire(11).Caption"), "2");
}

TEST(JulianMode, ADateThatCannotBeReadIsToldInTheGregorianCalendarByNobody) {
    Visit visit;
    visit.click("Mnu_Julien");
    visit.type("Combo_jourNaiss", "0");
    visit.effects();
    EXPECT_FALSE(visit.truth("Mnu_Julien.Checked"));
    EXPECT_EQ(visit.effects(), Json::array());
}

// Before the first row of the table nothing is converted, and nothing is said.
TEST(JulianMode, ADateBeforeTheTableConvertsToNothing) {
    Visit visit;
    visit.click("Mnu_Julien");
    ASSERT_EQ(visit.text("date_convertie"), "13/01/1900");
    visit.set("Combo_AnNaiss1", "1");
    visit.set("Combo_AnNaiss2", "99");
    ASSERT_EQ(visit.text("date_naissance"), "01/01/0199");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.effects(), Json::array());
    EXPECT_EQ(visit.text("date_convertie"), "");
    EXPECT_EQ(visit.text("jour_converti"), "");
    EXPECT_EQ(visit.text("mois_converti"), "");
    EXPECT_EQ(visit.text("annee_convertie"), "");
    EXPECT_EQ(visit.number("palais_index"), 10);
    EXPECT_FALSE(visit.truth("Label_Solaire(10).Visible"));
}

TEST(JulianMode, TheWordOfTheRecordStaysWhenADateChangeLeavesTheMode) {
    Visit visit;
    visit.click("Mnu_Julien");
    visit.choose("Combo_jourNaiss", "02");
    EXPECT_FALSE(visit.truth("Mnu_Julien.Checked"));
    EXPECT_EQ(visit.number("julien_actif"), 1);
    visit.click("Command2");
    EXPECT_EQ(visit.number("julien_actif"), 1);
    EXPECT_EQ(visit.text("annee_solaire"), "1900");
    visit.click("Mnu_Julien");
    visit.click("Mnu_Julien");
    EXPECT_EQ(visit.number("julien_actif"), 0);
}

TEST(JulianMode, AnAgeWalkedToKeepsIt) {
    Visit visit;
    visit.click("Mnu_Julien");
    visit.set("HScroll_age", 30);
    visit.drag("HScroll_age", 31);
    visit.click("Command2");
    expect_look(visit, generated);
    EXPECT_EQ(visit.number("palais_index"), 10);
}

}  // namespace
}  // namespace navarun::test
