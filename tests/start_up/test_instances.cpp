// One program a folder, however the one before ended.
#include <gtest/gtest.h>

#include "tests/start_up/files_of_a_folder.h"
#include "tests/support/pilot_process.h"

namespace navarun::test {

namespace {

void expect_refused(Json const& answer) {
    EXPECT_EQ(answer.value("ended", false), true) << answer;
    ASSERT_EQ(answer["effects"].size(), 1U) << answer;
    EXPECT_EQ(answer["effects"][0]["kind"], "box");
    EXPECT_EQ(answer["effects"][0]["text"], "Le logiciel N.A.V.A.R.U.N est déjà actif !");
}

TEST(SecondInstance, IsRefusedWithABoxAndEnds) {
    TemporaryFolder const folder;
    Start first{folder.path()};
    ASSERT_TRUE(first.is_up());
    Start second{folder.path()};
    expect_refused(second.answer());
    EXPECT_EQ(second.pilot().exit_status(), 0);
}

TEST(SecondInstance, TouchesNoFile) {
    TemporaryFolder const folder;
    Start first{folder.path()};
    put_file(folder.path() / settings_file, "3\r\n");
    put_file(folder.path() / "RESSOURCES/DATA1/navarun.tmp", "the first one is writing");
    std::filesystem::remove(folder.path() / address_file);
    auto const before = tree_of(folder.path());
    Start const second{folder.path()};
    EXPECT_FALSE(second.is_up());
    EXPECT_EQ(tree_of(folder.path()), before);
}

TEST(SecondInstance, LeavesTheFirstAtWork) {
    TemporaryFolder const folder;
    Start first{folder.path()};
    Start const second{folder.path()};
    EXPECT_TRUE(first.click("MnuMauve_Aum").contains("ok"));
    EXPECT_EQ(file_content(folder.path() / settings_file), "3,0\r\n");
}

TEST(SecondInstance, IsLetInOnceTheFirstIsGone) {
    TemporaryFolder const folder;
    { Start const first{folder.path()}; }
    Start const second{folder.path()};
    EXPECT_TRUE(second.is_up()) << second.answer();
}

TEST(SecondInstance, OfAnotherFolderIsNoSecondInstance) {
    TemporaryFolder const one;
    TemporaryFolder const other;
    Start const first{one.path()};
    Start const second{other.path()};
    EXPECT_TRUE(first.is_up());
    EXPECT_TRUE(second.is_up()) << second.answer();
}

TEST(SecondInstance, OfTheSameFolderByAnotherPathIsRefused) {
    TemporaryFolder const folder;
    TemporaryFolder const elsewhere;
    auto const link = elsewhere.path() / "link";
    std::filesystem::create_directory_symlink(folder.path(), link);
    Start const first{folder.path()};
    Start const second{link};
    expect_refused(second.answer());
}

TEST(Processes, ASecondOneInTheFolderIsRefusedAndEndsWithNoError) {
    TemporaryFolder const folder;
    PilotProcess first{folder.path()};
    ASSERT_TRUE(first.load().contains("ok"));
    PilotProcess second{folder.path()};
    expect_refused(second.load());
    EXPECT_EQ(second.end(), 0);
    EXPECT_TRUE(first.ask({{"op", "click"}, {"control", "Command2"}}).contains("ok"));
    EXPECT_EQ(first.end(), 0);
}

TEST(Processes, AKilledOneKeepsNobodyOut) {
    TemporaryFolder const folder;
    PilotProcess first{folder.path()};
    ASSERT_TRUE(first.load().contains("ok"));
    ASSERT_TRUE(first.ask({{"op", "click"}, {"control", "MnuMauve_cycle"}}).contains("ok"));
    first.kill();
    EXPECT_EQ(file_content(folder.path() / settings_file), "2,0\r\n");
    PilotProcess second{folder.path()};
    EXPECT_TRUE(second.load().contains("ok"));
    EXPECT_EQ(second.end(), 0);
}

TEST(Processes, ManyKilledInTheirStartLeaveAFolderThatStarts) {
    TemporaryFolder const folder;
    for (int i = 0; i < 10; ++i) {
        PilotProcess doomed{folder.path()};
        doomed.ask({{"op", "clock"}, {"date", "21/11/2026"}, {"time", "10:15:00"}});
        // Without waiting for the start to end.
        ASSERT_TRUE(doomed.send(R"({"op":"load"})"));
        doomed.kill();
    }
    PilotProcess last{folder.path()};
    EXPECT_TRUE(last.load().contains("ok"));
    EXPECT_EQ(file_content(folder.path() / settings_file), "0,0\r\n");
}

TEST(Processes, OneWhoseInputEndsEndsWithNoError) {
    TemporaryFolder const folder;
    PilotProcess process{folder.path()};
    ASSERT_TRUE(process.load().contains("ok"));
    EXPECT_EQ(process.end(), 0);
}

TEST(Processes, OfTwoFoldersWorkSideBySide) {
    TemporaryFolder const one;
    TemporaryFolder const other;
    PilotProcess first{one.path()};
    PilotProcess second{other.path()};
    EXPECT_TRUE(first.load().contains("ok"));
    EXPECT_TRUE(second.load().contains("ok"));
    EXPECT_EQ(first.end(), 0);
    EXPECT_EQ(second.end(), 0);
}

}  // namespace

}  // namespace navarun::test
