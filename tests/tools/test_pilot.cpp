// What the pilot answers when it is asked, and what its acts do.
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {
namespace {

Json parsed(std::string const& text) { return Json::parse(text); }

std::string kind_of(Json const& answer) {
    return answer.contains("error") ? answer["error"].get<std::string>() : "";
}

TEST(Get, AnswersSeveralNamesAtOnce) {
    Visit visit;
    EXPECT_EQ(visit.ask_line(R"j({"op":"get","names":["age_courant","Label_mois(9).Caption",
        "Combo_AnNaiss1.List","Combo_AnNaiss1.ListIndex","Label_mois(9).FontBold",
        "Label_mois(9).FontSize","Label_mois(9).FontName","HScroll_age.Value",
        "cycle_partiel_actif","couleur_actuelle","couleur_dasha","Mnu_Julien.Checked",
        "Form1.Caption","Form1.BackColor","Form1.Width","Form1.Height","Form1.Visible"]})j"),
              parsed(R"j({"values":{"age_courant":1,"Label_mois(9).Caption":"Budha",
        "Combo_AnNaiss1.List":["16","17","18","19","20","21"],"Combo_AnNaiss1.ListIndex":3,
        "Label_mois(9).FontBold":false,"Label_mois(9).FontSize":12.75,
        "Label_mois(9).FontName":"Arial Narrow","HScroll_age.Value":1,
        "cycle_partiel_actif":false,"couleur_actuelle":"#C04000","couleur_dasha":"#0000FF",
        "Mnu_Julien.Checked":false,"Form1.Caption":"N.A.V.A.R.U.N","Form1.BackColor":"#BDE7F7",
        "Form1.Width":12015,"Form1.Height":7680,"Form1.Visible":true}})j"));
}

TEST(Get, OfNothingIsNothing) {
    Visit visit;
    EXPECT_EQ(visit.ask_line(R"j({"op":"get","names":[]})j"), parsed(R"j({"values":{}})j"));
}

TEST(Get, OneUnknownNameAmongManySpoilsAll) {
    Visit visit;
    Json answer = visit.ask_line(R"j({"op":"get","names":["age_courant","rien"]})j");
    EXPECT_EQ(kind_of(answer), "unknown");
    EXPECT_FALSE(answer.contains("values"));
}

TEST(Get, TablesAreCountedAsThePractitionersCountThem) {
    Visit visit;
    EXPECT_EQ(visit.text("noms_seigneurs(0)"), "Surya");
    EXPECT_EQ(visit.text("noms_seigneurs(8)"), "Kuja");
    EXPECT_EQ(visit.text("noms_seigneurs(9)"), "Su");
    EXPECT_EQ(visit.text("noms_seigneurs(17)"), "Ku");
    EXPECT_EQ(visit.text("noms_nakshatra(1)"), "Ashwini");
    EXPECT_EQ(visit.text("noms_nakshatra(27)"), "Revati");
    EXPECT_EQ(visit.text("seigneurs_nakshatra(20)"), "Shukra");
    EXPECT_EQ(visit.text("elements_signes(12)"), " - EAU");
    EXPECT_EQ(visit.text("position_x_cellule(9)"), "450");
    EXPECT_EQ(visit.text("position_y_cellule(9)"), "5220");
}

TEST(Get, PicturesAreNamed) {
    Visit visit;
    EXPECT_EQ(visit.text("Picture_KUNDALI.Picture"), "Image_Kundali(0)");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "Image_Ganesha");
    // What is in no store has its control's name.
    EXPECT_EQ(visit.text("Btn_cycle_partiel.Picture"), "Btn_cycle_partiel");
    EXPECT_EQ(visit.text("ImageTriDeva(4).Picture"), "ImageTriDeva(4)");
    EXPECT_EQ(visit.text("Picture2.Picture"), "");
}

std::vector<std::string> all_controls() {
    std::vector<std::string> names{"Image2",
                                   "Image_Titre",
                                   "Label4",
                                   "Text_prenom",
                                   "Text_nom",
                                   "Image_cal_Julien",
                                   "Label_cal_julien",
                                   "Combo_jourNaiss",
                                   "Combo_moisNaiss",
                                   "Combo_AnNaiss1",
                                   "Combo_AnNaiss2",
                                   "Picture_PHOTO",
                                   "Label_zodiac",
                                   "Text_zodiac",
                                   "Label_nomNakshatra",
                                   "Label_Nak",
                                   "Bouton_Internet",
                                   "Bouton_Image",
                                   "Charge(1)",
                                   "Charge(2)",
                                   "Command_reset",
                                   "Command_Disk_Vert",
                                   "Image1",
                                   "Label_jourdeSemaine",
                                   "Label_divinite",
                                   "Text_jourdeSemaine",
                                   "Label_dinanka_Purnanka",
                                   "Text_Note",
                                   "Frame_FileFichier",
                                   "File_Fichier",
                                   "Text_Cherche",
                                   "Label_Nbr_Fiche",
                                   "Label_deplace",
                                   "Frame_Internet",
                                   "List_Internet",
                                   "Text_New_URL",
                                   "Picture_KUNDALI",
                                   "ImageTriDeva(1)",
                                   "ImageTriDeva(2)",
                                   "ImageTriDeva(4)",
                                   "ImageTriDeva(5)",
                                   "Text_definition_palais",
                                   "Label_Lal_Kitab",
                                   "Shape_defile_an",
                                   "Label_anneedefile",
                                   "Label_anneedefile_Suite",
                                   "Label_age",
                                   "HScroll_age",
                                   "Command2",
                                   "Command_DateNow",
                                   "Command_categorie",
                                   "Btn_cycle_partiel",
                                   "Bouton_seigneurjour",
                                   "Picture2",
                                   "frame_messageSauve",
                                   "Label_message",
                                   "MnuBouton_Menu",
                                   "MnuDevant",
                                   "MnuNavarun",
                                   "MnuPersonalite",
                                   "Mnucelebrites",
                                   "separation1",
                                   "MnuAide",
                                   "MnuPropos",
                                   "MnuQuitter",
                                   "MnuBouton_impression",
                                   "MnuImprime",
                                   "MnuApercu_Impression",
                                   "MnuBouton_Outil",
                                   "Mnu_Julien",
                                   "MnuFleche",
                                   "MnuCalendrier",
                                   "separation",
                                   "MnuCalculatrice",
                                   "MnuBlocNotes",
                                   "Mnu_afficher",
                                   "Mnu_palaisdestin",
                                   "Mnuperiode",
                                   "MnuBouton_Apparence",
                                   "MnuCouleur_Navarun",
                                   "MnuAzur_cycle",
                                   "MnuAzur_Aum",
                                   "MnuMauve_cycle",
                                   "MnuMauve_Aum",
                                   "séparation",
                                   "Mnu_abrege"};
    for (char const* array : {"Label_Dasha", "Label_DashaDate", "Label_annee", "Label_mois",
                              "Label_MoisDate", "Label_Solaire"}) {
        for (int i = 1; i <= 12; ++i) {
            names.push_back(std::string{array} + "(" + std::to_string(i) + ")");
        }
    }
    return names;
}

TEST(Dump, HoldsEveryControlOfTheMainWindow) {
    Visit visit;
    Json dump = visit.dump();
    for (auto const& name : all_controls()) EXPECT_TRUE(dump.contains(name)) << name;
    EXPECT_FALSE(dump.contains("Label_mois(0)"));
    EXPECT_FALSE(dump.contains("ImageTriDeva(3)"));
}

TEST(Dump, HoldsEveryPropertyAsGetAnswersIt) {
    Visit visit;
    visit.generate_for("17051962");
    int properties = 0;
    Json dump = visit.dump();
    for (auto const& [control, values] : dump.items()) {
        for (auto const& [property, value] : values.items()) {
            EXPECT_EQ(visit.value(control + "." + property), value) << control << property;
            ++properties;
        }
    }
    EXPECT_GT(properties, 1000);
}

TEST(Dump, GivesEachKindItsProperties) {
    Visit visit;
    struct Row {
        char const* control;
        std::vector<std::string> properties;
    };
    std::vector<std::string> const placed{"Visible", "Enabled",     "Tag",
                                          "Left",    "Top",         "Width",
                                          "Height",  "ToolTipText", "BackColor"};
    std::vector<std::string> const written{"ForeColor", "FontName", "FontSize", "FontBold"};
    Json dump = visit.dump();
    auto const expect = [&](char const* control, std::initializer_list<std::string> own,
                            bool is_placed, bool is_written) {
        std::set<std::string> expected{own};
        if (is_placed) expected.insert(placed.begin(), placed.end());
        if (is_written) expected.insert(written.begin(), written.end());
        for (auto const& property : expected) {
            EXPECT_TRUE(dump[control].contains(property)) << control << '.' << property;
        }
    };
    expect("Label_age", {"Caption", "Border", "Opaque"}, true, true);
    expect("Text_nom", {"Text"}, true, true);
    expect("Text_Note", {"Text"}, true, true);
    expect("Combo_jourNaiss", {"Text", "List", "ListIndex"}, true, true);
    expect("File_Fichier", {"List", "ListIndex"}, true, true);
    expect("Command2", {"Picture"}, true, false);
    expect("Image2", {"Picture"}, true, false);
    expect("Picture_KUNDALI", {"Picture"}, true, false);
    expect("HScroll_age", {"Value"}, true, false);
    expect("Frame_Internet", {}, true, false);
    expect("Mnu_Julien", {"Caption", "Checked", "Enabled", "Visible"}, false, false);
}

TEST(Effects, AreToldOnce) {
    Visit visit;
    visit.set("Combo_jourNaiss", "");
    visit.click("Command2");
    visit.click("Command2");
    EXPECT_EQ(visit.effects().size(), 2U);
    EXPECT_EQ(visit.effects(), Json::array());
}

TEST(Pages, AreNoneWhereNothingIsPrinted) {
    Visit visit;
    EXPECT_EQ(visit.ask({{"op", "pages"}}), parsed(R"j({"pages":[]})j"));
}

// --- acting

TEST(Act, SetCutsATextAndDropsWhatIsNoDigit) {
    Visit visit;
    visit.set("Text_nom", "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(visit.text("Text_nom.Text"), "abcdefghijklmnopqrstuvwxy");
    visit.set("Combo_jourNaiss", "x2y8z4");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "28");
    visit.set("Combo_jourNaiss", "letters");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "");
}

TEST(Act, SetTakesALongNoteWhole) {
    Visit visit;
    std::string const note(300'000, 'n');
    visit.set("Text_Note", note);
    EXPECT_EQ(visit.text("Text_Note.Text"), note);
}

TEST(Act, SetPutsTheCaretBehindTheText) {
    Visit visit;
    visit.set("Text_nom", "dup");
    visit.type("Text_nom", "ont");
    EXPECT_EQ(visit.text("Text_nom.Text"), "dupont");
}

TEST(Act, TypeReplacesWhatTheFocusSelected) {
    Visit visit;
    visit.set("Text_nom", "dupont");
    visit.focus("Text_prenom");
    visit.type("Text_nom", "mo");
    EXPECT_EQ(visit.text("Text_nom.Text"), "mo");
    visit.type("Text_nom", "rel");
    EXPECT_EQ(visit.text("Text_nom.Text"), "morel");
}

TEST(Act, ChooseTakesAnEntryByItsPlace) {
    Visit visit;
    EXPECT_EQ(visit.ask({{"op", "choose"}, {"control", "Combo_AnNaiss2"}, {"index", 62}}),
              parsed(R"j({"ok":true})j"));
    EXPECT_EQ(visit.text("Combo_AnNaiss2.Text"), "62");
    EXPECT_EQ(visit.text("date_naissance"), "01/01/1962");
    EXPECT_EQ(visit.number("Combo_AnNaiss2.ListIndex"), 62);
}

TEST(Act, AnEntryTypedAwayIsNoEntry) {
    Visit visit;
    visit.type("Combo_AnNaiss2", "6");
    EXPECT_EQ(visit.number("Combo_AnNaiss2.ListIndex"), -1);
}

// A menu is opened over the window: the field being written keeps the keyboard.
TEST(Act, AMenuEntryLeavesTheFocusAndAButtonTakesIt) {
    Visit visit;
    visit.type("Combo_jourNaiss", "1");
    visit.click("MnuDevant");
    EXPECT_EQ(visit.number("nombre_touches"), 1);
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "1");
    visit.click("Label_zodiac");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "1");
    visit.click("Btn_cycle_partiel");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "21");
}

TEST(Act, AKeyEditsNoText) {
    Visit visit;
    visit.set("Text_nom", "abc");
    for (int const code : {8, 13, 46, 65}) visit.key("Text_nom", code);
    EXPECT_EQ(visit.text("Text_nom.Text"), "abc");
}

TEST(Act, TheKeyIsHeldForItsRequestAlone) {
    Visit visit;
    visit.key("HScroll_age", 13);
    visit.set("HScroll_age", 5);
    // Typed on the bar, nothing is held down that would recalculate.
    visit.key("HScroll_age", 37);
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
}

TEST(Act, ADoubleClickIsNoClick) {
    Visit visit;
    visit.double_click("Label_mois(4)");
    EXPECT_EQ(visit.number("colonne_mois"), 9);
    visit.double_click("Command2");
    EXPECT_EQ(visit.text("Label_DashaDate(3).ForeColor"), "#808080");
}

TEST(Act, AControlThatAnotherCoversIsNotRefused) {
    Visit visit;
    visit.double_click("Label_Solaire(4)");
    ASSERT_TRUE(visit.truth("Text_definition_palais.Visible"));
    visit.click("Image2");
    visit.click("Picture_KUNDALI");
    visit.click("Label_dinanka_Purnanka");
}

TEST(Clock, MayBeSetAgain) {
    Visit visit{"16/05/2026"};
    visit.type("Combo_jourNaiss", "17051962");
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 63);
    visit.clock("17/05/2026", "00:00:00");
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 64);
    visit.clock("01/01/1970", "00:00:00");
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 7);
}

TEST(Clock, AWrongOneLeavesTheRightOne) {
    Visit visit{"17/05/2026"};
    visit.ask({{"op", "clock"}, {"date", "hier"}, {"time", "10:00:00"}});
    visit.type("Combo_jourNaiss", "17051962");
    visit.click("Command_DateNow");
    EXPECT_EQ(visit.number("HScroll_age.Value"), 64);
}

TEST(Dump, NamesTheControlsOfAnotherWindowAsGetTakesThem) {
    Visit visit;
    Json const controls = visit.ask({{"op", "dump"}, {"form", "choix_age"}})["controls"];
    ASSERT_TRUE(controls.contains("choix_age.Label2(50)"));
    for (auto const& [name, properties] : controls.items()) {
        EXPECT_EQ(visit.value(name + ".Visible"), properties["Visible"]) << name;
    }
}

}  // namespace
}  // namespace navarun::test
