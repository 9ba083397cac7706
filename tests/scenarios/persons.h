// People whose sequences are known, and words for the cells of the grid.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace navarun::test {

inline std::vector<std::string> twelve(std::string const& text) {
    return std::vector<std::string>(12, text);
}

/// "Label_Dasha(3).Caption".
inline std::string cell(std::string_view array, int number, std::string_view property) {
    std::string name{array};
    return name.append("(").append(std::to_string(number)).append(").").append(property);
}

struct Birth {
    char const* lord;  // first of the sequence
    char const* digits;
    int sun_cell;
};
// One birth for each sequence, all of 1970.
// clang-format off
inline constexpr Birth births[] = {
    {"Ketu",    "15041970", 1},
    {"Shukra",  "28041970", 1},
    {"Surya",   "10051970", 1},
    {"Chandra", "25051970", 2},
    {"Kuja",    "08061970", 2},
    {"Rahu",    "24061970", 3},
    {"Guru",    "06071970", 3},
    {"Shani",   "22071970", 4},
    {"Budha",   "05081970", 4},
};
// clang-format on

inline char const* birth_of(std::string_view lord) {
    for (auto const& row : births) {
        if (lord == row.lord) return row.digits;
    }
    ADD_FAILURE() << lord;
    return "";
}

}  // namespace navarun::test
