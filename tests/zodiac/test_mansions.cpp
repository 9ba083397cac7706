// The 27 lunar mansions: names, lords, and where they lie in the signs.
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/core/mismatches.h"
#include "zodiac/mansions.h"

namespace navarun::test {
namespace {

struct MansionRow {
    int number;
    std::string_view name;
    Lord lord;
    friend std::ostream& operator<<(std::ostream& out, MansionRow const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr MansionRow mansion_rows[] = {
    {1,  "Ashwini",           Lord::Ketu},
    {2,  "Bharani",           Lord::Shukra},
    {3,  "Krittika",          Lord::Surya},
    {4,  "Rohini",            Lord::Chandra},
    {5,  "Mrigasira",         Lord::Kuja},
    {6,  "Aridra",            Lord::Rahu},
    {7,  "Punarvasu",         Lord::Guru},
    {8,  "Pushya",            Lord::Shani},
    {9,  "Ashlesha",          Lord::Budha},
    {10, "Magha",             Lord::Ketu},
    {11, "Purva Phalghuni",   Lord::Shukra},
    {12, "Uttara Phalghuni",  Lord::Surya},
    {13, "Hasta",             Lord::Chandra},
    {14, "Chitra",            Lord::Kuja},
    {15, "Swati",             Lord::Rahu},
    {16, "Vishakha",          Lord::Guru},
    {17, "Anuradha",          Lord::Shani},
    {18, "Jyeshta",           Lord::Budha},
    {19, "Moola",             Lord::Ketu},
    {20, "Purva Shadha",      Lord::Shukra},
    {21, "Uttara Shadha",     Lord::Surya},
    {22, "Shravana",          Lord::Chandra},
    {23, "Dhanista",          Lord::Kuja},
    {24, "Satabhisha",        Lord::Rahu},
    {25, "Purva Bhadrapada",  Lord::Guru},
    {26, "Uttara Bhadrapada", Lord::Shani},
    {27, "Revati",            Lord::Budha},
};
// clang-format on

class Mansions : public testing::TestWithParam<MansionRow> {};
TEST_P(Mansions, HaveTheirNameAndLord) {
    EXPECT_EQ(mansion(GetParam().number).name, GetParam().name);
    EXPECT_EQ(mansion(GetParam().number).lord, GetParam().lord);
}
INSTANTIATE_TEST_SUITE_P(Nakshatra, Mansions, testing::ValuesIn(mansion_rows),
                         [](auto const& row) {
                             return "mansion_" + std::to_string(row.param.number);
                         });

struct PositionRow {
    int sign;
    int first;
    int last;
    int mansion;
    friend std::ostream& operator<<(std::ostream& out, PositionRow const& row) {
        return out << "sign " << row.sign << " from " << row.first << " to " << row.last;
    }
};
// clang-format off
constexpr PositionRow position_rows[] = {
    {1,  0,  12, 1},
    {1,  13, 26, 2},
    {1,  27, 29, 3},
    {2,  0,  9,  3},
    {2,  10, 22, 4},
    {2,  23, 29, 5},
    {3,  0,  6,  5},
    {3,  7,  19, 6},
    {3,  20, 29, 7},
    {4,  0,  2,  7},
    {4,  3,  16, 8},
    {4,  17, 29, 9},
    {5,  0,  12, 10},
    {5,  13, 26, 11},
    {5,  27, 29, 12},
    {6,  0,  9,  12},
    {6,  10, 22, 13},
    {6,  23, 29, 14},
    {7,  0,  6,  14},
    {7,  7,  19, 15},
    {7,  20, 29, 16},
    {8,  0,  2,  16},
    {8,  3,  16, 17},
    {8,  17, 29, 18},
    {9,  0,  12, 19},
    {9,  13, 26, 20},
    {9,  27, 29, 21},
    {10, 0,  9,  21},
    {10, 10, 22, 22},
    {10, 23, 29, 23},
    {11, 0,  6,  23},
    {11, 7,  19, 24},
    {11, 20, 29, 25},
    {12, 0,  2,  25},
    {12, 3,  16, 26},
    {12, 17, 29, 27},
};
// clang-format on

class MansionPositions : public testing::TestWithParam<PositionRow> {};
TEST_P(MansionPositions, BothEndsAreInside) {
    PositionRow const& row = GetParam();
    EXPECT_EQ(mansion_at(row.sign, row.first), row.mansion);
    EXPECT_EQ(mansion_at(row.sign, row.last), row.mansion);
    EXPECT_EQ(mansion_at(row.sign, (row.first + row.last) / 2), row.mansion);
}
INSTANTIATE_TEST_SUITE_P(Ranges, MansionPositions, testing::ValuesIn(position_rows),
                         [](auto const& row) {
                             return "sign_" + std::to_string(row.param.sign) + "_from_" +
                                    std::to_string(row.param.first);
                         });

TEST(MansionAt, EveryPositionLiesInOneRange) {
    Mismatches mismatches;
    int positions = 0;
    for (PositionRow const& row : position_rows) {
        for (int degree = row.first; degree <= row.last; ++degree) {
            ++positions;
            if (mansion_at(row.sign, degree) != row.mansion) {
                mismatches.note("sign ", row.sign, " position ", degree);
            }
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
    EXPECT_EQ(positions, 12 * 30);
}

TEST(MansionAt, OutsideTheZodiacThereIsNone) {
    EXPECT_EQ(mansion_at(0, 5), std::nullopt);
    EXPECT_EQ(mansion_at(13, 5), std::nullopt);
    EXPECT_EQ(mansion_at(-1, 5), std::nullopt);
    for (int sign = 1; sign <= 12; ++sign) {
        EXPECT_EQ(mansion_at(sign, -1), std::nullopt) << sign;
        EXPECT_EQ(mansion_at(sign, 30), std::nullopt) << sign;
    }
}

TEST(Mansions, AreTwentySeven) { EXPECT_EQ(mansion_count, 27); }

}  // namespace
}  // namespace navarun::test
