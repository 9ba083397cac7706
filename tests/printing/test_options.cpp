// The window of the options: what it tells, and what its controls do to the page.
#include <string>

#include <gtest/gtest.h>

#include "tests/printing/print_visit.h"

namespace navarun::test {
namespace {

constexpr char const* boxes[] = {"Check_Mahadasha",   "Check_PhotoImprime",
                                 "Check_periode",     "Check_SeigneurMois",
                                 "Check_noteImprime", "Check_palaisDestin"};

class OptionsVisit : public PrintVisit {
  public:
    using PrintVisit::PrintVisit;
    std::string told(std::string_view property) { return text(of_window(property)); }
    Json value_of(std::string_view property) { return value(of_window(property)); }
    static std::string of_window(std::string_view name) {
        return "Option_impression." + std::string{name};
    }
};

struct DesignCase {
    char const* property;
    Json value;
};
TEST(Options, HaveTheirDesign) {
    OptionsVisit visit;
    visit.toggle_preview();
    EXPECT_EQ(visit.told("Caption"), "Option Impression");
    DesignCase const rows[] = {
        {"Label_option_impression.Caption", "Option d'impression"},
        {"Label_option_impression.Left", 0},
        {"Label_option_impression.Width", 3375},
        {"Label_option_impression.Height", 495},
        {"Label_option_impression.Border", true},
        {"Label_option_impression.FontName", "MS Sans Serif"},
        {"Label_option_impression.FontSize", 13.5},
        {"Label_option_impression.ForeColor", "#FFFFFF"},
        {"Label_option_impression.BackColor", "#2C8EDC"},
        {"Label_age(0).Left", 240},
        {"Label_age(0).Top", 540},
        {"Label_age(0).Width", 855},
        {"Label_age(0).Height", 255},
        {"Label_age(0).FontName", "Arial"},
        {"Label_age(0).FontSize", 12.0},
        {"Label_age(0).FontBold", false},
        {"Label_age(0).ForeColor", "#0000C0"},
        {"Label_age(2).Left", 1540},
        {"Label_age(2).Top", 540},
        {"Label_age(2).Width", 380},
        {"Label_age(2).FontBold", true},
        {"Label_age(2).BackColor", "#C0FFC0"},
        {"Label_age(2).ToolTipText", "Rouge indique en dehors de l'âge."},
        {"Label_age(1).Left", 2280},
        {"Label_age(1).Width", 975},
        {"Label_age(1).ForeColor", "#0000C0"},
        {"Label_afficheAnnee(0).Left", 120},
        {"Label_afficheAnnee(0).Top", 840},
        {"Label_afficheAnnee(0).Width", 975},
        {"Label_afficheAnnee(0).FontName", "Arial Narrow"},
        {"Label_afficheAnnee(0).FontSize", 12.0},
        {"Label_afficheAnnee(1).Left", 2280},
        {"Label_afficheAnnee(1).Top", 840},
        {"Btn_remise1.Left", 240},
        {"Btn_remise1.Top", 1200},
        {"Btn_remise1.Width", 200},
        {"Btn_remise1.Height", 280},
        {"Btn_remise1.ToolTipText", "Revient à l'âge."},
        {"HScroll_annee.Left", 480},
        {"HScroll_annee.Top", 1200},
        {"HScroll_annee.Width", 2520},
        {"HScroll_annee.Height", 280},
        {"Check_Mahadasha.Left", 0},
        {"Check_Mahadasha.Top", 1680},
        {"Check_Mahadasha.Caption", "G.Cycle"},
        {"Check_Mahadasha.ToolTipText", "Imprimez le Grand Cycle."},
        {"Check_Mahadasha.FontName", "Arial Narrow"},
        {"Check_Mahadasha.FontSize", 11.25},
        {"Check_PhotoImprime.Left", 1080},
        {"Check_PhotoImprime.Top", 1680},
        {"Check_PhotoImprime.Caption", "Photo"},
        {"Check_PhotoImprime.ToolTipText", "Imprimez la photo."},
        {"Check_periode.Left", 2040},
        {"Check_periode.Top", 1680},
        {"Check_periode.Caption", "Période"},
        {"Check_periode.ToolTipText", "Imprimez les périodes."},
        {"Check_SeigneurMois.Left", 0},
        {"Check_SeigneurMois.Top", 2040},
        {"Check_SeigneurMois.Caption", "S.Mois"},
        {"Check_SeigneurMois.ToolTipText", "Imprimez le Ségneur du Mois."},
        {"Check_noteImprime.Left", 1080},
        {"Check_noteImprime.Top", 2040},
        {"Check_noteImprime.Caption", "Note"},
        {"Check_noteImprime.ToolTipText", "Imprimez vos notes."},
        {"Check_palaisDestin.Left", 2040},
        {"Check_palaisDestin.Top", 2040},
        {"Check_palaisDestin.Caption", "P. du destin"},
        {"Check_palaisDestin.ToolTipText", "Imprimez le palais du destin."},
    };
    for (auto const& row : rows) {
        EXPECT_EQ(visit.value_of(row.property), row.value) << row.property;
    }
}

struct ThemeCase {
    char const* entry;
    char const* window;
    char const* band;
};
TEST(Options, TakeTheColoursOfTheTheme) {
    for (auto const& theme : {ThemeCase{"MnuAzur_cycle", "#B4CEFC", "#2C8EDC"},
                              ThemeCase{"MnuAzur_Aum", "#B4CEFC", "#2C8EDC"},
                              ThemeCase{"MnuMauve_cycle", "#CCB2FC", "#C34AED"},
                              ThemeCase{"MnuMauve_Aum", "#CCB2FC", "#C34AED"}}) {
        OptionsVisit visit;
        visit.click(theme.entry);
        visit.toggle_preview();
        EXPECT_EQ(visit.told("BackColor"), theme.window);
        EXPECT_EQ(visit.told("Label_option_impression.BackColor"), theme.band);
        for (std::string const box : boxes) {
            EXPECT_EQ(visit.told(box + ".BackColor"), theme.window) << box;
        }
    }
}

TEST(Options, BlockNothingAndStayOnTop) {
    OptionsVisit visit;
    visit.toggle_preview();
    EXPECT_EQ(visit.program().option_impression.Stacking.get(), screen::Stacking::topmost);
    visit.set("Text_prenom", "Zoé");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "Zoé");
    EXPECT_TRUE(visit.preview_is_open());
}

struct SwitchCase {
    char const* box;
    char const* value;
};
TEST(Options, EachBoxHasItsSectionAndDrawsThePageOnEachClick) {
    OptionsVisit visit;
    visit.toggle_preview();
    Json const whole = visit.last_page();
    for (auto const& row : {SwitchCase{"Check_Mahadasha", "imprime_mahadasha"},
                            SwitchCase{"Check_PhotoImprime", "imprime_photo"},
                            SwitchCase{"Check_periode", "imprime_periode"},
                            SwitchCase{"Check_SeigneurMois", "imprime_seigneur_mois"},
                            SwitchCase{"Check_noteImprime", "imprime_note"},
                            SwitchCase{"Check_palaisDestin", "imprime_palais_destin"}}) {
        std::string const box = OptionsVisit::of_window(row.box);
        visit.click(box);
        EXPECT_FALSE(visit.truth(row.value)) << row.box;
        Json const less = visit.pages();
        ASSERT_EQ(less.size(), 1u) << row.box;
        visit.click(box);
        EXPECT_TRUE(visit.truth(row.value)) << row.box;
        Json const again = visit.pages();
        ASSERT_EQ(again.size(), 1u) << row.box;
        EXPECT_EQ(again[0], whole) << row.box;
    }
}

TEST(Options, OpenAnewWithAllBoxesTicked) {
    OptionsVisit visit;
    visit.toggle_preview();
    for (char const* box : boxes) visit.set(OptionsVisit::of_window(box), 0);
    visit.toggle_preview();
    visit.toggle_preview();
    for (std::string const box : boxes) EXPECT_EQ(visit.value_of(box + ".Value"), 1) << box;
}

struct AgeLabels {
    int age;
    char const* first;
    char const* current;
    char const* last;
};
TEST(Options, TellTheAgesWithTheirUnit) {
    for (auto const& row :
         {AgeLabels{1, "01 an", "01", "06 ans"}, AgeLabels{2, "02 ans", "02", "07 ans"},
          AgeLabels{40, "40 ans", "40", "45 ans"}, AgeLabels{100, "100 ans", "100", "105 ans"},
          AgeLabels{350, "350 ans", "350", "355 ans"}}) {
        OptionsVisit visit;
        visit.generate_at(row.age);
        visit.toggle_preview();
        EXPECT_EQ(visit.told("Label_age(0).Caption"), row.first);
        EXPECT_EQ(visit.told("Label_age(2).Caption"), row.current);
        EXPECT_EQ(visit.told("Label_age(1).Caption"), row.last);
        EXPECT_EQ(visit.told("Label_age(2).ForeColor"), "#000000");
        EXPECT_EQ(visit.value_of("HScroll_annee.Value"), row.age);
    }
}

TEST(Options, TellTwentyYearsAtFirstThenFive) {
    OptionsVisit visit;
    visit.generate_for("17051962");
    visit.generate_at(40);
    visit.toggle_preview();
    EXPECT_EQ(visit.told("Label_afficheAnnee(0).Caption"), "17/05/2002");
    EXPECT_EQ(visit.told("Label_afficheAnnee(1).Caption"), "17/05/2022");
    visit.set("Option_impression.HScroll_annee", 41);
    EXPECT_EQ(visit.told("Label_afficheAnnee(0).Caption"), "17/05/2003");
    EXPECT_EQ(visit.told("Label_afficheAnnee(1).Caption"), "17/05/2008");
    EXPECT_EQ(visit.told("Label_age(0).Caption"), "41 ans");
    EXPECT_EQ(visit.told("Label_age(1).Caption"), "46 ans");
    EXPECT_EQ(visit.told("Label_age(2).Caption"), "40");
}

TEST(Options, TheAgeIsRedOutsideTheSpanAlone) {
    OptionsVisit visit;
    visit.generate_at(40);
    visit.toggle_preview();
    struct Row {
        int first;
        char const* colour;
    };
    for (auto const& row : {Row{34, "#FF0000"}, Row{35, "#000000"}, Row{38, "#000000"},
                            Row{40, "#000000"}, Row{41, "#FF0000"}, Row{350, "#FF0000"}}) {
        visit.set("Option_impression.HScroll_annee", row.first);
        EXPECT_EQ(visit.told("Label_age(2).ForeColor"), row.colour) << row.first;
    }
}

TEST(Options, ADragTellsTheSpanToo) {
    OptionsVisit visit;
    visit.generate_for("17051962");
    visit.toggle_preview();
    visit.drag("Option_impression.HScroll_annee", 12);
    EXPECT_EQ(visit.told("Label_age(0).Caption"), "12 ans");
    EXPECT_EQ(visit.told("Label_afficheAnnee(0).Caption"), "17/05/1974");
    EXPECT_EQ(visit.told("Label_age(2).ForeColor"), "#FF0000");
}

TEST(Options, TheSpanRunsThroughTheAges) {
    OptionsVisit visit;
    visit.toggle_preview();
    for (int const beyond : {0, 351}) {
        EXPECT_EQ(visit.ask({{"op", "set"},
                             {"control", "Option_impression.HScroll_annee"},
                             {"value", beyond}})["error"],
                  "usage");
    }
    visit.set("Option_impression.HScroll_annee", 350);
    EXPECT_EQ(visit.told("Label_age(1).Caption"), "355 ans");
}

// The bar and its button tell the list of periods off as they get the keyboard.
TEST(Options, TheArrowGoesToTheFirstYearAndTakesThePeriodsOff) {
    OptionsVisit visit;
    visit.generate_at(40);
    visit.toggle_preview();
    visit.pages();
    visit.click("Option_impression.Btn_remise1");
    EXPECT_EQ(visit.value_of("HScroll_annee.Value"), 1);
    EXPECT_EQ(visit.told("Label_age(0).Caption"), "01 an");
    EXPECT_EQ(visit.value_of("Check_periode.Value"), 0);
    EXPECT_FALSE(visit.truth("imprime_periode"));
    EXPECT_TRUE(texts_at(visit.last_page(), 6.35, 2.3).empty());
}

TEST(Options, TheBarTakesThePeriodsOff) {
    OptionsVisit visit;
    visit.toggle_preview();
    visit.pages();
    visit.focus("Option_impression.HScroll_annee");
    EXPECT_EQ(visit.value_of("Check_periode.Value"), 0);
    EXPECT_TRUE(texts_at(visit.last_page(), 6.35, 2.3).empty());
    // Already off: nothing is drawn.
    visit.focus("Option_impression.Check_periode");
    visit.focus("Option_impression.HScroll_annee");
    EXPECT_EQ(visit.pages(), Json::array());
    visit.click("Option_impression.Check_periode");
    EXPECT_EQ(texts_at(visit.last_page(), 6.35, 2.3).size(), 1u);
}

// The bar moves what is told, not what is listed.
TEST(Options, TheSpanDoesNotChooseThePeriods) {
    OptionsVisit visit;
    visit.toggle_preview();
    Json const whole = visit.last_page();
    visit.set("Option_impression.HScroll_annee", 100);
    visit.click("Option_impression.Check_periode");
    EXPECT_EQ(visit.last_page(), whole);
}

TEST(OptionsPrinter, PrintsWhatThePreviewShowedAndTheMarks) {
    OptionsVisit visit;
    visit.generate_for("17051962");
    visit.generate_at(20);
    visit.toggle_preview();
    visit.click("Option_impression.Check_SeigneurMois");
    visit.click("Option_impression.Check_PhotoImprime");
    Json shown = visit.last_page();
    visit.effects();
    visit.click("Option_impression.Image_Impression");
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"printer-dialog","answer":1},
                                               {"kind":"document"}])"));
    Json const drawn = visit.pages();
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0]["target"], "printer");
    EXPECT_EQ(drawn[0]["ratio"], 1.0);
    for (auto& operation : shown["ops"]) {
        if (operation.contains("size")) {
            operation["size"] =
                std::round(operation["size"].get<double>() / preview_ratio * 1e6) / 1e6;
        }
    }
    Json const more = without(drawn[0], shown);
    ASSERT_EQ(more.size(), 2u) << more;
    for (auto const& mark : more) EXPECT_EQ(mark["name"], "ImageTriDeva_NB(2)");
    EXPECT_EQ(without(shown, drawn[0]), Json::array());
    EXPECT_FALSE(visit.truth("imprime_seigneur_mois")) << "the switches keep their state";
}

TEST(OptionsPrinter, ACancelPrintsNothing) {
    OptionsVisit visit;
    visit.toggle_preview();
    visit.pages();
    visit.effects();
    visit.answer_next(2);
    visit.click("Option_impression.Image_Impression");
    EXPECT_EQ(visit.pages(), Json::array());
    EXPECT_EQ(visit.effects(), Json::parse(R"([{"kind":"printer-dialog","answer":2}])"));
    // The marks wait for the next page that is drawn.
    EXPECT_TRUE(visit.truth("imprime_tri_deva"));
    visit.toggle_preview();
    EXPECT_EQ(visit.pages().size(), 2u);
    EXPECT_FALSE(visit.truth("imprime_tri_deva"));
}

}  // namespace
}  // namespace navarun::test
