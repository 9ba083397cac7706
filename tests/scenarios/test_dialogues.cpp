// Whole sittings, told as dialogues: each file of the folder holds what is asked of the
// program, behind ">", and what it answers, behind "<". Lines that start with "#" and empty
// lines are for the reader.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {
namespace {

std::vector<std::filesystem::path> dialogues() {
    std::vector<std::filesystem::path> files;
    for (auto const& entry : std::filesystem::directory_iterator{DIALOGUES_FOLDER}) {
        if (entry.path().extension() == ".txt") files.push_back(entry.path());
    }
    std::ranges::sort(files);
    return files;
}

// As values: members in any order, reals to a millionth, the wording of an error free.
bool same(Json const& expected, Json const& answer) {
    if (expected.is_number() && answer.is_number()) {
        return std::abs(expected.get<double>() - answer.get<double>()) <= 1e-6;
    }
    if (expected.type() != answer.type()) return false;
    if (expected.is_array()) {
        return std::equal(expected.begin(), expected.end(), answer.begin(), answer.end(), same);
    }
    if (!expected.is_object()) return expected == answer;
    if (expected.size() != answer.size()) return false;
    bool const is_error = expected.contains("error");
    for (auto const& [name, value] : expected.items()) {
        if (!answer.contains(name)) return false;
        if (is_error && name == "text") continue;
        if (!same(value, answer[name])) return false;
    }
    return true;
}

class Dialogue : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Dialogue, IsAnsweredAsTold) {
    std::ifstream file{GetParam()};
    ASSERT_TRUE(file) << GetParam();
    Visit visit{""};
    std::string line;
    Json answer;
    int number = 0;
    int answers = 0;
    while (std::getline(file, line)) {
        ++number;
        if (line.starts_with("> ")) {
            answer = visit.ask_line(line.substr(2));
        } else if (line.starts_with("< ")) {
            Json const expected = Json::parse(line.substr(2));
            EXPECT_TRUE(same(expected, answer))
                << GetParam().filename() << ", line " << number << "\n"
                << "told:     " << expected << "\nanswered: " << answer;
            ++answers;
        } else {
            ASSERT_TRUE(line.empty() || line.starts_with("#")) << "line " << number;
        }
    }
    EXPECT_GT(answers, 0);
}

INSTANTIATE_TEST_SUITE_P(Sittings, Dialogue, testing::ValuesIn(dialogues()),
                         [](auto const& row) {
                             std::string name = row.param.stem().string();
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

TEST(Dialogues, AnswersAreComparedAsValues) {
    EXPECT_TRUE(
        same(Json::parse(R"({"a":1,"b":0.5})"), Json::parse(R"({"b":0.5000001,"a":1})")));
    EXPECT_FALSE(same(Json::parse(R"({"a":1})"), Json::parse(R"({"a":1.1})")));
    EXPECT_FALSE(same(Json::parse(R"({"a":1})"), Json::parse(R"({"a":true})")));
    EXPECT_FALSE(same(Json::parse(R"({"a":1})"), Json::parse(R"({"a":1,"b":2})")));
    EXPECT_FALSE(same(Json::parse("[1,2]"), Json::parse("[2,1]")));
    EXPECT_TRUE(same(Json::parse(R"({"error":"usage","text":"x"})"),
                     Json::parse(R"({"error":"usage","text":"y"})")));
    EXPECT_FALSE(same(Json::parse(R"({"error":"usage","text":"x"})"),
                      Json::parse(R"({"error":"unknown","text":"x"})")));
    EXPECT_FALSE(same(Json::parse(R"({"error":"usage","text":"x"})"),
                      Json::parse(R"({"error":"usage"})")));
}

}  // namespace
}  // namespace navarun::test
