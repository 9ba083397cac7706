// The two views of the palaces: the sun's cell in a box, or all twelve by their quality.
#include <map>

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {

namespace {

std::map<std::string, std::string> const colour_of_palace{
    {"1", "#80FF80"}, {"2", "#FFFFFF"},  {"3", "#FFFF80"},          {"4", "system:title-bar"},
    {"5", "#80FF80"}, {"6", "#FF8080"},  {"7", "system:title-bar"}, {"8", "#FF8080"},
    {"9", "#80FF80"}, {"10", "#80FF80"}, {"11", "#80FF80"},         {"12", "#FF8080"},
};

std::string cell_property(int cell, char const* property) {
    return "Label_Solaire(" + std::to_string(cell) + ")." + property;
}

std::vector<int> boxed_cells(Visit& visit) {
    std::vector<int> boxed;
    for (int cell = 1; cell <= 12; ++cell) {
        bool const border = visit.truth(cell_property(cell, "Border"));
        EXPECT_EQ(visit.truth(cell_property(cell, "Opaque")), border) << cell;
        if (border) boxed.push_back(cell);
    }
    return boxed;
}

std::vector<int> const all_cells{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};

struct Sun {
    char const* name;
    char const* digits;
    int cell;
    friend std::ostream& operator<<(std::ostream& out, Sun const& row) {
        return out << row.name;
    }
};
// Days well inside each sign; cell i is sign i.
constexpr Sun suns[] = {
    {"aries", "01051900", 1},      {"taurus", "01061900", 2},    {"gemini", "01071900", 3},
    {"cancer", "01081900", 4},     {"leo", "01091900", 5},       {"virgo", "01101900", 6},
    {"libra", "01111900", 7},      {"scorpio", "01121900", 8},   {"sagittarius", "01011900", 9},
    {"capricorn", "01021900", 10}, {"aquarius", "01031900", 11}, {"pisces", "01041900", 12},
};

class PalaceView : public testing::TestWithParam<Sun> {};
INSTANTIATE_TEST_SUITE_P(Suns, PalaceView, testing::ValuesIn(suns),
                         [](auto const& row) { return row.param.name; });

// The program opens on Sagittarius; a reset would do as well, so each sun comes alone.
void generate_alone(Visit& visit, Sun const& sun) {
    visit.generate_for(sun.digits);
    // Two clicks from the coloured view take the boxes of other suns off.
    visit.click("Command_categorie");
    if (boxed_cells(visit).size() == 12U) visit.click("Command_categorie");
    ASSERT_EQ(visit.number("palais_index"), sun.cell);
    ASSERT_EQ(boxed_cells(visit), std::vector{sun.cell});
}

TEST_P(PalaceView, ColouredBoxesAllTwelveByPalace) {
    Visit visit;
    generate_alone(visit, GetParam());
    visit.click("Command_categorie");
    EXPECT_EQ(boxed_cells(visit), all_cells);
    for (int cell = 1; cell <= 12; ++cell) {
        std::string const palace = visit.text(cell_property(cell, "Caption"));
        EXPECT_EQ(palace, std::to_string((cell - GetParam().cell + 12) % 12 + 1));
        EXPECT_EQ(visit.text(cell_property(cell, "BackColor")), colour_of_palace.at(palace))
            << palace;
    }
}

TEST_P(PalaceView, TwoClicksBringItBack) {
    Visit visit;
    generate_alone(visit, GetParam());
    Json const before = visit.dump();
    visit.click("Command_categorie");
    EXPECT_NE(visit.dump(), before);
    visit.click("Command_categorie");
    EXPECT_EQ(visit.dump(), before);
}

TEST_P(PalaceView, KeepsTheSunsCell) {
    Visit visit;
    generate_alone(visit, GetParam());
    for (int click = 0; click < 4; ++click) {
        visit.click("Command_categorie");
        EXPECT_EQ(visit.number("palais_index"), GetParam().cell);
    }
}

TEST_P(PalaceView, OfOneCellHasAGreenBox) {
    Visit visit;
    generate_alone(visit, GetParam());
    visit.click("Command_categorie");
    visit.click("Command_categorie");
    EXPECT_EQ(boxed_cells(visit), std::vector{GetParam().cell});
    EXPECT_EQ(visit.text(cell_property(GetParam().cell, "BackColor")), "#80FF80");
}

TEST(PalaceViews, TheStartShowsTheSunsCellAlone) {
    Visit visit;
    EXPECT_EQ(boxed_cells(visit), std::vector{9});
    EXPECT_EQ(visit.text("Command_categorie.ToolTipText"), "Affiche la catégorie des palais.");
}

// Each cell that once was the sun's bears the mark of a sun, but the box goes to the one in
// force.
TEST(PalaceViews, AfterSeveralSunsTheBoxGoesToTheOneInForce) {
    Visit visit;
    visit.generate_for("01071900");
    visit.generate_for("01051900");
    ASSERT_EQ(boxed_cells(visit), (std::vector{1, 3, 9}));
    EXPECT_EQ(visit.text(cell_property(3, "Tag")), "1");
    EXPECT_EQ(visit.text(cell_property(9, "Tag")), "1");
    EXPECT_EQ(visit.text(cell_property(2, "Tag")), "2");
    visit.click("Command_categorie");
    EXPECT_EQ(boxed_cells(visit), all_cells);
    visit.click("Command_categorie");
    EXPECT_EQ(boxed_cells(visit), std::vector{1});
    EXPECT_EQ(visit.number("palais_index"), 1);
}

// The box that an earlier sun left in the next cell passes for the coloured view.
TEST(PalaceViews, TheBoxOfAnEarlierSunInTheNextCellIsTakenForTheColouredView) {
    Visit visit;
    visit.generate_for("01121900");
    ASSERT_EQ(boxed_cells(visit), (std::vector{8, 9}));
    visit.click("Command_categorie");
    EXPECT_EQ(boxed_cells(visit), std::vector{8});
    visit.click("Command_categorie");
    EXPECT_EQ(boxed_cells(visit), all_cells);
}

TEST(PalaceViews, TheCellAfterTheTwelfthIsTheFirst) {
    Visit visit;
    visit.generate_for("01051900");  // the first cell
    visit.generate_for("01041900");  // the twelfth
    ASSERT_EQ(boxed_cells(visit), (std::vector{1, 9, 12}));
    visit.click("Command_categorie");
    EXPECT_EQ(boxed_cells(visit), std::vector{12});
}

TEST(PalaceViews, TheColouredViewTakesNoPartInTheDiskette) {
    Visit visit;
    visit.click("Command_categorie");
    EXPECT_EQ(visit.text("Command_Disk_Vert.Picture"), "Diskette(0)");
    EXPECT_EQ(visit.effects(), Json::array());
}

TEST(PalaceViews, AGenerationInTheColouredViewKeepsTheBoxes) {
    Visit visit;
    visit.click("Command_categorie");
    visit.generate_for("01071900");
    EXPECT_EQ(boxed_cells(visit), all_cells);
    for (int cell = 1; cell <= 12; ++cell) {
        EXPECT_EQ(visit.text(cell_property(cell, "BackColor")),
                  colour_of_palace.at(visit.text(cell_property(cell, "Caption"))));
    }
}

}  // namespace

}  // namespace navarun::test
