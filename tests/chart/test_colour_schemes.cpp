// The four colour schemes.
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "tests/chart/chart_visit.h"

namespace navarun::test {

namespace {

struct SchemeRow {
    char const* property;
    char const* azure;
    char const* mauve;
};

// What a scheme sets by its family.
constexpr SchemeRow family_rows[] = {
    {"Bouton_seigneurjour.Picture", "Image_heure(1)", "Image_heure(0)"},
    {"Image_Titre.Picture", "Image_Titre_Navarun(1)", "Image_Titre_Navarun(0)"},
    {"Form1.BackColor", "#BDE7F7", "#E4CEFC"},
    {"Text_zodiac.BackColor", "#CCE2FC", "#F4E0F2"},
    {"Text_jourdeSemaine.BackColor", "#CCE2FC", "#F4E0F2"},
    {"File_Fichier.BackColor", "#000040", "#400040"},
    {"File_Fichier.Tag", "#000040", "#400040"},
    {"Image1.Picture", "Image_nuage_Bas(1)", "Image_nuage_Bas(0)"},
    {"Image2.Picture", "Image_nuage_haut(1)", "Image_nuage_haut(0)"},
    {"Label_jourdeSemaine.BackColor", "#2C8EDC", "#C34AED"},
    {"Label_zodiac.BackColor", "#2C8EDC", "#C34AED"},
    {"Label_nomNakshatra.BackColor", "#2C8EDC", "#C34AED"},
    {"Label_dinanka_Purnanka.BackColor", "#2C8EDC", "#C34AED"},
    {"Label_Lal_Kitab.BackColor", "#2C8EDC", "#C34AED"},
    {"Command_DateNow.Picture", "Image_DateNow(1)", "Image_DateNow(0)"},
    {"Text_definition_palais.BackColor", "#CCE2FC", "#E4CEFC"},
    {"couleur_fond_fenetre", "#B4CEFC", "#CCB2FC"},
    {"couleur_liste", "#CCE2FC", "#EEE1FD"},
    {"couleur_titre_fenetre", "#2C8EDC", "#2C8EDC"},
};

constexpr char const* entries[] = {"MnuAzur_cycle", "MnuAzur_Aum", "MnuMauve_cycle",
                                   "MnuMauve_Aum"};
constexpr char const* captions[] = {"Azur (cycle)", "Azur (Aum)", "Mauve (cycle)",
                                    "Mauve (Aum)"};

void expect_scheme(Visit& visit, int scheme) {
    for (auto const& row : family_rows) {
        EXPECT_EQ(visit.text(row.property), scheme <= 1 ? row.azure : row.mauve)
            << row.property << " in scheme " << scheme;
    }
    EXPECT_EQ(visit.number("couleur_kundali"), scheme);
    EXPECT_EQ(visit.text("Picture_KUNDALI.Picture"),
              "Image_Kundali(" + std::to_string(scheme) + ")");
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(visit.truth(std::string{entries[i]} + ".Checked"), i == scheme)
            << entries[i] << " in scheme " << scheme;
    }
}

TEST(Schemes, TheWindowOpensInAzureWithTheCycle) {
    Visit visit;
    expect_scheme(visit, 0);
}

TEST(Schemes, BearTheirCaptions) {
    Visit visit;
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(visit.text(std::string{entries[i]} + ".Caption"), captions[i]);
    }
}

// From each scheme to each other one.
class SchemeChange : public testing::TestWithParam<std::tuple<int, int>> {};
TEST_P(SchemeChange, GivesEveryElementItsColour) {
    auto const [from, to] = GetParam();
    Visit visit;
    visit.click(entries[from]);
    expect_scheme(visit, from);
    visit.click(entries[to]);
    expect_scheme(visit, to);
}
INSTANTIATE_TEST_SUITE_P(All, SchemeChange,
                         testing::Combine(testing::Range(0, 4), testing::Range(0, 4)),
                         [](auto const& row) {
                             return "from_" + std::to_string(std::get<0>(row.param)) + "_to_" +
                                    std::to_string(std::get<1>(row.param));
                         });

TEST(Schemes, TheOneInForceActsNoSecondTime) {
    ChartVisit visit;
    visit.click("MnuMauve_cycle");
    visit.toggle_window();
    visit.drag_arrow(1000, 2000, 3000, 4000);
    Json const before = visit.dump();
    auto const file = visit.folder() / "RESSOURCES/CONFIG.CFG";
    std::filesystem::remove(file);
    visit.click("MnuMauve_cycle");
    EXPECT_EQ(visit.dump(), before);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST(Schemes, ChangeNothingElseOfTheConsultation) {
    Visit visit;
    visit.generate_for("17051962");
    visit.set("Text_prenom", "Marie");
    struct Kept {
        char const* name;
        Json value;
    } kept[] = {{"Label_zodiac.Caption", {}},     {"Label_age.BackColor", {}},
                {"HScroll_age.Tag", {}},          {"Label_Nak.BackColor", {}},
                {"Label_divinite.BackColor", {}}, {"Command_Disk_Vert.Picture", {}},
                {"Text_prenom.Text", {}},         {"Text_Note.BackColor", {}}};
    for (auto& field : kept) field.value = visit.value(field.name);
    visit.click("MnuMauve_Aum");
    for (auto const& field : kept)
        EXPECT_EQ(visit.value(field.name), field.value) << field.name;
}

TEST(Schemes, ChangedOverThePortraitsCloseThem) {
    Visit visit;
    visit.click("Bouton_Image");
    ASSERT_EQ(visit.text("File_Fichier.ForeColor"), "#000000");
    visit.click("MnuMauve_cycle");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Initialise");
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), "#400040");
}

TEST(Schemes, ChangedOverTheRecordsLeaveThemOpen) {
    Visit visit;
    visit.click("Charge(1)");
    visit.click("MnuMauve_cycle");
    EXPECT_TRUE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(1)");
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), "#400040");
}

TEST(Schemes, RecordsOpenedAfterPortraitsHaveTheColourOfTheScheme) {
    Visit visit;
    visit.click("MnuMauve_Aum");
    visit.click("Bouton_Image");
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), "#FFFFC0");
    EXPECT_EQ(visit.text("File_Fichier.Tag"), "#400040");
    visit.click("Bouton_Image");
    visit.click("Charge(1)");
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), "#400040");
    EXPECT_EQ(visit.text("File_Fichier.ForeColor"), "#FFFFFF");
}

TEST(Schemes, GenerateAndResetKeepThePictureOfTheScheme) {
    for (int scheme = 0; scheme < 4; ++scheme) {
        Visit visit;
        visit.click(entries[scheme]);
        visit.click("Command2");
        expect_scheme(visit, scheme);
        visit.click("Command_reset");
        expect_scheme(visit, scheme);
    }
}

}  // namespace

}  // namespace navarun::test
