// Where a portrait stands in its box of 130 by 180 pixels.
#include <ostream>

#include <gtest/gtest.h>

#include "files/fitted_picture.h"

namespace navarun {

namespace {

constexpr double box_width = 130;
constexpr double box_height = 180;

struct FittedCase {
    char const* name;
    double width, height;  // of the picture
    FittedPlace place;
    friend std::ostream& operator<<(std::ostream& out, FittedCase const& row) {
        return out << row.name;
    }
};
constexpr FittedCase fitted_cases[] = {
    {"a_single_pixel", 1, 1, {64.5, 89.5, 1, 1}},
    {"smaller_stays_at_its_size", 100, 100, {15, 40, 100, 100}},
    {"one_pixel_short_of_the_box", 129, 179, {0.5, 0.5, 129, 179}},
    {"exactly_the_box_is_scaled_by_its_height", 130, 180, {0, 0, 130, 180}},
    {"exactly_as_wide_and_wider_than_high", 130, 100, {0, 40, 130, 100}},
    // Scaled by the larger side, not by the one that reaches the edge: it comes out wider.
    {"exactly_as_wide_but_higher", 130, 150, {-13, 0, 156, 180}},
    {"exactly_as_wide_and_square", 130, 130, {-25, 0, 180, 180}},
    {"as_high_as_the_box_and_narrower", 90, 180, {20, 0, 90, 180}},
    {"wide_touches_left_and_right", 260, 180, {0, 45, 130, 90}},
    {"very_wide", 1300, 10, {0, 89.5, 130, 1}},
    {"tall_touches_top_and_bottom", 180, 360, {20, 0, 90, 180}},
    {"square_is_scaled_by_its_height", 360, 360, {-25, 0, 180, 180}},
    {"wider_than_high_by_one", 361, 360, {0, 25.180055401662053, 130, 129.63988919667591}},
    {"hardly_wider_than_high", 140, 139, {0, 25.464285714285715, 130, 129.07142857142858}},
    {"a_huge_picture", 30000, 30000, {-25, 0, 180, 180}},
};

class Fitted : public testing::TestWithParam<FittedCase> {};
TEST_P(Fitted, StandsAsTheBoxTells) {
    auto const place = fitted(box_width, box_height, GetParam().width, GetParam().height);
    EXPECT_NEAR(place.x, GetParam().place.x, 1e-9);
    EXPECT_NEAR(place.y, GetParam().place.y, 1e-9);
    EXPECT_NEAR(place.width, GetParam().place.width, 1e-9);
    EXPECT_NEAR(place.height, GetParam().place.height, 1e-9);
}
INSTANTIATE_TEST_SUITE_P(Box, Fitted, testing::ValuesIn(fitted_cases),
                         [](auto const& row) { return row.param.name; });

TEST(FittedPicture, KeepsItsProportionsAndItsMiddle) {
    for (int width = 1; width <= 400; width += 3) {
        for (int height = 1; height <= 400; height += 3) {
            auto const place = fitted(box_width, box_height, width, height);
            EXPECT_NEAR(place.width * height, place.height * width, 1e-6 * width * height);
            EXPECT_NEAR(place.x + place.width / 2, box_width / 2, 1e-9);
            EXPECT_NEAR(place.y + place.height / 2, box_height / 2, 1e-9);
        }
    }
}

TEST(FittedPicture, AWidePictureTouchesTheSidesAndATallOneTopAndBottom) {
    for (int width = 130; width <= 500; width += 7) {
        for (int height = 1; height <= 500; height += 7) {
            auto const place = fitted(box_width, box_height, width, height);
            if (width > height) {
                EXPECT_NEAR(place.x, 0, 1e-9) << width << " x " << height;
                EXPECT_NEAR(place.width, box_width, 1e-9) << width << " x " << height;
            } else {
                EXPECT_NEAR(place.y, 0, 1e-9) << width << " x " << height;
                EXPECT_NEAR(place.height, box_height, 1e-9) << width << " x " << height;
            }
        }
    }
}

}  // namespace

}  // namespace navarun
