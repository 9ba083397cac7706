// The pilot as a program: lines in, lines out, a status at the end.
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "tests/support/visit.h"

namespace navarun::test {
namespace {

struct Sitting {
    int status;
    std::vector<Json> answers;
};

// Each with a folder of its own.
Sitting run(std::string const& input) {
    TemporaryFolder const folder;
    auto const in = folder.path() / "requests";
    auto const out = folder.path() / "answers";
    auto const home = folder.path() / "navarun";
    std::filesystem::create_directories(home);
    std::ofstream{in, std::ios::binary} << input;
    std::string const command = std::string{"'"} + PILOTE + "' '" + home.string() + "' <'" +
                                in.string() + "' >'" + out.string() + "'";
    int const result = std::system(command.c_str());
    Sitting finished{WEXITSTATUS(result), {}};
    std::ifstream file{out, std::ios::binary};
    for (std::string line; std::getline(file, line);) {
        finished.answers.push_back(Json::parse(line));
    }
    return finished;
}

std::string const start = R"j({"op":"clock","date":"21/11/2026","time":"23:59:59"}
{"op":"load"}
)j";

TEST(PilotProgram, EndsWithZeroAtTheEndOfItsInput) {
    Sitting finished = run(start);
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.answers, (std::vector<Json>{{{"ok", true}}, {{"ok", true}}}));
}

TEST(PilotProgram, WithoutInputAnswersNothing) {
    Sitting finished = run("");
    EXPECT_EQ(finished.status, 0);
    EXPECT_TRUE(finished.answers.empty());
}

TEST(PilotProgram, AnswersEveryLineInOrder) {
    Sitting finished = run(start + "\nno json\n" + std::string(1'000'000, '[') +
                           "\n{\"op\":\"get\",\"names\":[\"age_courant\"]}");
    EXPECT_EQ(finished.status, 0);
    ASSERT_EQ(finished.answers.size(), 6U);
    for (std::size_t i = 2; i < 5; ++i) EXPECT_EQ(finished.answers[i]["error"], "usage");
    EXPECT_EQ(finished.answers[5]["values"]["age_courant"], 1);
}

TEST(PilotProgram, SurvivesRequestsNestedWithoutMeasure) {
    std::string const nested = std::string(100'000, '[') + std::string(100'000, ']');
    Sitting finished =
        run(start + "{\"op\":\"during-pause\",\"requests\":" + nested + "}\n" +
            "{\"op\":\"get\",\"names\":" + nested + "}\n" + "{\"op\":\"effects\"}\n");
    EXPECT_EQ(finished.status, 0);
    ASSERT_EQ(finished.answers.size(), 5U);
    EXPECT_EQ(finished.answers[3]["error"], "usage");
    EXPECT_TRUE(finished.answers[4].contains("effects"));
}

TEST(PilotProgram, EndsWithZeroWhenItIsLeft) {
    Sitting finished = run(start + R"j({"op":"click","control":"MnuQuitter"}
{"op":"effects"}
)j");
    EXPECT_EQ(finished.status, 0);
    ASSERT_EQ(finished.answers.size(), 3U);
    EXPECT_EQ(finished.answers[2]["ended"], true);
}

TEST(PilotProgram, EndsWithOneAfterAFatalError) {
    Sitting finished =
        run(start + R"j({"op":"type","control":"Combo_jourNaiss","text":"12031601"}
{"op":"click","control":"Command2"}
{"op":"click","control":"Command_DateNow"}
{"op":"effects"}
)j");
    EXPECT_EQ(finished.status, 1);
    ASSERT_EQ(finished.answers.size(), 5U);
    EXPECT_EQ(finished.answers[4]["error"], "fatal");
}

TEST(PilotProgram, NeedsAFolder) {
    int const result =
        std::system((std::string{"'"} + PILOTE + "' </dev/null 2>/dev/null").c_str());
    EXPECT_NE(WEXITSTATUS(result), 0);
}

}  // namespace
}  // namespace navarun::test
