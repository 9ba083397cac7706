// The fitting.
#include "files/fitted_picture.h"

namespace navarun {

FittedPlace fitted(double box_width, double box_height, double picture_width,
                   double picture_height) {
    double scale = 1;
    bool const smaller = box_width > picture_width && box_height > picture_height;
    if (!smaller) {
        scale = picture_width > picture_height ? picture_width / box_width
                                               : picture_height / box_height;
    }
    double const width = picture_width / scale;
    double const height = picture_height / scale;
    return {(box_width - width) / 2, (box_height - height) / 2, width, height};
}

}  // namespace navarun
