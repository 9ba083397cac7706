// The geometry of the head.
#include "chart/arrow_shape.h"

#include <cmath>
#include <numbers>

namespace navarun {

namespace {

using std::numbers::pi;

constexpr double barb_length = 100;
// How far behind the tip, as a share of the shaft, the feet of the barbs are reckoned from.
constexpr double foot_share = 0.03;
constexpr int lines_of_the_head = 100;

double angle_of_shaft(double dx, double dy) {
    if (dx == 0) return dy < 0 ? 3 * pi / 2 : pi / 2;
    return std::atan(dy / dx) + (dx < 0 ? pi : 0);
}

Point between(Point one, Point other, double share_of_one) {
    return {share_of_one * one.x + (1 - share_of_one) * other.x,
            share_of_one * one.y + (1 - share_of_one) * other.y};
}

}  // namespace

std::vector<Segment> arrow_shape(Point start, Point tip, int style) {
    // The dot is harmless, and has always been there.
    std::vector<Segment> segments{{start, tip}, {{0, 0}, {0, 0}}};
    if (style != filled_arrow && style != open_arrow) return segments;
    double const angle = angle_of_shaft(tip.x - start.x, tip.y - start.y);
    Point const behind_tip = between(start, tip, foot_share);
    auto const foot = [&](double direction) {
        return Point{behind_tip.x + barb_length * std::cos(direction),
                     behind_tip.y + barb_length * std::sin(direction)};
    };
    double const first_direction = angle - 3 * pi / 4;
    Point const first_foot = foot(first_direction);
    Point const second_foot = foot(first_direction - pi / 2);
    segments.push_back({tip, first_foot});
    segments.push_back({tip, second_foot});
    if (style == open_arrow) return segments;
    for (int i = 0; i <= lines_of_the_head; ++i) {
        double const share = static_cast<double>(i) / lines_of_the_head;
        segments.push_back({tip, between(first_foot, second_foot, share)});
    }
    return segments;
}

}  // namespace navarun
