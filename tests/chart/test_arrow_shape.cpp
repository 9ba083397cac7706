// The lines of an arrow, checked with compass and ruler.
#include <algorithm>
#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "chart/arrow_shape.h"

namespace navarun::test {

namespace {

constexpr double tolerance = 1e-6;  // twips
constexpr double barb = 100;

void expect_point(Point found, Point expected) {
    EXPECT_NEAR(found.x, expected.x, tolerance);
    EXPECT_NEAR(found.y, expected.y, tolerance);
}

struct Drag {
    char const* name;
    Point start;
    Point tip;
    // The way that the shaft points, and the way to its right hand as the chart is seen, where
    // y grows downwards; both of length 1.
    Point forward;
    Point right_hand;
    friend std::ostream& operator<<(std::ostream& out, Drag const& row) {
        return out << row.name;
    }
};

constexpr double r = 0.70710678118654752;  // half the diagonal of a square of side 1

constexpr Drag drags[] = {
    {"right", {1000, 2000}, {3000, 2000}, {1, 0}, {0, 1}},
    {"left", {3000, 2000}, {1000, 2000}, {-1, 0}, {0, -1}},
    {"down", {1000, 2000}, {1000, 5000}, {0, 1}, {-1, 0}},
    {"up", {1000, 5000}, {1000, 2000}, {0, -1}, {1, 0}},
    {"right_and_down", {1000, 1000}, {2000, 2000}, {r, r}, {-r, r}},
    {"right_and_up", {1000, 3000}, {2000, 2000}, {r, -r}, {r, r}},
    {"left_and_down", {3000, 1000}, {2000, 2000}, {-r, r}, {-r, -r}},
    {"left_and_up", {3000, 3000}, {2000, 2000}, {-r, -r}, {r, -r}},
    {"three_by_four", {100, 200}, {400, 600}, {0.6, 0.8}, {-0.8, 0.6}},
    {"three_by_four_back", {400, 600}, {100, 200}, {-0.6, -0.8}, {0.8, -0.6}},
    {"one_twip", {500, 500}, {501, 500}, {1, 0}, {0, 1}},
};

class Arrow : public testing::TestWithParam<Drag> {
  protected:
    // Three hundredths of the shaft behind the tip.
    Point foot_centre() const {
        auto const& drag = GetParam();
        return {drag.tip.x - 0.03 * (drag.tip.x - drag.start.x),
                drag.tip.y - 0.03 * (drag.tip.y - drag.start.y)};
    }
    // Each barb leans back by an eighth of a turn from straight across.
    Point foot(double side) const {
        auto const& drag = GetParam();
        Point const centre = foot_centre();
        double const along = -barb * r;
        double const across = side * barb * r;
        return {centre.x + along * drag.forward.x + across * drag.right_hand.x,
                centre.y + along * drag.forward.y + across * drag.right_hand.y};
    }
};
INSTANTIATE_TEST_SUITE_P(Drags, Arrow, testing::ValuesIn(drags),
                         [](auto const& row) { return row.param.name; });

TEST_P(Arrow, BeginsWithItsShaftInEveryStyle) {
    for (int const style : {filled_arrow, open_arrow, plain_line, 0, 4, 255}) {
        auto const lines = arrow_shape(GetParam().start, GetParam().tip, style);
        ASSERT_FALSE(lines.empty());
        expect_point(lines[0].from, GetParam().start);
        expect_point(lines[0].to, GetParam().tip);
    }
}

// Harmless, and drawn with every arrow.
TEST_P(Arrow, HasADotAtTheCornerOfTheChartInEveryStyle) {
    for (int const style : {filled_arrow, open_arrow, plain_line}) {
        auto const lines = arrow_shape(GetParam().start, GetParam().tip, style);
        ASSERT_GE(lines.size(), 2U);
        expect_point(lines[1].from, {0, 0});
        expect_point(lines[1].to, {0, 0});
    }
}

TEST_P(Arrow, WithAnOpenHeadHasTwoBarbsBackAlongTheShaft) {
    auto const lines = arrow_shape(GetParam().start, GetParam().tip, open_arrow);
    ASSERT_EQ(lines.size(), 4U);
    expect_point(lines[2].from, GetParam().tip);
    expect_point(lines[3].from, GetParam().tip);
    expect_point(lines[2].to, foot(-1));
    expect_point(lines[3].to, foot(1));
}

TEST_P(Arrow, BarbsReachAHundredFromTheirFoot) {
    auto const lines = arrow_shape(GetParam().start, GetParam().tip, open_arrow);
    Point const centre = foot_centre();
    for (std::size_t const i : {2U, 3U}) {
        EXPECT_NEAR(std::hypot(lines[i].to.x - centre.x, lines[i].to.y - centre.y), barb,
                    tolerance);
    }
    // A right angle between the two.
    EXPECT_NEAR(std::hypot(lines[2].to.x - lines[3].to.x, lines[2].to.y - lines[3].to.y),
                barb * std::numbers::sqrt2, tolerance);
}

TEST_P(Arrow, WithAFilledHeadHasAHundredAndOneLinesMore) {
    auto const open = arrow_shape(GetParam().start, GetParam().tip, open_arrow);
    auto const filled = arrow_shape(GetParam().start, GetParam().tip, filled_arrow);
    ASSERT_EQ(filled.size(), open.size() + 101);
    for (std::size_t i = 0; i < open.size(); ++i) {
        expect_point(filled[i].from, open[i].from);
        expect_point(filled[i].to, open[i].to);
    }
    // From the second foot to the first, in steps of a hundredth.
    for (std::size_t i = 0; i <= 100; ++i) {
        double const share = static_cast<double>(i) / 100;
        expect_point(filled[4 + i].from, GetParam().tip);
        expect_point(filled[4 + i].to, {share * foot(-1).x + (1 - share) * foot(1).x,
                                        share * foot(-1).y + (1 - share) * foot(1).y});
    }
}

TEST_P(Arrow, AsAPlainLineHasNoHead) {
    EXPECT_EQ(arrow_shape(GetParam().start, GetParam().tip, plain_line).size(), 2U);
}

TEST_P(Arrow, OfAnUnknownStyleHasNoHead) {
    for (int const style : {0, 4, 5, 255, -1}) {
        EXPECT_EQ(arrow_shape(GetParam().start, GetParam().tip, style).size(), 2U) << style;
    }
}

// Where there was no drag the angle is that of straight down.
TEST(ArrowWithoutADrag, HasItsHeadRoundThePointPressed) {
    Point const pressed{2500, 3500};
    auto const lines = arrow_shape(pressed, pressed, open_arrow);
    ASSERT_EQ(lines.size(), 4U);
    expect_point(lines[0].from, pressed);
    expect_point(lines[0].to, pressed);
    expect_point(lines[2].to, {pressed.x + barb * r, pressed.y - barb * r});
    expect_point(lines[3].to, {pressed.x - barb * r, pressed.y - barb * r});
}

TEST(ArrowWithoutADrag, FillsItsHeadToo) {
    Point const pressed{0, 0};
    EXPECT_EQ(arrow_shape(pressed, pressed, filled_arrow).size(), 105U);
}

// Whatever the drag, both feet lie behind the tip and as far from the shaft on either side.
TEST(ArrowSweep, HeadsPointTheWayOfTheDragAllRoundTheCompass) {
    Point const start{3600, 3600};
    for (int degree = 0; degree < 360; ++degree) {
        double const angle = degree * std::numbers::pi / 180;
        Point const way{std::cos(angle), std::sin(angle)};
        Point const tip{start.x + 2000 * way.x, start.y + 2000 * way.y};
        auto const lines = arrow_shape(start, tip, open_arrow);
        ASSERT_EQ(lines.size(), 4U);
        auto const along = [&](Point point) {
            return (point.x - tip.x) * way.x + (point.y - tip.y) * way.y;
        };
        auto const across = [&](Point point) {
            return (point.y - tip.y) * way.x - (point.x - tip.x) * way.y;
        };
        for (std::size_t const i : {2U, 3U}) {
            // 60 are three hundredths of the shaft.
            EXPECT_NEAR(along(lines[i].to), -60 - barb * r, tolerance) << degree;
        }
        EXPECT_NEAR(across(lines[2].to), -barb * r, tolerance) << degree;
        EXPECT_NEAR(across(lines[3].to), barb * r, tolerance) << degree;
    }
}

}  // namespace

}  // namespace navarun::test
