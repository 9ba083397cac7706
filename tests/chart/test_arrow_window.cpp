// The tool window of the arrows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/chart/chart_visit.h"

namespace navarun::test {

namespace {

constexpr char const* standard_colours_in_order[] = {
    "#000000", "#000080", "#008000", "#008080", "#800000", "#800080", "#808000", "#C0C0C0",
    "#808080", "#0000FF", "#00FF00", "#00FFFF", "#FF0000", "#FF00FF", "#FFFF00", "#FFFFFF",
};

std::string field(int index) { return "Fleche.Label_couleur(" + std::to_string(index) + ")"; }
std::string option(int index) { return "Fleche.Option_Fleche(" + std::to_string(index) + ")"; }

void expect_first_settings(ChartVisit& visit) {
    EXPECT_EQ(visit.number("style_fleche"), 2);
    EXPECT_EQ(visit.number("epaisseur_fleche"), 3);
    EXPECT_EQ(visit.text("couleur_fleche"), "#800080");
    EXPECT_FALSE(visit.truth(option(1) + ".Value"));
    EXPECT_TRUE(visit.truth(option(2) + ".Value"));
    EXPECT_FALSE(visit.truth(option(3) + ".Value"));
    EXPECT_EQ(visit.value("Fleche.Shape_selection.Left"), visit.value(field(5) + ".Left"));
    EXPECT_EQ(visit.value("Fleche.Shape_selection.Top"), visit.value(field(5) + ".Top"));
}

void choose_others(ChartVisit& visit) {
    visit.click(option(1));
    visit.click(field(12));
    visit.mouse("Fleche.Picture1", "down", 1, 500, 700);
}

void expect_the_others(ChartVisit& visit) {
    EXPECT_EQ(visit.number("style_fleche"), 1);
    EXPECT_EQ(visit.text("couleur_fleche"), "#FF0000");
    EXPECT_EQ(visit.number("epaisseur_fleche"), 7);
    EXPECT_TRUE(visit.truth(option(1) + ".Value"));
    EXPECT_EQ(visit.value("Fleche.Shape_selection.Left"), visit.value(field(12) + ".Left"));
}

TEST(ArrowWindow, OpensAndClosesByItsMenuEntry) {
    ChartVisit visit;
    EXPECT_FALSE(visit.truth("Fleche.Visible"));
    EXPECT_FALSE(visit.truth("MnuFleche.Checked"));
    visit.toggle_window();
    EXPECT_TRUE(visit.truth("Fleche.Visible"));
    EXPECT_TRUE(visit.truth("MnuFleche.Checked"));
    visit.toggle_window();
    EXPECT_FALSE(visit.truth("Fleche.Visible"));
    EXPECT_FALSE(visit.truth("MnuFleche.Checked"));
}

TEST(ArrowWindow, OpensWithItsFirstSettings) {
    ChartVisit visit;
    visit.toggle_window();
    expect_first_settings(visit);
    EXPECT_EQ(visit.text("Fleche.Caption"), "Flêche");
    EXPECT_EQ(visit.text(option(1) + ".Caption"), "Flêche 1");
    EXPECT_EQ(visit.text(option(2) + ".Caption"), "Flêche 2");
    EXPECT_EQ(visit.text(option(3) + ".Caption"), "Ligne");
    EXPECT_EQ(visit.text("Fleche.Picture1.ToolTipText"), "Epaisseur du trait");
    EXPECT_EQ(visit.text("Fleche.Command1.ToolTipText"), "Efface les flêches");
}

TEST(ArrowWindow, StandsAboveAllOthersAndLetsTheMainWindowWork) {
    ChartVisit visit;
    visit.toggle_window();
    EXPECT_EQ(visit.program().fleche.Stacking.get(), screen::Stacking::topmost);
    visit.click("Command2");
    EXPECT_TRUE(visit.truth("Fleche.Visible"));
}

TEST(ArrowWindow, ShowsTheSixteenStandardColours) {
    ChartVisit visit;
    visit.toggle_window();
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(visit.text(field(i) + ".BackColor"), standard_colours_in_order[i]) << i;
    }
}

TEST(ArrowWindow, AColourFieldGivesItsColourAndTakesTheFrame) {
    ChartVisit visit;
    visit.toggle_window();
    for (int i = 0; i < 16; ++i) {
        visit.click(field(i));
        EXPECT_EQ(visit.text("couleur_fleche"), standard_colours_in_order[i]);
        EXPECT_EQ(visit.value("Fleche.Shape_selection.Left"), visit.value(field(i) + ".Left"));
        EXPECT_EQ(visit.value("Fleche.Shape_selection.Top"), visit.value(field(i) + ".Top"));
    }
}

TEST(ArrowWindow, OneKindOfArrowIsChosenAtATime) {
    ChartVisit visit;
    visit.toggle_window();
    for (int const chosen : {1, 3, 2, 1, 1}) {
        visit.click(option(chosen));
        EXPECT_EQ(visit.number("style_fleche"), chosen);
        for (int const other : {1, 2, 3}) {
            EXPECT_EQ(visit.truth(option(other) + ".Value"), other == chosen) << other;
        }
    }
}

TEST(ArrowWindow, ShowsFiveSamplesOfTheWidths) {
    ChartVisit visit;
    visit.toggle_window();
    Json const samples = visit.value("Fleche.Picture1.Drawing");
    ASSERT_EQ(samples.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        double const height = static_cast<double>(i) * 215 + 100;
        EXPECT_EQ(samples[i][1], height);
        EXPECT_EQ(samples[i][3], height);
        EXPECT_EQ(samples[i][0], 0.0);
        EXPECT_EQ(samples[i][2], visit.value("Fleche.Picture1.Width"));
        EXPECT_EQ(samples[i][4], static_cast<int>(i) * 2 + 1);
    }
}

struct WidthCase {
    char const* name;
    double y;
    int width;
    friend std::ostream& operator<<(std::ostream& out, WidthCase const& row) {
        return out << row.name;
    }
};
// From the width of 3; a place below the fifth sample changes nothing.
constexpr WidthCase widths[] = {
    {"top_edge", 0, 1},
    {"first_sample", 100, 1},
    {"end_of_the_first", 214.4, 1},
    {"half_goes_up_to_even", 215.5, 3},
    {"half_goes_down_to_even", 214.5, 1},
    {"second_sample", 315, 3},
    {"third_begins", 430, 5},
    {"fourth_begins", 645, 7},
    {"end_of_the_fourth", 859, 7},
    {"fifth_begins", 860, 9},
    {"end_of_the_fifth", 1074, 9},
    {"half_back_into_the_fifth", 1074.5, 9},
    {"just_below_the_fifth", 1075, 3},
    {"bottom_edge", 1150, 3},
    {"far_below", 30000, 3},
    {"beyond_all_whole_numbers", 1e300, 3},
    {"above_the_first", -300, 3},
    {"beyond_all_whole_numbers_above", -1e300, 3},
};
class SampleWidth : public testing::TestWithParam<WidthCase> {};
TEST_P(SampleWidth, IsTakenByAPressOnIt) {
    ChartVisit visit;
    visit.toggle_window();
    visit.mouse("Fleche.Picture1", "down", 1, 900, GetParam().y);
    EXPECT_EQ(visit.number("epaisseur_fleche"), GetParam().width);
}
INSTANTIATE_TEST_SUITE_P(Places, SampleWidth, testing::ValuesIn(widths),
                         [](auto const& row) { return row.param.name; });

TEST(ArrowWindow, TheRightButtonChoosesNoWidth) {
    ChartVisit visit;
    visit.toggle_window();
    visit.mouse("Fleche.Picture1", "down", 2, 900, 900);
    EXPECT_EQ(visit.number("epaisseur_fleche"), 3);
    visit.mouse("Fleche.Picture1", "down", 0, 900, 900);
    EXPECT_EQ(visit.number("epaisseur_fleche"), 3);
}

// Top and bottom of the frame round the chosen sample.
std::pair<double, double> frame_of_samples(ChartVisit& visit) {
    auto const& lines = visit.program().fleche.Picture1.lines(screen::Layer::rubber);
    EXPECT_EQ(lines.size(), 4U);
    double top = 1e9;
    double bottom = -1e9;
    for (auto const& line : lines) {
        top = std::min({top, line.y1, line.y2});
        bottom = std::max({bottom, line.y1, line.y2});
    }
    return {top, bottom};
}

TEST(ArrowWindow, AFrameStandsRoundTheSampleOfTheWidth) {
    ChartVisit visit;
    visit.toggle_window();
    // The first frame is a little taller than the later ones.
    EXPECT_EQ(frame_of_samples(visit), (std::pair{215.0, 440.0}));
    for (int sample = 0; sample < 5; ++sample) {
        visit.mouse("Fleche.Picture1", "down", 1, 900, sample * 215 + 100);
        EXPECT_EQ(frame_of_samples(visit), (std::pair{sample * 215.0, sample * 215.0 + 215.0}));
    }
    visit.mouse("Fleche.Picture1", "down", 1, 900, 1100);
    EXPECT_EQ(frame_of_samples(visit), (std::pair{860.0, 1075.0}));
    EXPECT_EQ(visit.value("Fleche.Picture1.Drawing").size(), 5U);
}

TEST(ArrowWindow, HiddenByAResetKeepsItsSettings) {
    ChartVisit visit;
    visit.toggle_window();
    choose_others(visit);
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.click("Command_reset");
    ASSERT_FALSE(visit.truth("Fleche.Visible"));
    visit.toggle_window();
    expect_the_others(visit);
}

TEST(ArrowWindow, ClosedByItsFrameOpensAnew) {
    ChartVisit visit;
    visit.toggle_window();
    choose_others(visit);
    EXPECT_TRUE(visit.ask({{"op", "close"}, {"form", "Fleche"}}).contains("ok"));
    EXPECT_FALSE(visit.truth("Fleche.Visible"));
    EXPECT_FALSE(visit.truth("MnuFleche.Checked"));
    visit.toggle_window();
    expect_first_settings(visit);
    EXPECT_EQ(frame_of_samples(visit), (std::pair{215.0, 440.0}));
}

TEST(ArrowWindow, ClosedByItsEntryOpensAnew) {
    ChartVisit visit;
    visit.toggle_window();
    choose_others(visit);
    visit.toggle_window();
    visit.toggle_window();
    expect_first_settings(visit);
}

TEST(ArrowWindow, ClosedWithAnArrowOnTheChartOpensAnewToo) {
    ChartVisit visit;
    visit.toggle_window();
    choose_others(visit);
    visit.drag_arrow(1000, 2000, 3000, 4000);
    visit.ask({{"op", "close"}, {"form", "Fleche"}});
    EXPECT_FALSE(visit.truth("fleche_dessinee"));
    EXPECT_EQ(visit.drawing(), Json::array());
    visit.toggle_window();
    expect_first_settings(visit);
}

TEST(ArrowWindow, ClosedWithoutAnArrowLeavesTheChart) {
    ChartVisit visit;
    visit.toggle_window();
    visit.ask({{"op", "close"}, {"form", "Fleche"}});
    EXPECT_FALSE(visit.truth("fleche_dessinee"));
    EXPECT_EQ(visit.text("Picture_KUNDALI.Picture"), "Image_Kundali(0)");
}

TEST(ArrowWindow, ThatIsClosedTakesNoClick) {
    ChartVisit visit;
    for (auto const& control : {option(1), field(3), std::string{"Fleche.Command1"}}) {
        Json const answer = visit.ask({{"op", "click"}, {"control", control}});
        EXPECT_EQ(answer["error"], "refused") << control;
    }
    EXPECT_EQ(visit.ask({{"op", "close"}, {"form", "Fleche"}})["error"], "refused");
}

struct GroundCase {
    char const* scheme;
    char const* ground;
    friend std::ostream& operator<<(std::ostream& out, GroundCase const& row) {
        return out << row.scheme;
    }
};
constexpr GroundCase grounds[] = {
    {"MnuAzur_Aum", "#B4CEFC"},
    {"MnuMauve_cycle", "#CCB2FC"},
    {"MnuMauve_Aum", "#CCB2FC"},
};
class ArrowWindowGround : public testing::TestWithParam<GroundCase> {};
TEST_P(ArrowWindowGround, IsThatOfTheScheme) {
    ChartVisit visit;
    visit.click(GetParam().scheme);
    visit.toggle_window();
    EXPECT_EQ(visit.text("Fleche.Frame1.BackColor"), GetParam().ground);
    for (int const i : {1, 2, 3}) {
        EXPECT_EQ(visit.text(option(i) + ".BackColor"), GetParam().ground) << i;
    }
}
INSTANTIATE_TEST_SUITE_P(Schemes, ArrowWindowGround, testing::ValuesIn(grounds),
                         [](auto const& row) { return row.param.scheme; });

TEST(ArrowWindow, TakesTheColourOfTheSchemeWhenItOpens) {
    ChartVisit visit;
    visit.toggle_window();
    EXPECT_EQ(visit.text("Fleche.Frame1.BackColor"), "#B4CEFC");
    visit.click("MnuMauve_cycle");
    EXPECT_EQ(visit.text("Fleche.Frame1.BackColor"), "#B4CEFC");
    visit.toggle_window();
    visit.toggle_window();
    EXPECT_EQ(visit.text("Fleche.Frame1.BackColor"), "#CCB2FC");
}

}  // namespace

}  // namespace navarun::test
