// The printed listing of the lords: its title, its columns, its four pages.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "print/lords_listing.h"
#include "tests/printing/print_visit.h"
#include "tools/pilote/page_json.h"

namespace navarun::test {
namespace {

constexpr char const* window = "FrmSeigneurJour.Visible";

std::vector<Json> listing(Program const& program, screen::PageSize paper = screen::a4) {
    std::vector<Json> pages;
    for (auto const& page : Print_seigneurdujour(program, paper)) {
        pages.push_back(pilot::page_as_json("printer", page));
    }
    return pages;
}

/// The texts of all pages in their order, those of blanks and line ends aside.
std::vector<Json> all_texts(std::vector<Json> const& pages) {
    std::vector<Json> all;
    for (auto const& page : pages) {
        for (auto const& text : operations(page, "text")) all.push_back(text);
    }
    return all;
}

std::vector<std::string> rows(PrintVisit& visit) {
    return visit.value("FrmSeigneurJour.List_SeigneurJour.List")
        .get<std::vector<std::string>>();
}

std::string row_at(std::vector<std::string> const& all, std::size_t place) {
    return place < all.size() ? all[place] : "";
}

TEST(LordsListing, IsPrintedInFourPagesAndTheWindowStaysHidden) {
    PrintVisit visit;
    visit.click("Bouton_seigneurjour");
    visit.effects();
    visit.click("FrmSeigneurJour.Btn_Imprime");
    EXPECT_FALSE(visit.truth(window));
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"printer-dialog","answer":1},
                                               {"kind":"document"}])"));
    Json const drawn = visit.pages();
    ASSERT_EQ(drawn.size(), 4u);
    for (auto const& page : drawn) {
        EXPECT_EQ(page["target"], "printer");
        EXPECT_EQ(page["ratio"], 1.0);
    }
}

TEST(LordsListing, ACancelPrintsNothingAndTheWindowStaysHidden) {
    PrintVisit visit;
    visit.click("Bouton_seigneurjour");
    visit.effects();
    visit.answer_next(2);
    visit.click("FrmSeigneurJour.Btn_Imprime");
    EXPECT_FALSE(visit.truth(window));
    EXPECT_EQ(visit.pages(), Json::array());
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"printer-dialog","answer":2}])"));
}

TEST(LordsListing, OpensWithItsTitle) {
    PrintVisit visit;
    visit.set("Text_prenom", "Zoé");
    visit.set("Text_nom", "Dupont");
    visit.generate_for("17051962");
    visit.click("Bouton_seigneurjour");
    Json const page = listing(visit.program())[0];
    Json const title = text_at(page, 2.3, 0.4);
    EXPECT_EQ(title["text"], "La Méthode Navarun");
    EXPECT_EQ(title["font"], "Arial");
    EXPECT_EQ(title["size"], 17);
    EXPECT_EQ(words_at(page, 3.15, 0.7), "www.navarun.example");
    EXPECT_EQ(text_at(page, 3.15, 0.7)["font"], "Arial");
    std::string rule;
    for (int i = 0; i < 75; ++i) rule += "¯";
    EXPECT_EQ(words_at(page, 0.5, 1), rule);
    EXPECT_EQ(text_at(page, 0.5, 1)["font"], "MS Sans Serif");
    EXPECT_EQ(text_at(page, 0.5, 1)["size"], 12);
    EXPECT_EQ(words_at(page, 0.5, 1.45),
              "Seigneur du jour: Shani   Seigneur de l'heure: Shukra");
    auto const all = all_texts({page});
    EXPECT_EQ(all[4]["text"], "Zoé Dupont   17/05/1962  (Jeudi)");
    EXPECT_EQ(all[4]["x"], 0.5);
    EXPECT_EQ(all[6]["text"], rule) << "and below the second line again";
    EXPECT_TRUE(is_at(all[7], 0.5, 1.7)) << "the first row of the table";
    EXPECT_EQ(all[7]["font"], "Arial Narrow");
    EXPECT_EQ(all[7]["size"], 10);
}

// 22 to 28 November 2026, Sunday first.
TEST(LordsListing, ThePrintDateStandsByTheLengthOfItsDay) {
    constexpr double edges[] = {5.7, 5.97, 5.97, 5.77, 5.97, 5.77, 5.85};
    char const* const names[] = {"Dimanche", "Lundi",    "Mardi", "Mercredi",
                                 "Jeudi",    "Vendredi", "Samedi"};
    for (int day = 0; day < 7; ++day) {
        std::string const date = std::to_string(22 + day) + "/11/2026";
        PrintVisit visit{date};
        visit.click("Bouton_seigneurjour");
        Json const told = text_at(listing(visit.program())[0], edges[day], 0.7);
        EXPECT_EQ(told["text"], std::string{"Imprimé le: "} + names[day] + " " + date);
        EXPECT_EQ(told["size"], 10);
        EXPECT_EQ(told["font"], "Arial");
    }
}

struct Block {
    std::size_t first;
    std::size_t end;
    std::size_t to_the_right;
};
constexpr Block blocks[] = {{5, 63, 58}, {121, 185, 64}, {249, 313, 64}};

// The rows of the table in the order in which they are printed.
TEST(LordsListing, EachBlockHasItsRowsInTwoColumnsAndItsNumber) {
    PrintVisit visit;
    visit.click("Bouton_seigneurjour");
    auto const all = rows(visit);
    ASSERT_EQ(all.size(), 32u + 365u + 12u);
    std::vector<std::pair<double, std::string>> expected;
    std::string const five = "\r\n\r\n\r\n\r\n\r\n";
    int number = 1;
    auto const add_rows = [&](std::size_t first, std::size_t end, std::size_t to_the_right) {
        for (std::size_t i = first; i < end; ++i) {
            expected.emplace_back(0.5, all[i] + "\t\t\t" + row_at(all, i + to_the_right));
        }
    };
    for (auto const& block : blocks) {
        add_rows(block.first, block.end, block.to_the_right);
        expected.emplace_back(7.5, std::to_string(number++));
        expected.emplace_back(0.5, five);
    }
    add_rows(377, all.size(), 54);
    std::string breaks;
    for (int i = 0; i < 31; ++i) breaks += "\r\n";
    expected.emplace_back(0.5, breaks);
    expected.emplace_back(7.5, "4");
    std::vector<std::pair<double, std::string>> found;
    auto const drawn = all_texts(listing(visit.program()));
    for (std::size_t i = 7; i < drawn.size(); ++i) {
        found.emplace_back(drawn[i]["x"].get<double>(), drawn[i]["text"].get<std::string>());
    }
    EXPECT_EQ(found, expected);
}

void expect_flow(std::vector<Json> const& pages, double height) {
    for (auto const& page : pages) {
        double last = -1;
        for (auto const& text : operations(page, "text")) {
            double const y = text["y"].get<double>();
            // Below the head, whose lines are placed one by one.
            if (text["font"] != "Arial Narrow") continue;
            EXPECT_GT(y, last);
            EXPECT_LT(y + 10.0 / 72, height);
            last = y;
        }
    }
}

// A block a page, its number at its foot; the paper ends in the spacing.
TEST(LordsListing, ABlockStandsOnEachPageWithItsNumber) {
    for (int const age : {1, 4}) {  // 1904 is a leap year
        PrintVisit visit;
        visit.generate_at(age);
        visit.click("Bouton_seigneurjour");
        auto const pages = listing(visit.program());
        ASSERT_EQ(pages.size(), 4u);
        expect_flow(pages, screen::a4.height);
        std::size_t const rows_of_page[] = {58, 64, 64, rows(visit).size() - 377};
        for (std::size_t i = 0; i < 4; ++i) {
            std::size_t found = 0;
            std::vector<std::string> numbers;
            for (auto const& text : operations(pages[i], "text")) {
                auto const words = text["text"].get<std::string>();
                if (words.find("\t\t\t") != std::string::npos) ++found;
                if (text["x"] == 7.5) numbers.push_back(words);
            }
            EXPECT_EQ(found, rows_of_page[i]) << "page " << i + 1 << " at " << age;
            EXPECT_EQ(numbers, std::vector<std::string>{std::to_string(i + 1)});
        }
    }
}

TEST(LordsListing, TheYearOfALeapDayHasOneRowMore) {
    PrintVisit visit;
    visit.generate_at(4);
    visit.click("Bouton_seigneurjour");
    EXPECT_EQ(rows(visit).size(), 32u + 366u + 12u);
    std::size_t lines = 0;
    for (auto const& text : all_texts(listing(visit.program()))) {
        if (text["text"].get<std::string>().find("29/02/1904") != std::string::npos) ++lines;
    }
    EXPECT_EQ(lines, 1u);
}

TEST(LordsListing, AShorterListStillHasItsFourNumbers) {
    PrintVisit visit;
    visit.click("Bouton_seigneurjour");
    auto& list = visit.program().frm_seigneur_jour.List_SeigneurJour;
    for (std::size_t const length : {0U, 3U, 40U, 200U, 377U}) {
        list.clear();
        for (std::size_t i = 0; i < length; ++i) list.add("ligne " + std::to_string(i));
        std::vector<std::string> numbers;
        std::size_t of_block_4 = 0;
        for (auto const& text : all_texts(listing(visit.program()))) {
            if (text["x"] == 7.5) numbers.push_back(text["text"]);
            if (text["text"].get<std::string>().starts_with("ligne 377")) ++of_block_4;
        }
        EXPECT_EQ(numbers, (std::vector<std::string>{"1", "2", "3", "4"})) << length;
        EXPECT_EQ(of_block_4, 0u);
    }
}

TEST(LordsListing, ARightRowBeyondTheListIsEmpty) {
    PrintVisit visit;
    visit.click("Bouton_seigneurjour");
    auto& list = visit.program().frm_seigneur_jour.List_SeigneurJour;
    list.clear();
    for (int i = 0; i < 64; ++i) list.add("ligne " + std::to_string(i));
    auto const drawn = all_texts(listing(visit.program()));
    EXPECT_EQ(drawn[7]["text"], "ligne 5\t\t\tligne 63");
    EXPECT_EQ(drawn[8]["text"], "ligne 6\t\t\t");
}

// On shorter paper the blocks flow on, and nothing is lost.
TEST(LordsListing, OnShorterPaperNothingIsLost) {
    PrintVisit visit;
    visit.click("Bouton_seigneurjour");
    auto const words = [](std::vector<Json> const& pages) {
        std::vector<std::string> all;
        for (auto const& text : all_texts(pages)) all.push_back(text["text"]);
        return all;
    };
    screen::PageSize const letter{.width = 8.5, .height = 11};
    auto const on_letter = listing(visit.program(), letter);
    EXPECT_EQ(words(on_letter), words(listing(visit.program())));
    expect_flow(on_letter, letter.height);
}

}  // namespace
}  // namespace navarun::test
