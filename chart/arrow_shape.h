// The lines of an arrow between two points.
#pragma once

#include <vector>

namespace navarun {

struct Point {
    double x = 0;
    double y = 0;
};

struct Segment {
    Point from;
    Point to;
};

/// The kinds of arrow, by the numbers of their choices.
inline constexpr int filled_arrow = 1;
inline constexpr int open_arrow = 2;
inline constexpr int plain_line = 3;

/// The segments of an arrow, in the order in which they are drawn, in the units of the points:
/// the shaft from `start` to `tip`, a dot at the corner, then for the two arrows both barbs,
/// and for the filled one the lines of its head. Where both points are one, the head stands
/// round it.
/// @param style  one of the kinds above; any other draws what a plain line does.
std::vector<Segment> arrow_shape(Point start, Point tip, int style);

}  // namespace navarun
