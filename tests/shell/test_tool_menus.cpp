// The menu entries that leave the consultation alone, and the about box.
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "core/calendar.h"
#include "tests/support/visit.h"
#include "tools/pilote/scripted_platform.h"

namespace navarun::test {
namespace {

Json message(std::string const& text, double seconds) {
    Json told{{"kind", "message"}, {"text", text}};
    told["seconds"] = seconds == 4.5 ? Json(4.5) : Json(static_cast<int>(seconds));
    return told;
}

Json opened(std::string const& target) { return {{"kind", "open"}, {"target", target}}; }

struct DocumentRow {
    char const* entry;
    char const* file;
    char const* missing;
    double seconds;
    friend std::ostream& operator<<(std::ostream& out, DocumentRow const& row) {
        return out << row.entry;
    }
};

constexpr DocumentRow documents[] = {
    {"MnuAide", "AIDE NAVARUN.pdf",
     "Le fichier d'aide de N.A.V.A.R.U.N est inexistant !\r\nFichier déplacé ou effacé !", 4.5},
    {"Mnucelebrites", "CELEBRITES.pdf",
     "Le fichier est inexistant.\r\nFichier déplacé ou effacé !", 4},
};

class Documents : public testing::TestWithParam<DocumentRow> {
  protected:
    Documents() { std::filesystem::create_directories(folder()); }
    std::filesystem::path folder() const { return visit.folder() / "RESSOURCES" / "DOCS"; }
    std::filesystem::path file() const { return folder() / GetParam().file; }
    void write() const { std::ofstream{file()} << "%PDF-1.7"; }
    Json told() const { return Json::array({message(GetParam().missing, GetParam().seconds)}); }
    Json handed_over() const {
        return Json::array({opened("RESSOURCES/DOCS/" + std::string{GetParam().file})});
    }

    Visit visit;
};

TEST_P(Documents, AreHandedToTheOpener) {
    write();
    visit.click(GetParam().entry);
    EXPECT_EQ(visit.effects(), handed_over());
}

TEST_P(Documents, TellsTheMissingOneForItsOwnTime) {
    visit.click(GetParam().entry);
    EXPECT_EQ(visit.effects(), told());
    EXPECT_FALSE(visit.truth("frame_messageSauve.Visible"));
}

TEST_P(Documents, AreLookedForAtEachClick) {
    visit.click(GetParam().entry);
    write();
    visit.click(GetParam().entry);
    std::filesystem::remove(file());
    visit.click(GetParam().entry);
    Json all = told();
    all.push_back(handed_over()[0]);
    all.push_back(told()[0]);
    EXPECT_EQ(visit.effects(), all);
}

TEST_P(Documents, AreNotTheFolderOfThatName) {
    std::filesystem::create_directories(file());
    visit.click(GetParam().entry);
    EXPECT_EQ(visit.effects(), told());
}

TEST_P(Documents, LeaveTheConsultationAlone) {
    visit.generate_for("17051962");
    auto const before = visit.dump();
    visit.click(GetParam().entry);
    auto after = visit.dump();
    after["Label_message"]["Caption"] = before["Label_message"]["Caption"];
    EXPECT_EQ(after, before);
}

INSTANTIATE_TEST_SUITE_P(Menu, Documents, testing::ValuesIn(documents),
                         [](auto const& row) { return std::string{row.param.entry}; });

TEST(OutsidePrograms, AreStarted) {
    Visit visit;
    visit.click("MnuBlocNotes");
    visit.click("MnuCalculatrice");
    visit.click("MnuNavarun");
    EXPECT_EQ(visit.effects(),
              Json::array({opened("text-editor"), opened("calculator"), opened("navarun")}));
}

// A desk without editor and calculator.
class BarePlatform : public pilot::ScriptedPlatform {
  public:
    bool has_program(OutsideProgram) override { return false; }
};

TEST(OutsidePrograms, ThatAreMissingAreToldForTwoSeconds) {
    TemporaryFolder const folder;
    BarePlatform platform;
    platform.set_clock(*read_date("21/11/2026"), 36900);
    Program program{platform, folder.path()};
    platform.set_user(program.user);
    program.start();
    auto const missing = message("Vous n'avez plus\r\nce fichier !", 2);
    for (auto* entry : {&program.form1.MnuBlocNotes, &program.form1.MnuCalculatrice}) {
        program.event([&](screen::User& user) { user.click(*entry); });
        EXPECT_EQ(platform.take_effects(), Json::array({missing})) << entry->name();
    }
    // This one is never looked for.
    program.event([&](screen::User& user) { user.click(program.form1.MnuNavarun); });
    EXPECT_EQ(platform.take_effects(), Json::array({opened("navarun")}));
}

TEST(WindowInFront, JoinsTheTopmostThenGoesBehindAllOthers) {
    Visit visit;
    auto const& stacking = visit.program().form1.Stacking;
    EXPECT_EQ(stacking, screen::Stacking::normal);
    visit.click("MnuDevant");
    EXPECT_TRUE(visit.truth("MnuDevant.Checked"));
    EXPECT_EQ(stacking, screen::Stacking::topmost);
    visit.click("MnuDevant");
    EXPECT_FALSE(visit.truth("MnuDevant.Checked"));
    EXPECT_EQ(stacking, screen::Stacking::bottom);
    visit.click("MnuDevant");
    EXPECT_EQ(stacking, screen::Stacking::topmost);
}

class AboutBox : public testing::Test {
  protected:
    AboutBox() { visit.click("MnuPropos"); }
    bool open() { return visit.truth("a_propos.Visible"); }
    Visit visit;
};

TEST_F(AboutBox, TellsTitleVersionAuthorAddressAndThanks) {
    ASSERT_TRUE(open());
    EXPECT_EQ(visit.text("a_propos.Caption"), "À propos de N.A.V.A.R.U.N");
    EXPECT_EQ(visit.text("a_propos.lblTitle.Caption"), "N.A.V.A.R.U.N");
    EXPECT_EQ(visit.text("a_propos.lblVersion.Caption"), "1.0.0");
    EXPECT_EQ(visit.text("a_propos.lblDescription.Caption"),
              "Concepteur\r\nL'équipe N.A.V.A.R.U.N");
    EXPECT_EQ(visit.text("a_propos.LblInternet.Caption"), visit.text("url_defaut(1)"));
    EXPECT_EQ(visit.text("a_propos.Lbl_merci.Caption"),
              "- remerciements -\r\nMerci à tous les praticiens.");
    EXPECT_EQ(visit.program().a_propos.Stacking, screen::Stacking::topmost);
    EXPECT_EQ(visit.program().a_propos.LblInternet.MouseIcon.get().name(), "Image_Curseur");
}

TEST_F(AboutBox, BlocksTheMainWindow) {
    EXPECT_EQ(visit.ask({{"op", "click"}, {"control", "Command2"}})["error"], "refused");
    visit.click("a_propos.cmdOK");
    visit.click("Command2");
}

TEST_F(AboutBox, ClosesByButtonReturnEscapeAndFrame) {
    visit.click("a_propos.cmdOK");
    EXPECT_FALSE(open());
    for (int const code : {13, 27}) {
        visit.click("MnuPropos");
        ASSERT_TRUE(open());
        visit.key("a_propos.cmdOK", code);
        EXPECT_FALSE(open()) << code;
    }
    visit.click("MnuPropos");
    visit.ask({{"op", "close"}, {"form", "a_propos"}});
    EXPECT_FALSE(open());
}

TEST_F(AboutBox, OpensTheAddressOfTheAuthor) {
    visit.click("a_propos.LblInternet");
    EXPECT_EQ(visit.effects(), Json::array({opened(visit.text("url_defaut(1)"))}));
    EXPECT_TRUE(open());
}

struct PlaceRow {
    char const* control;
    int left, top, width, height;
    double size;
    bool bold;
    char const* fore;
    friend std::ostream& operator<<(std::ostream& out, PlaceRow const& row) {
        return out << row.control;
    }
};

class AboutBoxDesign : public testing::TestWithParam<PlaceRow> {};

TEST_P(AboutBoxDesign, StandsWhereItIsDesigned) {
    Visit visit;
    auto const& row = GetParam();
    std::string const name = std::string{"a_propos."} + row.control;
    EXPECT_EQ(visit.number(name + ".Left"), row.left);
    EXPECT_EQ(visit.number(name + ".Top"), row.top);
    EXPECT_EQ(visit.number(name + ".Width"), row.width);
    EXPECT_EQ(visit.number(name + ".Height"), row.height);
    EXPECT_EQ(visit.text(name + ".FontName"), "MS Sans Serif");
    EXPECT_EQ(visit.value(name + ".FontSize"), row.size);
    EXPECT_EQ(visit.truth(name + ".FontBold"), row.bold);
    EXPECT_EQ(visit.text(name + ".ForeColor"), row.fore);
}

constexpr PlaceRow places[] = {
    {"lblTitle", 1200, 0, 3045, 480, 13.5, true, "#04617B"},
    {"lblVersion", 2250, 480, 945, 300, 12, true, "#04617B"},
    {"lblDescription", 1320, 1200, 2805, 690, 12, true, "#04617B"},
    {"LblInternet", 0, 2100, 5100, 375, 12, true, "#04617B"},
    {"Lbl_merci", 240, 2550, 4935, 615, 12, false, "#000000"},
};

INSTANTIATE_TEST_SUITE_P(Labels, AboutBoxDesign, testing::ValuesIn(places),
                         [](auto const& row) { return std::string{row.param.control}; });

TEST(AboutBoxWindow, HasItsSizeGroundAndBand) {
    Visit visit;
    EXPECT_EQ(visit.number("a_propos.Width"), 5190);
    EXPECT_EQ(visit.number("a_propos.Height"), 3720);
    EXPECT_EQ(visit.text("a_propos.BackColor"), "#EEF6F9");
    EXPECT_EQ(visit.text("a_propos.Shape1.BackColor"), "#BDEBF8");
    EXPECT_EQ(visit.number("a_propos.Shape1.Top"), 2040);
    EXPECT_EQ(visit.number("a_propos.Shape1.Height"), 450);
    EXPECT_EQ(visit.number("a_propos.cmdOK.Left"), 2040);
    EXPECT_EQ(visit.number("a_propos.cmdOK.Top"), 3360);
    EXPECT_EQ(visit.text("a_propos.LblInternet.ToolTipText"), "Aller sur le site de l'auteur");
}

}  // namespace
}  // namespace navarun::test
