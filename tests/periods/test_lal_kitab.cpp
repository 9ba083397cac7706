// The caption of the period in progress, at every age of every sequence.
#include <array>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "periods/lal_kitab.h"
#include "tests/core/mismatches.h"
#include "tests/periods/circle_walk.h"

namespace navarun::test {
namespace {

/// Caption and year rank; an empty caption for no case.
struct Caption {
    std::string text;
    int rank = -1;
    bool operator==(Caption const&) const = default;
    friend std::ostream& operator<<(std::ostream& out, Caption const& caption) {
        return out << '"' << caption.text << "\", rank " << caption.rank;
    }
};
Caption const no_case{};

Caption caption_at(int column, int age) {
    auto const kitab = lal_kitab(column, age);
    return kitab ? Caption{kitab->caption, kitab->year_rank} : no_case;
}

Caption stated(int column, WalkedYear const& year) {
    if (column == budha_first && year.age >= 324 && year.age <= 329) return no_case;
    if (column == guru_first && year.age >= 328 && year.age <= 333) return no_case;
    if (year.lord == Lord::Chandra) return {"CHANDRA (1 / 1 an)", 0};
    // By the numbers of the lords.
    constexpr std::array<char const*, 10> capitals{"",      "SURYA",  "",     "GURU",  "RAHU",
                                                   "BUDHA", "SHUKRA", "KETU", "SHANI", "KUJA"};
    bool const two_blanks = column == surya_first && year.lord == Lord::Shukra;
    return {capitals.at(static_cast<std::size_t>(number_of(year.lord))) + std::string{" ("} +
                std::to_string(year.rank) + (two_blanks ? "  / " : " / ") +
                std::to_string(year.years) + " ans)",
            year.rank};
}

TEST(LalKitab, EveryAgeOfEverySequenceTellsItsLordAndHisYear) {
    Mismatches mismatches;
    int cases = 0;
    for (int column = 1; column <= 9; ++column) {
        for (WalkedYear const& year : walk(column, 350)) {
            Caption const expected = stated(column, year);
            Caption const actual = caption_at(column, year.age);
            ++cases;
            if (actual != expected) {
                mismatches.note(sequence_name(column), " first, age ", year.age, ": ", actual,
                                " instead of ", expected);
            }
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
    EXPECT_EQ(cases, 9 * 350);
}

struct CaptionCase {
    char const* name;
    int column;
    int age;
    std::string_view caption;
    int rank;
    friend std::ostream& operator<<(std::ostream& out, CaptionCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr CaptionCase caption_cases[] = {
    {"surya_first_age_1",          surya_first,   1,   "SURYA (1 / 2 ans)",   1},
    {"surya_first_age_2",          surya_first,   2,   "SURYA (2 / 2 ans)",   2},
    {"surya_first_age_3",          surya_first,   3,   "CHANDRA (1 / 1 an)",  0},
    {"surya_first_age_4",          surya_first,   4,   "SHUKRA (1  / 3 ans)", 1},
    {"surya_first_age_6",          surya_first,   6,   "SHUKRA (3  / 3 ans)", 3},
    {"surya_first_age_35",         surya_first,   35,  "GURU (6 / 6 ans)",    6},
    {"surya_first_age_36",         surya_first,   36,  "SURYA (1 / 2 ans)",   1},
    {"surya_first_shukra_later",   surya_first,   40,  "SHUKRA (2  / 3 ans)", 2},
    {"surya_first_last_shukra",    surya_first,   321, "SHUKRA (3  / 3 ans)", 3},
    {"kuja_first_age_9",           kuja_first,    9,   "SHANI (1 / 6 ans)",   1},
    {"chandra_first_age_1",        chandra_first, 1,   "CHANDRA (1 / 1 an)",  0},
    {"chandra_first_shukra",       chandra_first, 2,   "SHUKRA (1 / 3 ans)",  1},
    {"shukra_first_age_1",         shukra_first,  1,   "SHUKRA (1 / 3 ans)",  1},
    {"budha_first_age_1",          budha_first,   1,   "BUDHA (1 / 2 ans)",   1},
    {"shani_first_age_1",          shani_first,   1,   "SHANI (1 / 6 ans)",   1},
    {"rahu_first_age_1",           rahu_first,    1,   "RAHU (1 / 6 ans)",    1},
    {"ketu_first_age_1",           ketu_first,    1,   "KETU (1 / 3 ans)",    1},
    {"guru_first_age_1",           guru_first,    1,   "GURU (1 / 6 ans)",    1},
    {"guru_first_age_350",         guru_first,    350, "KETU (3 / 3 ans)",    3},
    {"budha_first_before_the_gap", budha_first,   323, "SHANI (6 / 6 ans)",   6},
    {"budha_first_after_the_gap",  budha_first,   330, "KETU (1 / 3 ans)",    1},
    {"guru_first_before_the_gap",  guru_first,    327, "SHUKRA (3 / 3 ans)",  3},
    {"guru_first_after_the_gap",   guru_first,    334, "BUDHA (1 / 2 ans)",   1},
};
// clang-format on

class LalKitabCaption : public testing::TestWithParam<CaptionCase> {};
TEST_P(LalKitabCaption, IsWrittenOut) {
    CaptionCase const& row = GetParam();
    EXPECT_EQ(caption_at(row.column, row.age), (Caption{std::string{row.caption}, row.rank}));
}
INSTANTIATE_TEST_SUITE_P(Ages, LalKitabCaption, testing::ValuesIn(caption_cases),
                         [](auto const& row) { return row.param.name; });

TEST(LalKitab, ShukraHasTwoBlanksBeforeTheStrokeWithSuryaFirstAlone) {
    int with_two_blanks = 0;
    for (int column = 1; column <= 9; ++column) {
        for (WalkedYear const& year : walk(column, 350)) {
            std::string const text = caption_at(column, year.age).text;
            bool const two_blanks = text.find("  / ") != std::string::npos;
            EXPECT_EQ(two_blanks, column == surya_first && year.lord == Lord::Shukra)
                << sequence_name(column) << " first, age " << year.age;
            with_two_blanks += two_blanks ? 1 : 0;
        }
    }
    EXPECT_EQ(with_two_blanks, 10 * 3);
}

TEST(LalKitab, BudhaFirstForgets324To329) {
    for (int age = 324; age <= 329; ++age) EXPECT_EQ(caption_at(budha_first, age), no_case);
}

TEST(LalKitab, GuruFirstForgets328To333) {
    for (int age = 328; age <= 333; ++age) EXPECT_EQ(caption_at(guru_first, age), no_case);
}

TEST(LalKitab, AgesThatTheScheduleForgetsHaveTheirCaptionAllTheSame) {
    EXPECT_EQ(caption_at(guru_first, 265), (Caption{"BUDHA (2 / 2 ans)", 2}));
    EXPECT_EQ(caption_at(ketu_first, 258), (Caption{"SHUKRA (1 / 3 ans)", 1}));
    EXPECT_EQ(caption_at(ketu_first, 261), (Caption{"KUJA (1 / 6 ans)", 1}));
    EXPECT_EQ(caption_at(shani_first, 2), (Caption{"SHANI (2 / 6 ans)", 2}));
}

TEST(LalKitab, Age351IsAsAge1) {
    for (int column = 1; column <= 9; ++column) {
        EXPECT_EQ(caption_at(column, 351), caption_at(column, 1)) << sequence_name(column);
        EXPECT_NE(caption_at(column, 351), no_case) << sequence_name(column);
    }
}

TEST(LalKitab, Age0HasNoCase) {
    for (int column = 1; column <= 9; ++column) {
        EXPECT_EQ(caption_at(column, 0), no_case) << sequence_name(column);
        EXPECT_EQ(caption_at(column, -1), no_case) << sequence_name(column);
    }
}

TEST(LalKitab, ChandrasOneYearHasNoRank) {
    for (int column = 1; column <= 9; ++column) {
        for (WalkedYear const& year : walk(column, 350)) {
            if (year.lord != Lord::Chandra) continue;
            EXPECT_EQ(caption_at(column, year.age), (Caption{"CHANDRA (1 / 1 an)", 0}))
                << sequence_name(column) << " first, age " << year.age;
        }
    }
}

}  // namespace
}  // namespace navarun::test
