// The first start of an installation, and what every start leaves alone.
#include <algorithm>
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "files/folders.h"
#include "tests/start_up/files_of_a_folder.h"

namespace navarun::test {

namespace {

using testing::AnyOf;
using testing::Each;

constexpr std::string_view first_addresses =
    "\"www.navarun.example\"\r\n"
    "\"fr.wikipedia.org\"\r\n"
    "\"www.herodote.net\"\r\n"
    "\"www.larousse.fr\"\r\n"
    "\"www.universalis.fr\"\r\n"
    "\"gallica.bnf.fr\"\r\n"
    "\"data.bnf.fr\"\r\n"
    "\"www.britannica.com\"\r\n"
    "\"www.biography.com\"\r\n"
    "\"www.geneanet.org\"\r\n";

TEST(FirstStart, MakesTheFoldersTheSettingsAndTheAddressBookAndNothingElse) {
    TemporaryFolder const folder;
    Start start{folder.path()};
    ASSERT_TRUE(start.is_up()) << start.answer();
    std::map<std::string, std::string> const expected{
        {"RESSOURCES/", ""},       {"RESSOURCES/CONFIG.CFG", "0,0\r\n"},
        {"RESSOURCES/DATA1/", ""}, {"RESSOURCES/DATA2/", ""},
        {"RESSOURCES/IMAGE/", ""}, {"RESSOURCES/INTERNET.DAT", std::string{first_addresses}},
    };
    EXPECT_EQ(tree_of(folder.path()), expected);
}

TEST(FirstStart, ASecondStartChangesNoFile) {
    TemporaryFolder const folder;
    { Start const start{folder.path()}; }
    auto const after_first = tree_of(folder.path());
    Start const start{folder.path()};
    EXPECT_TRUE(start.is_up());
    EXPECT_EQ(tree_of(folder.path()), after_first);
}

TEST(FirstStart, WorksInAFolderWithBlanksAndAccents) {
    TemporaryFolder const folder;
    auto const own = folder.path() / "Mes données à moi";
    std::filesystem::create_directories(own);
    Start const start{own};
    EXPECT_TRUE(start.is_up()) << start.answer();
    EXPECT_EQ(file_content(own / settings_file), "0,0\r\n");
}

TEST(FirstStart, ThePractitionersOwnAddressBookIsLeftAsItIs) {
    TemporaryFolder const folder;
    put_file(folder.path() / address_file, "\"www.a.example\"\r\n");
    Start const start{folder.path()};
    EXPECT_EQ(file_content(folder.path() / address_file), "\"www.a.example\"\r\n");
}

TEST(FirstStart, AnEmptyAddressBookIsAnAddressBook) {
    TemporaryFolder const folder;
    put_file(folder.path() / address_file, "");
    Start const start{folder.path()};
    EXPECT_TRUE(start.is_up());
    EXPECT_EQ(file_content(folder.path() / address_file), "");
}

TEST(FirstStart, RecordsAndPortraitsAreLeftAsTheyAre) {
    TemporaryFolder const folder;
    std::string const record = "\"A\",\"B\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"\"\r\n";
    put_file(folder.path() / "RESSOURCES/DATA1/B A.fcy", record);
    put_file(folder.path() / "RESSOURCES/DATA2/B A.fcy", record);
    put_file(folder.path() / "RESSOURCES/IMAGE/a.jpg", "no picture");
    auto const before = tree_of(folder.path());
    Start const start{folder.path()};
    auto const after = tree_of(folder.path());
    for (auto const& [name, bytes] : before) {
        ASSERT_TRUE(after.contains(name)) << name;
        EXPECT_EQ(after.at(name), bytes) << name;
    }
}

class MissingFolder : public testing::TestWithParam<char const*> {};
TEST_P(MissingFolder, IsMadeAgain) {
    TemporaryFolder const folder;
    { Start const start{folder.path()}; }
    auto const missing = folder.path() / "RESSOURCES" / GetParam();
    std::filesystem::remove_all(missing);
    Start const start{folder.path()};
    EXPECT_TRUE(std::filesystem::is_directory(missing));
}
INSTANTIATE_TEST_SUITE_P(Folders, MissingFolder, testing::Values("DATA1", "DATA2", "IMAGE"));

TEST(FirstStart, MakingFoldersThatAreThereTouchesNothing) {
    Visit visit;
    auto const root = visit.folder() / "RESSOURCES";
    std::vector<std::filesystem::file_time_type> before;
    auto const times = [&] {
        std::vector<std::filesystem::file_time_type> found{
            std::filesystem::last_write_time(root)};
        for (auto const* name : {"DATA1", "DATA2", "IMAGE"}) {
            found.push_back(std::filesystem::last_write_time(root / name));
        }
        return found;
    };
    auto const tree = tree_of(visit.folder());
    before = times();
    cree_repertoire(visit.program());
    EXPECT_EQ(times(), before);
    EXPECT_EQ(tree_of(visit.folder()), tree);
}

TEST(FirstStart, WhatAKilledRunWasWritingIsRemoved) {
    TemporaryFolder const folder;
    for (auto const* place :
         {"RESSOURCES", "RESSOURCES/DATA1", "RESSOURCES/DATA2", "RESSOURCES/IMAGE"}) {
        put_file(folder.path() / place / "navarun.tmp", "half a rec");
    }
    Start const start{folder.path()};
    EXPECT_TRUE(start.is_up());
    for (auto const& [name, bytes] : tree_of(folder.path())) {
        EXPECT_EQ(name.find("navarun.tmp"), std::string::npos) << name;
    }
}

TEST(FileTests, AFolderIsNoFileAndAMissingFolderIsNone) {
    TemporaryFolder const folder;
    put_file(folder.path() / "a.txt", "a");
    EXPECT_FALSE(FileExists(folder.path()));
    EXPECT_TRUE(FileExists(folder.path() / "a.txt"));
    EXPECT_FALSE(FileExists(folder.path() / "b.txt"));
    EXPECT_FALSE(FileExists(folder.path() / "a.txt" / "b.txt"));
    EXPECT_TRUE(FichDoss_existe(folder.path() / ""));
    EXPECT_TRUE(FichDoss_existe(folder.path()));
    EXPECT_FALSE(FichDoss_existe(folder.path() / "none" / ""));
    EXPECT_FALSE(FichDoss_existe(folder.path() / "none"));
}

struct Shown {
    char const* name;
    Json value;
    friend std::ostream& operator<<(std::ostream& out, Shown const& row) {
        return out << row.name;
    }
};

// What the practitioner sees when the window opens: the grid of 01/01/1900 at age 1.
Shown const shown_at_start[] = {
    {"Label_zodiac.Caption", "19 °  Arc"},
    {"Label_nomNakshatra.Caption", "20 Purva Shadha"},
    {"Label_Nak.Caption", "Shukra"},
    {"Label_jourdeSemaine.Caption", "Lundi"},
    {"Label_divinite.Caption", "Chandra 2"},
    {"Label_dinanka_Purnanka.Caption", "Dinânka: 1  Purnânka: 3"},
    {"Label_Lal_Kitab.Caption", "SHUKRA (1 / 3 ans)"},
    {"Label_anneedefile.Caption", "01/01/1901"},
    {"Label_anneedefile_Suite.Caption", "31/12/1901"},
    {"Label_age.Caption", "1"},
    {"Label_age.BackColor", "#C0FFC0"},
    {"HScroll_age.Value", 1},
    {"HScroll_age.Tag", "VERT"},
    {"Combo_jourNaiss.Text", "01"},
    {"Combo_moisNaiss.Text", "01"},
    {"Combo_AnNaiss1.Text", "19"},
    {"Combo_AnNaiss2.Text", "00"},
    {"Text_prenom.Text", ""},
    {"Text_nom.Text", ""},
    {"Text_Note.Text", ""},
    {"Command2.Picture", "CycleBouton(0)"},
    {"Command2.ToolTipText", "Cycle vrai !"},
    {"Command_Disk_Vert.Picture", "Diskette(0)"},
    {"Command_reset.Picture", "reset_efface(0)"},
    {"Command_reset.ToolTipText", "Initialise"},
    {"Picture_PHOTO.Picture", "Image_Ganesha"},
    {"Picture_KUNDALI.Picture", "Image_Kundali(0)"},
    {"Charge(1).Picture", "DOSSIER(1)"},
    {"Charge(1).ToolTipText", "Dossier 1 Actif"},
    {"Charge(2).Picture", "DOSSIER(4)"},
    {"Charge(2).ToolTipText", "Dossier 2 Inactif"},
    {"MnuImprime.Enabled", true},
    {"MnuApercu_Impression.Enabled", true},
    {"Mnuperiode.Enabled", true},
    {"Mnu_palaisdestin.Enabled", true},
    {"Mnu_abrege.Checked", false},
    {"MnuAzur_cycle.Checked", true},
    {"Frame_FileFichier.Visible", false},
    {"Frame_Internet.Visible", false},
    {"Picture2.Visible", false},
    {"frame_messageSauve.Visible", false},
    {"Text_definition_palais.Visible", false},
    {"Form1.Visible", true},
    {"Form1.Caption", "N.A.V.A.R.U.N"},
    {"date_naissance", "01/01/1900"},
    {"annee_solaire", "1900"},
    {"age_courant", 1},
    {"fin_annee_defile", "31/12/1900"},
    {"nombre_cycles", 10},
    {"fichier_photo", ""},
    {"couleur_kundali", 0},
    {"decalage_nom_seigneur", 0},
    {"url_defaut(1)", "www.navarun.example"},
    {"url_defaut(10)", "www.geneanet.org"},
    {"dossier_actif", "RESSOURCES/DATA1/"},
    {"dossier_image", "RESSOURCES/IMAGE/"},
    {"dossier_capture", "RESSOURCES/CAPTURE/"},
};

class AtStart : public testing::TestWithParam<Shown> {};
TEST_P(AtStart, IsShown) {
    Visit visit;
    EXPECT_EQ(visit.value(GetParam().name), GetParam().value);
}
INSTANTIATE_TEST_SUITE_P(Grid, AtStart, testing::ValuesIn(shown_at_start), [](auto const& row) {
    std::string name{row.param.name};
    std::erase_if(name, [](char c) { return c == '(' || c == ')'; });
    std::ranges::replace(name, '.', '_');
    return name;
});

// The blanks round the stroke are those of the start alone; whoever reads the date texts built
// from them accepts them.
TEST(Start, TheBirthdayTextHoldsBlanksUntilADateIsTyped) {
    Visit visit;
    EXPECT_EQ(visit.text("jour_mois_anniv"), "01 / 01");
    EXPECT_EQ(visit.text("dates_age(1)"), "01 / 01/1901");
    visit.generate_for("01011900");
    EXPECT_EQ(visit.text("jour_mois_anniv"), "01/01");
    EXPECT_EQ(visit.text("dates_age(1)"), "01/01/1901");
}

TEST(Start, TheGreatestAgeIsTenTurnsOfTheCircle) {
    Visit visit;
    visit.set("HScroll_age", 350);
    EXPECT_EQ(visit.text("Label_age.Caption"), "350");
    Json const beyond = visit.ask({{"op", "set"}, {"control", "HScroll_age"}, {"value", 351}});
    EXPECT_EQ(beyond["error"], "usage");
}

TEST(Start, TheHandShowsWhatCanBeClicked) {
    Visit visit;
    auto& form = visit.program().form1;
    for (int cell = 1; cell <= 12; ++cell) {
        EXPECT_EQ(form.Label_mois(cell).MouseIcon.get().name(), "Image_Curseur") << cell;
        EXPECT_EQ(form.Label_Dasha(cell).MouseIcon.get().name(), "Image_Curseur") << cell;
        EXPECT_EQ(form.Label_Solaire(cell).MouseIcon.get().name(), "Image_Curseur") << cell;
    }
    EXPECT_EQ(form.Picture_PHOTO.MouseIcon.get().name(), "Image_Curseur");
    EXPECT_EQ(form.File_Fichier.MouseIcon.get().name(), "Image_Curseur");
    EXPECT_EQ(form.List_Internet.MouseIcon.get().name(), "Image_Curseur");
}

TEST(Start, TheKeyboardWaitsInTheFirstName) {
    Visit visit;
    EXPECT_EQ(visit.program().screen.focus(), &visit.program().form1.Text_prenom);
}

TEST(Start, NothingIsAskedOrToldOnTheWay) {
    Visit visit;
    EXPECT_EQ(visit.effects(), Json::array());
}

TEST(Start, FullNamesStandInTheGridAtFirst) {
    Visit visit;
    EXPECT_THAT(visit.cells("Label_Dasha", "Caption"),
                Each(AnyOf("Surya", "Chandra", "Guru", "Rahu", "Budha", "Shukra", "Ketu",
                           "Shani", "Kuja")));
}

}  // namespace

}  // namespace navarun::test
