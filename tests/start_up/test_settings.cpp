// The settings file, byte for byte: written with two fields, read with one.
#include <gtest/gtest.h>

#include "tests/start_up/files_of_a_folder.h"

namespace navarun::test {

namespace {

struct ReadCase {
    char const* name;
    std::string bytes;
    int scheme;
    std::string rewritten;
    friend std::ostream& operator<<(std::ostream& out, ReadCase const& row) {
        return out << row.name;
    }
};

// Every value lands in the scheme, so that the last one wins.
ReadCase const read_cases[] = {
    {"empty_file", "", 0, "0,0\r\n"},
    {"one_field_of_a_first_start", "0\r\n", 0, "0,0\r\n"},
    {"scheme_2_alone", "2\r\n", 2, "2,0\r\n"},
    {"scheme_2_without_a_line_end", "2", 2, "2,0\r\n"},
    {"scheme_3_alone", "3\r\n", 3, "3,0\r\n"},
    {"scheme_2_does_not_come_back", "2,0\r\n", 0, "0,0\r\n"},
    {"scheme_3_does_not_come_back", "3,0\r\n", 0, "0,0\r\n"},
    {"last_field_is_the_scheme", "0,1\r\n", 1, "1,0\r\n"},
    {"short_names_then_scheme", "9,1\r\n", 1, "1,0\r\n"},
    {"values_on_lines_of_their_own", "0\r\n3\r\n", 3, "3,0\r\n"},
    {"leading_blanks_are_skipped", "  1,  2\r\n", 2, "2,0\r\n"},
    {"leading_zeros", "002\r\n", 2, "2,0\r\n"},
    {"a_high_byte_that_is_not_last", "255,1\r\n", 1, "1,0\r\n"},
    {"many_values", "3,2,1,0,1,2\r\n", 2, "2,0\r\n"},
};

class SettingsRead : public testing::TestWithParam<ReadCase> {};
TEST_P(SettingsRead, GivesTheSchemeAndIsRewrittenWithTwoFields) {
    TemporaryFolder const folder;
    put_file(folder.path() / settings_file, GetParam().bytes);
    Start start{folder.path()};
    ASSERT_TRUE(start.is_up()) << start.answer();
    EXPECT_EQ(start.value("couleur_kundali"), GetParam().scheme);
    EXPECT_EQ(start.value("decalage_nom_seigneur"), 0);
    EXPECT_EQ(start.value("Picture_KUNDALI.Picture"),
              "Image_Kundali(" + std::to_string(GetParam().scheme) + ")");
    EXPECT_EQ(start.value("Mnu_abrege.Checked"), false);
    EXPECT_EQ(file_content(folder.path() / settings_file), GetParam().rewritten);
}
INSTANTIATE_TEST_SUITE_P(Files, SettingsRead, testing::ValuesIn(read_cases),
                         [](auto const& row) { return row.param.name; });

struct Step {
    char const* entry;
    char const* bytes;
};

TEST(Settings, EachChoiceOfTheMenuRewritesBothFields) {
    Visit visit;
    auto const file = visit.folder() / settings_file;
    EXPECT_EQ(file_content(file), "0,0\r\n");
    constexpr Step steps[] = {
        {"MnuAzur_Aum", "1,0\r\n"},  {"MnuMauve_cycle", "2,0\r\n"}, {"Mnu_abrege", "2,9\r\n"},
        {"MnuMauve_Aum", "3,9\r\n"}, {"MnuAzur_cycle", "0,9\r\n"},  {"Mnu_abrege", "0,0\r\n"},
        {"MnuMauve_Aum", "3,0\r\n"}, {"Mnu_abrege", "3,9\r\n"},     {"Mnu_abrege", "3,0\r\n"},
    };
    for (auto const& step : steps) {
        visit.click(step.entry);
        EXPECT_EQ(file_content(file), step.bytes) << step.entry;
    }
}

TEST(Settings, TheSchemeInForceIsNotWrittenAgain) {
    Visit visit;
    put_file(visit.folder() / settings_file, "untouched");
    visit.click("MnuAzur_cycle");
    EXPECT_EQ(file_content(visit.folder() / settings_file), "untouched");
}

TEST(Settings, ALostFileIsWrittenAgainByTheNextChoice) {
    Visit visit;
    std::filesystem::remove(visit.folder() / settings_file);
    visit.click("MnuMauve_cycle");
    EXPECT_EQ(file_content(visit.folder() / settings_file), "2,0\r\n");
}

TEST(Settings, AChosenSchemeDoesNotSurviveTheProgram) {
    TemporaryFolder const folder;
    {
        Start start{folder.path()};
        start.click("MnuMauve_cycle");
    }
    EXPECT_EQ(file_content(folder.path() / settings_file), "2,0\r\n");
    Start start{folder.path()};
    EXPECT_EQ(start.value("couleur_kundali"), 0);
    EXPECT_EQ(start.value("MnuAzur_cycle.Checked"), true);
    EXPECT_EQ(file_content(folder.path() / settings_file), "0,0\r\n");
}

// The short names leave a 9 in the last field; the next start takes it for a scheme, keeps it
// in the file before it looks for the picture, and ends. The start after that is a good one.
TEST(Settings, AfterShortNamesOneStartFailsAndTheNextSucceeds) {
    TemporaryFolder const folder;
    auto const file = folder.path() / settings_file;
    {
        Start start{folder.path()};
        start.click("Mnu_abrege");
    }
    EXPECT_EQ(file_content(file), "0,9\r\n");
    {
        Start failed{folder.path()};
        expect_fatal_report(failed.answer(), {});
        EXPECT_EQ(failed.pilot().exit_status(), 1);
    }
    EXPECT_EQ(file_content(file), "9,0\r\n");
    Start good{folder.path()};
    EXPECT_TRUE(good.is_up()) << good.answer();
    EXPECT_EQ(good.value("couleur_kundali"), 0);
    EXPECT_EQ(file_content(file), "0,0\r\n");
}

struct MissingScheme {
    char const* name;
    char const* bytes;
    char const* rewritten;
    friend std::ostream& operator<<(std::ostream& out, MissingScheme const& row) {
        return out << row.name;
    }
};
constexpr MissingScheme missing_schemes[] = {
    {"first_beyond_the_four", "4\r\n", "4,0\r\n"},
    {"short_names", "1,9\r\n", "9,0\r\n"},
    {"greatest_byte", "0,255\r\n", "255,0\r\n"},
};

class SchemeWithoutPicture : public testing::TestWithParam<MissingScheme> {};
TEST_P(SchemeWithoutPicture, IsWrittenFirstThenEndsTheRun) {
    TemporaryFolder const folder;
    put_file(folder.path() / settings_file, GetParam().bytes);
    Start failed{folder.path()};
    expect_fatal_report(failed.answer(), {});
    EXPECT_EQ(failed.pilot().exit_status(), 1);
    EXPECT_EQ(file_content(folder.path() / settings_file), GetParam().rewritten);
    // The run ended before it came to the address book.
    EXPECT_FALSE(std::filesystem::exists(folder.path() / address_file));
}
TEST_P(SchemeWithoutPicture, LeavesAFileFromWhichTheProgramStarts) {
    TemporaryFolder const folder;
    put_file(folder.path() / settings_file, GetParam().bytes);
    { Start const failed{folder.path()}; }
    Start good{folder.path()};
    EXPECT_TRUE(good.is_up()) << good.answer();
    EXPECT_EQ(file_content(folder.path() / settings_file), "0,0\r\n");
}
INSTANTIATE_TEST_SUITE_P(Files, SchemeWithoutPicture, testing::ValuesIn(missing_schemes),
                         [](auto const& row) { return row.param.name; });

}  // namespace

}  // namespace navarun::test
