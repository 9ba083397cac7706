// The preview: how it opens, what closes it, and that its page is the person's on screen.
#include <array>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/printing/print_visit.h"

namespace navarun::test {
namespace {

TEST(Preview, OpensWithTwoPagesTheSecondWithThePeriods) {
    PrintVisit visit;
    visit.pages();
    visit.toggle_preview();
    EXPECT_TRUE(visit.preview_is_open());
    Json const drawn = visit.pages();
    ASSERT_EQ(drawn.size(), 2u);
    for (auto const& page : drawn) {
        EXPECT_EQ(page["target"], "preview");
        EXPECT_NEAR(page["ratio"].get<double>(), preview_ratio, 1e-12);
    }
    // Nobody's periods have been listed yet.
    EXPECT_EQ(words_at(drawn[0], 6.35, 2.3), "");
    EXPECT_EQ(words_at(drawn[1], 6.35, 2.3), "SHUKR    01/01/1901   (03)");
    EXPECT_EQ(without(drawn[0], drawn[1]).size(), 35u) << "but for the periods they are alike";
}

TEST(Preview, KeepsTheProportionsOfThePaper) {
    PrintVisit visit;
    EXPECT_EQ(visit.number("Picture2.Height"), 7180);
    visit.toggle_preview();
    EXPECT_EQ(visit.number("Picture2.Width"), 5100);
    EXPECT_EQ(visit.number("Picture2.Height"), 7213);
    EXPECT_EQ(visit.number("Picture2.Left"), 6960);
    EXPECT_EQ(visit.number("Picture2.Top"), 0);
}

TEST(Preview, AnotherPaperChangesItsHeightNeverItsWidth) {
    PrintVisit visit;
    visit.toggle_preview();
    visit.pages();
    visit.program().printing.preview_page = {.width = 8.5, .height = 11};
    visit.click("Option_impression.Check_noteImprime");
    EXPECT_EQ(visit.number("Picture2.Width"), 5100);
    EXPECT_EQ(visit.number("Picture2.Height"), 6600);
    EXPECT_NEAR(visit.last_page()["ratio"].get<double>(), 5100 / 8.5 / 1440, 1e-12);
}

TEST(Preview, SizesOfTextFollowTheRatioAndPlacesDoNot) {
    PrintVisit visit;
    visit.toggle_preview();
    Json const title = text_at(visit.last_page(), 2.3, 0.4);
    EXPECT_EQ(title["text"], "La Méthode Navarun");
    EXPECT_NEAR(title["size"].get<double>(), 17 * preview_ratio, 1e-9);
}

TEST(Preview, ASecondClickClosesItAndDrawsNothing) {
    PrintVisit visit;
    visit.toggle_preview();
    visit.pages();
    visit.toggle_preview();
    EXPECT_FALSE(visit.preview_is_open());
    EXPECT_EQ(visit.pages(), Json::array());
}

TEST(Preview, TakesTheArrowsOffTheChart) {
    PrintVisit visit;
    visit.click("MnuFleche");
    visit.ask_line(
        R"({"op":"mouse","control":"Picture_KUNDALI","event":"down","button":1,"x":900,"y":900})");
    visit.ask_line(
        R"({"op":"mouse","control":"Picture_KUNDALI","event":"move","button":1,"x":3000,"y":3000})");
    visit.ask_line(
        R"({"op":"mouse","control":"Picture_KUNDALI","event":"up","button":1,"x":3000,"y":3000})");
    ASSERT_FALSE(visit.value("Picture_KUNDALI.Drawing").empty());
    visit.toggle_preview();
    EXPECT_TRUE(visit.value("Picture_KUNDALI.Drawing").empty());
}

TEST(Preview, SwitchesOnWhateverWasOffButForTheMarks) {
    PrintVisit visit;
    visit.toggle_preview();
    for (char const* box : {"Check_Mahadasha", "Check_PhotoImprime", "Check_periode",
                            "Check_SeigneurMois", "Check_noteImprime", "Check_palaisDestin"}) {
        visit.set(std::string{"Option_impression."} + box, 0);
    }
    visit.toggle_preview();
    visit.toggle_preview();
    for (char const* name :
         {"imprime_photo", "imprime_note", "imprime_periode", "imprime_palais_destin",
          "imprime_mahadasha", "imprime_seigneur_mois"}) {
        EXPECT_TRUE(visit.truth(name)) << name;
    }
    EXPECT_FALSE(visit.truth("imprime_tri_deva"));
}

// What closes the preview, on an open one.
struct Closing {
    char const* name;
    void (*act)(PrintVisit&);
    friend std::ostream& operator<<(std::ostream& out, Closing const& row) {
        return out << row.name;
    }
};
constexpr Closing closings[] = {
    {"its_menu_entry", [](PrintVisit& visit) { visit.toggle_preview(); }},
    {"the_frame_of_its_window", [](PrintVisit& visit) { visit.close("Option_impression"); }},
    {"its_printer",
     [](PrintVisit& visit) { visit.click("Option_impression.Image_Impression"); }},
    {"its_printer_and_a_cancel",
     [](PrintVisit& visit) {
         visit.answer_next(2);
         visit.click("Option_impression.Image_Impression");
     }},
    {"another_age", [](PrintVisit& visit) { visit.set("HScroll_age", 2); }},
    {"an_age_dragged_to", [](PrintVisit& visit) { visit.drag("HScroll_age", 30); }},
    {"the_present_age", [](PrintVisit& visit) { visit.click("Command_DateNow"); }},
    {"a_reset", [](PrintVisit& visit) { visit.click("Command_reset"); }},
    {"the_list_of_the_records", [](PrintVisit& visit) { visit.click("Charge(1)"); }},
    {"the_list_of_the_portraits", [](PrintVisit& visit) { visit.click("Bouton_Image"); }},
};
class PreviewClosing : public testing::TestWithParam<Closing> {};
TEST_P(PreviewClosing, LeavesNothingOfIt) {
    PrintVisit visit;
    visit.toggle_preview();
    ASSERT_TRUE(visit.preview_is_open());
    GetParam().act(visit);
    EXPECT_FALSE(visit.preview_is_open());
    // And it opens anew.
    visit.click("Command2");
    visit.pages();
    visit.toggle_preview();
    EXPECT_TRUE(visit.preview_is_open());
    EXPECT_EQ(visit.pages().size(), 2u);
}
INSTANTIATE_TEST_SUITE_P(Preview, PreviewClosing, testing::ValuesIn(closings),
                         [](auto const& row) { return row.param.name; });

// The list was opened first, and the preview over it.
TEST(Preview, ALoadClosesIt) {
    PrintVisit visit;
    visit.set("Text_nom", "Zola");
    visit.click("Command_Disk_Vert");
    visit.click("Charge(1)");
    visit.toggle_preview();
    visit.ask({{"op", "choose"}, {"control", "File_Fichier"}, {"index", 0}});
    ASSERT_TRUE(visit.preview_is_open());
    visit.double_click("File_Fichier");
    EXPECT_FALSE(visit.preview_is_open());
}

TEST(Preview, NeitherPreviewNorPrintWhileTheGridIsStale) {
    PrintVisit visit;
    visit.set("HScroll_age", 12);
    for (char const* entry : {"MnuApercu_Impression", "MnuImprime"}) {
        EXPECT_FALSE(visit.truth(std::string{entry} + ".Enabled"));
        EXPECT_EQ(visit.ask({{"op", "click"}, {"control", entry}})["error"], "refused");
    }
    visit.click("Command2");
    EXPECT_TRUE(visit.truth("MnuApercu_Impression.Enabled"));
    EXPECT_TRUE(visit.truth("MnuImprime.Enabled"));
}

// The window stays beside a preview that the other entry hid.
TEST(Preview, OpensAgainAfterTheOtherEntryHidIt) {
    PrintVisit visit;
    visit.toggle_preview();
    visit.click("MnuImprime");
    EXPECT_FALSE(visit.truth("Picture2.Visible"));
    visit.toggle_preview();
    EXPECT_TRUE(visit.preview_is_open());
}

// Two persons one after the other.

constexpr std::string_view first_of_the_second = "SURYA    17/05/1963   (02)";

TEST(PeriodLines, OfTheNextPersonAreNeverThoseOfTheLast) {
    PrintVisit visit;
    visit.toggle_preview();
    visit.toggle_preview();
    visit.generate_for("17051962");
    visit.pages();
    visit.toggle_preview();
    for (auto const& page : visit.pages()) {
        EXPECT_EQ(words_at(page, 6.35, 2.3), first_of_the_second);
    }
}

TEST(PeriodLines, FollowAPersonGeneratedUnderAnOpenPreview) {
    PrintVisit visit;
    visit.toggle_preview();
    visit.generate_for("17051962");
    visit.pages();
    visit.click("Option_impression.Check_noteImprime");
    EXPECT_EQ(words_at(visit.last_page(), 6.35, 2.3), first_of_the_second);
    visit.generate_for("01011950");
    visit.click("Option_impression.Image_Impression");
    EXPECT_EQ(words_at(visit.last_page(), 6.35, 2.3).substr(9, 10), "01/01/1951");
}

TEST(PeriodLines, LeaveAnOpenListOfPeriodsAsItStands) {
    PrintVisit visit;
    visit.click("Mnuperiode");
    Json const list = visit.value("Affiche_cycle.List_periode.List");
    visit.type("Combo_jourNaiss", "17051962");
    visit.click("Command2");
    visit.click("MnuImprime");
    EXPECT_EQ(words_at(visit.last_page(), 6.35, 2.3), first_of_the_second);
    EXPECT_EQ(visit.value("Affiche_cycle.List_periode.List"), list);
}

TEST(PeriodLines, AreThe35BelowTheFirstRuleOfTheList) {
    PrintVisit visit;
    visit.generate_for("17051962");
    visit.generate_at(120);
    visit.click("Mnuperiode");
    auto const list =
        visit.value("Affiche_cycle.List_periode.List").get<std::vector<std::string>>();
    Json const page = visit.printed_page();
    std::vector<std::string> const told{list.begin() + 1, list.begin() + 36};
    EXPECT_EQ(column(page, 6.35, 2.3, 0.18, 35), told);
    for (int i = 0; i < 35; ++i) {
        EXPECT_EQ(visit.text("periodes_impression(" + std::to_string(i) + ")"),
                  told[static_cast<std::size_t>(i)]);
    }
}

}  // namespace
}  // namespace navarun::test
