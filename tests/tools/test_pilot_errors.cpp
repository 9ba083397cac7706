// What the pilot answers to what is wrong: no line, however damaged, does any harm.
#include <string>

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {
namespace {

Json parsed(std::string const& text) { return Json::parse(text); }

std::string kind_of(Json const& answer) {
    return answer.contains("error") ? answer["error"].get<std::string>() : "";
}

struct Line {
    char const* name;
    std::string line;
    friend std::ostream& operator<<(std::ostream& out, Line const& row) {
        return out << row.name;
    }
};

// --- before the program is up

Line const too_early[] = {
    {"focus", R"j({"op":"focus","control":"Text_nom"})j"},
    {"type", R"j({"op":"type","control":"Text_nom","text":"a"})j"},
    {"set", R"j({"op":"set","control":"HScroll_age","value":2})j"},
    {"drag", R"j({"op":"drag","control":"HScroll_age","value":2})j"},
    {"choose", R"j({"op":"choose","control":"Combo_jourNaiss","item":"02"})j"},
    {"click", R"j({"op":"click","control":"Command2"})j"},
    {"dblclick", R"j({"op":"dblclick","control":"Label_Solaire(1)"})j"},
    {"hover", R"j({"op":"hover","control":"Label_age"})j"},
    {"key", R"j({"op":"key","control":"HScroll_age","code":13})j"},
    {"mouse",
     R"j({"op":"mouse","control":"Picture_KUNDALI","event":"down","button":1,"x":1,"y":1})j"},
    {"drop", R"j({"op":"drop","control":"Charge(1)"})j"},
    {"close", R"j({"op":"close","form":"Form1"})j"},
    {"during_pause", R"j({"op":"during-pause","requests":[]})j"},
    {"get", R"j({"op":"get","names":["age_courant"]})j"},
    {"dump", R"j({"op":"dump","form":"Form1"})j"},
    {"effects", R"j({"op":"effects"})j"},
    {"pages", R"j({"op":"pages"})j"},
};

class TooEarly : public testing::TestWithParam<Line> {};
TEST_P(TooEarly, IsAnErrorOfUse) {
    Visit visit{""};
    EXPECT_EQ(kind_of(visit.ask_line(GetParam().line)), "usage");
    visit.clock("21/11/2026", "10:15:00");
    EXPECT_EQ(kind_of(visit.ask_line(GetParam().line)), "usage");
}
INSTANTIATE_TEST_SUITE_P(BeforeLoad, TooEarly, testing::ValuesIn(too_early),
                         [](auto const& row) { return std::string{row.param.name}; });

TEST(Load, NeedsAClock) {
    Visit visit{""};
    EXPECT_EQ(kind_of(visit.ask({{"op", "load"}})), "usage");
    visit.clock("21/11/2026", "10:15:00");
    EXPECT_EQ(visit.ask({{"op", "load"}}), parsed(R"j({"ok":true})j"));
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
}

TEST(Load, IsDoneOnce) {
    Visit visit;
    visit.set("HScroll_age", 40);
    EXPECT_EQ(kind_of(visit.ask({{"op", "load"}})), "usage");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 40);
}

TEST(Load, AnAnswerMayBeQueuedBeforeIt) {
    Visit visit{""};
    EXPECT_EQ(visit.ask({{"op", "answer"}, {"value", 2}}), parsed(R"j({"ok":true})j"));
    visit.clock("21/11/2026", "10:15:00");
    visit.ask({{"op", "load"}});
    visit.click("MnuQuitter");
    EXPECT_FALSE(visit.exit_status());
}

// --- damaged lines

Line const damaged_lines[] = {
    {"empty", ""},
    {"blanks", "   "},
    {"word", "load"},
    {"half_an_object", R"j({"op":"load")j"},
    {"two_objects", R"j({"op":"effects"}{"op":"effects"})j"},
    {"single_quotes", "{'op':'effects'}"},
    {"comma_at_the_end", R"j({"op":"effects",})j"},
    {"array", R"j(["op","effects"])j"},
    {"empty_array", "[]"},
    {"number", "12"},
    {"text", R"j("effects")j"},
    {"null", "null"},
    {"truth", "true"},
    {"empty_object", "{}"},
    {"op_is_a_number", R"j({"op":1})j"},
    {"op_is_null", R"j({"op":null})j"},
    {"op_is_a_list", R"j({"op":["effects"]})j"},
    {"op_in_capitals", R"j({"op":"EFFECTS"})j"},
    {"op_with_a_blank", R"j({"op":"effects "})j"},
    {"unknown_op", R"j({"op":"sing"})j"},
    {"nul_inside", std::string("{\"op\":\0\"effects\"}", 17)},
    {"nul_behind", std::string("{\"op\":\"effects\"}\0", 17)},
    {"no_utf8", "{\"op\":\"type\",\"control\":\"Text_nom\",\"text\":\"\xFF\xC3\"}"},
    {"cut_utf8", "{\"op\":\"type\",\"control\":\"Text_nom\",\"text\":\"\xC3\"}"},
    {"lone_surrogate", R"j({"op":"type","control":"Text_nom","text":"\ud800"})j"},
    {"bad_escape", R"j({"op":"type","control":"Text_nom","text":"\x41"})j"},
    {"very_long", std::string(4'000'000, 'a')},
    {"deep", std::string(100'000, '[')},
    {"deep_and_closed", std::string(100'000, '[') + std::string(100'000, ']')},
    {"byte_order_mark_alone", "\xEF\xBB\xBF"},
};

class DamagedLine : public testing::TestWithParam<Line> {};
TEST_P(DamagedLine, IsAnErrorOfUseAndHarmsNothing) {
    Visit visit;
    Json const before = visit.dump();
    Json answer = visit.ask_line(GetParam().line);
    EXPECT_EQ(kind_of(answer), "usage");
    EXPECT_TRUE(answer["text"].is_string());
    EXPECT_EQ(answer.size(), 2U);
    EXPECT_EQ(visit.dump(), before);
    EXPECT_FALSE(visit.exit_status());
}
INSTANTIATE_TEST_SUITE_P(Protocol, DamagedLine, testing::ValuesIn(damaged_lines),
                         [](auto const& row) { return std::string{row.param.name}; });

TEST(Protocol, MembersThatNobodyAskedForAreOverlooked) {
    Visit visit;
    EXPECT_EQ(visit.ask_line(R"j({"op":"set","control":"HScroll_age","value":7,"why":null})j"),
              parsed(R"j({"ok":true})j"));
    EXPECT_EQ(visit.number("age_courant"), 7);
}

// --- wrong and missing members

Line const wrong_requests[] = {
    {"clock_without_time", R"j({"op":"clock","date":"21/11/2026"})j"},
    {"clock_without_date", R"j({"op":"clock","time":"10:15:00"})j"},
    {"clock_of_another_form", R"j({"op":"clock","date":"2026-11-21","time":"10:15:00"})j"},
    {"clock_in_month_13", R"j({"op":"clock","date":"21/13/2026","time":"10:15:00"})j"},
    {"clock_at_24", R"j({"op":"clock","date":"21/11/2026","time":"24:00:00"})j"},
    {"clock_at_60_minutes", R"j({"op":"clock","date":"21/11/2026","time":"10:60:00"})j"},
    {"clock_of_one_digit", R"j({"op":"clock","date":"21/11/2026","time":"1:15:00"})j"},
    {"clock_of_a_number", R"j({"op":"clock","date":"21/11/2026","time":1015})j"},
    {"focus_without_control", R"j({"op":"focus"})j"},
    {"focus_on_a_number", R"j({"op":"focus","control":7})j"},
    {"type_without_text", R"j({"op":"type","control":"Text_nom"})j"},
    {"type_of_a_number", R"j({"op":"type","control":"Text_nom","text":17})j"},
    {"set_without_value", R"j({"op":"set","control":"Text_nom"})j"},
    {"set_text_to_a_number", R"j({"op":"set","control":"Text_nom","value":17})j"},
    {"set_bar_to_a_text", R"j({"op":"set","control":"HScroll_age","value":"17"})j"},
    {"set_bar_to_a_truth", R"j({"op":"set","control":"HScroll_age","value":true})j"},
    {"set_bar_to_null", R"j({"op":"set","control":"HScroll_age","value":null})j"},
    {"set_bar_to_a_fraction", R"j({"op":"set","control":"HScroll_age","value":1.5})j"},
    {"set_bar_to_0", R"j({"op":"set","control":"HScroll_age","value":0})j"},
    {"set_bar_below_0", R"j({"op":"set","control":"HScroll_age","value":-1})j"},
    {"set_bar_to_351", R"j({"op":"set","control":"HScroll_age","value":351})j"},
    {"set_bar_beyond_all_numbers", R"j({"op":"set","control":"HScroll_age","value":1e300})j"},
    {"set_bar_beyond_32_bits", R"j({"op":"set","control":"HScroll_age","value":4294967297})j"},
    {"drag_without_value", R"j({"op":"drag","control":"HScroll_age"})j"},
    {"drag_to_0", R"j({"op":"drag","control":"HScroll_age","value":0})j"},
    {"drag_to_351", R"j({"op":"drag","control":"HScroll_age","value":351})j"},
    {"drag_to_a_text", R"j({"op":"drag","control":"HScroll_age","value":"2"})j"},
    {"choose_nothing", R"j({"op":"choose","control":"Combo_jourNaiss"})j"},
    {"choose_a_number", R"j({"op":"choose","control":"Combo_jourNaiss","item":4})j"},
    {"choose_place_of_a_text", R"j({"op":"choose","control":"Combo_jourNaiss","index":"4"})j"},
    {"choose_half_a_place", R"j({"op":"choose","control":"Combo_jourNaiss","index":0.5})j"},
    {"click_nothing", R"j({"op":"click"})j"},
    {"dblclick_nothing", R"j({"op":"dblclick"})j"},
    {"hover_nothing", R"j({"op":"hover"})j"},
    {"key_without_code", R"j({"op":"key","control":"HScroll_age"})j"},
    {"key_of_a_text", R"j({"op":"key","control":"HScroll_age","code":"13"})j"},
    {"mouse_without_event",
     R"j({"op":"mouse","control":"Picture_KUNDALI","button":1,"x":1,"y":1})j"},
    {"mouse_of_another_event",
     R"j({"op":"mouse","control":"Picture_KUNDALI","event":"wheel","button":1,"x":1,"y":1})j"},
    {"mouse_without_place",
     R"j({"op":"mouse","control":"Picture_KUNDALI","event":"down","button":1})j"},
    {"mouse_at_a_text",
     R"j({"op":"mouse","control":"Picture_KUNDALI","event":"down","button":1,"x":"1","y":1})j"},
    {"drop_nowhere", R"j({"op":"drop"})j"},
    {"close_nothing", R"j({"op":"close"})j"},
    {"close_a_number", R"j({"op":"close","form":1})j"},
    {"answer_without_value", R"j({"op":"answer"})j"},
    {"answer_0", R"j({"op":"answer","value":0})j"},
    {"answer_3", R"j({"op":"answer","value":3})j"},
    {"answer_a_text", R"j({"op":"answer","value":"1"})j"},
    {"answer_a_fraction", R"j({"op":"answer","value":1.5})j"},
    {"get_without_names", R"j({"op":"get"})j"},
    {"get_one_text", R"j({"op":"get","names":"age_courant"})j"},
    {"get_a_number", R"j({"op":"get","names":["age_courant",1]})j"},
    {"dump_without_form", R"j({"op":"dump"})j"},
    {"dump_a_list", R"j({"op":"dump","form":["Form1"]})j"},
    {"during_pause_without_requests", R"j({"op":"during-pause"})j"},
    {"during_pause_of_one", R"j({"op":"during-pause","requests":{"op":"effects"}})j"},
};

class WrongRequest : public testing::TestWithParam<Line> {};
TEST_P(WrongRequest, IsAnErrorOfUseAndHarmsNothing) {
    Visit visit;
    Json const before = visit.dump();
    EXPECT_EQ(kind_of(visit.ask_line(GetParam().line)), "usage");
    EXPECT_EQ(visit.dump(), before);
}
INSTANTIATE_TEST_SUITE_P(Protocol, WrongRequest, testing::ValuesIn(wrong_requests),
                         [](auto const& row) { return std::string{row.param.name}; });

// --- unknown names

TEST(UnknownName, OfAControlIsToldByEveryRequest) {
    Visit visit;
    for (char const* name :
         {"Label_rien", "Label_mois(0)", "Label_mois(13)", "Label_mois", "ImageTriDeva(3)",
          "Charge(0)", "Charge(3)", "Text_nom(1)", "command2", "Command2 ", "", "Label_mois(1",
          "Label_mois(x)", "Label_mois(1)(1)", "Label_mois(1,1)", "Form2.Image_Ganesha",
          "Form1.Command2", "."}) {
        for (Json request :
             {Json{{"op", "focus"}}, Json{{"op", "type"}, {"text", "a"}},
              Json{{"op", "set"}, {"value", "a"}}, Json{{"op", "drag"}, {"value", 2}},
              Json{{"op", "choose"}, {"item", "01"}}, Json{{"op", "click"}},
              Json{{"op", "dblclick"}}, Json{{"op", "hover"}},
              Json{{"op", "key"}, {"code", 13}}, Json{{"op", "drop"}}}) {
            request["control"] = name;
            EXPECT_EQ(kind_of(visit.ask(request)), "unknown") << request;
        }
    }
}

TEST(UnknownName, OfAValueIsTold) {
    Visit visit;
    for (char const* name : {"rien",
                             "",
                             ".",
                             ".Caption",
                             "Label_age.",
                             "Label_age",
                             "Label_age.Text",
                             "Label_age.caption",
                             "Text_nom.Caption",
                             "Text_nom.Checked",
                             "Mnu_Julien.Left",
                             "HScroll_age.Text",
                             "Command2.Value",
                             "Form1.Text",
                             "Image2.Caption",
                             "Label_mois.Caption",
                             "Label_mois(0).Caption",
                             "Label_mois(13).Caption",
                             "Label_mois(1)",
                             "ImageTriDeva(3).Left",
                             "Picture_KUNDALI.List",
                             "dates_age",
                             "dates_age(0)",
                             "dates_age(91)",
                             "dates_age(1,1)",
                             "noms_mois(0)",
                             "noms_mois(13)",
                             "ages_seigneurs(1)",
                             "ages_seigneurs(0,1)",
                             "ages_seigneurs(91,1)",
                             "ages_seigneurs(1,10)",
                             "palais_index(1)",
                             "categorie_palais(13)",
                             "cellules_tridevas(3)",
                             "url_defaut(11)",
                             "Palais_Index"}) {
        EXPECT_EQ(kind_of(visit.ask({{"op", "get"}, {"names", Json::array({name})}})),
                  "unknown")
            << name;
    }
}

TEST(UnknownName, OfAnEntryIsTold) {
    Visit visit;
    for (char const* item : {"00", "13", "1", "", " 01", "janvier"}) {
        EXPECT_EQ(kind_of(visit.ask(
                      {{"op", "choose"}, {"control", "Combo_moisNaiss"}, {"item", item}})),
                  "unknown")
            << item;
    }
    for (int const index : {-2, -1, 12, 1000}) {
        EXPECT_EQ(kind_of(visit.ask(
                      {{"op", "choose"}, {"control", "Combo_moisNaiss"}, {"index", index}})),
                  "unknown")
            << index;
    }
}

TEST(UnknownName, OfAWindowIsTold) {
    Visit visit;
    for (char const* form : {"Form2", "form1", "", "Command2"}) {
        EXPECT_EQ(kind_of(visit.ask({{"op", "dump"}, {"form", form}})), "unknown") << form;
        EXPECT_EQ(kind_of(visit.ask({{"op", "close"}, {"form", form}})), "unknown") << form;
    }
}

// --- what no user could do

Line const impossible_acts[] = {
    {"click_a_hidden_picture", R"j({"op":"click","control":"ImageTriDeva(4)"})j"},
    {"click_a_hidden_label", R"j({"op":"click","control":"Label_annee(1)"})j"},
    {"dblclick_a_hidden_text", R"j({"op":"dblclick","control":"Text_definition_palais"})j"},
    {"hover_a_hidden_picture", R"j({"op":"hover","control":"Image_cal_Julien"})j"},
    {"type_into_a_hidden_text",
     R"j({"op":"type","control":"Text_definition_palais","text":"a"})j"},
    {"set_a_hidden_text", R"j({"op":"set","control":"Text_definition_palais","value":"a"})j"},
    {"mouse_on_a_hidden_page",
     R"j({"op":"mouse","control":"Picture2","event":"down","button":1,"x":1,"y":1})j"},
    {"focus_in_a_hidden_frame", R"j({"op":"focus","control":"Text_Cherche"})j"},
    {"type_in_a_hidden_frame", R"j({"op":"type","control":"Text_New_URL","text":"a"})j"},
    {"click_in_a_hidden_frame", R"j({"op":"click","control":"File_Fichier"})j"},
    {"key_in_a_hidden_frame", R"j({"op":"key","control":"List_Internet","code":46})j"},
    {"click_in_the_hidden_message", R"j({"op":"click","control":"Label_message"})j"},
    {"type_into_a_read_only_text", R"j({"op":"type","control":"Text_zodiac","text":"a"})j"},
    {"set_a_read_only_text", R"j({"op":"set","control":"Text_jourdeSemaine","value":"a"})j"},
    {"focus_a_label", R"j({"op":"focus","control":"Label_age"})j"},
    {"focus_a_picture", R"j({"op":"focus","control":"Picture_KUNDALI"})j"},
    {"focus_an_image", R"j({"op":"focus","control":"Image2"})j"},
    {"focus_a_menu_entry", R"j({"op":"focus","control":"MnuQuitter"})j"},
    {"focus_a_rectangle", R"j({"op":"focus","control":"Shape_defile_an"})j"},
    {"focus_the_window", R"j({"op":"focus","control":"Form1"})j"},
    {"key_on_a_label", R"j({"op":"key","control":"Label_age","code":13})j"},
    {"type_on_a_label", R"j({"op":"type","control":"Label_age","text":"5"})j"},
    {"set_a_label", R"j({"op":"set","control":"Label_age","value":"5"})j"},
    {"set_a_button", R"j({"op":"set","control":"Command2","value":"5"})j"},
    {"drag_a_button", R"j({"op":"drag","control":"Command2","value":5})j"},
    {"choose_in_a_text", R"j({"op":"choose","control":"Text_nom","item":"a"})j"},
    {"choose_a_place_in_a_label", R"j({"op":"choose","control":"Label_age","index":0})j"},
    {"drop_without_a_drag", R"j({"op":"drop","control":"Charge(1)"})j"},
    {"drop_on_a_label_without_a_drag", R"j({"op":"drop","control":"Label_age"})j"},
};

class ImpossibleAct : public testing::TestWithParam<Line> {};
TEST_P(ImpossibleAct, IsRefusedAndHarmsNothing) {
    Visit visit;
    Json const before = visit.dump();
    EXPECT_EQ(kind_of(visit.ask_line(GetParam().line)), "refused");
    EXPECT_EQ(visit.dump(), before);
    EXPECT_EQ(visit.effects(), Json::array());
}
INSTANTIATE_TEST_SUITE_P(Refused, ImpossibleAct, testing::ValuesIn(impossible_acts),
                         [](auto const& row) { return std::string{row.param.name}; });

TEST(Refused, ARefusedActLeavesTheFocus) {
    Visit visit;
    visit.type("Combo_jourNaiss", "1");
    for (char const* control : {"Text_Cherche", "Label_age", "Text_definition_palais"}) {
        EXPECT_EQ(kind_of(visit.ask({{"op", "focus"}, {"control", control}})), "refused");
    }
    visit.type("Combo_jourNaiss", "7");
    EXPECT_EQ(visit.text("date_naissance"), "17/01/1900");
}

TEST(Refused, AMenuEntryThatIsNotPermittedIs) {
    Visit visit;
    visit.set("HScroll_age", 2);
    EXPECT_EQ(kind_of(visit.ask({{"op", "click"}, {"control", "MnuImprime"}})), "refused");
    visit.click("Command2");
    EXPECT_TRUE(visit.truth("MnuImprime.Enabled"));
}

// A menu that is not permitted takes its entries along.
TEST(Refused, AnEntryOfADisabledMenuIs) {
    Visit visit;
    visit.program().form1.MnuBouton_Menu.Enabled = false;
    EXPECT_EQ(kind_of(visit.ask({{"op", "click"}, {"control", "MnuQuitter"}})), "refused");
    EXPECT_FALSE(visit.exit_status());
}

TEST(Refused, AReadOnlyTextTakesTheFocusAllTheSame) {
    Visit visit;
    visit.focus("Text_zodiac");
    visit.focus("Text_jourdeSemaine");
}

}  // namespace
}  // namespace navarun::test
