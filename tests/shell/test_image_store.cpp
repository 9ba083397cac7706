// The store of pictures: what can be fetched by name, and at which size it was drawn.
#include <algorithm>
#include <string_view>

#include <gtest/gtest.h>

#include "shell/image_store.h"

namespace navarun::test {
namespace {

struct Row {
    std::string_view name;
    int first;
    int last;  // below first: one picture without a member
    int width;
    int height;  // 0: a vector picture, of any size
};

// clang-format off
constexpr Row told[] = {
    {"Image_Kundali",         0, 3,  491,  479},
    {"Image_Titre_Navarun",   0, 1,  200,  27},
    {"Image_nuage_haut",      0, 1,  214,  60},
    {"Image_nuage_Bas",       0, 1,  94,   65},
    {"Image_heure",           0, 1,  15,   26},
    {"Image_DateNow",         0, 1,  24,   24},
    {"CycleBouton",           0, 1,  24,   24},
    {"Diskette",              0, 1,  32,   32},
    {"reset_efface",          0, 0,  32,   32},
    {"reset_efface",          1, 1,  24,   24},
    {"DOSSIER",               1, 4,  24,   24},
    {"Image_efface_Photo",    0, -1, 24,   24},
    {"Image_Web_Efface",      0, -1, 24,   24},
    {"Image_Ganesha",         0, -1, 139,  180},
    {"Image_Curseur",         0, -1, 32,   32},
    {"Image_Deplace",         0, -1, 32,   32},
    {"Picture_NoirBlanc",     0, -1, 1637, 1599},
    {"Image_AUM",             0, -1, 667,  678},
    {"ImageTriDeva_NB",       1, 2,  0,    0},
    {"Image_PalaisDestin_NB", 0, -1, 0,    0},
};
// clang-format on

TEST(ImageStore, HoldsThePicturesToldAndNoOther) {
    EXPECT_EQ(image_store.size(), std::size(told));
    for (auto const& row : told) {
        auto const found = std::ranges::find_if(image_store, [&](auto const& stored) {
            return stored.name == row.name && stored.first_member == row.first;
        });
        ASSERT_NE(found, image_store.end()) << row.name;
        EXPECT_EQ(found->last_member, row.last) << row.name;
        if (row.height == 0) continue;
        EXPECT_EQ(found->width, row.width) << row.name;
        EXPECT_EQ(found->height, row.height) << row.name;
    }
}

}  // namespace
}  // namespace navarun::test
