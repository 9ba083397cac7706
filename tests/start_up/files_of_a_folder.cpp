// Reading and preparing folders.
#include "tests/start_up/files_of_a_folder.h"

#include <gtest/gtest.h>

namespace navarun::test {

std::map<std::string, std::string> tree_of(std::filesystem::path const& folder) {
    std::map<std::string, std::string> tree;
    for (auto const& entry : std::filesystem::recursive_directory_iterator{folder}) {
        auto const name = entry.path().lexically_relative(folder).generic_string();
        if (entry.is_directory()) {
            tree[name + "/"];
        } else {
            tree[name] = file_content(entry.path());
        }
    }
    return tree;
}

Start::Start(std::filesystem::path const& folder, std::string_view today, std::string_view time)
    : m_pilot{folder} {
    ask({{"op", "clock"}, {"date", today}, {"time", time}});
    m_answer = ask({{"op", "load"}});
}

Json Start::ask(Json const& request) {
    return Json::parse(m_pilot.answer_line(request.dump()));
}

Json Start::click(std::string_view control) {
    return ask({{"op", "click"}, {"control", control}});
}

Json Start::value(std::string_view name) {
    Json const answer = ask({{"op", "get"}, {"names", Json::array({name})}});
    if (answer.contains("values")) return answer["values"][std::string{name}];
    ADD_FAILURE() << name << " is answered " << answer;
    return nullptr;
}

void expect_fatal_report(Json const& answer, std::vector<std::string> const& told) {
    ASSERT_EQ(answer.value("error", ""), "fatal") << answer;
    Json boxes = Json::array();
    for (Json const& effect : answer["effects"]) {
        if (effect["kind"] == "box" && effect["title"] == "N.A.V.A.R.U.N") {
            boxes.push_back(effect);
        }
    }
    ASSERT_EQ(boxes.size(), 1U) << answer;
    auto const text = boxes[0]["text"].get<std::string>();
    for (auto const& part : told) {
        EXPECT_NE(text.find(part), std::string::npos) << part << " is not told in:\n" << text;
    }
}

}  // namespace navarun::test
