// Form2: the pictures that the program fetches by name. They are never shown here; the desktop
// draws them, each at the nominal size told.
#pragma once

#include <array>
#include <string_view>

#include "shell/screen/picture.h"

namespace navarun {

struct StoredPicture {
    std::string_view name;
    int first_member;  // first > last: a single picture without index
    int last_member;
    int width;  // pixels
    int height;
};

// Where a picture has one member for each family of schemes, 0 belongs to the mauve ones and 1
// to the azure ones.
// clang-format off
inline constexpr std::array<StoredPicture, 20> image_store{{
    {"Image_Kundali",        0, 3, 491,  479 }, // one for each colour scheme
    {"Image_Titre_Navarun",  0, 1, 200,  27},
    {"Image_nuage_haut",     0, 1, 214,  60},
    {"Image_nuage_Bas",      0, 1, 94,   65},
    {"Image_heure",          0, 1, 15,   26},
    {"Image_DateNow",        0, 1, 24,   24},
    {"CycleBouton",          0, 1, 24,   24  }, // green for a true grid, red for a stale one
    {"Diskette",             0, 1, 32,   32  }, // green, red with unsaved changes
    {"reset_efface",         0, 0, 32,   32  }, // begin anew
    {"reset_efface",         1, 1, 24,   24  }, // delete
    {"DOSSIER",              1, 4, 24,   24},
    {"Image_efface_Photo",   0, -1, 24,  24},
    {"Image_Web_Efface",     0, -1, 24,  24},
    {"Image_Ganesha",        0, -1, 139, 180},
    {"Image_Curseur",        0, -1, 32,  32  }, // hot spot at 12,5
    {"Image_Deplace",        0, -1, 32,  32},
    {"Picture_NoirBlanc",    0, -1, 1637, 1599},
    {"Image_AUM",            0, -1, 667, 678},
    {"ImageTriDeva_NB",      1, 2, 100,  100},
    {"Image_PalaisDestin_NB", 0, -1, 400, 313},
}};
// clang-format on

/// Names of the pictures that single lines of the program ask for.
namespace picture {
inline screen::Picture const hand_cursor{"Image_Curseur"};
/// The chart, one for each colour scheme.
inline std::array<screen::Picture, 4> const charts{
    screen::Picture{"Image_Kundali", 0}, screen::Picture{"Image_Kundali", 1},
    screen::Picture{"Image_Kundali", 2}, screen::Picture{"Image_Kundali", 3}};
inline screen::Picture const ganesha{"Image_Ganesha"};
inline screen::Picture const saved{"Diskette", 0};
inline screen::Picture const unsaved{"Diskette", 1};
inline screen::Picture const true_cycle{"CycleBouton", 0};
inline screen::Picture const false_cycle{"CycleBouton", 1};
inline screen::Picture const begin_anew{"reset_efface", 0};
inline screen::Picture const erase{"reset_efface", 1};
inline screen::Picture const erase_portrait{"Image_efface_Photo"};
inline screen::Picture const erase_address{"Image_Web_Efface"};
}  // namespace picture

}  // namespace navarun
