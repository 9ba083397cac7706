// Files and folders with which the program cannot start: it says so and ends, it never hangs.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/start_up/files_of_a_folder.h"
#include "tests/support/pilot_process.h"

namespace navarun::test {

namespace {

struct BadSettings {
    char const* name;
    std::string bytes;
    friend std::ostream& operator<<(std::ostream& out, BadSettings const& row) {
        return out << row.name;
    }
};

BadSettings const bad_settings[] = {
    {"letters", "azur\r\n"},
    {"letters_then_a_number", "abc,0\r\n"},
    {"a_number_then_letters", "0,abc\r\n"},
    {"beyond_a_byte", "256\r\n"},
    {"three_hundred", "300\r\n"},
    {"beyond_a_whole_number", "99999999999999999999\r\n"},
    {"negative", "-1\r\n"},
    {"nul_bytes", std::string(8, '\0')},
    {"nul_after_the_digit", std::string("0\0\r\n", 4)},
    {"digit_and_letter", "1x\r\n"},
    {"hexadecimal", "0x1\r\n"},
    {"open_quote", "\"0"},
    {"bytes_of_a_picture", "\xFF\xD8\xFF\xE0"},
};

class RefusedSettings : public testing::TestWithParam<BadSettings> {};
TEST_P(RefusedSettings, EndTheStartWithAReportAndAreLeftAsTheyAre) {
    TemporaryFolder const folder;
    put_file(folder.path() / settings_file, GetParam().bytes);
    Start failed{folder.path()};
    expect_fatal_report(failed.answer(), {"La lecture du fichier", "CONFIG.CFG"});
    EXPECT_EQ(failed.pilot().exit_status(), 1);
    EXPECT_EQ(file_content(folder.path() / settings_file), GetParam().bytes);
}
INSTANTIATE_TEST_SUITE_P(Files, RefusedSettings, testing::ValuesIn(bad_settings),
                         [](auto const& row) { return row.param.name; });

TEST(RefusedStart, ALongFileOfRubbishIsReportedAtOnce) {
    TemporaryFolder const folder;
    put_file(folder.path() / settings_file, std::string(10'000'000, 'x'));
    Start failed{folder.path()};
    EXPECT_EQ(failed.pilot().exit_status(), 1);
}

TEST(RefusedStart, AFolderInThePlaceOfTheSettings) {
    TemporaryFolder const folder;
    std::filesystem::create_directories(folder.path() / settings_file);
    Start failed{folder.path()};
    expect_fatal_report(failed.answer(), {"CONFIG.CFG", "L'écriture",
                                          "Un dossier se trouve à la place du fichier."});
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "RESSOURCES/navarun.tmp"));
}

// What is no file at all is refused, not waited for.
TEST(RefusedStart, APipeInThePlaceOfTheSettings) {
    TemporaryFolder const folder;
    std::filesystem::create_directories(folder.path() / "RESSOURCES");
    ASSERT_EQ(::mkfifo((folder.path() / settings_file).c_str(), 0666), 0);
    PilotProcess process{folder.path()};
    Json const answer = process.load();
    ASSERT_TRUE(answer.is_object());
    expect_fatal_report(answer, {"CONFIG.CFG"});
    EXPECT_EQ(process.end(), 1);
}

TEST(RefusedStart, AFolderInThePlaceOfTheAddressBook) {
    TemporaryFolder const folder;
    std::filesystem::create_directories(folder.path() / address_file);
    Start failed{folder.path()};
    expect_fatal_report(failed.answer(), {"INTERNET.DAT", "L'écriture",
                                          "Un dossier se trouve à la place du fichier."});
}

TEST(RefusedStart, AFileInThePlaceOfTheResources) {
    TemporaryFolder const folder;
    put_file(folder.path() / "RESSOURCES", "a file");
    Start failed{folder.path()};
    expect_fatal_report(failed.answer(), {"CONFIG.CFG", "L'écriture",
                                          "Un fichier se trouve à la place d'un dossier."});
    EXPECT_EQ(file_content(folder.path() / "RESSOURCES"), "a file");
}

// What became of a folder shows only when a file is wanted in it.
TEST(RefusedStart, AFileInThePlaceOfARecordFolderIsNoticedByTheFirstRecord) {
    TemporaryFolder const folder;
    put_file(folder.path() / "RESSOURCES/DATA1", "a file");
    Start start{folder.path()};
    ASSERT_TRUE(start.is_up()) << start.answer();
    expect_fatal_report(start.click("Command_Disk_Vert"), {"L'écriture"});
    EXPECT_EQ(start.pilot().exit_status(), 1);
}

TEST(RefusedStart, NothingIsRescuedBeforeTheProgramIsUp) {
    TemporaryFolder const folder;
    put_file(folder.path() / settings_file, "9,9\r\n");
    Start failed{folder.path()};
    expect_fatal_report(failed.answer(), {});
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "RESSOURCES/DATA1"));
    EXPECT_EQ(failed.answer().dump().find("SAUVETAGE"), std::string::npos);
}

TEST(RefusedStart, AfterItTheFolderIsFree) {
    TemporaryFolder const folder;
    put_file(folder.path() / settings_file, "azur\r\n");
    { Start const failed{folder.path()}; }
    put_file(folder.path() / settings_file, "1\r\n");
    Start good{folder.path()};
    EXPECT_TRUE(good.is_up()) << good.answer();
}

// Rights are tested as an ordinary user, who does not have them all.
void set_rights(std::filesystem::path const& path, mode_t rights) {
    ASSERT_EQ(::chmod(path.c_str(), rights), 0) << path;
}

void make_tree_writable_by_all(std::filesystem::path const& folder) {
    set_rights(folder, 0777);
    for (auto const& entry : std::filesystem::recursive_directory_iterator{folder}) {
        set_rights(entry.path(), entry.is_directory() ? 0777 : 0666);
    }
}

class Rights : public testing::Test {
  protected:
    Rights() {
        { Start const first{folder.path()}; }
        make_tree_writable_by_all(folder.path());
    }
    // So that the folder can be removed again.
    ~Rights() override {
        for (auto const* name : {"", "RESSOURCES", "RESSOURCES/DATA1"}) {
            ::chmod((folder.path() / name).c_str(), 0777);
        }
    }

    void expect_refused(std::vector<std::string> const& told) {
        PilotProcess process{folder.path(), {}, RunBy::user_without_rights};
        Json const answer = process.load();
        expect_fatal_report(answer, told);
        EXPECT_EQ(process.end(), 1);
    }

    std::filesystem::path resources() const { return folder.path() / "RESSOURCES"; }

    TemporaryFolder folder;
};

TEST_F(Rights, OfAnOrdinaryUserAreEnoughForAnOrdinaryFolder) {
    PilotProcess process{folder.path(), {}, RunBy::user_without_rights};
    EXPECT_TRUE(process.load().contains("ok"));
    EXPECT_EQ(process.end(), 0);
}

TEST_F(Rights, ToReadTheSettingsAreMissing) {
    set_rights(folder.path() / settings_file, 0);
    expect_refused({"La lecture", "CONFIG.CFG", "L'accès est refusé."});
}

TEST_F(Rights, ToWriteTheResourcesAreMissing) {
    set_rights(resources(), 0555);
    expect_refused({"L'écriture", "CONFIG.CFG", "L'accès est refusé."});
    EXPECT_EQ(file_content(folder.path() / settings_file), "0,0\r\n");
}

TEST_F(Rights, ToMakeTheResourcesAreMissing) {
    std::filesystem::remove_all(resources());
    set_rights(folder.path(), 0555);
    expect_refused({"L'écriture", "CONFIG.CFG", "Le fichier ou son dossier n'existe pas."});
    EXPECT_FALSE(std::filesystem::exists(resources()));
}

TEST_F(Rights, ToEnterTheResourcesAreMissing) {
    set_rights(resources(), 0);
    expect_refused({"CONFIG.CFG", "L'accès est refusé."});
}

// An address book that is there is not touched at the start: only who opens it needs the right.
TEST_F(Rights, ToReadTheAddressBookAreNotNeededBeforeItIsOpened) {
    set_rights(folder.path() / address_file, 0);
    PilotProcess process{folder.path(), {}, RunBy::user_without_rights};
    ASSERT_TRUE(process.load().contains("ok"));
    Json const answer = process.ask({{"op", "click"}, {"control", "Bouton_Internet"}});
    expect_fatal_report(answer, {"La lecture", "INTERNET.DAT", "L'accès est refusé."});
    EXPECT_EQ(process.end(), 1);
    set_rights(folder.path() / address_file, 0666);
}

TEST_F(Rights, ToWriteTheProgramsOwnFolderAreNotNeededOnceItsResourcesStand) {
    set_rights(folder.path(), 0555);
    PilotProcess process{folder.path(), {}, RunBy::user_without_rights};
    EXPECT_TRUE(process.load().contains("ok"));
    EXPECT_EQ(process.end(), 0);
}

TEST_F(Rights, WhereTheRescuedRecordCannotBeWrittenEitherTheReportSaysSo) {
    PilotProcess process{folder.path(), {}, RunBy::user_without_rights};
    ASSERT_TRUE(process.load().contains("ok"));
    process.ask({{"op", "set"}, {"control", "Text_prenom"}, {"value", "Marie"}});
    set_rights(resources(), 0555);
    set_rights(resources() / "DATA1", 0555);
    Json const answer = process.ask({{"op", "click"}, {"control", "MnuAzur_Aum"}});
    expect_fatal_report(answer,
                        {"CONFIG.CFG", "L'accès est refusé.",
                         "La consultation à l'écran n'a pas pu être gardée", "SAUVETAGE.fcy"});
    EXPECT_EQ(process.end(), 1);
    EXPECT_TRUE(std::filesystem::is_empty(resources() / "DATA1"));
    EXPECT_EQ(file_content(folder.path() / settings_file), "0,0\r\n");
}

}  // namespace

}  // namespace navarun::test
