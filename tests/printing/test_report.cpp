// The report: what stands where, in which order and face, and what each switch takes off.
#include <array>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "print/report.h"
#include "tests/printing/print_visit.h"
#include "tools/pilote/page_json.h"

namespace navarun::test {
namespace {

using testing::IsEmpty;
using testing::Not;

/// The page on paper with the marks off, as the program stands.
Json page_of(PrintVisit& visit) {
    return pilot::page_as_json("printer", *PrintRoutine(visit.program(), 1));
}

Json box(double x1, double y1, double x2, double y2) {
    return {{"op", "box"}, {"x1", x1}, {"y1", y1}, {"x2", x2}, {"y2", y2}};
}
Json line(double x1, double y1, double x2, double y2) {
    Json drawn = box(x1, y1, x2, y2);
    drawn["op"] = "line";
    return drawn;
}

// Born 17/05/1962, 20 years old: two marks of a coincidence, in the cells 8 and 11.
void show_a_coincidence(PrintVisit& visit) {
    visit.generate_for("17051962");
    visit.generate_at(20);
    ASSERT_EQ(visit.text("genre_trideva"), "T");
    ASSERT_EQ(visit.number("cellules_tridevas(1)"), 8);
    ASSERT_EQ(visit.number("cellules_tridevas(2)"), 11);
}

// One sign of each step, each drawn after the one above it.
TEST(Report, IsDrawnInThisOrder) {
    PrintVisit visit;
    show_a_coincidence(visit);
    visit.set("Text_prenom", "Zoé");
    visit.set("Text_Note", "une note");
    visit.click("MnuAzur_Aum");
    visit.toggle_preview();
    visit.pages();
    visit.click("Option_impression.Image_Impression");
    Json const page = visit.last_page();
    auto const text = [&](double x, double y) { return text_at(page, x, y); };
    auto const picture = [&](char const* name) {
        auto const found = pictures(page, name);
        EXPECT_THAT(found, Not(IsEmpty())) << name;
        return found.empty() ? Json{} : found.front();
    };
    std::vector<Json> const steps{
        box(0.4, 0.9, 7.8, 2.1),
        box(0.4, 2.2, 7.8, 8.9),
        box(0.4, 9.0, 7.8, 11.2),
        line(6.3, 2.2, 6.3, 8.9),
        text(2.3, 0.4),
        text(3.15, 0.7),
        text(5.85, 0.7),
        picture("Image_Ganesha"),
        box(6.92, 0.9, 7.8, 2.1),
        text(0.5, 0.96),
        box(0.43, 0.93, 6.89, 1.25),
        box(0.43, 1.28, 6.89, 2.07),
        text(5.2, 2.32),
        text(0.5, 1.32),
        text(0.5, 1.55),
        text(0.5, 1.79),
        text(2.29, 2.32),
        box(0.44, 2.24, 2.05, 2.62),
        box(2.1, 2.24, 4.57, 2.62),
        box(4.62, 2.24, 6.25, 2.62),
        line(0.4, 2.66, 6.3, 2.66),
        picture("Picture_NoirBlanc"),
        picture("Image_AUM"),
        pictures(page, "ImageTriDeva_NB(2)")[0],
        pictures(page, "ImageTriDeva_NB(2)")[1],
        text(0.5, 8.99),
        text(0.8, 2.32),
        text(6.35, 2.3),
        picture("Image_PalaisDestin_NB"),
        box(6.3, 7.73, 7.8, 8.9),
        text(6.84, 8.09),
        text(6.84, 8.37),
        text(6.84, 8.66),
        text(7.3, 8.66),
        text(1.9, 4.34),  // the palace of cell 12 before that of cell 1
        text(3.16, 4.34),
        text(1.9, 5.57),
        text(2.4, 3.37),  // lord and date of cell 1, then of cell 2
        text(2.4, 3.54),
        text(3.65, 3.37),
        text(1.15, 3.54),
        text(2.4, 4.14),
        text(2.4, 4.32),
        text(1.15, 4.32),
    };
    auto next = page["ops"].begin();
    for (auto const& step : steps) {
        auto const found = std::find(next, page["ops"].end(), step);
        ASSERT_NE(found, page["ops"].end()) << step << " is not drawn after the one before";
        next = found + 1;
    }
}

// Which operations a switch takes off the page, by their number.
struct Section {
    char const* name;
    bool PrintValues::*printed;
    std::size_t operations;
    friend std::ostream& operator<<(std::ostream& out, Section const& row) {
        return out << row.name;
    }
};
constexpr Section sections[] = {
    {"portrait_and_its_frame", &PrintValues::imprime_photo, 2},
    {"lines_of_the_note", &PrintValues::imprime_note, 2},
    {"palace_of_destiny", &PrintValues::imprime_palais_destin, 6},
    {"lords_and_dates_of_the_period", &PrintValues::imprime_mahadasha, 24},
    {"lords_and_dates_of_the_months", &PrintValues::imprime_seigneur_mois, 24},
};
class ReportSection : public testing::TestWithParam<Section> {};
TEST_P(ReportSection, GoesAloneWhereItIsSwitchedOff) {
    PrintVisit visit;
    visit.generate_for("17051962");
    visit.set("Text_Note", std::string(60, 'x') + " " + std::string(60, 'y'));
    visit.toggle_preview();
    // The face of the list of periods would stay in force for others.
    visit.program().printing.imprime_periode = false;
    Json const whole = page_of(visit);
    visit.program().printing.*GetParam().printed = false;
    Json const page = page_of(visit);
    EXPECT_EQ(without(whole, page).size(), GetParam().operations);
    EXPECT_EQ(page["ops"].size() + GetParam().operations, whole["ops"].size());
    visit.program().printing.*GetParam().printed = true;
    EXPECT_EQ(page_of(visit), whole);
}
INSTANTIATE_TEST_SUITE_P(Report, ReportSection, testing::ValuesIn(sections),
                         [](auto const& row) { return row.param.name; });

// The face of the list of periods stays in force below it.
TEST(ReportFaces, OfPalacesAndOfDestinyAreThoseOfThePeriodsOrOfTheYear) {
    PrintVisit visit;
    visit.toggle_preview();
    for (bool const periods : {true, false}) {
        visit.program().printing.imprime_periode = periods;
        Json const page = page_of(visit);
        EXPECT_EQ(texts_at(page, 6.35, 2.3).size(), periods ? 1u : 0u);
        std::string const face = periods ? "Arial Narrow" : "Arial";
        for (auto [x, y] : {std::pair{6.84, 8.09}, {6.84, 8.37}, {6.84, 8.66}, {7.3, 8.66}}) {
            EXPECT_EQ(text_at(page, x, y)["font"], face);
        }
        EXPECT_EQ(text_at(page, 6.84, 8.09)["size"], periods ? 10 : 14);
        EXPECT_EQ(text_at(page, 7.3, 8.66)["size"], 14);
        for (auto [x, y] : {std::pair{1.9, 4.34}, {3.16, 4.34}, {5.68, 8.02}, {1.9, 5.57}}) {
            EXPECT_EQ(text_at(page, x, y)["font"], face);
            EXPECT_EQ(text_at(page, x, y)["size"], 11);
            EXPECT_EQ(text_at(page, x, y)["color"], "#000000");
        }
    }
}

TEST(ReportFaces, OfTheYearIsThatOfTheCellsOrOfThePalaces) {
    PrintVisit visit;
    int const cell = visit.number("colonne_age");
    ASSERT_EQ(cell, 9);
    EXPECT_EQ(text_at(page_of(visit), 1.15, 7.51)["font"], "Arial");
    visit.program().printing.imprime_mahadasha = false;
    Json const year = text_at(page_of(visit), 1.15, 7.51);
    EXPECT_EQ(year["font"], "Arial Narrow");
    EXPECT_EQ(year["size"], 13);
    EXPECT_EQ(year["bold"], true);
    EXPECT_EQ(year["color"], "#000000");
}

TEST(ReportFaces, OfTheNoteIsNarrowAndTheLordOfTheYearKeepsItsSize) {
    PrintVisit visit;
    visit.set("Text_Note", "une note");
    Json const page = page_of(visit);
    EXPECT_EQ(text_at(page, 0.5, 8.99)["font"], "Arial Narrow");
    EXPECT_EQ(text_at(page, 0.5, 8.99)["size"], 14);
    EXPECT_EQ(text_at(page, 0.8, 2.32)["font"], "Arial");
    EXPECT_EQ(text_at(page, 0.8, 2.32)["size"], 14);
    visit.program().printing.imprime_note = false;
    EXPECT_EQ(text_at(page_of(visit), 0.8, 2.32)["size"], 14);
}

TEST(ReportCells, LordsAreBlackAndDatesGrey) {
    PrintVisit visit;
    Json const page = page_of(visit);
    Json const lord = text_at(page, 3.65, 3.37);
    EXPECT_EQ(lord["size"], 13);
    EXPECT_EQ(lord["color"], "#000000");
    Json const date = text_at(page, 3.65, 3.54);
    EXPECT_EQ(date["size"], 9);
    EXPECT_EQ(date["color"], "#606060");
    Json const month = text_at(page, 3.65, 4.14);
    EXPECT_EQ(month["size"], 12);
    EXPECT_EQ(month["color"], "#000000");
    EXPECT_EQ(text_at(page, 3.65, 4.32)["size"], 9);
    EXPECT_EQ(text_at(page, 3.65, 4.32)["color"], "#606060");
}

// The cell left of the lowest row stands a little lower than the one across.
TEST(ReportCells, TheTenthStandsLowerThanTheFifth) {
    PrintVisit visit;
    Json const page = page_of(visit);
    EXPECT_EQ(texts_at(page, 1.15, 5.84).size(), 1u);
    EXPECT_EQ(texts_at(page, 4.92, 5.81).size(), 1u);
    EXPECT_THAT(texts_at(page, 1.15, 5.81), IsEmpty());
}

// x and the rows of the year and the month, cells 1 to 12.
struct Cell {
    double x;
    double lord;
    double year;
    double month;
};
constexpr std::array<Cell, 12> cells{{
    {2.4, 3.37, 3.83, 4.14},
    {3.65, 3.37, 3.83, 4.14},
    {4.92, 3.37, 3.83, 4.14},
    {4.92, 4.6, 5.06, 5.37},
    {4.92, 5.81, 6.28, 6.61},
    {4.92, 7.07, 7.51, 7.85},
    {3.65, 7.07, 7.51, 7.85},
    {2.4, 7.07, 7.51, 7.85},
    {1.15, 7.07, 7.51, 7.85},
    {1.15, 5.84, 6.28, 6.61},
    {1.15, 4.6, 5.06, 5.37},
    {1.15, 3.37, 3.83, 4.14},
}};

// Through two turns of the ring: of each row the current cell alone is marked and bold.
TEST(ReportCells, AsterisksMarkPeriodYearAndMonthInProgress) {
    PrintVisit visit;
    visit.generate_for("17051962");
    for (int age = 1; age <= 24; ++age) {
        visit.generate_at(age);
        Json const page = page_of(visit);
        for (int n = 1; n <= 12; ++n) {
            auto const& cell = cells[static_cast<std::size_t>(n - 1)];
            auto const caption = [&](char const* label) {
                return visit.text(std::string{label} + "(" + std::to_string(n) + ").Caption");
            };
            bool const period = n == visit.number("colonne_dasha");
            Json const lord = text_at(page, cell.x, cell.lord);
            EXPECT_EQ(lord["text"], (period ? "*" : "") + caption("Label_Dasha"));
            EXPECT_EQ(lord["bold"], period);
            bool const month = n == visit.number("colonne_mois");
            Json const month_lord = text_at(page, cell.x, cell.month);
            EXPECT_EQ(month_lord["text"], (month ? "*" : "") + caption("Label_mois"));
            EXPECT_EQ(month_lord["bold"], month);
            bool const year = n == visit.number("colonne_age");
            auto const years = texts_at(page, cell.x, cell.year);
            ASSERT_EQ(years.size(), year ? 1u : 0u) << "cell " << n << " at " << age;
            if (!year) continue;
            EXPECT_EQ(years[0]["text"], caption("Label_annee") + "*");
        }
    }
}

struct AgeCase {
    int age;
    char const* told;
};
TEST(ReportTexts, OneYearIsTheOnlyOneInTheSingular) {
    PrintVisit visit;
    for (auto [age, told] : {AgeCase{1, "1 an"}, AgeCase{2, "2 ans"}, AgeCase{21, "21 ans"},
                             AgeCase{101, "101 ans"}, AgeCase{350, "350 ans"}}) {
        visit.generate_at(age);
        Json const text = text_at(page_of(visit), 5.2, 2.32);
        EXPECT_EQ(text["text"], told);
        EXPECT_EQ(text["size"], 14);
        EXPECT_EQ(text["font"], "Arial");
    }
}

TEST(ReportTexts, TellThePersonBornOn17May1962At40) {
    PrintVisit visit;
    visit.set("Text_prenom", "Marie-claire");
    visit.set("Text_nom", "Dupont");
    visit.generate_for("17051962");
    visit.generate_at(40);
    Json const page = page_of(visit);
    EXPECT_EQ(words_at(page, 2.3, 0.4), "La Méthode Navarun");
    EXPECT_EQ(words_at(page, 3.15, 0.7), "www.navarun.example");
    EXPECT_EQ(words_at(page, 5.85, 0.7), "Imprimé le: Samedi 21/11/2026");
    EXPECT_EQ(words_at(page, 0.5, 0.96), "Marie-claire  Dupont");
    EXPECT_EQ(text_at(page, 0.5, 0.96)["size"], 16);
    EXPECT_EQ(words_at(page, 0.5, 1.32),
              "Naissance : Jeudi  17/05/1962 - Dinânka: 8  Purnânka: 4.");
    EXPECT_EQ(words_at(page, 2.29, 2.32), "17/05/2002 - 17/05/2003");
    EXPECT_EQ(words_at(page, 0.8, 2.32), "Kuja");
    EXPECT_EQ(words_at(page, 0.5, 1.79).substr(0, 41),
              "Seigneur du G.cycle: SHUKRA (2  / 3 ans) ");
}

// The lord of each period of the circle, by the years that the line adds.
TEST(ReportTexts, TheLineOfThePeriodEndsAfterTheYearsOfItsLord) {
    for (bool const short_names : {false, true}) {
        PrintVisit visit;
        if (short_names) visit.click("Mnu_abrege");
        visit.generate_for("01011950");
        std::map<std::string, int> years_of;
        for (int age = 1; age <= 35; ++age) {
            visit.generate_at(age);
            std::string const cell = std::to_string(visit.number("colonne_dasha"));
            std::string const start = visit.text("Label_DashaDate(" + cell + ").Caption");
            std::string const told = words_at(page_of(visit), 0.5, 1.79);
            std::string const lord = visit.text("Label_Dasha(" + cell + ").Caption");
            auto const tail = told.substr(told.size() - 23);
            ASSERT_EQ(tail.substr(0, 12), start + "- ") << told;
            EXPECT_EQ(tail.substr(12, 6), start.substr(0, 6)) << "day and month stay";
            years_of[lord] = std::stoi(tail.substr(18, 4)) - std::stoi(start.substr(6));
            EXPECT_EQ(told.back(), '.');
        }
        std::map<std::string, int> const full{{"Shani", 6}, {"Guru", 6},   {"Kuja", 6},
                                              {"Rahu", 6},  {"Shukra", 3}, {"Ketu", 3},
                                              {"Surya", 2}, {"Budha", 2},  {"Chandra", 1}};
        std::map<std::string, int> const shortened{{"Sa", 6}, {"Gu", 6}, {"Ku", 6},
                                                   {"Ra", 6}, {"Sk", 3}, {"Ke", 3},
                                                   {"Su", 2}, {"Bu", 2}, {"Ca", 1}};
        EXPECT_EQ(years_of, short_names ? shortened : full);
    }
}

TEST(ReportTexts, ACaptionThatNamesNoLordLastsNoYear) {
    PrintVisit visit;
    visit.program().form1.Label_Dasha(visit.number("colonne_dasha")).Caption = "Personne";
    std::string const told = words_at(page_of(visit), 0.5, 1.79);
    EXPECT_EQ(told.substr(told.size() - 23), "01/01/1901- 01/01/1901.");
}

// Nothing is printed, and the run goes on.
TEST(ReportTexts, ADateThatIsNoneIsAFailureOfThePrint) {
    for (bool const of_the_year : {false, true}) {
        PrintVisit visit;
        auto& form = visit.program().form1;
        if (of_the_year) {
            form.Label_anneedefile.Caption = "";
        } else {
            form.Label_DashaDate(visit.number("colonne_dasha")).Caption = "sans date";
        }
        visit.pages();
        visit.click("MnuImprime");
        EXPECT_EQ(visit.pages(), Json::array());
        EXPECT_EQ(visit.exit_status(), std::nullopt);
        EXPECT_EQ(visit.effects().back()["kind"], "printer-dialog");
    }
}

TEST(ReportTexts, TheJulianMarkStandsInTheRoomOfFiveBlanks) {
    PrintVisit visit;
    visit.generate_for("01011950");
    EXPECT_EQ(words_at(page_of(visit), 0.5, 1.32).substr(0, 13), "Naissance : D");
    EXPECT_THAT(pictures(page_of(visit), "Image_cal_Julien"), IsEmpty());
    visit.click("Mnu_Julien");
    visit.click("Command2");
    Json const page = page_of(visit);
    EXPECT_EQ(words_at(page, 0.5, 1.32).substr(0, 17), "Naissance :     S");
    auto const marks = pictures(page, "Image_cal_Julien");
    ASSERT_EQ(marks.size(), 1u);
    EXPECT_TRUE(is_at(marks[0], 1.55, 1.33));
    EXPECT_FALSE(marks[0].contains("width")) << "at its natural size";
}

TEST(ReportTexts, ShortNamesStandInAllRows) {
    PrintVisit visit;
    visit.click("Mnu_abrege");
    visit.generate_for("17051962");
    visit.generate_at(40);
    Json const page = page_of(visit);
    EXPECT_EQ(words_at(page, 0.8, 2.32), "Ku");
    EXPECT_EQ(words_at(page, cells[4].x, cells[4].year), "Ku*");
    for (auto const& cell : cells) {
        EXPECT_LE(words_at(page, cell.x, cell.lord).size(), 3u);
        EXPECT_LE(words_at(page, cell.x, cell.month).size(), 3u);
    }
}

// What the partial view hides on the screen stands on paper.
TEST(ReportTexts, ThePartialViewPrintsAllCells) {
    PrintVisit visit;
    Json const whole = page_of(visit);
    visit.click("Btn_cycle_partiel");
    ASSERT_FALSE(visit.truth("Label_mois(3).Visible"));
    EXPECT_EQ(page_of(visit), whole);
}

TEST(ReportPictures, TheAumStandsInItsTwoThemes) {
    PrintVisit visit;
    for (auto [entry, with_aum] : {std::pair{"MnuAzur_Aum", true},
                                   {"MnuAzur_cycle", false},
                                   {"MnuMauve_Aum", true},
                                   {"MnuMauve_cycle", false}}) {
        visit.click(entry);
        Json const page = page_of(visit);
        auto const found = pictures(page, "Image_AUM");
        ASSERT_EQ(found.size(), with_aum ? 1u : 0u) << entry;
        if (with_aum) {
            EXPECT_EQ(found[0], (Json{{"op", "picture"},
                                      {"name", "Image_AUM"},
                                      {"x", 2.25},
                                      {"y", 4.64},
                                      {"width", 2.27},
                                      {"height", 2.27}}));
        }
        EXPECT_EQ(pictures(page, "Picture_NoirBlanc").size(), 1u);
    }
}

TEST(ReportMarks, StandOnThePaperOnce) {
    PrintVisit visit;
    show_a_coincidence(visit);
    Json const paper = visit.printed_page();
    auto const marks = pictures(paper, "ImageTriDeva_NB(2)");
    ASSERT_EQ(marks.size(), 2u);
    EXPECT_TRUE(is_at(marks[0], 1.97, 6.852)) << "cell 8";
    EXPECT_TRUE(is_at(marks[1], 0.71146, 4.4079)) << "cell 11";
    EXPECT_FALSE(marks[0].contains("width")) << "at their natural size";
    EXPECT_FALSE(visit.truth("imprime_tri_deva")) << "they are drawn once";
    visit.toggle_preview();
    for (auto const& page : visit.pages()) {
        EXPECT_THAT(pictures(page, "ImageTriDeva_NB(2)"), IsEmpty());
    }
}

// No name of the grid leads to this kind: the mark is drawn where it is told.
TEST(ReportMarks, OfTheOtherKindHaveTheOtherPictureInEveryCell) {
    constexpr std::array<std::pair<double, double>, 12> places{{{1.97, 3.178},
                                                                {3.2281, 3.18},
                                                                {4.486, 3.178},
                                                                {4.486, 4.408},
                                                                {4.486, 5.631},
                                                                {4.486, 6.852},
                                                                {3.2281, 6.852},
                                                                {1.97, 6.852},
                                                                {0.71, 6.852},
                                                                {0.71146, 5.63},
                                                                {0.71146, 4.4079},
                                                                {0.71, 3.178}}};
    PrintVisit visit;
    auto& periods = visit.program().periods;
    for (int cell = 1; cell <= 12; ++cell) {
        periods.genre_trideva = "C";
        periods.nombre_tridevas = 1;
        periods.cellules_tridevas[0] = cell;
        visit.program().printing.imprime_tri_deva = true;
        Json const page = page_of(visit);
        auto const marks = pictures(page, "ImageTriDeva_NB(1)");
        ASSERT_EQ(marks.size(), 1u);
        auto const [x, y] = places[static_cast<std::size_t>(cell - 1)];
        EXPECT_TRUE(is_at(marks[0], x, y)) << cell;
        EXPECT_THAT(pictures(page, "ImageTriDeva_NB(2)"), IsEmpty());
    }
}

// Two months of the period's lord, who is not the year's: no mark, and none is left for later.
TEST(ReportMarks, WithoutACoincidenceThereAreNone) {
    PrintVisit visit;
    ASSERT_EQ(visit.text("genre_trideva"), "");
    ASSERT_EQ(visit.number("nombre_tridevas"), 2);
    Json const page = visit.printed_page();
    for (auto const& picture : operations(page, "picture")) {
        EXPECT_EQ(picture["name"].get<std::string>().find("TriDeva"), std::string::npos);
    }
    EXPECT_FALSE(visit.truth("imprime_tri_deva"));
}

TEST(ReportNote, StandsInLinesBelowEachOther) {
    PrintVisit visit;
    std::string const line =
        "0123456789 123456789 123456789 123456789 123456789 "
        "123456789 123456789 123456789 123456789 123456789 ";
    ASSERT_EQ(line.size(), 101u);
    std::string note;
    for (int i = 0; i < 12; ++i) note += line;
    visit.set("Text_Note", note);
    Json const page = page_of(visit);
    EXPECT_EQ(note_lines(page), std::vector<std::string>(10, line));
    for (int i = 0; i < 10; ++i) EXPECT_EQ(words_at(page, 0.5, 8.99 + i * 0.22), line);
}

TEST(ReportNote, AShortOneIsFollowedByNineEmptyLines) {
    PrintVisit visit;
    visit.set("Text_Note", "une note");
    std::vector<std::string> lines(10, "");
    lines[0] = "une note ";
    EXPECT_EQ(note_lines(page_of(visit)), lines);
}

TEST(ReportNote, LineEndsBecomeBlanks) {
    PrintVisit visit;
    visit.set("Text_Note", "une\r\nnote\r\n\r\nici");
    EXPECT_EQ(note_lines(page_of(visit))[0], "une note  ici ");
}

TEST(ReportNote, AnEmptyOnePrintsNoLineAlsoAfterAnother) {
    PrintVisit visit;
    EXPECT_THAT(note_lines(page_of(visit)), IsEmpty());
    visit.set("Text_Note", "une note");
    page_of(visit);
    visit.set("Text_Note", "");
    EXPECT_THAT(note_lines(page_of(visit)), IsEmpty());
    EXPECT_EQ(visit.number("nombre_lignes"), 0);
}

TEST(ReportNote, OneOfBlanksPrintsBlankLines) {
    PrintVisit visit;
    visit.set("Text_Note", "   ");
    std::vector<std::string> lines(10, "");
    lines[0] = "    ";
    EXPECT_EQ(note_lines(page_of(visit)), lines);
}

TEST(ReportNote, ALongWordEndsIt) {
    PrintVisit visit;
    visit.set("Text_Note", "avant " + std::string(200, 'x') + " après");
    std::vector<std::string> lines(10, "");
    lines[0] = "avant ";
    lines[1] = std::string(101, 'x');
    EXPECT_EQ(note_lines(page_of(visit)), lines);
}

TEST(ReportNote, OfAHundredThousandCharactersPrintsItsTenLines) {
    PrintVisit visit;
    std::string note;
    while (note.size() < 100'000) note += "douze lettres ";
    visit.set("Text_Note", note);
    std::string printed;
    for (auto const& line : note_lines(page_of(visit))) printed += line;
    EXPECT_EQ(printed, note.substr(0, printed.size()));
    EXPECT_GT(printed.size(), 10u * 90u);
}

TEST(ReportPalace, IsComputedUnseen) {
    PrintVisit visit;
    visit.generate_for("17051962");
    visit.generate_at(40);
    visit.toggle_preview();
    Json const page = visit.last_page();
    EXPECT_FALSE(visit.truth("Palais_du_destin.Visible"));
    visit.click("Mnu_palaisdestin");
    auto const fact = [&](int field) {
        return visit.text("Palais_du_destin.Label_Palais_du_destin(" + std::to_string(field) +
                          ").Caption");
    };
    EXPECT_EQ(words_at(page, 6.84, 8.09), fact(1));
    EXPECT_EQ(words_at(page, 6.84, 8.37), fact(2));
    EXPECT_EQ(words_at(page, 6.84, 8.66), fact(3));
    EXPECT_EQ(words_at(page, 7.3, 8.66), fact(0));
    EXPECT_NE(fact(1), "");
}

TEST(ReportMenu, PrintsEverythingButWhatThePreviewAloneSwitches) {
    PrintVisit visit;
    for (char const* box : {"Check_Mahadasha", "Check_PhotoImprime", "Check_periode",
                            "Check_SeigneurMois", "Check_noteImprime", "Check_palaisDestin"}) {
        if (!visit.truth("Picture2.Visible")) visit.toggle_preview();
        visit.set(std::string{"Option_impression."} + box, 0);
    }
    visit.toggle_preview();
    Json const page = visit.printed_page();
    for (char const* name : {"imprime_photo", "imprime_note", "imprime_periode",
                             "imprime_mahadasha", "imprime_seigneur_mois"}) {
        EXPECT_TRUE(visit.truth(name)) << name;
    }
    EXPECT_FALSE(visit.truth("imprime_palais_destin")) << "as the preview left it";
    EXPECT_THAT(pictures(page, "Image_PalaisDestin_NB"), IsEmpty());
    EXPECT_EQ(page["target"], "printer");
    EXPECT_EQ(page["ratio"], 1.0);
}

TEST(ReportMenu, PrintsNoPalaceInARunWithoutAPreviewAndOneAfterIt) {
    PrintVisit visit;
    EXPECT_THAT(pictures(visit.printed_page(), "Image_PalaisDestin_NB"), IsEmpty());
    visit.toggle_preview();
    EXPECT_EQ(pictures(visit.printed_page(), "Image_PalaisDestin_NB").size(), 1u);
}

// The list of periods is made first: the hidden preview is drawn, then the paper.
TEST(ReportMenu, AsksForThePrinterAndEndsTheDocument) {
    PrintVisit visit;
    visit.effects();
    visit.pages();
    visit.click("MnuImprime");
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"printer-dialog","answer":1},
                                               {"kind":"document"}])"));
    Json const drawn = visit.pages();
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0]["target"], "preview");
    EXPECT_EQ(drawn[1]["target"], "printer");
    EXPECT_FALSE(visit.truth("Picture2.Visible"));
}

TEST(ReportMenu, ACancelPrintsNothingAndSaysNothing) {
    PrintVisit visit;
    visit.effects();
    visit.pages();
    visit.answer_next(2);
    visit.click("MnuImprime");
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"printer-dialog","answer":2}])"));
    for (auto const& page : visit.pages()) EXPECT_EQ(page["target"], "preview");
    // The marks that were meant for the paper stand on the next page drawn.
    EXPECT_TRUE(visit.truth("imprime_tri_deva"));
    // And the next print is whole.
    EXPECT_EQ(visit.printed_page()["target"], "printer");
}

TEST(ReportMenu, AtStartFiveSectionsAreOn) {
    PrintVisit visit;
    for (char const* name : {"imprime_photo", "imprime_note", "imprime_periode",
                             "imprime_mahadasha", "imprime_seigneur_mois"}) {
        EXPECT_TRUE(visit.truth(name)) << name;
    }
    EXPECT_FALSE(visit.truth("imprime_palais_destin"));
    EXPECT_FALSE(visit.truth("imprime_tri_deva"));
}

// 22 to 28 November 2026, Sunday first.
TEST(ReportTexts, TellTheWeekdayOfThePrint) {
    char const* const names[] = {"Dimanche", "Lundi",    "Mardi", "Mercredi",
                                 "Jeudi",    "Vendredi", "Samedi"};
    for (int day = 22; day <= 28; ++day) {
        std::string const date = std::to_string(day) + "/11/2026";
        PrintVisit visit{date};
        Json const told = text_at(page_of(visit), 5.85, 0.7);
        EXPECT_EQ(told["text"], std::string{"Imprimé le: "} + names[day - 22] + " " + date);
        EXPECT_EQ(told["size"], 10);
    }
    PrintVisit early{"03/02/2026"};
    EXPECT_EQ(words_at(page_of(early), 5.85, 0.7), "Imprimé le: Mardi 03/02/2026");
}

}  // namespace
}  // namespace navarun::test
