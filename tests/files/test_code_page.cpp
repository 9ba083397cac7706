// The bytes of the practice's files and the letters that stand for what they cannot hold.
#include <ostream>

#include <gtest/gtest.h>

#include "core/code_page.h"
#include "core/text.h"

namespace navarun {

namespace {

TEST(CodePage, EveryByteComesBackAsItWas) {
    for (int number = 0; number < 256; ++number) {
        std::string const byte(1, static_cast<char>(number));
        EXPECT_EQ(to_code_page(from_code_page(byte)), byte) << number;
    }
}

TEST(CodePage, EveryByteIsACharacterOfItsOwn) {
    std::vector<std::string> seen;
    for (int number = 0; number < 256; ++number) {
        auto const character = from_code_page(std::string(1, static_cast<char>(number)));
        EXPECT_EQ(text::length(character), 1) << number;
        EXPECT_EQ(std::count(seen.begin(), seen.end(), character), 0) << number;
        seen.push_back(character);
    }
}

TEST(CodePage, AllBytesInOneTextComeBack) {
    std::string bytes;
    for (int number = 0; number < 256; ++number) bytes.push_back(static_cast<char>(number));
    EXPECT_EQ(to_code_page(from_code_page(bytes)), bytes);
    EXPECT_EQ(from_code_page(""), "");
    EXPECT_EQ(to_code_page(""), "");
}

struct ByteCase {
    char const* name;
    unsigned char byte;
    char const* character;
    friend std::ostream& operator<<(std::ostream& out, ByteCase const& row) {
        return out << row.name;
    }
};
constexpr ByteCase byte_cases[] = {
    {"nul_is_kept", 0x00, nullptr},
    {"blank", 0x20, " "},
    {"letter", 0x41, "A"},
    {"euro", 0x80, "\u20AC"},
    {"unassigned_81", 0x81, "\u0081"},
    {"low_quote", 0x82, "\u201A"},
    {"florin", 0x83, "\u0192"},
    {"per_mille", 0x89, "\u2030"},
    {"S_with_caron", 0x8A, "\u0160"},
    {"OE", 0x8C, "\u0152"},
    {"unassigned_8D", 0x8D, "\u008D"},
    {"Z_with_caron", 0x8E, "\u017D"},
    {"unassigned_8F", 0x8F, "\u008F"},
    {"unassigned_90", 0x90, "\u0090"},
    {"apostrophe", 0x92, "\u2019"},
    {"long_dash", 0x96, "\u2013"},
    {"s_with_caron", 0x9A, "\u0161"},
    {"oe", 0x9C, "\u0153"},
    {"unassigned_9D", 0x9D, "\u009D"},
    {"z_with_caron", 0x9E, "\u017E"},
    {"Y_with_two_dots", 0x9F, "\u0178"},
    {"unbreakable_blank", 0xA0, "\u00A0"},
    {"macron", 0xAF, "\u00AF"},
    {"E_acute", 0xC9, "\u00C9"},
    {"times_sign", 0xD7, "\u00D7"},
    {"sharp_s", 0xDF, "\u00DF"},
    {"c_cedilla", 0xE7, "\u00E7"},
    {"y_with_two_dots", 0xFF, "\u00FF"},
};

class CodePageByte : public testing::TestWithParam<ByteCase> {};
TEST_P(CodePageByte, StandsForItsCharacter) {
    std::string const byte(1, static_cast<char>(GetParam().byte));
    std::string const character =
        GetParam().character == nullptr ? std::string(1, '\0') : GetParam().character;
    EXPECT_EQ(from_code_page(byte), character);
    EXPECT_EQ(to_code_page(character), byte);
}
INSTANTIATE_TEST_SUITE_P(Table, CodePageByte, testing::ValuesIn(byte_cases),
                         [](auto const& row) { return row.param.name; });

struct NearCase {
    char const* name;
    char const* typed;
    char const* kept;
    friend std::ostream& operator<<(std::ostream& out, NearCase const& row) {
        return out << row.name;
    }
};
constexpr NearCase near_cases[] = {
    {"polish_l", "\u0142", "l"},
    {"polish_L", "\u0141", "L"},
    {"hungarian_O", "\u0150", "O"},
    {"hungarian_u", "\u0171", "u"},
    {"czech_r", "\u0159", "r"},
    {"turkish_g", "\u011F", "g"},
    {"turkish_dotless_i", "\u0131", "i"},
    {"romanian_s_with_comma", "\u0219", "s"},
    {"romanian_t_with_cedilla", "\u0163", "t"},
    {"croatian_d", "\u0111", "d"},
    {"sharp_s_is_of_the_page", "\u00DF", "\u00DF"},
    {"capital_sharp_s_becomes_the_small_one", "\u1E9E", "\u00DF"},
    {"of_two_marks_one_is_of_the_page", "\u1EBF", "\u00EA"},
    {"of_a_mark_below_and_one_above_too", "\u1ED9", "\u00F4"},
    {"of_a_horn_and_an_accent_too", "\u1EE9", "\u00FA"},
    {"of_two_marks_none_is_of_the_page", "\u1EB7", "a"},
    {"Z_with_caron_is_of_the_page", "\u017D", "\u017D"},
    {"s_with_caron_is_of_the_page", "\u0161", "\u0161"},
    {"oe_is_of_the_page", "\u0153", "\u0153"},
    {"euro_is_of_the_page", "\u20AC", "\u20AC"},
    {"greek", "\u03A9", "?"},
    {"cyrillic", "\u0416", "?"},
    {"chinese", "\u4E2D", "?"},
    {"beyond_the_first_plane", "\U0001F600", "?"},
    {"a_word", "Łódź Žižka Ωmega", "Lódz Žižka ?mega"},
};

class NearLetter : public testing::TestWithParam<NearCase> {};
TEST_P(NearLetter, IsWhatTheScreenAndTheFileHold) {
    EXPECT_EQ(fitted_to_code_page(GetParam().typed), GetParam().kept);
    EXPECT_EQ(from_code_page(to_code_page(GetParam().typed)), GetParam().kept);
}
INSTANTIATE_TEST_SUITE_P(Table, NearLetter, testing::ValuesIn(near_cases),
                         [](auto const& row) { return row.param.name; });

TEST(CodePage, ACharacterIsFittedOnceAndForAll) {
    for (char32_t character = 0; character < 0x3000; ++character) {
        if (character >= 0xD800) break;
        auto const fitted = nearest_in_code_page(character);
        EXPECT_EQ(nearest_in_code_page(fitted), fitted) << static_cast<unsigned>(character);
        EXPECT_EQ(to_code_page(text::encoded(character)).size(), 1U)
            << static_cast<unsigned>(character);
    }
}

TEST(CodePage, BytesThatAreNoUtf8BecomeQuestionMarks) {
    EXPECT_EQ(to_code_page("Zo\xEB!"), "Zo?!");
    EXPECT_EQ(to_code_page("\xF0\x9F"), "??");
}

}  // namespace

}  // namespace navarun
