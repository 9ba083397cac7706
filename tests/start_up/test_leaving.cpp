// Leaving the program.
#include <gtest/gtest.h>

#include "tests/start_up/files_of_a_folder.h"

namespace navarun::test {

namespace {

struct Way {
    char const* name;
    Json request;
    friend std::ostream& operator<<(std::ostream& out, Way const& row) {
        return out << row.name;
    }
};
Way const ways_out[] = {
    {"menu", {{"op", "click"}, {"control", "MnuQuitter"}}},
    {"frame", {{"op", "close"}, {"form", "Form1"}}},
};

class Leaving : public testing::TestWithParam<Way> {};
INSTANTIATE_TEST_SUITE_P(Ways, Leaving, testing::ValuesIn(ways_out),
                         [](auto const& row) { return row.param.name; });

Json question(int answer) {
    return {{"kind", "box"},
            {"title", "QUITTER"},
            {"text", "VOULEZ-VOUS QUITTER N.A.V.A.R.U.N ?"},
            {"answer", answer}};
}

TEST_P(Leaving, AsksAndEndsTheProgram) {
    Visit visit;
    Json const answer = visit.ask(GetParam().request);
    EXPECT_EQ(answer["ended"], true) << answer;
    EXPECT_EQ(answer["effects"], Json::array({question(1)}));
    EXPECT_EQ(visit.exit_status(), 0);
}

TEST_P(Leaving, ADeclinedQuestionLeavesWindowAndConsultationUntouched) {
    Visit visit;
    visit.generate_for("17051962");
    visit.set("Text_prenom", "Marie");
    visit.set("Text_Note", "une note");
    Json const before = visit.dump();
    visit.ask({{"op", "answer"}, {"value", 2}});
    EXPECT_EQ(visit.ask(GetParam().request), Json({{"ok", true}}));
    EXPECT_EQ(visit.effects(), Json::array({question(2)}));
    EXPECT_EQ(visit.dump(), before);
    EXPECT_TRUE(visit.truth("Form1.Visible"));
    EXPECT_EQ(visit.exit_status(), std::nullopt);
}

TEST_P(Leaving, SavesNothing) {
    Visit visit;
    visit.click("MnuMauve_Aum");
    visit.set("Text_prenom", "Marie");
    auto const before = tree_of(visit.folder());
    visit.ask(GetParam().request);
    EXPECT_EQ(tree_of(visit.folder()), before);
}

TEST_P(Leaving, DuringAMessageAbandonsWhatWaited) {
    Visit visit;
    visit.ask({{"op", "during-pause"}, {"requests", Json::array({GetParam().request})}});
    visit.set("Text_prenom", "Marie");
    Json const answer = visit.ask({{"op", "click"}, {"control", "Command_Disk_Vert"}});
    EXPECT_EQ(answer["ended"], true) << answer;
    EXPECT_EQ(visit.exit_status(), 0);
}

}  // namespace

}  // namespace navarun::test
