// What happens while the program waits, what it asks, and how it ends.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {
namespace {

Json parsed(std::string const& text) { return Json::parse(text); }

Json click(char const* control) { return {{"op", "click"}, {"control", control}}; }

// Someone older than the table: the button of the present age shows a message and waits.
void make_too_old(Visit& visit) {
    visit.generate_for("12031601");
    visit.effects();
}

Json pause_with(Visit& visit, Json const& requests) {
    EXPECT_EQ(visit.ask({{"op", "during-pause"}, {"requests", requests}}),
              parsed(R"j({"ok":true})j"));
    return visit.ask(click("Command_DateNow"));
}

void expect_agreeing_state(Visit& visit) {
    std::string const state = visit.text("HScroll_age.Tag");
    ASSERT_TRUE(state == "VERT" || state == "ROUGE") << state;
    bool const is_true = state == "VERT";
    EXPECT_EQ(visit.text("Command2.Picture"), is_true ? "CycleBouton(0)" : "CycleBouton(1)");
    EXPECT_EQ(visit.text("Command2.ToolTipText"), is_true ? "Cycle vrai !" : "Cycle faux !");
    EXPECT_EQ(visit.text("Label_age.BackColor"), is_true ? "#C0FFC0" : "#FFC0C0");
    for (char const* entry :
         {"Mnuperiode", "MnuImprime", "MnuApercu_Impression", "Mnu_palaisdestin"}) {
        EXPECT_EQ(visit.truth(std::string{entry} + ".Enabled"), is_true) << entry;
    }
    EXPECT_EQ(visit.text("Label_age.Caption"), std::to_string(visit.number("age_courant")));
    EXPECT_EQ(visit.number("HScroll_age.Value"), visit.number("age_courant"));
}

// --- requests inside the wait

TEST(DuringPause, AnswersComeWithTheRequestThatPaused) {
    Visit visit;
    make_too_old(visit);
    Json answer =
        pause_with(visit, parsed(R"j([{"op":"get","names":["frame_messageSauve.Visible"]},
                          {"op":"set","control":"HScroll_age","value":9},
                          {"op":"sing"}, 7, {"op":"click","control":"rien"},
                          {"op":"click","control":"MnuImprime"}, {"op":"load"},
                          {"op":"effects"}])j"));
    EXPECT_EQ(answer["ok"], true);
    Json& during = answer["during"];
    ASSERT_EQ(during.size(), 8U);
    EXPECT_EQ(during[0], parsed(R"j({"values":{"frame_messageSauve.Visible":true}})j"));
    EXPECT_EQ(during[1], parsed(R"j({"ok":true})j"));
    EXPECT_EQ(during[2]["error"], "usage");
    EXPECT_EQ(during[3]["error"], "usage");
    EXPECT_EQ(during[4]["error"], "unknown");
    EXPECT_EQ(during[5]["error"], "refused");
    EXPECT_EQ(during[6]["error"], "usage");
    EXPECT_EQ(during[7]["effects"][0]["kind"], "message");
    EXPECT_FALSE(visit.truth("frame_messageSauve.Visible"));
    EXPECT_EQ(visit.number("HScroll_age.Value"), 9);
}

TEST(DuringPause, RequestsAreRunInTheNextPauseAlone) {
    Visit visit;
    make_too_old(visit);
    Json first = pause_with(visit, Json::array({click("Btn_cycle_partiel")}));
    EXPECT_EQ(first["during"].size(), 1U);
    Json const second = visit.ask(click("Command_DateNow"));
    EXPECT_EQ(second, parsed(R"j({"ok":true})j"));
}

TEST(DuringPause, WaitsForAPauseHoweverManyRequestsComeBefore) {
    Visit visit;
    visit.ask(
        {{"op", "during-pause"},
         {"requests", Json::array({parsed(R"j({"op":"get","names":["age_courant"]})j")})}});
    make_too_old(visit);
    visit.set("HScroll_age", 77);
    Json answer = visit.ask(click("Command_DateNow"));
    EXPECT_EQ(answer["during"], parsed(R"j([{"values":{"age_courant":77}}])j"));
}

TEST(DuringPause, TheClockMovesOnByThePause) {
    Visit visit{"21/11/2026", "23:59:56"};
    make_too_old(visit);
    // Twice 1.4 seconds stay inside the day, the third pause does not.
    EXPECT_TRUE(visit.ask(click("Command_DateNow")).contains("ok"));
    EXPECT_TRUE(visit.ask(click("Command_DateNow")).contains("ok"));
    EXPECT_EQ(visit.ask(click("Command_DateNow"))["error"], "fatal");
}

struct Entry {
    char const* control;
    friend std::ostream& operator<<(std::ostream& out, Entry const& row) {
        return out << row.control;
    }
};
// All buttons and all menu entries but the one that ends the program.
constexpr Entry entries[] = {
    {"Bouton_Internet"},
    {"Bouton_Image"},
    {"Charge(1)"},
    {"Charge(2)"},
    {"Command_reset"},
    {"Command_Disk_Vert"},
    {"Command2"},
    {"Command_DateNow"},
    {"Command_categorie"},
    {"Btn_cycle_partiel"},
    {"Bouton_seigneurjour"},
    {"MnuDevant"},
    {"MnuNavarun"},
    {"MnuPersonalite"},
    {"Mnucelebrites"},
    {"MnuAide"},
    {"MnuPropos"},
    {"MnuImprime"},
    {"MnuApercu_Impression"},
    {"Mnu_Julien"},
    {"MnuFleche"},
    {"MnuCalendrier"},
    {"MnuCalculatrice"},
    {"MnuBlocNotes"},
    {"Mnu_palaisdestin"},
    {"Mnuperiode"},
    {"MnuAzur_cycle"},
    {"MnuAzur_Aum"},
    {"MnuMauve_cycle"},
    {"MnuMauve_Aum"},
    {"Mnu_abrege"},
    {"Label_age"},
    {"Label_Dasha(3)"},
    {"Label_mois(3)"},
    {"Image_cal_Julien"},
};

class PressedInAPause : public testing::TestWithParam<Entry> {};
TEST_P(PressedInAPause, LeavesATrueOrAStaleGrid) {
    for (bool const stale : {false, true}) {
        Visit visit;
        make_too_old(visit);
        if (stale) visit.set("HScroll_age", 12);
        Json answer = pause_with(visit, Json::array({click(GetParam().control)}));
        ASSERT_EQ(answer["ok"], true) << answer;
        ASSERT_EQ(answer["during"].size(), 1U);
        EXPECT_FALSE(visit.exit_status());
        EXPECT_FALSE(visit.truth("frame_messageSauve.Visible"));
        expect_agreeing_state(visit);
    }
}
INSTANTIATE_TEST_SUITE_P(Every, PressedInAPause, testing::ValuesIn(entries),
                         [](auto const& row) {
                             std::string name = row.param.control;
                             for (char& c : name) {
                                 if (c == '(' || c == ')') c = '_';
                             }
                             return name;
                         });

TEST(DuringPause, AWholeDateMayBeTypedAndGenerated) {
    Visit visit;
    make_too_old(visit);
    Json answer = pause_with(
        visit, parsed(R"j([{"op":"type","control":"Combo_jourNaiss","text":"17051962"},
                          {"op":"click","control":"Command2"},
                          {"op":"set","control":"HScroll_age","value":40},
                          {"op":"key","control":"HScroll_age","code":13},
                          {"op":"click","control":"Mnu_Julien"},
                          {"op":"drag","control":"HScroll_age","value":3}])j"));
    for (auto const& nested : answer["during"]) EXPECT_EQ(nested, parsed(R"j({"ok":true})j"));
    expect_agreeing_state(visit);
    EXPECT_EQ(visit.text("date_naissance"), "17/05/1962");
}

// The button of the present age, pressed in its own pause, waits in turn.
TEST(DuringPause, APauseMayHoldAnother) {
    Visit visit;
    make_too_old(visit);
    Json answer = pause_with(visit, parsed(R"j([{"op":"during-pause","requests":[{"op":"get",
                          "names":["frame_messageSauve.Visible"]}]},
                          {"op":"click","control":"Command_DateNow"}])j"));
    ASSERT_EQ(answer["during"].size(), 3U);
    EXPECT_EQ(answer["during"][0], parsed(R"j({"ok":true})j"));
    EXPECT_EQ(answer["during"][1], parsed(R"j({"ok":true})j"));
    EXPECT_EQ(answer["during"][2],
              parsed(R"j({"values":{"frame_messageSauve.Visible":true}})j"));
    EXPECT_EQ(visit.effects().size(), 2U);
    EXPECT_FALSE(visit.truth("frame_messageSauve.Visible"));
    expect_agreeing_state(visit);
}

// --- the end

constexpr char const* question = R"j({"kind":"box","title":"QUITTER",
    "text":"VOULEZ-VOUS QUITTER N.A.V.A.R.U.N ?","answer":1})j";

TEST(End, ByTheMenuAndByTheFrameIsTheSame) {
    for (Json const& request :
         {click("MnuQuitter"), Json{{"op", "close"}, {"form", "Form1"}}}) {
        Visit visit;
        Json answer = visit.ask(request);
        EXPECT_EQ(answer["ended"], true);
        EXPECT_EQ(answer["effects"], Json::array({parsed(question)}));
        EXPECT_EQ(answer.size(), 2U);
        EXPECT_EQ(visit.exit_status(), 0);
    }
}

TEST(End, DeclinedLeavesTheWindowAndTheConsultation) {
    Visit visit;
    visit.generate_for("17051962");
    visit.generate_at(40);
    Json const before = visit.dump();
    for (Json const& request :
         {click("MnuQuitter"), Json{{"op", "close"}, {"form", "Form1"}}}) {
        visit.ask({{"op", "answer"}, {"value", 2}});
        EXPECT_EQ(visit.ask(request), parsed(R"j({"ok":true})j"));
        EXPECT_FALSE(visit.exit_status());
        EXPECT_TRUE(visit.truth("Form1.Visible"));
        EXPECT_EQ(visit.number("reponse_dialogue"), 2);
        EXPECT_EQ(visit.effects()[0]["answer"], 2);
    }
    EXPECT_EQ(visit.dump(), before);
}

TEST(End, AnswersAreTakenInTheirOrder) {
    Visit visit;
    visit.ask({{"op", "answer"}, {"value", 2}});
    visit.ask({{"op", "answer"}, {"value", 2}});
    visit.ask({{"op", "answer"}, {"value", 1}});
    visit.click("MnuQuitter");
    visit.click("MnuQuitter");
    EXPECT_FALSE(visit.exit_status());
    EXPECT_EQ(visit.ask(click("MnuQuitter"))["ended"], true);
}

// A box with OK alone asks nothing, and uses no answer up.
TEST(End, ABoxWithoutAQuestionTakesNoAnswer) {
    Visit visit;
    visit.ask({{"op", "answer"}, {"value", 2}});
    visit.set("Combo_jourNaiss", "");
    visit.click("Command2");
    EXPECT_EQ(visit.effects()[0]["answer"], 1);
    visit.click("MnuQuitter");
    EXPECT_FALSE(visit.exit_status());
}

TEST(End, InsideAPauseAbandonsWhatWasPaused) {
    Visit visit;
    make_too_old(visit);
    Json answer =
        pause_with(visit, Json::array({click("Btn_cycle_partiel"), click("MnuQuitter"),
                                       click("Btn_cycle_partiel")}));
    EXPECT_EQ(answer["ended"], true);
    EXPECT_EQ(answer["during"], parsed(R"j([{"ok":true},{"ended":true}])j"));
    ASSERT_EQ(answer["effects"].size(), 2U);
    EXPECT_EQ(answer["effects"][0]["kind"], "message");
    EXPECT_EQ(answer["effects"][1], parsed(question));
    EXPECT_EQ(visit.exit_status(), 0);
    // The frame was never taken away again.
    EXPECT_TRUE(visit.program().form1.frame_messageSauve.Visible);
}

TEST(End, DeclinedInsideAPauseGoesOn) {
    Visit visit;
    make_too_old(visit);
    visit.ask({{"op", "answer"}, {"value", 2}});
    Json answer = pause_with(visit, Json::array({click("MnuQuitter")}));
    EXPECT_EQ(answer, parsed(R"j({"ok":true,"during":[{"ok":true}]})j"));
    EXPECT_FALSE(visit.truth("frame_messageSauve.Visible"));
}

// --- midnight

std::vector<Json> boxes(Json const& effects) {
    std::vector<Json> found;
    for (auto const& effect : effects) {
        if (effect["kind"] == "box") found.push_back(effect);
    }
    return found;
}

TEST(Midnight, PassedInAPauseIsTheEnd) {
    Visit visit{"21/11/2026", "23:59:59"};
    make_too_old(visit);
    Json answer = visit.ask(click("Command_DateNow"));
    EXPECT_EQ(answer["error"], "fatal");
    EXPECT_TRUE(answer["text"].is_string());
    EXPECT_EQ(visit.exit_status(), 1);
    auto const report = boxes(answer["effects"]);
    ASSERT_EQ(report.size(), 1U);
    EXPECT_EQ(report[0]["title"], "N.A.V.A.R.U.N");
    EXPECT_NE(report[0]["text"], "");
    EXPECT_EQ(report[0]["answer"], 1);
    EXPECT_EQ(answer["effects"][0]["kind"], "message");
}

TEST(Midnight, AlmostReachedIsNotPassed) {
    Visit visit{"21/11/2026", "23:59:58"};
    make_too_old(visit);
    EXPECT_EQ(visit.ask(click("Command_DateNow")), parsed(R"j({"ok":true})j"));
}

TEST(Midnight, ANewDayBeginsWithoutHarm) {
    Visit visit{"21/11/2026", "00:00:00"};
    make_too_old(visit);
    EXPECT_EQ(visit.ask(click("Command_DateNow")), parsed(R"j({"ok":true})j"));
}

TEST(Midnight, PassedInANestedPauseIsReportedOnce) {
    Visit visit{"21/11/2026", "23:59:59"};
    make_too_old(visit);
    Json answer =
        pause_with(visit, Json::array({click("Btn_cycle_partiel"), click("Command_DateNow"),
                                       click("Btn_cycle_partiel")}));
    EXPECT_EQ(answer["error"], "fatal");
    ASSERT_EQ(answer["during"].size(), 2U);
    EXPECT_EQ(answer["during"][0], parsed(R"j({"ok":true})j"));
    EXPECT_EQ(answer["during"][1]["error"], "fatal");
    EXPECT_EQ(boxes(answer["effects"]).size(), 1U);
    EXPECT_EQ(visit.exit_status(), 1);
}

TEST(Midnight, AClockTurnedBackInAPauseIsPassedToo) {
    Visit visit{"21/11/2026", "10:15:00"};
    make_too_old(visit);
    Json answer = pause_with(
        visit, parsed(R"j([{"op":"clock","date":"22/11/2026","time":"00:00:01"}])j"));
    EXPECT_EQ(answer["error"], "fatal");
    EXPECT_EQ(visit.exit_status(), 1);
}

}  // namespace
}  // namespace navarun::test
