// A picture fitted into a box without changing its proportions.
#pragma once

namespace navarun {

struct FittedPlace {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

/// Where a picture is painted in a box, centred: at its own size where it is smaller than the
/// box on both sides, else scaled by its longer side.
/// @param box_width, box_height          pixels, > 0
/// @param picture_width, picture_height  pixels, > 0
FittedPlace fitted(double box_width, double box_height, double picture_width,
                   double picture_height);

}  // namespace navarun
