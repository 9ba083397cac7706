// The tables of the mansions.
#include "zodiac/mansions.h"

#include <array>

namespace navarun {

namespace {

constexpr std::array<Mansion, mansion_count> mansions{{
    {"Ashwini", Lord::Ketu},
    {"Bharani", Lord::Shukra},
    {"Krittika", Lord::Surya},
    {"Rohini", Lord::Chandra},
    {"Mrigasira", Lord::Kuja},
    {"Aridra", Lord::Rahu},
    {"Punarvasu", Lord::Guru},
    {"Pushya", Lord::Shani},
    {"Ashlesha", Lord::Budha},
    {"Magha", Lord::Ketu},
    {"Purva Phalghuni", Lord::Shukra},
    {"Uttara Phalghuni", Lord::Surya},
    {"Hasta", Lord::Chandra},
    {"Chitra", Lord::Kuja},
    {"Swati", Lord::Rahu},
    {"Vishakha", Lord::Guru},
    {"Anuradha", Lord::Shani},
    {"Jyeshta", Lord::Budha},
    {"Moola", Lord::Ketu},
    {"Purva Shadha", Lord::Shukra},
    {"Uttara Shadha", Lord::Surya},
    {"Shravana", Lord::Chandra},
    {"Dhanista", Lord::Kuja},
    {"Satabhisha", Lord::Rahu},
    {"Purva Bhadrapada", Lord::Guru},
    {"Uttara Bhadrapada", Lord::Shani},
    {"Revati", Lord::Budha},
}};

constexpr bool lords_repeat_three_times() {
    for (std::size_t i = 9; i < mansions.size(); ++i) {
        if (mansions[i].lord != mansions[i - 9].lord) return false;
    }
    return true;
}
static_assert(lords_repeat_three_times());

struct Range {
    int first;  // positions, both ends inside
    int last;
    int mansion;
};

// A mansion that straddles two signs has a range in each.
// clang-format off
constexpr std::array<std::array<Range, 3>, 12> ranges{{
    {{{0, 12, 1}, {13, 26, 2}, {27, 29, 3}}},  // sign 1
    {{{0, 9, 3}, {10, 22, 4}, {23, 29, 5}}},  // sign 2
    {{{0, 6, 5}, {7, 19, 6}, {20, 29, 7}}},  // sign 3
    {{{0, 2, 7}, {3, 16, 8}, {17, 29, 9}}},  // sign 4
    {{{0, 12, 10}, {13, 26, 11}, {27, 29, 12}}},  // sign 5
    {{{0, 9, 12}, {10, 22, 13}, {23, 29, 14}}},  // sign 6
    {{{0, 6, 14}, {7, 19, 15}, {20, 29, 16}}},  // sign 7
    {{{0, 2, 16}, {3, 16, 17}, {17, 29, 18}}},  // sign 8
    {{{0, 12, 19}, {13, 26, 20}, {27, 29, 21}}},  // sign 9
    {{{0, 9, 21}, {10, 22, 22}, {23, 29, 23}}},  // sign 10
    {{{0, 6, 23}, {7, 19, 24}, {20, 29, 25}}},  // sign 11
    {{{0, 2, 25}, {3, 16, 26}, {17, 29, 27}}},  // sign 12
}};
// clang-format on

constexpr bool ranges_fill_every_sign() {
    int mansion = 1;
    for (auto const& sign : ranges) {
        int position = 0;
        for (auto const& range : sign) {
            if (range.first != position || range.last < range.first) return false;
            position = range.last + 1;
            // The mansions follow each other; at a sign's border one may go on or the next
            // begin.
            if (range.mansion != mansion && range.mansion != mansion + 1) return false;
            mansion = range.mansion;
        }
        if (position != 30) return false;
    }
    return mansion == mansion_count;
}
static_assert(ranges_fill_every_sign());

}  // namespace

Mansion const& mansion(int number) { return mansions.at(static_cast<std::size_t>(number - 1)); }

std::optional<int> mansion_at(int sign, int degree) {
    if (sign < 1 || sign > 12) return {};
    for (auto const& range : ranges[static_cast<std::size_t>(sign - 1)]) {
        if (range.first <= degree && degree <= range.last) return range.mansion;
    }
    return {};
}

}  // namespace navarun
