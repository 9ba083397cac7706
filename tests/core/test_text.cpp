// Counting characters, changing their case, reading and padding numbers, replacing.
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/core/mismatches.h"

namespace navarun::test {
namespace {

constexpr char32_t unreadable = U'\uFFFD';

struct CharacterCase {
    char const* name;
    std::string_view bytes;
    std::vector<char32_t> characters;
    friend std::ostream& operator<<(std::ostream& out, CharacterCase const& row) {
        return out << row.name;
    }
};

using namespace std::string_view_literals;

// clang-format off
CharacterCase const readable_texts[] = {
    {"empty",             "",                 {}},
    {"digits",            "07",               {U'0', U'7'}},
    {"line_break",        "\r\n",             {U'\r', U'\n'}},
    {"zero_byte",         "\0a"sv,            {U'\0', U'a'}},
    {"accent",            "\xC3\xA9t\xC3\xA9", {U'\u00E9', U't', U'\u00E9'}},
    {"ligature",          "\xC5\x93uf",       {U'\u0153', U'u', U'f'}},
    {"overline",          "\xC2\xAF",         {U'\u00AF'}},
    {"euro",              "\xE2\x82\xAC",     {U'\u20AC'}},
    {"four_bytes",        "\xF0\x9F\x8C\x9E", {U'\U0001F31E'}},
    {"greatest",          "\xF4\x8F\xBF\xBF", {U'\U0010FFFF'}},
};

CharacterCase const unreadable_texts[] = {
    {"lone_first_byte",       "\xC3",                 {unreadable}},
    {"first_byte_then_letter", "\xE9t",               {unreadable, U't'}},
    {"lone_following_byte",   "a\xA9",                {U'a', unreadable}},
    {"cut_after_two",         "\xE2\x82",             {unreadable, unreadable}},
    {"cut_then_letter",       "\xE2\x82" "A",         {unreadable, unreadable, U'A'}},
    {"cut_after_three",       "\xF0\x9F\x8C",         {unreadable, unreadable, unreadable}},
    {"overlong_zero",         "\xC0\x80",             {unreadable, unreadable}},
    {"overlong_stroke",       "\xE0\x80\xAF",         {unreadable, unreadable, unreadable}},
    {"overlong_four_bytes",   "\xF0\x80\x80\xAF",     std::vector<char32_t>(4, unreadable)},
    {"half_of_a_pair",        "\xED\xA0\x80",         {unreadable, unreadable, unreadable}},
    {"beyond_the_greatest",   "\xF4\x90\x80\x80",     std::vector<char32_t>(4, unreadable)},
    {"five_bytes",            "\xF8\x88\x80\x80\x80", std::vector<char32_t>(5, unreadable)},
    {"never_a_byte_of_text",  "\xFE\xFF",             {unreadable, unreadable}},
    {"readable_after_all",    "\xFF\xC3\xA9",         {unreadable, U'\u00E9'}},
};
// clang-format on

class Characters : public testing::TestWithParam<CharacterCase> {};
TEST_P(Characters, AreToldOneByOne) {
    EXPECT_EQ(text::characters(GetParam().bytes), GetParam().characters);
}
TEST_P(Characters, AreCounted) {
    EXPECT_EQ(text::length(GetParam().bytes), static_cast<int>(GetParam().characters.size()));
}
INSTANTIATE_TEST_SUITE_P(Readable, Characters, testing::ValuesIn(readable_texts),
                         [](auto const& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(Unreadable, Characters, testing::ValuesIn(unreadable_texts),
                         [](auto const& row) { return row.param.name; });

TEST(Characters, OneOfEachLengthIsEncodedAsItIsRead) {
    EXPECT_EQ(text::encoded(U'a'), "a");
    EXPECT_EQ(text::encoded(U'\u007F'), "\x7F");
    EXPECT_EQ(text::encoded(U'\u0080'), "\xC2\x80");
    EXPECT_EQ(text::encoded(U'\u00E9'), "é");
    EXPECT_EQ(text::encoded(U'\u07FF'), "\xDF\xBF");
    EXPECT_EQ(text::encoded(U'\u0800'), "\xE0\xA0\x80");
    EXPECT_EQ(text::encoded(U'\u20AC'), "€");
    EXPECT_EQ(text::encoded(U'\U00010000'), "\xF0\x90\x80\x80");
}

TEST(Characters, EveryOneComesBackFromItsBytes) {
    Mismatches mismatches;
    for (char32_t one = 0; one <= U'\U0010FFFF'; ++one) {
        if (one >= 0xD800 && one <= 0xDFFF) continue;  // halves of pairs, no characters
        auto const read = text::characters(text::encoded(one));
        if (read.size() != 1 || read.front() != one) {
            mismatches.note("character ", static_cast<unsigned long>(one));
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
}

TEST(FirstCharacters, AreCutBetweenCharactersNotBetweenBytes) {
    EXPECT_EQ(text::first("élève", 0), "");
    EXPECT_EQ(text::first("élève", 1), "é");
    EXPECT_EQ(text::first("élève", 3), "élè");
    EXPECT_EQ(text::first("élève", 5), "élève");
    EXPECT_EQ(text::first("élève", 25), "élève");
    EXPECT_EQ(text::first("", 3), "");
}

TEST(ReplacedCharacters, TheSelectionGivesWayToTheKey) {
    EXPECT_EQ(text::replaced("12", 0, 2, U'3'), "3");
    EXPECT_EQ(text::replaced("12", 0, 1, U'3'), "32");
    EXPECT_EQ(text::replaced("12", 1, 1, U'3'), "13");
    EXPECT_EQ(text::replaced("élève", 2, 1, U'\u00E9'), "éléve");
}

TEST(ReplacedCharacters, WithoutASelectionTheKeyIsInserted) {
    EXPECT_EQ(text::replaced("12", 1, 0, U'3'), "132");
    EXPECT_EQ(text::replaced("12", 2, 0, U'3'), "123");
    EXPECT_EQ(text::replaced("", 0, 0, U'3'), "3");
}

TEST(ReplacedCharacters, OutsideTheTextTheKeyGoesToTheEnd) {
    EXPECT_EQ(text::replaced("12", 5, 0, U'3'), "123");
    EXPECT_EQ(text::replaced("12", 5, 2, U'3'), "123");
    EXPECT_EQ(text::replaced("12", 1, 9, U'3'), "13");
}

struct CaseOfLetters {
    char const* name;
    std::string_view small;
    std::string_view capital;
    friend std::ostream& operator<<(std::ostream& out, CaseOfLetters const& row) {
        return out << row.name;
    }
};
constexpr CaseOfLetters letter_pairs[] = {
    {"plain", "abcxyz", "ABCXYZ"},     {"french", "àâçéèêëîïôùûü", "ÀÂÇÉÈÊËÎÏÔÙÛÜ"},
    {"ligatures", "œæ", "ŒÆ"},         {"y_diaeresis", "ÿ", "Ÿ"},
    {"nordic", "åäöø", "ÅÄÖØ"},        {"icelandic", "ðþý", "ÐÞÝ"},
    {"iberian", "ñãõáíóú", "ÑÃÕÁÍÓÚ"}, {"carons", "šž", "ŠŽ"},
};

class LetterCase : public testing::TestWithParam<CaseOfLetters> {};
TEST_P(LetterCase, GoesBothWays) {
    EXPECT_EQ(text::upper(GetParam().small), GetParam().capital);
    EXPECT_EQ(text::lower(GetParam().capital), GetParam().small);
}
TEST_P(LetterCase, LeavesWhatHasItAlready) {
    EXPECT_EQ(text::upper(GetParam().capital), GetParam().capital);
    EXPECT_EQ(text::lower(GetParam().small), GetParam().small);
}
TEST_P(LetterCase, MakesNoDifferenceToAComparisonWithoutIt) {
    EXPECT_TRUE(text::equal_ignoring_case(GetParam().small, GetParam().capital));
}
INSTANTIATE_TEST_SUITE_P(Letters, LetterCase, testing::ValuesIn(letter_pairs),
                         [](auto const& row) { return row.param.name; });

TEST(LetterCaseOfSigns, SignsBetweenTheLettersHaveNone) {
    // The cross and the obelus lie where a pair of letters would.
    constexpr std::string_view signs = "0123456789 -'/@[`{×÷ß€«»°¯ªº";
    EXPECT_EQ(text::upper(signs), signs);
    EXPECT_EQ(text::lower(signs), signs);
    EXPECT_FALSE(text::equal_ignoring_case("×", "÷"));
    EXPECT_FALSE(text::equal_ignoring_case("@", "`"));
    EXPECT_FALSE(text::equal_ignoring_case("[", "{"));
}

TEST(EqualIgnoringCase, ComparesWholeTexts) {
    EXPECT_TRUE(text::equal_ignoring_case("", ""));
    EXPECT_TRUE(text::equal_ignoring_case("Guru", "GURU"));
    EXPECT_TRUE(text::equal_ignoring_case("CŒUR", "cœur"));
    EXPECT_FALSE(text::equal_ignoring_case("Guru", "Gur"));
    EXPECT_FALSE(text::equal_ignoring_case("Gur", "Guru"));
    EXPECT_FALSE(text::equal_ignoring_case("e", "é"));
    EXPECT_FALSE(text::equal_ignoring_case("", "a"));
}

struct NameCase {
    char const* name;
    std::string_view typed;
    std::string_view proper;
    friend std::ostream& operator<<(std::ostream& out, NameCase const& row) {
        return out << row.name;
    }
};
constexpr NameCase name_cases[] = {
    {"empty", "", ""},
    {"small", "jean", "Jean"},
    {"capitals", "JEAN DUPONT", "Jean Dupont"},
    {"hyphen_starts_no_word", "jean-pierre dupont", "Jean-pierre Dupont"},
    {"apostrophe_starts_no_word", "o'neil", "O'neil"},
    {"tab_starts_no_word", "jean\tpaul", "Jean\tpaul"},
    {"accent_first", "élise hervé", "Élise Hervé"},
    {"accents_in_capitals", "ÉLOÏSE LEFÈVRE", "Éloïse Lefèvre"},
    {"ligature_first", "œdipe", "Œdipe"},
    {"blanks_are_kept", "  anne  marie ", "  Anne  Marie "},
    {"digit_first", "2e fils", "2e Fils"},
    {"proper_already", "Anne Marie", "Anne Marie"},
};

class ProperCase : public testing::TestWithParam<NameCase> {};
TEST_P(ProperCase, StartsEachWordWithACapital) {
    EXPECT_EQ(text::proper_case(GetParam().typed), GetParam().proper);
}
TEST_P(ProperCase, DoesNotChangeTwice) {
    EXPECT_EQ(text::proper_case(GetParam().proper), GetParam().proper);
}
INSTANTIATE_TEST_SUITE_P(Names, ProperCase, testing::ValuesIn(name_cases),
                         [](auto const& row) { return row.param.name; });

struct NumberCase {
    char const* name;
    std::string_view text;
    int number;
    friend std::ostream& operator<<(std::ostream& out, NumberCase const& row) {
        return out << row.name;
    }
};
constexpr NumberCase number_cases[] = {
    {"empty", "", 0},
    {"word", "an", 0},
    {"zero", "0", 0},
    {"double_zero", "00", 0},
    {"leading_zero", "07", 7},
    {"day", "31", 31},
    {"year", "1962", 1962},
    {"stops_at_a_letter", "40 ans", 40},
    {"stops_at_a_stroke", "17/05", 17},
    {"stops_at_a_point", "1.5", 1},
    {"no_digit_first", "a7", 0},
    {"greatest", "99999999", 99'999'999},
    {"zeros_before_the_greatest", "0000099999999", 99'999'999},
    {"one_too_great", "100000000", 99'999'999},
    {"far_too_great", "99999999999999999999999", 99'999'999},
};

class NumberOf : public testing::TestWithParam<NumberCase> {};
TEST_P(NumberOf, ReadsTheLeadingDigits) {
    EXPECT_EQ(text::number_of(GetParam().text), GetParam().number);
}
INSTANTIATE_TEST_SUITE_P(Texts, NumberOf, testing::ValuesIn(number_cases),
                         [](auto const& row) { return row.param.name; });

TEST(Padded, FillsWithZerosAndNeverCuts) {
    EXPECT_EQ(text::padded(0, 2), "00");
    EXPECT_EQ(text::padded(5, 2), "05");
    EXPECT_EQ(text::padded(12, 2), "12");
    EXPECT_EQ(text::padded(350, 2), "350");
    EXPECT_EQ(text::padded(5, 4), "0005");
    EXPECT_EQ(text::padded(7, 0), "7");
    EXPECT_EQ(text::padded(7, 1), "7");
}

TEST(TwoDigits, AnEmptyTextStaysEmpty) { EXPECT_EQ(text::two_digits(""), ""); }

TEST(TwoDigits, ANumberHasAtLeastTwo) {
    EXPECT_EQ(text::two_digits("0"), "00");
    EXPECT_EQ(text::two_digits("5"), "05");
    EXPECT_EQ(text::two_digits("05"), "05");
    EXPECT_EQ(text::two_digits("19"), "19");
    EXPECT_EQ(text::two_digits("350"), "350");
}

TEST(LastCharacters, AllWhereThereAreFewer) {
    EXPECT_EQ(text::last("01/01/1900", 4), "1900");
    EXPECT_EQ(text::last("01/01/1900", 8), "/01/1900");
    EXPECT_EQ(text::last("1900", 4), "1900");
    EXPECT_EQ(text::last("00", 4), "00");
    EXPECT_EQ(text::last("", 4), "");
    EXPECT_EQ(text::last("1900", 0), "");
}

struct ReplaceCase {
    char const* name;
    char const* text;
    std::string_view from;
    std::string_view to;
    std::string_view result;
    friend std::ostream& operator<<(std::ostream& out, ReplaceCase const& row) {
        return out << row.name;
    }
};
constexpr ReplaceCase replace_cases[] = {
    {"every_occurrence", "a-b-c", "-", "/", "a/b/c"},
    {"none", "abc", "-", "/", "abc"},
    {"empty_text", "", "-", "/", ""},
    {"empty_from_changes_nothing", "abc", "", "/", "abc"},
    {"empty_from_and_text", "", "", "/", ""},
    {"removal", "a-b-c", "-", "", "abc"},
    {"whole_text", "abc", "abc", "x", "x"},
    {"containing_what_it_replaces", "a.b.", ".", "..", "a..b.."},
    {"same_as_it_replaces", "aaa", "a", "a", "aaa"},
    {"from_left_to_right", "aaa", "aa", "b", "ba"},
    {"line_breaks", "un\r\ndeux\r\n", "\r\n", "\n", "un\ndeux\n"},
    {"accents", "été", "é", "e", "ete"},
};

class ReplaceAll : public testing::TestWithParam<ReplaceCase> {};
TEST_P(ReplaceAll, Ends) {
    ReplaceCase const& row = GetParam();
    EXPECT_EQ(text::Replace_Char(row.text, row.from, row.to), row.result);
}
INSTANTIATE_TEST_SUITE_P(Texts, ReplaceAll, testing::ValuesIn(replace_cases),
                         [](auto const& row) { return row.param.name; });

TEST(Repeated, StandsSoManyTimesInARow) {
    EXPECT_EQ(text::repeated("¯", 3), "¯¯¯");
    EXPECT_EQ(text::repeated(text::line_break, 2), "\r\n\r\n");
    EXPECT_EQ(text::repeated("_", 1), "_");
    EXPECT_EQ(text::repeated("_", 0), "");
    EXPECT_EQ(text::repeated("_", -1), "");
}

}  // namespace
}  // namespace navarun::test
