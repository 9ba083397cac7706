// The files of a folder as the browser lists them, and the search in a list.
#include <fstream>
#include <ostream>

#include <gtest/gtest.h>

#include "files/file_list.h"
#include "tests/support/visit.h"

namespace navarun {

namespace {

Endings const records{".fcy"};
Endings const portraits{".gif", ".bmp", ".jpg", ".jpeg"};

struct SearchCase {
    char const* name;
    std::vector<std::string> list;
    char const* wanted;
    int start;
    bool exact;
    int found;
    friend std::ostream& operator<<(std::ostream& out, SearchCase const& row) {
        return out << row.name;
    }
};
std::vector<std::string> const persons{"ADAM Zoé.fcy", "Dupont Jean.fcy", "dupont Marie.fcy",
                                       "Éluard Paul.fcy", "Žižka Jan.fcy"};
SearchCase const search_cases[] = {
    {"first_entry_that_begins_so", persons, "Dupont", -1, false, 1},
    {"small_letters_find_capitals", persons, "adam", -1, false, 0},
    {"capitals_find_small_letters", persons, "DUPONT M", -1, false, 2},
    {"accented_small_finds_capital", persons, "éluard", -1, false, 3},
    {"an_accent_is_no_bare_letter", persons, "eluard", -1, false, -1},
    {"caron_of_the_page", persons, "ŽIŽKA", -1, false, 4},
    {"the_middle_of_an_entry_is_not_searched", persons, "Jean", -1, false, -1},
    {"none", persons, "Xavier", -1, false, -1},
    {"longer_than_the_entry", persons, "ADAM Zoé.fcy.old", -1, false, -1},
    {"exact_needs_the_whole_entry", persons, "Dupont", -1, true, -1},
    {"exact_whatever_the_case", persons, "DUPONT JEAN.FCY", -1, true, 1},
    {"after_the_start", persons, "dupont", 1, false, 2},
    {"round_from_the_end_to_the_top", persons, "dupont", 2, false, 1},
    {"round_to_the_start_itself", persons, "adam", 0, false, 0},
    {"from_the_last_entry", persons, "adam", 4, false, 0},
    {"an_empty_list", {}, "a", -1, false, -1},
};

class Search : public testing::TestWithParam<SearchCase> {};
TEST_P(Search, FindsItsPlace) {
    auto const& row = GetParam();
    EXPECT_EQ(SearchListBox(row.list, row.wanted, row.start, row.exact), row.found);
}
INSTANTIATE_TEST_SUITE_P(Table, Search, testing::ValuesIn(search_cases),
                         [](auto const& row) { return row.param.name; });

TEST(HasEnding, InAnyCaseAndAtTheEndAlone) {
    EXPECT_TRUE(has_ending("a.fcy", records));
    EXPECT_TRUE(has_ending("a.FCY", records));
    EXPECT_TRUE(has_ending("a.FcY", records));
    EXPECT_TRUE(has_ending(".fcy", records));
    EXPECT_FALSE(has_ending("fcy", records));
    EXPECT_FALSE(has_ending("a.fcyx", records));
    EXPECT_FALSE(has_ending("a.fcy ", records));
    EXPECT_FALSE(has_ending("", records));
    EXPECT_TRUE(has_ending("a.JPEG", portraits));
    EXPECT_FALSE(has_ending("a.png", portraits));
}

class Listing : public testing::Test {
  protected:
    void make(std::string const& name) { std::ofstream{m_folder.path() / name} << "x"; }
    std::filesystem::path const& path() const { return m_folder.path(); }

  private:
    test::TemporaryFolder m_folder;
};

TEST_F(Listing, TakesTheEndingsInAnyCaseAndNothingElse) {
    for (char const* const name : {"a.fcy", "b.FCY", "c.Fcy", "d.txt", "fcy", "e.fcy.bak",
                                   "navarun.tmp", "f.jpg", "g.JPEG", "h.bmp", "i.gif"}) {
        make(name);
    }
    EXPECT_EQ(list_files(path(), records),
              (std::vector<std::string>{"a.fcy", "b.FCY", "c.Fcy"}));
    EXPECT_EQ(list_files(path(), portraits),
              (std::vector<std::string>{"f.jpg", "g.JPEG", "h.bmp", "i.gif"}));
}

// Capitals byte by byte: accented letters come after Z, in the order of their bytes.
TEST_F(Listing, IsSortedByTheCapitalFormInTheCodePage) {
    std::vector<std::string> const sorted{
        " .fcy",   "0.fcy",    "A-B.fcy",    "a.fcy",       "ab c.fcy",
        "AB.fcy",  "B.fcy",    "z.fcy",      "_.fcy",       "Šimek.fcy",
        "œuf.fcy", "Ÿves.fcy", "Éluard.fcy", "éluarde.fcy", "Óscar.fcy",
    };
    for (auto const& name : sorted) make(name);
    EXPECT_EQ(list_files(path(), records), sorted);
}

// Families come one after the other, however long what they have in common is.
TEST_F(Listing, NamesThatBeginAlikeAreSortedByTheirEnds) {
    std::vector<std::string> const sorted{
        "Dupont-Aignan Anne.fcy",
        "Dupont-Aignan Anne1.fcy",
        "Dupont-aignan Zoé.fcy",
        "Dupont-Aignant.fcy",
        "DUPONT.fcy",
        "dupont.fcy",
        "Dupontel Ève.fcy",
        "Dupontel Éve.fcy",
    };
    for (auto name = sorted.rbegin(); name != sorted.rend(); ++name) make(*name);
    EXPECT_EQ(list_files(path(), records), sorted);
}

TEST_F(Listing, NamesThatDifferInCaseAloneBothStand) {
    make("dupont.fcy");
    make("DUPONT.fcy");
    EXPECT_EQ(list_files(path(), records).size(), 2U);
}

TEST_F(Listing, FoldersAreNotListed) {
    std::filesystem::create_directory(path() / "dossier.fcy");
    make("a.fcy");
    EXPECT_EQ(list_files(path(), records), std::vector<std::string>{"a.fcy"});
}

TEST_F(Listing, ALinkIsListedWhereItLeadsToAFile) {
    make("a.fcy");
    std::filesystem::create_symlink(path() / "a.fcy", path() / "lien.fcy");
    std::filesystem::create_symlink(path() / "nulle part", path() / "perdu.fcy");
    EXPECT_EQ(list_files(path(), records), (std::vector<std::string>{"a.fcy", "lien.fcy"}));
}

TEST_F(Listing, AMissingFolderHasNone) {
    EXPECT_TRUE(list_files(path() / "absent", records).empty());
    make("a.fcy");
    EXPECT_TRUE(list_files(path() / "a.fcy", records).empty());
}

TEST_F(Listing, BytesThatAreNoUtf8AreListedAsTheyStand) {
    make("Zo\xEB.fcy");
    EXPECT_EQ(list_files(path(), records), std::vector<std::string>{"Zo\xEB.fcy"});
}

}  // namespace

}  // namespace navarun
