// Beginning anew for another person.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/start_up/files_of_a_folder.h"

namespace navarun::test {

namespace {

struct Today {
    char const* name;
    char const* date;
    char const* parts[4];
    friend std::ostream& operator<<(std::ostream& out, Today const& row) {
        return out << row.name;
    }
};
constexpr Today todays[] = {
    {"autumn_day", "21/11/2026", {"21", "11", "20", "26"}},
    {"leap_day", "29/02/2028", {"29", "02", "20", "28"}},
    {"day_before_a_leap_day", "28/02/2028", {"28", "02", "20", "28"}},
    {"first_of_january", "01/01/2027", {"01", "01", "20", "27"}},
    {"last_of_december", "31/12/2026", {"31", "12", "20", "26"}},
    {"thirtieth", "30/04/2027", {"30", "04", "20", "27"}},
    {"year_of_a_new_century", "15/06/2100", {"15", "06", "21", "00"}},
    {"single_digits", "05/09/2005", {"05", "09", "20", "05"}},
};

class ResetDay : public testing::TestWithParam<Today> {};
INSTANTIATE_TEST_SUITE_P(Days, ResetDay, testing::ValuesIn(todays),
                         [](auto const& row) { return row.param.name; });

TEST_P(ResetDay, ShowsThatDateAndItsGrid) {
    Visit visit{GetParam().date};
    visit.click("Command_reset");
    constexpr char const* combos[] = {"Combo_jourNaiss.Text", "Combo_moisNaiss.Text",
                                      "Combo_AnNaiss1.Text", "Combo_AnNaiss2.Text"};
    constexpr char const* parts[] = {"jour_naissance", "mois_naissance", "siecle_naissance",
                                     "annee_naissance"};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(visit.text(combos[i]), GetParam().parts[i]);
        EXPECT_EQ(visit.text(parts[i]), GetParam().parts[i]);
    }
    EXPECT_EQ(visit.text("date_naissance"), GetParam().date);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 1);
}

// The same grid as for someone whose date is typed.
TEST_P(ResetDay, IsTheGridOfSomeoneBornThatDay) {
    Visit reset{GetParam().date};
    reset.click("Command_reset");
    Visit typed{GetParam().date};
    std::string const digits = std::string{GetParam().parts[0]} + GetParam().parts[1] +
                               GetParam().parts[2] + GetParam().parts[3];
    // The year first, so that a 29 February stands.
    typed.set("Combo_AnNaiss1", GetParam().parts[2]);
    typed.set("Combo_AnNaiss2", GetParam().parts[3]);
    typed.set("Combo_moisNaiss", GetParam().parts[1]);
    typed.set("Combo_jourNaiss", GetParam().parts[0]);
    typed.click("Command2");
    ASSERT_EQ(typed.text("date_naissance"), GetParam().date);
    for (auto const* row : {"Label_Dasha", "Label_DashaDate", "Label_annee", "Label_mois",
                            "Label_MoisDate", "Label_Solaire"}) {
        EXPECT_EQ(reset.cells(row, "Caption"), typed.cells(row, "Caption")) << row;
    }
    for (auto const* name :
         {"Label_zodiac.Caption", "Text_zodiac.Text", "Label_nomNakshatra.Caption",
          "Label_Nak.Caption", "Label_Lal_Kitab.Caption", "Label_jourdeSemaine.Caption",
          "Label_divinite.Caption", "Label_dinanka_Purnanka.Caption", "Text_jourdeSemaine.Text",
          "Label_anneedefile.Caption", "Label_anneedefile_Suite.Caption"}) {
        EXPECT_EQ(reset.value(name), typed.value(name)) << name;
        EXPECT_NE(reset.value(name), "") << name;
    }
}

// A consultation in full.
void fill_in(Visit& visit) {
    visit.set("Text_prenom", "Marie");
    visit.set("Text_nom", "Dupont");
    visit.set("Text_Note", "une note");
    visit.generate_for("17051962");
    visit.generate_at(40);
}

TEST(Reset, EmptiesNamesAndNote) {
    Visit visit;
    fill_in(visit);
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "");
    EXPECT_EQ(visit.text("Text_nom.Text"), "");
    EXPECT_EQ(visit.text("Text_Note.Text"), "");
}

TEST(Reset, BringsTheAgeBackToOneWithATrueGrid) {
    Visit visit;
    fill_in(visit);
    visit.click("Command_reset");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 1);
    EXPECT_EQ(visit.text("Label_age.Caption"), "1");
    EXPECT_EQ(visit.number("age_courant"), 1);
    EXPECT_EQ(visit.text("Label_age.BackColor"), "#C0FFC0");
    EXPECT_EQ(visit.text("Command2.Picture"), "CycleBouton(0)");
    EXPECT_EQ(visit.text("Label_anneedefile.Caption"), "21/11/2027");
    EXPECT_TRUE(visit.truth("MnuImprime.Enabled"));
}

TEST(Reset, GivesTheKeyboardToTheFirstName) {
    Visit visit;
    fill_in(visit);
    visit.focus("Combo_AnNaiss2");
    visit.click("Command_reset");
    EXPECT_EQ(visit.program().screen.focus(), &visit.program().form1.Text_prenom);
}

TEST(Reset, BringsTheDefaultPortraitBack) {
    Visit visit;
    // A picture of one pixel.
    put_file(visit.folder() / "RESSOURCES/IMAGE/a.gif",
             std::string(
                 "GIF89a\x01\0\x01\0\x80\0\0\0\0\0\xFF\xFF\xFF,\0\0\0\0\x01\0\x01\0\0\x02\x02"
                 "D\x01\0;",
                 35));
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "a.gif");
    visit.double_click("File_Fichier");
    ASSERT_EQ(visit.text("Picture_PHOTO.Picture"), "file:a.gif");
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "Image_Ganesha");
    EXPECT_EQ(visit.value("fichier_photo"), "");
}

// The names are emptied by a routine, and that too counts as a change.
TEST(Reset, TurnsTheDisketteRed) {
    Visit visit;
    ASSERT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(0)");
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(1)");
}

TEST(Reset, AsksNothingAndTouchesNoFile) {
    Visit visit;
    fill_in(visit);
    visit.effects();
    auto const before = tree_of(visit.folder());
    visit.click("Command_reset");
    EXPECT_EQ(visit.effects(), Json::array());
    EXPECT_EQ(tree_of(visit.folder()), before);
}

TEST(Reset, TwiceIsTheSameAsOnce) {
    Visit visit;
    visit.set("Text_prenom", "Marie");
    visit.click("Command_reset");
    Json const once = visit.dump();
    visit.click("Command_reset");
    EXPECT_TRUE(visit.dump() == once) << Json::diff(once, visit.dump());
}

TEST(Reset, KeepsTheSchemeAndTheShortNames) {
    Visit visit;
    visit.click("MnuMauve_Aum");
    visit.click("Mnu_abrege");
    visit.click("Command_reset");
    EXPECT_TRUE(visit.truth("MnuMauve_Aum.Checked"));
    EXPECT_EQ(visit.text("Picture_KUNDALI.Picture"), "Image_Kundali(3)");
    EXPECT_TRUE(visit.truth("Mnu_abrege.Checked"));
}

TEST(Reset, FollowsTheClock) {
    Visit visit;
    visit.clock("29/02/2028", "08:00:00");
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("date_naissance"), "29/02/2028");
}

std::vector<int> boxed_cells(Visit& visit) {
    std::vector<int> boxed;
    for (int cell = 1; cell <= 12; ++cell) {
        std::string const label = "Label_Solaire(" + std::to_string(cell) + ").";
        bool const border = visit.truth(label + "Border");
        EXPECT_EQ(visit.truth(label + "Opaque"), border) << cell;
        if (border) boxed.push_back(cell);
    }
    return boxed;
}

TEST(Reset, LeavesOneBoxRoundTheNewSun) {
    Visit visit;
    ASSERT_EQ(boxed_cells(visit), std::vector{9});
    visit.click("Command_reset");
    EXPECT_EQ(boxed_cells(visit), std::vector{visit.number("palais_index")});
    EXPECT_NE(visit.number("palais_index"), 9);
}

TEST(Reset, TakesAllTwelveBoxesOffTheColouredView) {
    Visit visit;
    visit.click("Command_categorie");
    ASSERT_EQ(boxed_cells(visit).size(), 12U);
    visit.click("Command_reset");
    EXPECT_EQ(boxed_cells(visit), std::vector{visit.number("palais_index")});
}

// In the one-cell view only the box of the sun in force goes: that of a sun before it stays.
TEST(Reset, LeavesTheBoxOfAnEarlierSun) {
    Visit visit;
    visit.generate_for("17051962");  // from Sagittarius, 9, to Taurus, 2
    ASSERT_EQ(boxed_cells(visit), (std::vector{2, 9}));
    visit.click("Command_reset");
    int const sun = visit.number("palais_index");
    ASSERT_EQ(sun, 8);
    EXPECT_EQ(boxed_cells(visit), (std::vector{8, 9}));
}

// Unless that box stands just after the sun's: then it is taken for the coloured view.
TEST(Reset, TakesTheBoxOfAnEarlierSunOffWhereItFollowsTheSun) {
    Visit visit;
    visit.generate_for("01121900");  // from Sagittarius, 9, back to Scorpio, 8
    ASSERT_EQ(boxed_cells(visit), (std::vector{8, 9}));
    visit.clock("15/06/2026", "10:00:00");
    visit.click("Command_reset");
    EXPECT_EQ(boxed_cells(visit), std::vector{visit.number("palais_index")});
}

TEST(ResetButton, DeletesWhileTheRecordsAreInFront) {
    Visit visit;
    fill_in(visit);
    visit.click("Charge(1)");
    visit.effects();
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "Marie");
    EXPECT_EQ(visit.text("date_naissance"), "17/05/1962");
    Json const effects = visit.effects();
    ASSERT_EQ(effects.size(), 1U) << effects;
    EXPECT_EQ(effects[0]["text"], "Veuillez sélectionnez un fichier à effacer !");
}

TEST(ResetButton, DeletesWhileThePortraitsAreInFront) {
    Visit visit;
    fill_in(visit);
    visit.click("Bouton_Image");
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "Marie");
}

TEST(ResetButton, DeletesWhileTheAddressesAreInFront) {
    Visit visit;
    fill_in(visit);
    visit.click("Bouton_Internet");
    visit.effects();
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "Marie");
    Json const effects = visit.effects();
    ASSERT_EQ(effects.size(), 1U) << effects;
    EXPECT_EQ(effects[0]["text"], "Veuillez sélectionnez une adresse à effacer !");
}

TEST(ResetButton, BeginsAnewOnceTheRecordsAreClosed) {
    Visit visit;
    fill_in(visit);
    visit.click("Charge(1)");
    visit.click("Charge(1)");
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "");
}

// Whoever looked at the portraits last has left the list in black: a change of scheme then
// gives the button its first role back although the addresses are in front, and it plays both.
TEST(ResetButton, AfterAChangeOfSchemePlaysBothRolesOverTheAddresses) {
    Visit visit;
    fill_in(visit);
    visit.click("Bouton_Image");
    visit.click("Bouton_Internet");
    visit.click("MnuMauve_Aum");
    ASSERT_TRUE(visit.truth("Frame_Internet.Visible"));
    ASSERT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
    visit.effects();
    visit.click("Command_reset");
    EXPECT_EQ(visit.effects()[0]["text"], "Veuillez sélectionnez une adresse à effacer !");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "");
}

}  // namespace

}  // namespace navarun::test
