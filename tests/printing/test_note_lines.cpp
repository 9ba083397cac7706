// The cutting of the notes, on its own.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/text.h"
#include "print/note_lines.h"

namespace navarun {
namespace {

using testing::Each;
using Lines = std::vector<std::string>;

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += text;
    return all;
}

NoteLines cut(std::string const& text, int most, int width) {
    NoteLines lines;
    ligne_charactere(text, most, width, lines);
    return lines;
}

struct CutCase {
    char const* name;
    std::string text;
    int most;
    int width;
    Lines lines;
    friend std::ostream& operator<<(std::ostream& out, CutCase const& row) {
        return out << row.name;
    }
};
// The blank at which a line is cut stays at its end, that of the last line is added to the
// text.
// clang-format off
CutCase const cut_cases[] = {
    {"shorter_than_a_line",           "un deux",            3, 10, {"un deux ", "", ""}},
    {"two_short_of_a_line",           "un deux!",           3, 10, {"un deux! ", "", ""}},
    {"one_short_fills_the_line",      "un deux!!",          3, 10, {"un deux!! "}},
    {"as_long_as_a_line",             "un deux!!!",         3, 10, {"un ", "deux!!! "}},
    {"one_word_as_long_as_a_line",    "abcdefghij",         3, 10, {"abcdefghij", "", ""}},
    {"one_word_one_short_of_a_line",  "abcdefghi",          3, 10, {"abcdefghi "}},
    {"two_full_lines",                "abcdefghi jklmnopqr", 3, 10, {"abcdefghi ", "jklmnopqr "}},
    {"cut_in_front_of_the_long_word", "abc defghijklm nop", 3, 10, {"abc ", "defghijklm", ""}},
    {"a_word_longer_than_a_line",     "abc defghijklmno pq", 3, 10, {"abc ", "defghijklm", ""}},
    {"a_long_word_at_once",           "abcdefghijklm nop",  3, 10, {"abcdefghij", "", ""}},
    {"more_than_the_lines",           "aaaa bbbb cccc dddd", 2, 5, {"aaaa ", "bbbb "}},
    {"just_as_many_as_the_lines",     "aaaa bbbb cccc",     3, 5, {"aaaa ", "bbbb ", "cccc "}},
    {"blanks_only_short",             "   ",                2, 10, {"    ", ""}},
    {"blanks_only_of_a_line",         "          ",         3, 10, {"          "}},
    {"blanks_only_of_two_lines",      repeated(" ", 19),    3, 10, {repeated(" ", 10), repeated(" ", 10)}},
    {"blanks_at_the_end",             "abcde    ",          3, 5, {"abcde", "", ""}},
    {"blanks_within",                 "ab      cd ef",      3, 5, {"ab   ", "   ", "cd "}},
    {"a_line_end_is_no_blank",        "abc\r\ndef ghi jkl", 3, 10, {"abc\r\ndef ", "ghi jkl "}},
    {"a_line_end_alone_joins_words",  "abc\r\ndefghi jkl",  3, 10, {"abc\r\ndefgh", "", ""}},
    {"a_line_end_may_be_parted",      "abcdefghi\r\njkl",   2, 10, {"abcdefghi\r", ""}},
    {"accents_count_once",            "éèêà çùîô ëïü",      3, 10, {"éèêà çùîô ", "ëïü "}},
    {"one_column_wide",               "  ",                 4, 1, {" ", " "}},
    {"one_line_at_most",              "aaa bbb ccc",        1, 4, {"aaa "}},
};
// clang-format on
class Cutting : public testing::TestWithParam<CutCase> {};
TEST_P(Cutting, YieldsTheseLines) {
    auto const& row = GetParam();
    auto const found = cut(row.text, row.most, row.width);
    EXPECT_EQ(found.lignes_note, row.lines);
    EXPECT_EQ(found.nombre_lignes, static_cast<int>(row.lines.size()));
}
INSTANTIATE_TEST_SUITE_P(NoteLines, Cutting, testing::ValuesIn(cut_cases),
                         [](auto const& row) { return row.param.name; });

TEST(NoteLines, OfAnEmptyTextStayAsTheyAre) {
    NoteLines lines{.lignes_note = {"avant"}, .nombre_lignes = 7};
    ligne_charactere("", 10, 101, lines);
    EXPECT_EQ(lines.lignes_note, Lines{"avant"});
    EXPECT_EQ(lines.nombre_lignes, 7);
}

TEST(NoteLines, ForgetTheTextBefore) {
    NoteLines lines = cut("aaaa bbbb cccc", 3, 5);
    ligne_charactere("dddd", 3, 5, lines);
    EXPECT_EQ(lines.lignes_note, Lines{"dddd "});
    EXPECT_EQ(lines.nombre_lignes, 1);
}

// The width of the page, at its edges.
TEST(NoteLines, OfAbout101Characters) {
    std::string const word_of_99 = repeated("x", 99);
    EXPECT_EQ(cut(word_of_99, 10, 101).nombre_lignes, 10) << "shorter than a line";
    EXPECT_EQ(cut(word_of_99, 10, 101).lignes_note[0], word_of_99 + " ");
    EXPECT_EQ(cut(word_of_99 + "x", 10, 101).lignes_note, Lines{word_of_99 + "x "});
    EXPECT_EQ(cut(word_of_99 + "xx", 10, 101).lignes_note[0], word_of_99 + "xx");
    EXPECT_EQ(cut(word_of_99 + "xx", 10, 101).nombre_lignes, 10);
    EXPECT_EQ(cut(word_of_99 + "xxx", 10, 101).lignes_note[0], word_of_99 + "xx")
        << "the 102nd letter of a word is lost";
    EXPECT_EQ(cut("x " + word_of_99, 10, 101).lignes_note, (Lines{"x ", word_of_99 + " "}));
}

TEST(NoteLines, TenFullLinesAreAllThatIsPrinted) {
    std::string const line = repeated("neuf mots ", 10) + " ";
    ASSERT_EQ(line.size(), 101u);
    auto const found = cut(repeated(line, 12), 10, 101);
    EXPECT_EQ(found.lignes_note, Lines(10, line));
    EXPECT_EQ(found.nombre_lignes, 10);
    // Ten lines and not a character more: the end of the text is the end of the tenth line.
    auto const exact = cut(repeated(line, 9) + line.substr(0, 100), 10, 101);
    EXPECT_EQ(exact.lignes_note, Lines(10, line));
}

TEST(NoteLines, OfALongTextAreItsBeginning) {
    std::string text;
    for (int i = 0; text.size() < 100'000; ++i) text += "mot" + std::to_string(i) + " ";
    auto const found = cut(text, 10, 101);
    ASSERT_EQ(found.lignes_note.size(), 10u);
    std::string all;
    for (auto const& line : found.lignes_note) {
        EXPECT_LE(line.size(), 101u);
        EXPECT_EQ(line.back(), ' ');
        all += line;
    }
    EXPECT_EQ(all, text.substr(0, all.size()));
}

TEST(NoteLines, OfALongTextWithoutABlankAreOne) {
    auto const found = cut(repeated("é", 100'000), 10, 101);
    EXPECT_EQ(text::length(found.lignes_note[0]), 101);
    EXPECT_THAT(Lines(found.lignes_note.begin() + 1, found.lignes_note.end()), Each(""));
}

// Whatever the text, what is printed is its beginning, no line is too long, and a line that is
// followed by another ends at a blank.
TEST(NoteLines, AreTheBeginningOfTheText) {
    std::string const letters = "ab c  dé\r\n";
    unsigned seed = 1;
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        int const length = static_cast<int>((seed = seed * 1103515245 + 12345) >> 16) % 60;
        for (int i = 0; i < length; ++i) {
            seed = seed * 1103515245 + 12345;
            auto const characters = text::characters(letters);
            text += text::encoded(characters[(seed >> 16) % characters.size()]);
        }
        int const width = 1 + round % 12;
        auto const found = cut(text, 4, width);
        std::string all;
        for (auto const& line : found.lignes_note) {
            EXPECT_LE(text::length(line), width);
            all += line;
        }
        EXPECT_EQ(all, (text + " ").substr(0, all.size())) << text << " in " << width;
    }
}

}  // namespace
}  // namespace navarun
