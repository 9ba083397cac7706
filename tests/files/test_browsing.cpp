// The panel that lists records and portraits: opening, searching, moving, deleting.
#include "tests/files/pictures.h"
#include "tests/files/practice.h"

namespace navarun::test {

namespace {

class Browsing : public testing::Test {
  protected:
    Browsing() {
        visit.put("Dupont Zoe.fcy", record_of("Zoe", "Dupont"));
        visit.put("adam Jean.fcy", record_of("Jean", "Adam"));
        visit.put("Éluard Paul.fcy", record_of("Paul", "Eluard"));
        visit.put("Martin Luc.fcy", record_of("Luc", "Martin"), 2);
        put_file(visit.images() / "zoe.jpg", jpeg(100, 50));
        put_file(visit.images() / "Jean.GIF", gif(10, 10));
        put_file(visit.images() / "notes.txt", "rien");
        visit.effects();
    }

    Practice visit;
    std::vector<std::string> const folder_1{"adam Jean.fcy", "Dupont Zoe.fcy",
                                            "Éluard Paul.fcy"};
};

TEST_F(Browsing, OpensOnTheRecordsOfTheFolder) {
    visit.click("Charge(1)");
    EXPECT_TRUE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.list(), folder_1);
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), -1);
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), "#000040");
    EXPECT_EQ(visit.text("File_Fichier.ForeColor"), "#FFFFFF");
    EXPECT_EQ(visit.text("File_Fichier.ToolTipText"), "");
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "3");
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.ToolTipText"), "Total de vos fichiers");
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(1)");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Efface le fichier sélectionné");
    EXPECT_EQ(visit.text("Text_Cherche.Text"), "");
    EXPECT_EQ(visit.text("dossier_actif"), "RESSOURCES/DATA1/");
    EXPECT_EQ(visit.text("dossier_autre"), "RESSOURCES/DATA2/");
}

TEST_F(Browsing, TheKeyboardIsInTheSearchField) {
    visit.click("Charge(1)");
    EXPECT_EQ(visit.program().screen.focus(), &visit.program().form1.Text_Cherche);
}

TEST_F(Browsing, TheButtonsShowWhichFolderIsActive) {
    EXPECT_EQ(visit.text("Charge(1).Picture"), "DOSSIER(1)");
    EXPECT_EQ(visit.text("Charge(1).ToolTipText"), "Dossier 1 Actif");
    EXPECT_EQ(visit.text("Charge(2).Picture"), "DOSSIER(4)");
    EXPECT_EQ(visit.text("Charge(2).ToolTipText"), "Dossier 2 Inactif");
    EXPECT_EQ(visit.text("dossier_autre"), "");
    visit.click("Charge(2)");
    EXPECT_EQ(visit.text("Charge(1).Picture"), "DOSSIER(2)");
    EXPECT_EQ(visit.text("Charge(1).ToolTipText"), "Dossier 1 Inactif");
    EXPECT_EQ(visit.text("Charge(2).Picture"), "DOSSIER(3)");
    EXPECT_EQ(visit.text("Charge(2).ToolTipText"), "Dossier 2 Actif");
    EXPECT_EQ(visit.text("dossier_actif"), "RESSOURCES/DATA2/");
    EXPECT_EQ(visit.text("dossier_autre"), "RESSOURCES/DATA1/");
    EXPECT_EQ(visit.list(), std::vector<std::string>{"Martin Luc.fcy"});
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "1");
    visit.click("Charge(2)");
    visit.click("Charge(1)");
    EXPECT_EQ(visit.text("Charge(1).Picture"), "DOSSIER(1)");
    EXPECT_EQ(visit.text("Charge(2).Picture"), "DOSSIER(4)");
    EXPECT_EQ(visit.list(), folder_1);
}

TEST_F(Browsing, ASecondClickClosesThePanel) {
    visit.click("Charge(1)");
    visit.click("Charge(1)");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Initialise");
}

TEST_F(Browsing, TheOtherFoldersButtonClosesTheOpenPanelAndHasSwitched) {
    visit.click("Charge(1)");
    visit.type("Text_Cherche", "dup");
    visit.click("Charge(2)");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("dossier_actif"), "RESSOURCES/DATA2/");
    EXPECT_EQ(visit.text("Text_Cherche.Text"), "");
    EXPECT_EQ(visit.text("fichier_selectionne"), "");
    visit.click("Charge(2)");
    EXPECT_EQ(visit.list(), std::vector<std::string>{"Martin Luc.fcy"});
}

TEST_F(Browsing, AnEmptyFolderCountsZero) {
    std::filesystem::remove(visit.data(2) / "Martin Luc.fcy");
    visit.click("Charge(2)");
    EXPECT_TRUE(visit.list().empty());
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "0");
}

TEST_F(Browsing, TheFolderIsReadWhenThePanelOpensAndNotWatched) {
    visit.click("Charge(1)");
    visit.put("Zzz.fcy", record_of("Z", "Zz"));
    EXPECT_EQ(visit.list(), folder_1);
    visit.click("Charge(1)");
    visit.click("Charge(1)");
    EXPECT_EQ(visit.list().back(), "Éluard Paul.fcy");
    EXPECT_EQ(visit.list().size(), 4U);
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "4");
}

TEST_F(Browsing, TheMauveSchemesGiveTheListTheirGround) {
    visit.click("MnuMauve_cycle");
    visit.click("Charge(1)");
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), "#400040");
    EXPECT_EQ(visit.text("File_Fichier.Tag"), "#400040");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.double_click("File_Fichier");
    EXPECT_EQ(visit.text("Text_nom.Text"), "Dupont");
}

// Search.

TEST_F(Browsing, SearchesWhileTyping) {
    visit.click("Charge(1)");
    visit.type("Text_Cherche", "d");
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), 1);
    EXPECT_EQ(visit.text("fichier_selectionne"), "Dupont Zoe.fcy");
    EXPECT_EQ(visit.text("File_Fichier.ToolTipText"),
              "CTRL déplace le fichier, SUPPR supprime le fichier");
    visit.type("Text_Cherche", "x");
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), -1);
    EXPECT_EQ(visit.text("fichier_selectionne"), "");
}

TEST_F(Browsing, FindsAccentsWhateverTheCase) {
    visit.click("Charge(1)");
    visit.set("Text_Cherche", "éLU");
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), 2);
    visit.set("Text_Cherche", "ADAM J");
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), 0);
}

TEST_F(Browsing, AnEmptySearchClearsTheSelection) {
    visit.click("Charge(1)");
    visit.set("Text_Cherche", "dup");
    visit.set("Text_Cherche", "");
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), -1);
    EXPECT_EQ(visit.text("fichier_selectionne"), "");
}

TEST_F(Browsing, EnterInTheSearchLoadsWhatIsFound) {
    visit.click("Charge(1)");
    visit.type("Text_Cherche", "dup");
    visit.type("Text_Cherche", "\r");
    EXPECT_EQ(visit.text("Text_nom.Text"), "Dupont");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
}

TEST_F(Browsing, EnterInASearchWithoutAFindDoesNothing) {
    visit.click("Charge(1)");
    visit.type("Text_Cherche", "xyz");
    visit.key("Text_Cherche", key_enter);
    EXPECT_TRUE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Text_nom.Text"), "");
    EXPECT_TRUE(visit.effects().empty());
}

TEST_F(Browsing, EnterOnTheListLoadsTheSelection) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "adam Jean.fcy");
    visit.key("File_Fichier", key_enter);
    EXPECT_EQ(visit.text("Text_nom.Text"), "Adam");
}

TEST_F(Browsing, ADoubleClickOrEnterWithoutASelectionDoesNothing) {
    visit.click("Charge(1)");
    visit.double_click("File_Fichier");
    visit.key("File_Fichier", key_enter);
    EXPECT_TRUE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Text_nom.Text"), "");
}

// Deleting.

TEST_F(Browsing, TheDeleteKeyAsksAndDeletes) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Éluard Paul.fcy");
    visit.key("File_Fichier", key_delete);
    EXPECT_EQ(visit.effects(),
              Json::array({box("EFFACER", "VOULEZ-VOUS EFFACER: \r\nÉLUARD PAUL.FCY ?", 1)}));
    EXPECT_EQ(visit.list(), (std::vector<std::string>{"adam Jean.fcy", "Dupont Zoe.fcy"}));
    EXPECT_EQ(names_in(visit.data(1)).size(), 2U);
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "2");
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), -1);
    EXPECT_EQ(visit.text("fichier_selectionne"), "");
}

TEST_F(Browsing, TheDeleteButtonAsksAndDeletes) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.click("Command_reset");
    EXPECT_EQ(visit.effects(),
              Json::array({box("EFFACER", "VOULEZ-VOUS EFFACER: \r\nDUPONT ZOE.FCY ?", 1)}));
    EXPECT_EQ(visit.list(), (std::vector<std::string>{"adam Jean.fcy", "Éluard Paul.fcy"}));
    EXPECT_TRUE(visit.truth("Frame_FileFichier.Visible"));
}

TEST_F(Browsing, ADeclinedDeletionLeavesFileAndSelection) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.answer_next_box(2);
    visit.click("Command_reset");
    EXPECT_EQ(visit.list(), folder_1);
    EXPECT_EQ(names_in(visit.data(1)).size(), 3U);
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), 1);
    EXPECT_EQ(visit.text("fichier_selectionne"), "Dupont Zoe.fcy");
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "3");
    // What is moved next is the entry, in its folder.
    visit.key("File_Fichier", key_control);
    EXPECT_TRUE(visit.drop("Charge(2)").contains("ok"));
    EXPECT_EQ(names_in(visit.data(2)),
              (std::vector<std::string>{"Dupont Zoe.fcy", "Martin Luc.fcy"}));
}

TEST_F(Browsing, DeletingWithoutASelectionSaysSo) {
    visit.click("Charge(1)");
    visit.click("Command_reset");
    EXPECT_EQ(visit.effects(),
              Json::array({message("Veuillez sélectionnez un fichier à effacer !", 2)}));
    visit.key("File_Fichier", key_delete);
    EXPECT_EQ(visit.effects(),
              Json::array({message("Veuillez sélectionnez un fichier à effacer !", 2)}));
    EXPECT_EQ(names_in(visit.data(1)).size(), 3U);
    EXPECT_FALSE(visit.truth("frame_messageSauve.Visible"));
}

TEST_F(Browsing, DeletingARecordThatWentAwayEndsTheRun) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    std::filesystem::remove(visit.data(1) / "Dupont Zoe.fcy");
    auto const answer = visit.fatal_click("Command_reset");
    EXPECT_NE(report_of(answer).find("Dupont Zoe.fcy"), std::string::npos);
    EXPECT_EQ(names_in(visit.data(1)).size(), 2U);
}

TEST_F(Browsing, TheResetButtonBeginsAnewOnceThePanelIsClosed) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.click("Charge(1)");
    visit.click("Command_reset");
    EXPECT_EQ(names_in(visit.data(1)).size(), 3U);
    EXPECT_EQ(visit.text("date_naissance"), "21/11/2026");
}

// Moving.

TEST_F(Browsing, ControlAndADropOnTheOtherFolderMoveTheRecord) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.key("File_Fichier", key_control);
    EXPECT_TRUE(visit.drop("Charge(2)").contains("ok"));
    EXPECT_TRUE(visit.effects().empty());
    EXPECT_EQ(names_in(visit.data(1)),
              (std::vector<std::string>{"adam Jean.fcy", "Éluard Paul.fcy"}));
    EXPECT_EQ(names_in(visit.data(2)),
              (std::vector<std::string>{"Dupont Zoe.fcy", "Martin Luc.fcy"}));
    EXPECT_EQ(visit.record("Dupont Zoe.fcy", 2), record_of("Zoe", "Dupont"));
    EXPECT_EQ(visit.list(), (std::vector<std::string>{"adam Jean.fcy", "Éluard Paul.fcy"}));
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "2");
    EXPECT_EQ(visit.text("fichier_selectionne"), "");
    EXPECT_TRUE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("dossier_actif"), "RESSOURCES/DATA1/");
}

// Found by the random user: an address looked at meanwhile is no record.
TEST_F(Browsing, WhatIsDraggedIsTheSelectedRecordWhateverWasAskedMeanwhile) {
    visit.open_browser();
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.click("Bouton_Internet");
    visit.choose("List_Internet", "fr.wikipedia.org");
    visit.answer_next_box(2);
    visit.click("Command_reset");
    visit.key("File_Fichier", key_control);
    EXPECT_EQ(visit.text("fichier_selectionne"), "Dupont Zoe.fcy");
    EXPECT_TRUE(visit.drop("Charge(2)").contains("ok"));
    EXPECT_EQ(names_in(visit.data(2)),
              (std::vector<std::string>{"Dupont Zoe.fcy", "Martin Luc.fcy"}));
}

// Either button means the other folder.
TEST_F(Browsing, ADropOnTheActiveFoldersButtonMovesAllTheSame) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.key("File_Fichier", key_control);
    EXPECT_TRUE(visit.drop("Charge(1)").contains("ok"));
    EXPECT_EQ(visit.record("Dupont Zoe.fcy", 2), record_of("Zoe", "Dupont"));
}

TEST_F(Browsing, MovesBackFromTheSecondFolder) {
    visit.click("Charge(2)");
    visit.choose("File_Fichier", "Martin Luc.fcy");
    visit.key("File_Fichier", key_control);
    visit.drop("Charge(1)");
    EXPECT_TRUE(visit.list().empty());
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "0");
    EXPECT_TRUE(names_in(visit.data(2)).empty());
    EXPECT_EQ(names_in(visit.data(1)).size(), 4U);
}

TEST_F(Browsing, AMoveReplacesARecordOfThatNameWithoutAsking) {
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Ancienne"), 2);
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.key("File_Fichier", key_control);
    visit.drop("Charge(2)");
    EXPECT_TRUE(visit.effects().empty());
    EXPECT_EQ(visit.record("Dupont Zoe.fcy", 2), record_of("Zoe", "Dupont"));
}

TEST_F(Browsing, ControlWithoutASelectionStartsNoDrag) {
    visit.click("Charge(1)");
    visit.key("File_Fichier", key_control);
    EXPECT_EQ(visit.drop("Charge(2)")["error"], "refused");
    EXPECT_EQ(names_in(visit.data(1)).size(), 3U);
}

TEST_F(Browsing, ControlOnPortraitsStartsNoDrag) {
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "zoe.jpg");
    visit.key("File_Fichier", key_control);
    EXPECT_EQ(visit.drop("Charge(2)")["error"], "refused");
}

TEST_F(Browsing, ADragOverAPictureIsOverAtOnce) {
    for (char const* const control : {"Bouton_Image", "Picture_KUNDALI"}) {
        visit.click("Charge(1)");
        visit.choose("File_Fichier", "Dupont Zoe.fcy");
        visit.key("File_Fichier", key_control);
        EXPECT_TRUE(visit.drop(control).contains("ok")) << control;
        EXPECT_EQ(visit.drop("Charge(2)")["error"], "refused") << control;
        EXPECT_EQ(visit.list(), folder_1) << control;
        EXPECT_EQ(visit.text("fichier_selectionne"), "Dupont Zoe.fcy") << control;
        visit.click("Charge(1)");
    }
}

TEST_F(Browsing, TheDragBeginsJustUnderThePointer) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.ask({{"op", "mouse"},
               {"control", "File_Fichier"},
               {"event", "move"},
               {"button", 0},
               {"x", 600},
               {"y", 450}});
    EXPECT_EQ(visit.number("deplace_x"), 600);
    EXPECT_EQ(visit.number("deplace_y"), 630);
    visit.key("File_Fichier", key_control);
    EXPECT_EQ(visit.number("Label_deplace.Left"), 600);
    EXPECT_EQ(visit.number("Label_deplace.Top"), 630);
}

// As the way down the chart, the place over the list is counted in sixteen bits.
TEST_F(Browsing, APointerBeyondSixteenBitsEndsTheRun) {
    visit.click("Charge(1)");
    Json const answer = visit.fatal({{"op", "mouse"},
                                     {"control", "File_Fichier"},
                                     {"event", "move"},
                                     {"button", 0},
                                     {"x", 1e300},
                                     {"y", 450}});
    EXPECT_NE(report_of(answer), "");
}

TEST_F(Browsing, WhateverElseSheDoesLetsGoOfTheDraggedRecord) {
    Json const acts[] = {
        {{"op", "set"}, {"control", "Text_prenom"}, {"value", "Zoe"}},
        {{"op", "set"}, {"control", "HScroll_age"}, {"value", 40}},
        {{"op", "drag"}, {"control", "HScroll_age"}, {"value", 41}},
        {{"op", "choose"}, {"control", "Combo_jourNaiss"}, {"index", 2}},
        {{"op", "click"}, {"control", "Text_nom"}},
    };
    for (auto const& act : acts) {
        visit.click("Charge(1)");
        visit.choose("File_Fichier", "Dupont Zoe.fcy");
        visit.key("File_Fichier", key_control);
        ASSERT_NE(visit.program().screen.dragged(), nullptr) << act;
        EXPECT_TRUE(visit.ask(act).contains("ok")) << act;
        EXPECT_EQ(visit.drop("Charge(2)")["error"], "refused") << act;
        EXPECT_EQ(visit.record("Dupont Zoe.fcy"), record_of("Zoe", "Dupont")) << act;
        visit.click("Charge(1)");
    }
}

TEST_F(Browsing, ARecordThatWentAwayBeforeTheDropEndsTheRun) {
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Ancienne"), 2);
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.key("File_Fichier", key_control);
    std::filesystem::remove(visit.data(1) / "Dupont Zoe.fcy");
    visit.fatal({{"op", "drop"}, {"control", "Charge(2)"}});
    EXPECT_EQ(visit.record("Dupont Zoe.fcy", 2), record_of("Zoe", "Ancienne"));
}

// Portraits in the same panel.

TEST_F(Browsing, TheImageButtonOpensOnThePortraits) {
    visit.click("Bouton_Image");
    EXPECT_TRUE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.list(), (std::vector<std::string>{"Jean.GIF", "zoe.jpg"}));
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), "#FFFFC0");
    EXPECT_EQ(visit.text("File_Fichier.ForeColor"), "#000000");
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "2");
    EXPECT_EQ(visit.text("Command_reset.Picture"), "Image_efface_Photo");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Supprime l'image sélectionnée");
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), -1);
    EXPECT_EQ(visit.program().screen.focus(), &visit.program().form1.Text_Cherche);
    visit.choose("File_Fichier", "zoe.jpg");
    EXPECT_EQ(visit.text("File_Fichier.ToolTipText"), "SUPPR supprime l'image");
    visit.click("Bouton_Image");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Initialise");
}

TEST_F(Browsing, RecordsComeBackAfterThePortraits) {
    visit.click("Bouton_Image");
    visit.click("Charge(1)");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    visit.click("Charge(1)");
    EXPECT_EQ(visit.list(), folder_1);
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), "#000040");
    EXPECT_EQ(visit.text("File_Fichier.ForeColor"), "#FFFFFF");
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(1)");
}

TEST_F(Browsing, ThePortraitsButtonClosesOpenRecords) {
    visit.click("Charge(1)");
    visit.click("Bouton_Image");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "");
}

TEST_F(Browsing, DeletingAPortraitLeavesTheRecordsAlone) {
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Dupont", "zoe.jpg"));
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "zoe.jpg");
    visit.key("File_Fichier", key_delete);
    EXPECT_EQ(visit.effects(),
              Json::array({box("EFFACER", "VOULEZ-VOUS EFFACER: \r\nZOE.JPG ?", 1)}));
    EXPECT_EQ(visit.list(), std::vector<std::string>{"Jean.GIF"});
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "1");
    EXPECT_EQ(visit.record("Dupont Zoe.fcy"), record_of("Zoe", "Dupont", "zoe.jpg"));
}

TEST_F(Browsing, TheImageDeleteButtonDeletesAPortrait) {
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "Jean.GIF");
    visit.click("Command_reset");
    EXPECT_EQ(names_in(visit.images()), (std::vector<std::string>{"notes.txt", "zoe.jpg"}));
}

TEST_F(Browsing, SearchesPortraitsToo) {
    visit.click("Bouton_Image");
    visit.type("Text_Cherche", "Z");
    EXPECT_EQ(visit.text("fichier_selectionne"), "zoe.jpg");
    visit.type("Text_Cherche", "\r");
    EXPECT_EQ(visit.text("fichier_photo"), "zoe.jpg");
}

// The selection that a name stands for in two folders.
TEST_F(Browsing, NothingUnselectedIsEverMoved) {
    visit.click("Charge(1)");
    visit.choose("File_Fichier", "Dupont Zoe.fcy");
    visit.set("Text_Cherche", "rien de tel");
    visit.key("File_Fichier", key_control);
    EXPECT_EQ(visit.drop("Charge(2)")["error"], "refused");
    visit.click("Charge(1)");
    visit.click("Charge(1)");
    EXPECT_EQ(visit.text("fichier_selectionne"), "");
    visit.key("File_Fichier", key_control);
    EXPECT_EQ(visit.drop("Charge(2)")["error"], "refused");
    EXPECT_EQ(names_in(visit.data(1)).size(), 3U);
}

}  // namespace

}  // namespace navarun::test
