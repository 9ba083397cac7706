// What a fatal error leaves of a consultation with unsaved changes.
#include <gtest/gtest.h>

#include "tests/start_up/files_of_a_folder.h"

namespace navarun::test {

namespace {

// Someone too old for the table, a minute before midnight: the message waits over it.
constexpr char const* late = "23:59:59";

void type_person(Start& start) {
    start.ask({{"op", "set"}, {"control", "Text_prenom"}, {"value", "Marie"}});
    start.ask({{"op", "set"}, {"control", "Text_nom"}, {"value", "Dupont"}});
    start.ask({{"op", "set"}, {"control", "Text_Note"}, {"value", "née à Sète"}});
    start.ask({{"op", "type"}, {"control", "Combo_jourNaiss"}, {"text", "17051962"}});
    start.click("Command2");
}

// In the code page of the files.
constexpr std::string_view person =
    "\"Marie\",\"Dupont\",\"17\",\"05\",\"19\",\"62\",0,\"\",\"n\xE9"
    "e \xE0 S\xE8te\"\r\n";

// The settings cannot be written any more.
void spoil_settings(std::filesystem::path const& folder) {
    std::filesystem::remove(folder / settings_file);
    std::filesystem::create_directories(folder / settings_file);
}

Json fail(Start& start, std::filesystem::path const& folder) {
    spoil_settings(folder);
    return start.click("MnuAzur_Aum");
}

// So that the next start succeeds.
void mend_settings(std::filesystem::path const& folder) {
    std::filesystem::remove_all(folder / settings_file);
}

TEST(Rescue, KeepsAnUnsavedConsultationAsARecord) {
    TemporaryFolder const folder;
    Start start{folder.path()};
    type_person(start);
    expect_fatal_report(
        fail(start, folder.path()),
        {"CONFIG.CFG", "Un dossier se trouve à la place du fichier.", "SAUVETAGE.fcy"});
    EXPECT_EQ(start.pilot().exit_status(), 1);
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES/DATA1/SAUVETAGE.fcy"), person);
}

TEST(Rescue, NeverWritesOverAnEarlierRescue) {
    TemporaryFolder const folder;
    for (auto const* name : {"SAUVETAGE.fcy", "SAUVETAGE (2).fcy", "SAUVETAGE (3).fcy"}) {
        Start start{folder.path()};
        ASSERT_TRUE(start.is_up()) << start.answer();
        type_person(start);
        auto const before = tree_of(folder.path() / "RESSOURCES/DATA1");
        ASSERT_FALSE(before.contains(name));
        expect_fatal_report(fail(start, folder.path()), {name});
        auto expected = before;
        expected[name] = person;
        EXPECT_EQ(tree_of(folder.path() / "RESSOURCES/DATA1"), expected);
        mend_settings(folder.path());
    }
}

TEST(Rescue, FillsTheFirstFreeName) {
    TemporaryFolder const folder;
    put_file(folder.path() / "RESSOURCES/DATA1/SAUVETAGE.fcy", "one");
    put_file(folder.path() / "RESSOURCES/DATA1/SAUVETAGE (3).fcy", "three");
    Start start{folder.path()};
    type_person(start);
    expect_fatal_report(fail(start, folder.path()), {"SAUVETAGE (2).fcy"});
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES/DATA1/SAUVETAGE (2).fcy"), person);
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES/DATA1/SAUVETAGE.fcy"), "one");
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES/DATA1/SAUVETAGE (3).fcy"), "three");
}

TEST(Rescue, IsARecordLikeAnyOther) {
    TemporaryFolder const folder;
    {
        Start start{folder.path()};
        type_person(start);
        fail(start, folder.path());
    }
    mend_settings(folder.path());
    Start start{folder.path()};
    start.click("Charge(1)");
    EXPECT_EQ(start.value("File_Fichier.List"), Json::array({"SAUVETAGE.fcy"}));
    start.ask({{"op", "choose"}, {"control", "File_Fichier"}, {"item", "SAUVETAGE.fcy"}});
    start.ask({{"op", "dblclick"}, {"control", "File_Fichier"}});
    EXPECT_EQ(start.value("Text_prenom.Text"), "Marie");
    EXPECT_EQ(start.value("Text_Note.Text"), "née à Sète");
    EXPECT_EQ(start.value("date_naissance"), "17/05/1962");
}

TEST(Rescue, GoesToTheFolderInUse) {
    TemporaryFolder const folder;
    Start start{folder.path()};
    type_person(start);
    start.click("Charge(2)");
    expect_fatal_report(fail(start, folder.path()), {"SAUVETAGE.fcy"});
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES/DATA2/SAUVETAGE.fcy"), person);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "RESSOURCES/DATA1"));
}

TEST(Rescue, KeepsWhatIsOnScreenWithoutFillingInNames) {
    TemporaryFolder const folder;
    Start start{folder.path()};
    start.ask({{"op", "set"}, {"control", "Text_Note"}, {"value", "seule"}});
    fail(start, folder.path());
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES/DATA1/SAUVETAGE.fcy"),
              "\"\",\"\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"seule\"\r\n");
}

TEST(Rescue, KeepsNothingWhereNothingIsUnsaved) {
    TemporaryFolder const folder;
    Start start{folder.path()};
    ASSERT_EQ(start.value("Command_Disk_Vert.Picture"), "Diskette(0)");
    Json const answer = fail(start, folder.path());
    expect_fatal_report(answer, {"CONFIG.CFG"});
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "RESSOURCES/DATA1"));
    EXPECT_EQ(answer.dump().find("SAUVETAGE"), std::string::npos);
}

TEST(Rescue, KeepsNothingOfARecordJustLoaded) {
    TemporaryFolder const folder;
    put_file(folder.path() / "RESSOURCES/DATA1/Dupont Marie.fcy", person);
    Start start{folder.path()};
    start.click("Charge(1)");
    start.ask({{"op", "choose"}, {"control", "File_Fichier"}, {"item", "Dupont Marie.fcy"}});
    start.ask({{"op", "dblclick"}, {"control", "File_Fichier"}});
    ASSERT_EQ(start.value("Text_prenom.Text"), "Marie");
    fail(start, folder.path());
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "RESSOURCES/DATA1/SAUVETAGE.fcy"));
}

TEST(Rescue, HelpsWhereAWaitPassesMidnight) {
    TemporaryFolder const folder;
    Start start{folder.path(), "21/11/2026", late};
    start.ask({{"op", "set"}, {"control", "Text_nom"}, {"value", "Ancêtre"}});
    start.ask({{"op", "type"}, {"control", "Combo_jourNaiss"}, {"text", "01011600"}});
    Json const answer = start.click("Command_DateNow");
    expect_fatal_report(answer, {"SAUVETAGE.fcy"});
    EXPECT_EQ(start.pilot().exit_status(), 1);
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES/DATA1/SAUVETAGE.fcy"),
              "\"\",\"Anc\xEAtre\",\"01\",\"01\",\"16\",\"00\",0,\"\",\"\"\r\n");
}

TEST(Rescue, AWaitThatEndsBeforeMidnightIsNone) {
    TemporaryFolder const folder;
    Start start{folder.path(), "21/11/2026", "23:59:57"};
    start.ask({{"op", "type"}, {"control", "Combo_jourNaiss"}, {"text", "01011600"}});
    EXPECT_TRUE(start.click("Command_DateNow").contains("ok"));
    EXPECT_EQ(start.pilot().exit_status(), std::nullopt);
}

// An event that a wait lets in may fail: one report, one record, one end.
TEST(Rescue, OfAnErrorInsideAWaitIsToldOnce) {
    TemporaryFolder const folder;
    Start start{folder.path()};
    type_person(start);
    spoil_settings(folder.path());
    start.ask({{"op", "during-pause"},
               {"requests", Json::array({Json{{"op", "click"}, {"control", "MnuAzur_Aum"}}})}});
    Json const answer = start.click("Command_Disk_Vert");
    ASSERT_EQ(answer.value("error", ""), "fatal") << answer;
    int reports = 0;
    for (Json const& effect : answer["effects"]) {
        reports += effect["kind"] == "box" && effect["title"] == "N.A.V.A.R.U.N" ? 1 : 0;
    }
    EXPECT_EQ(reports, 1) << answer;
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "RESSOURCES/DATA1/SAUVETAGE (2).fcy"));
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES/DATA1/SAUVETAGE.fcy"), person);
}

TEST(Rescue, SaysSoWhereTheRecordCannotBeKeptEither) {
    TemporaryFolder const folder;
    Start start{folder.path()};
    type_person(start);
    std::filesystem::remove_all(folder.path() / "RESSOURCES/DATA1");
    expect_fatal_report(fail(start, folder.path()),
                        {"CONFIG.CFG", "n'a pas pu être gardée", "SAUVETAGE.fcy",
                         "Le fichier ou son dossier n'existe pas."});
    EXPECT_EQ(start.pilot().exit_status(), 1);
}

}  // namespace

}  // namespace navarun::test
