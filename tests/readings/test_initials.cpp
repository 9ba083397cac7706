// The initials of a person, whose texts the personality report reads out.
#include <ostream>

#include <gtest/gtest.h>

#include "readings/initials.h"

namespace navarun {

namespace {

struct InitialsCase {
    char const* name;
    char const* first_name;
    char const* last_name;
    std::vector<std::string> initials;
    friend std::ostream& operator<<(std::ostream& out, InitialsCase const& row) {
        return out << row.name;
    }
};
InitialsCase const initials_cases[] = {
    {"two_names", "Marie", "Dupont", {"M", "D"}},
    {"hyphen_gives_a_second", "Marie-Claire", "Dupont", {"M", "C", "D"}},
    {"small_letters_give_capitals", "marie-claire", "dupont", {"M", "C", "D"}},
    {"blank_gives_a_second", "Marie Claire", "Dupont", {"M", "C", "D"}},
    {"full_stop_gives_a_second", "M.Claire", "Dupont", {"M", "C", "D"}},
    {"only_the_first_of_one_separator", "A-B-C", "Dupont", {"A", "B", "D"}},
    {"three_given_names_give_two", "Jean-Paul-Marc", "Roux", {"J", "P", "R"}},
    {"a_last_name_never_gives_two", "Jean", "De La Tour", {"J", "D"}},
    {"separator_at_the_end", "Marie-", "Dupont", {"M", "D", "D"}},
    {"blank_at_the_end", "Marie ", "Dupont", {"M", "D", "D"}},
    {"separator_at_the_start", "-Marie", "Dupont", {"-", "M", "D"}},
    {"a_lone_separator", "-", "Dupont", {"-", "D", "D"}},
    // Places 5 and 8 or-ed give 13, the character after it is the 14th.
    {"two_separators_point_elsewhere", "Jean Lo-MartinX", "Dupont", {"J", "N", "D"}},
    {"two_separators_point_beyond", "Jean Lo-Luc", "Dupont", {"J", "D", "D"}},
    {"two_separators_point_far_on", "Abcd-fgh.ijklmno", "Quant", {"A", "M", "Q"}},
    // Places 2 and 3 or-ed give 3.
    {"two_separators_side_by_side", "J. Paul", "Dupont", {"J", "P", "D"}},
    // Places 1 and 2 or-ed give 3, which skips a letter.
    {"two_separators_skip_a_letter", "-.ABC", "Dupont", {"-", "B", "D"}},
    {"three_separators", "A.B-C D", "Dupont", {"A", "D", "D"}},
    {"accented_capital_is_its_own", "Émile", "Dupont", {"É", "D"}},
    {"accented_small_becomes_capital", "émile", "éluard", {"É", "É"}},
    {"accented_letters_count_as_one", "Éé-Zoé", "Dupont", {"É", "Z", "D"}},
    {"accented_letters_on_both_sides", "Chloé Ève", "Été", {"C", "È", "É"}},
    {"digits", "07_03_1952", "Dupont", {"0", "D"}},
    {"a_digit_that_counts", "7 Nains", "Blanche", {"7", "N", "B"}},
    {"only_a_last_name", "", "Dupont", {"", "D"}},
    {"only_a_first_name", "Marie", "", {"M", ""}},
    {"two_given_names_no_last_name", "Marie-Claire", "", {"M", "C", ""}},
    {"separator_at_the_end_no_last_name", "Marie-", "", {"M", "", ""}},
    {"nobody", "", "", {"", ""}},
    {"leading_blank_of_the_first_name", " Luc", "Roux", {" ", "L", "R"}},
    {"leading_blank_of_the_last_name", "Marie", " Dupont", {"M", " "}},
};

class Initials : public testing::TestWithParam<InitialsCase> {};
TEST_P(Initials, AreReadInTheirOrder) {
    EXPECT_EQ(initials_of(GetParam().first_name, GetParam().last_name), GetParam().initials);
}
INSTANTIATE_TEST_SUITE_P(Persons, Initials, testing::ValuesIn(initials_cases),
                         [](auto const& row) { return row.param.name; });

TEST(LetterText, EveryCapitalHasOneThatBeginsWithIt) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        auto const text = letter_text(std::string(1, letter));
        ASSERT_TRUE(text.has_value()) << letter;
        EXPECT_EQ(text->front(), letter);
        EXPECT_EQ(text->back(), '.') << letter;
    }
}

TEST(LetterText, NothingElseHasOne) {
    for (char const* const letter : {"", "a", "É", "0", "-", " ", "AB", "@", "["}) {
        EXPECT_FALSE(letter_text(letter).has_value()) << letter;
    }
}

// Spacing and dashes of the practitioners' own text, oddities included.
TEST(LetterText, KeepsItsOddSpacing) {
    EXPECT_TRUE(letter_text("A")->starts_with("A- INITIATIVE, INTELLIGENCE : Ambition"));
    EXPECT_TRUE(letter_text("C")->starts_with("C -intuition: Rapidité d  'esprit et"));
    EXPECT_TRUE(letter_text("F")->starts_with("F – RESPONSABILITÉ : Emotivité"));
    EXPECT_TRUE(letter_text("I")->starts_with("I – ÉMOTIVITÉ : "));
    EXPECT_TRUE(letter_text("V")->starts_with("V – VOLONTÉ : "));
    EXPECT_TRUE(letter_text("X")->starts_with("X -SACRIFICE, RENONCEMENT: "));
    EXPECT_TRUE(
        letter_text("R")->ends_with("Tendance à se mettre au premier plan. Eparpillement."));
}

}  // namespace

}  // namespace navarun
