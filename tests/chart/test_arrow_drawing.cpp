// Arrows drawn on the chart with the mouse.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/chart/chart_visit.h"

namespace navarun::test {

namespace {

constexpr std::size_t open_arrow_lines = 4;
constexpr std::size_t filled_arrow_lines = 105;
constexpr std::size_t plain_lines = 2;

TEST(Drawing, ADragLeavesAnArrowOfTheFirstSettings) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 2000);
    Json const lines = visit.drawing();
    ASSERT_EQ(lines.size(), open_arrow_lines);
    EXPECT_EQ(lines[0], Json::array({1000.0, 2000.0, 3000.0, 2000.0, 3, "#800080"}));
    EXPECT_EQ(lines[1], Json::array({0.0, 0.0, 0.0, 0.0, 3, "#800080"}));
    EXPECT_TRUE(visit.truth("fleche_fixee"));
    EXPECT_TRUE(visit.truth("fleche_dessinee"));
    EXPECT_EQ(visit.number("depart_x"), 1000);
    EXPECT_EQ(visit.number("depart_y"), 2000);
    EXPECT_EQ(visit.number("delta_x"), 2000);
    EXPECT_EQ(visit.number("delta_y"), 0);
}

TEST(Drawing, TheRubberLineFollowsTheDragAndIsNeverKept) {
    ChartVisit visit;
    visit.toggle_window();
    visit.chart("down", 1, 1000, 2000);
    for (int x = 1100; x < 2000; x += 100) {
        visit.chart("move", 1, x, 2500);
        EXPECT_EQ(visit.rubber_lines(), 1U) << x;
        EXPECT_EQ(visit.drawing(), Json::array()) << x;
        auto const& rubber =
            visit.program().form1.Picture_KUNDALI.lines(screen::Layer::rubber).front();
        EXPECT_EQ(rubber, (screen::DrawnLine{.x1 = 1000,
                                             .y1 = 2000,
                                             .x2 = static_cast<double>(x),
                                             .y2 = 2500,
                                             .width = 3,
                                             .colour = screen::Colour{0x800080}}));
    }
}

TEST(Drawing, ANewDragClearsTheRubberLineNotTheArrows) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 2000);
    Json const first = visit.drawing();
    visit.chart("down", 1, 4000, 4000);
    EXPECT_EQ(visit.rubber_lines(), 0U);
    EXPECT_EQ(visit.drawing(), first);
    visit.chart("move", 1, 5000, 5000);
    EXPECT_EQ(visit.drawing(), first);
    visit.chart("up", 1, 5000, 5000);
    EXPECT_EQ(visit.drawing().size(), 2 * open_arrow_lines);
    for (std::size_t i = 0; i < first.size(); ++i) EXPECT_EQ(visit.drawing()[i], first[i]);
}

TEST(Drawing, TheNextMoveOverADrawnArrowLeavesIt) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 2000);
    Json const drawn = visit.drawing();
    visit.chart("move", 0, 100, 100);
    visit.chart("move", 0, 200, 200);
    EXPECT_EQ(visit.drawing(), drawn);
}

struct StyleCase {
    char const* name;
    char const* option;
    std::size_t lines;
    friend std::ostream& operator<<(std::ostream& out, StyleCase const& row) {
        return out << row.name;
    }
};
constexpr StyleCase styles[] = {
    {"filled", "Fleche.Option_Fleche(1)", filled_arrow_lines},
    {"open", "Fleche.Option_Fleche(2)", open_arrow_lines},
    {"line", "Fleche.Option_Fleche(3)", plain_lines},
};
class DrawnStyle : public testing::TestWithParam<StyleCase> {};
TEST_P(DrawnStyle, HasItsLines) {
    ChartVisit visit;
    visit.toggle_window();
    visit.click(GetParam().option);
    visit.drag_arrow(1000, 2000, 3000, 4000);
    EXPECT_EQ(visit.drawing().size(), GetParam().lines);
}
INSTANTIATE_TEST_SUITE_P(Styles, DrawnStyle, testing::ValuesIn(styles),
                         [](auto const& row) { return row.param.name; });

TEST(Drawing, AllLinesOfAnArrowHaveTheChosenWidthAndColour) {
    ChartVisit visit;
    visit.toggle_window();
    visit.click("Fleche.Option_Fleche(1)");
    visit.click("Fleche.Label_couleur(12)");
    visit.mouse("Fleche.Picture1", "down", 1, 500, 900);
    visit.drag_arrow(1000, 2000, 3000, 4000);
    for (Json const& line : visit.drawing()) {
        EXPECT_EQ(line[4], 9);
        EXPECT_EQ(line[5], "#FF0000");
    }
}

TEST(Drawing, ChoosingAnotherColourOrWidthLeavesWhatIsDrawn) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    Json const drawn = visit.drawing();
    visit.click("Fleche.Label_couleur(9)");
    visit.click("Fleche.Option_Fleche(3)");
    visit.mouse("Fleche.Picture1", "down", 1, 500, 500);
    EXPECT_EQ(visit.drawing(), drawn);
    visit.drag_arrow(1000, 2000, 3000, 4000);
    Json const both = visit.drawing();
    ASSERT_EQ(both.size(), drawn.size() + plain_lines);
    EXPECT_EQ(both[drawn.size()][5], "#0000FF");
    EXPECT_EQ(both[drawn.size()][4], 5);
}

// The width is taken over by the drag, not by the press.
TEST(Drawing, APressWithoutADragHasTheWidthOfTheDragBefore) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.mouse("Fleche.Picture1", "down", 1, 500, 900);
    visit.chart("down", 1, 5000, 5000);
    visit.chart("up", 1, 5000, 5000);
    EXPECT_EQ(visit.drawing().back()[4], 3);
}

TEST(Drawing, APressWithoutADragLeavesAHeadRoundThePoint) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.chart("down", 1, 5000, 6000);
    visit.chart("up", 1, 5000, 6000);
    Json const lines = visit.drawing();
    ASSERT_EQ(lines.size(), 2 * open_arrow_lines);
    EXPECT_EQ(lines[4][0], 5000.0);
    EXPECT_EQ(lines[4][2], 5000.0);
    EXPECT_EQ(lines[4][3], 6000.0);
    EXPECT_NEAR(lines[6][2].get<double>(), 5000 + 70.710678, 1e-5);
    EXPECT_NEAR(lines[6][3].get<double>(), 6000 - 70.710678, 1e-5);
}

TEST(Drawing, DraggedUpTheHeadPointsUp) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(3000, 4000, 3000, 2000);
    Json const lines = visit.drawing();
    ASSERT_EQ(lines.size(), open_arrow_lines);
    // Both feet lie below the tip.
    EXPECT_NEAR(lines[2][3].get<double>(), 2060 + 70.710678, 1e-5);
    EXPECT_NEAR(lines[3][3].get<double>(), 2060 + 70.710678, 1e-5);
}

struct WholeStep {
    char const* name;
    double from;
    double to;
    int delta;
    friend std::ostream& operator<<(std::ostream& out, WholeStep const& row) {
        return out << row.name;
    }
};
constexpr WholeStep whole_steps[] = {
    {"half_goes_to_the_even_below", 1000, 1000.5, 0},
    {"half_goes_to_the_even_above", 1000, 1001.5, 2},
    {"two_and_a_half_is_two", 1000, 1002.5, 2},
    {"upwards_half_is_none", 1000, 999.5, 0},
    {"upwards_one_and_a_half_is_two", 1000, 998.5, -2},
    {"below_half", 1000, 1000.4, 0},
    {"above_half", 1000, 1000.6, 1},
    {"between_two_broken_places", 1000.3, 1004.1, 4},
};
class WholeDelta : public testing::TestWithParam<WholeStep> {};
TEST_P(WholeDelta, OfTheDragDownTheChart) {
    ChartVisit visit;
    visit.toggle_window();
    visit.click("Fleche.Option_Fleche(3)");
    visit.drag_arrow(1000.25, GetParam().from, 2000.75, GetParam().to);
    EXPECT_EQ(visit.value("delta_y"), GetParam().delta);
    // Across the chart nothing is rounded.
    EXPECT_EQ(visit.value("delta_x"), 1000.5);
    EXPECT_EQ(visit.drawing()[0][3], GetParam().from + GetParam().delta);
}
INSTANTIATE_TEST_SUITE_P(Steps, WholeDelta, testing::ValuesIn(whole_steps),
                         [](auto const& row) { return row.param.name; });

// The way down the chart is counted in sixteen bits: a drag that leaves the chart by more ends
// the run, as each overflow does.
TEST(Drawing, ADragDownToTheLastOfSixteenBitsIsDrawn) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 1000, 1000, 1000 + 32767);
    EXPECT_EQ(visit.value("delta_y"), 32767);
    EXPECT_EQ(visit.drawing().size(), open_arrow_lines);
}

TEST(Drawing, ADragBeyondSixteenBitsEndsTheRun) {
    ChartVisit visit;
    visit.toggle_window();
    visit.chart("down", 1, 1000, 1000);
    Json const answer = visit.mouse("Picture_KUNDALI", "move", 1, 1000, 1000 + 32768);
    EXPECT_EQ(answer.value("error", ""), "fatal") << answer;
    EXPECT_EQ(visit.exit_status(), 1);
}

TEST(HiddenArrowWindow, LetsTheChartDrawNothing) {
    ChartVisit visit;
    visit.drag_arrow(1000, 2000, 3000, 4000);
    EXPECT_EQ(visit.drawing(), Json::array());
    EXPECT_EQ(visit.rubber_lines(), 0U);
    EXPECT_FALSE(visit.truth("fleche_fixee"));
}

// The mark of a drawn arrow is set by letting go of the button, drawn or not.
TEST(HiddenArrowWindow, StillLeavesTheMarkOfADrawnArrow) {
    ChartVisit visit;
    EXPECT_FALSE(visit.truth("fleche_dessinee"));
    visit.chart("down", 1, 1000, 2000);
    EXPECT_FALSE(visit.truth("fleche_dessinee"));
    visit.chart("up", 1, 1000, 2000);
    EXPECT_TRUE(visit.truth("fleche_dessinee"));
}

TEST(RightButton, LeavesTheStartOfTheDragWhereItWas) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.chart("down", 2, 5000, 5000);
    EXPECT_EQ(visit.number("depart_x"), 1000);
    EXPECT_FALSE(visit.truth("fleche_fixee"));
    visit.chart("move", 2, 5500, 5500);
    EXPECT_EQ(visit.rubber_lines(), 0U);
    EXPECT_EQ(visit.number("delta_x"), 2000);
}

// Letting go of any button draws: with the right one the last arrow once more.
TEST(RightButton, LetGoDrawsTheLastArrowOnceMore) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    Json const once = visit.drawing();
    visit.chart("down", 2, 5000, 5000);
    visit.chart("up", 2, 5000, 5000);
    Json const twice = visit.drawing();
    ASSERT_EQ(twice.size(), 2 * once.size());
    for (std::size_t i = 0; i < once.size(); ++i) EXPECT_EQ(twice[once.size() + i], once[i]);
}

struct Act {
    char const* name;
    char const* control;
    friend std::ostream& operator<<(std::ostream& out, Act const& row) {
        return out << row.name;
    }
};

constexpr Act wiping_acts[] = {
    {"generate", "Command2"},
    {"present_age", "Command_DateNow"},
    {"another_scheme", "MnuMauve_Aum"},
    {"the_other_azure", "MnuAzur_Aum"},
    {"rubber_button", "Fleche.Command1"},
    {"reset", "Command_reset"},
    {"closing_the_tool", "MnuFleche"},
};
class Wiping : public testing::TestWithParam<Act> {};
TEST_P(Wiping, TakesTheArrowsOffTheChart) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.drag_arrow(2000, 2000, 3000, 4000);
    visit.click(GetParam().control);
    EXPECT_EQ(visit.drawing(), Json::array());
    EXPECT_EQ(visit.rubber_lines(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Acts, Wiping, testing::ValuesIn(wiping_acts),
                         [](auto const& row) { return row.param.name; });

constexpr Act keeping_acts[] = {
    {"colours_of_the_palaces", "Command_categorie"},
    {"scheme_in_force", "MnuAzur_cycle"},
    {"short_names", "Mnu_abrege"},
    {"three_cycles", "Btn_cycle_partiel"},
    {"a_month", "Label_mois(3)"},
    {"a_period", "Label_Dasha(3)"},
    {"records", "Charge(1)"},
};
class Keeping : public testing::TestWithParam<Act> {};
TEST_P(Keeping, LeavesTheArrowsOnTheChart) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    Json const drawn = visit.drawing();
    visit.click(GetParam().control);
    EXPECT_EQ(visit.drawing(), drawn);
    visit.click(GetParam().control);
    EXPECT_EQ(visit.drawing(), drawn);
}
INSTANTIATE_TEST_SUITE_P(Acts, Keeping, testing::ValuesIn(keeping_acts),
                         [](auto const& row) { return row.param.name; });

TEST(Wiping, AnAgeWalkedToLeavesTheArrows) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    Json const drawn = visit.drawing();
    visit.set("HScroll_age", 30);
    EXPECT_EQ(visit.drawing(), drawn);
}

TEST(Wiping, ByGenerateLeavesTheMarkOfADrawnArrow) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.click("Command2");
    EXPECT_TRUE(visit.truth("fleche_dessinee"));
    EXPECT_TRUE(visit.truth("Fleche.Visible"));
}

TEST(Wiping, ByTheRubberButtonTakesTheMarkAndLeavesTheWindow) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.click("Fleche.Command1");
    EXPECT_FALSE(visit.truth("fleche_dessinee"));
    EXPECT_TRUE(visit.truth("Fleche.Visible"));
    EXPECT_TRUE(visit.truth("MnuFleche.Checked"));
}

TEST(Wiping, ByResetHidesTheWindowWhereAnArrowStood) {
    ChartVisit visit;
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.click("Command_reset");
    EXPECT_FALSE(visit.truth("Fleche.Visible"));
    EXPECT_FALSE(visit.truth("MnuFleche.Checked"));
    EXPECT_FALSE(visit.truth("fleche_dessinee"));
}

TEST(Wiping, ByResetLeavesTheWindowOpenWhereNoneDid) {
    ChartVisit visit;
    visit.toggle_window();
    visit.click("Command_reset");
    EXPECT_TRUE(visit.truth("Fleche.Visible"));
    EXPECT_TRUE(visit.truth("MnuFleche.Checked"));
}

TEST(Wiping, LoadsThePictureOfTheSchemeInForce) {
    ChartVisit visit;
    visit.click("MnuMauve_Aum");
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.click("Fleche.Command1");
    EXPECT_EQ(visit.text("Picture_KUNDALI.Picture"), "Image_Kundali(3)");
}

TEST(Wiping, AHalfDrawnDragGoesOnAfterGenerate) {
    ChartVisit visit;
    visit.toggle_window();
    visit.chart("down", 1, 1000, 2000);
    visit.chart("move", 1, 2000, 2000);
    visit.click("Command2");
    visit.chart("up", 1, 2000, 2000);
    EXPECT_EQ(visit.drawing().size(), open_arrow_lines);
}

}  // namespace

}  // namespace navarun::test
