// The portrait of the consultant: chosen, dropped, taken back.
#include "tests/files/pictures.h"
#include "tests/files/practice.h"

namespace navarun::test {

namespace {

class Portrait : public testing::Test {
  protected:
    Portrait() {
        put_file(visit.images() / "zoe.jpg", jpeg(260, 180));
        put_file(visit.images() / "jean.bmp", bmp(20, -10));
        visit.effects();
    }
    std::filesystem::path outside(std::string const& name, std::string const& bytes) {
        auto path = visit.folder() / "ailleurs" / name;
        put_file(path, bytes);
        return path;
    }

    Practice visit;
};

TEST_F(Portrait, IsChosenByADoubleClick) {
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "zoe.jpg");
    visit.double_click("File_Fichier");
    EXPECT_EQ(visit.text("fichier_photo"), "zoe.jpg");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "file:zoe.jpg");
    EXPECT_EQ(visit.diskette(), "Diskette(1)");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("File_Fichier.BackColor"), visit.text("File_Fichier.Tag"));
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Initialise");
}

TEST_F(Portrait, IsPaintedFittedAndCentred) {
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "zoe.jpg");
    visit.double_click("File_Fichier");
    auto const& wide = visit.program().form1.Picture_PHOTO.painted();
    ASSERT_TRUE(wide.has_value());
    EXPECT_DOUBLE_EQ(wide->x, 0);
    EXPECT_DOUBLE_EQ(wide->y, 45);
    EXPECT_DOUBLE_EQ(wide->width, 130);
    EXPECT_DOUBLE_EQ(wide->height, 90);
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "jean.bmp");
    visit.double_click("File_Fichier");
    auto const& small = visit.program().form1.Picture_PHOTO.painted();
    ASSERT_TRUE(small.has_value());
    EXPECT_DOUBLE_EQ(small->x, 55);
    EXPECT_DOUBLE_EQ(small->y, 85);
    EXPECT_DOUBLE_EQ(small->width, 20);
    EXPECT_DOUBLE_EQ(small->height, 10);
}

TEST_F(Portrait, IsStoredByItsNameAlone) {
    visit.name_person("Zoe", "Dupont");
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "zoe.jpg");
    visit.key("File_Fichier", key_enter);
    visit.save();
    EXPECT_EQ(visit.record("Dupont Zoe.fcy"),
              "\"Zoe\",\"Dupont\",\"01\",\"01\",\"19\",\"00\",0,\"zoe.jpg\",\"\"\r\n");
}

TEST_F(Portrait, ADoubleClickTakesItBack) {
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "zoe.jpg");
    visit.double_click("File_Fichier");
    visit.double_click("Picture_PHOTO");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "Image_Ganesha");
    EXPECT_EQ(visit.text("fichier_photo"), "");
    EXPECT_EQ(visit.diskette(), "Diskette(1)");
    EXPECT_TRUE(std::filesystem::exists(visit.images() / "zoe.jpg"));
}

TEST_F(Portrait, ADoubleClickOnGaneshaAloneMarksTheRecordUnsaved) {
    EXPECT_EQ(visit.diskette(), "Diskette(0)");
    visit.double_click("Picture_PHOTO");
    EXPECT_EQ(visit.diskette(), "Diskette(1)");
}

TEST_F(Portrait, ThePointerNamesAnEmptyOne) {
    visit.hover("Picture_PHOTO");
    EXPECT_EQ(visit.text("Picture_PHOTO.ToolTipText"), "Seigneur Ganesha");
    EXPECT_EQ(visit.text("fichier_photo"), "Seigneur Ganesha");
    EXPECT_EQ(visit.diskette(), "Diskette(0)");
    visit.double_click("Picture_PHOTO");
    EXPECT_EQ(visit.text("fichier_photo"), "");
}

TEST_F(Portrait, BeginningAnewTakesItAway) {
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "zoe.jpg");
    visit.double_click("File_Fichier");
    visit.click("Command_reset");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "Image_Ganesha");
    EXPECT_EQ(visit.text("fichier_photo"), "");
}

TEST_F(Portrait, ADroppedPictureIsCopiedAndTaken) {
    auto const file = outside("photo.JPEG", jpeg(10, 10));
    EXPECT_TRUE(visit.drop_file(file).contains("ok"));
    EXPECT_EQ(visit.text("fichier_photo"), "photo.JPEG");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "file:photo.JPEG");
    EXPECT_EQ(file_content(visit.images() / "photo.JPEG"), jpeg(10, 10));
    EXPECT_TRUE(std::filesystem::exists(file));
    EXPECT_EQ(visit.diskette(), "Diskette(1)");
    EXPECT_TRUE(visit.effects().empty());
}

TEST_F(Portrait, ADroppedPictureNeverReplacesAnother) {
    auto const file = outside("zoe.jpg", gif(10, 10));
    visit.drop_file(file);
    EXPECT_EQ(visit.text("fichier_photo"), "zoe (2).jpg");
    EXPECT_EQ(file_content(visit.images() / "zoe.jpg"), jpeg(260, 180));
    EXPECT_EQ(file_content(visit.images() / "zoe (2).jpg"), gif(10, 10));
    visit.drop_file(file);
    EXPECT_EQ(visit.text("fichier_photo"), "zoe (3).jpg");
    EXPECT_EQ(names_in(visit.images()),
              (std::vector<std::string>{"jean.bmp", "zoe (2).jpg", "zoe (3).jpg", "zoe.jpg"}));
}

TEST_F(Portrait, AFileThatIsNoPictureIsRefusedByAMessage) {
    for (char const* const name : {"notes.txt", "photo.png", "jpg", "photo.jpg.zip"}) {
        visit.drop_file(outside(name, jpeg(10, 10)));
        EXPECT_EQ(visit.effects(),
                  Json::array({message("Ce fichier n'est pas une image !", 2)}))
            << name;
    }
    EXPECT_EQ(names_in(visit.images()), (std::vector<std::string>{"jean.bmp", "zoe.jpg"}));
    EXPECT_EQ(visit.text("fichier_photo"), "");
    EXPECT_EQ(visit.diskette(), "Diskette(0)");
}

TEST_F(Portrait, ADropWhileThePanelIsOpenClosesItAsAChoiceDoes) {
    visit.click("Bouton_Image");
    visit.drop_file(outside("photo.gif", gif(10, 10)));
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
}

// The record can only hold letters of its code page; the portrait must be found by them again.
TEST_F(Portrait, ADroppedPictureWithForeignLettersIsFoundAgainByItsRecord) {
    visit.name_person("Zoe", "Dupont");
    visit.drop_file(outside("Łódź.jpg", jpeg(10, 10)));
    visit.save();
    visit.load("Dupont Zoe.fcy");
    EXPECT_TRUE(visit.value("fichier_photo").is_string()) << visit.value("fichier_photo");
    EXPECT_TRUE(visit.text("Picture_PHOTO.Picture").starts_with("file:"));
}

TEST_F(Portrait, AChosenPictureWithForeignLettersIsFoundAgainByItsRecord) {
    put_file(visit.images() / "Łódź.jpg", jpeg(10, 10));
    visit.name_person("Zoe", "Dupont");
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "Łódź.jpg");
    visit.double_click("File_Fichier");
    EXPECT_EQ(visit.text("fichier_photo"), "Lódz.jpg");
    EXPECT_EQ(file_content(visit.images() / "Łódź.jpg"), jpeg(10, 10));
    visit.save();
    visit.load("Dupont Zoe.fcy");
    EXPECT_EQ(visit.text("fichier_photo"), "Lódz.jpg");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "file:Lódz.jpg");
}

// A double quote would end the field of the record.
TEST_F(Portrait, ADroppedPictureWithAQuoteInItsNameNeverSpoilsTheRecord) {
    visit.name_person("Zoe", "Dupont");
    Json const dropped = visit.drop_file(outside("la \"photo\".jpg", jpeg(10, 10)));
    if (visit.exit_status()) {  // refused, as a record of such a name is
        EXPECT_NE(report_of(dropped).find("la \"photo\".jpg"), std::string::npos);
        return;
    }
    visit.set("Text_Note", "la note");
    visit.save();
    visit.load("Dupont Zoe.fcy");
    EXPECT_EQ(visit.exit_status(), std::nullopt);
    EXPECT_EQ(visit.text("Text_Note.Text"), "la note");
    EXPECT_TRUE(visit.text("Picture_PHOTO.Picture").starts_with("file:"));
}

TEST_F(Portrait, AChosenPictureWithAQuoteInItsNameNeverSpoilsTheRecord) {
    put_file(visit.images() / "la \"photo\".jpg", jpeg(10, 10));
    visit.name_person("Zoe", "Dupont");
    visit.set("Text_Note", "la note");
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "la \"photo\".jpg");
    visit.double_click("File_Fichier");
    EXPECT_EQ(visit.text("fichier_photo"), "la _photo_.jpg");
    visit.save();
    visit.load("Dupont Zoe.fcy");
    EXPECT_EQ(visit.exit_status(), std::nullopt);
    EXPECT_EQ(visit.text("Text_Note.Text"), "la note");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "file:la _photo_.jpg");
}

TEST_F(Portrait, AFileThatWentAwayBeforeTheDropEndsTheRun) {
    auto const answer = visit.fatal({{"op", "drop"},
                                     {"control", "Picture_PHOTO"},
                                     {"file", (visit.folder() / "partie.jpg").string()}});
    EXPECT_NE(report_of(answer).find("partie.jpg"), std::string::npos);
}

TEST_F(Portrait, AnotherControlTakesNoFiles) {
    EXPECT_EQ(visit.ask({{"op", "drop"},
                         {"control", "Text_nom"},
                         {"file", outside("photo.gif", gif(1, 1)).string()}})["error"],
              "refused");
}

TEST_F(Portrait, AChosenFileWithoutAHeaderEndsTheRun) {
    put_file(visit.images() / "vide.jpg", "");
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "vide.jpg");
    auto const answer = visit.fatal_double_click("File_Fichier");
    EXPECT_NE(report_of(answer).find("vide.jpg"), std::string::npos);
}

// What is rescued then must not end the next run too, when it is loaded.
TEST_F(Portrait, AChosenFileThatCannotBeShownIsNotThePortraitOfWhatIsRescued) {
    put_file(visit.images() / "vide.jpg", "");
    visit.name_person("Zoe", "Dupont");
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "vide.jpg");
    visit.fatal_double_click("File_Fichier");
    EXPECT_EQ(visit.record("SAUVETAGE.fcy"),
              "\"Zoe\",\"Dupont\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"\"\r\n");
}

TEST_F(Portrait, AChosenFileThatWentAwayEndsTheRun) {
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "zoe.jpg");
    std::filesystem::remove(visit.images() / "zoe.jpg");
    visit.fatal_double_click("File_Fichier");
}

TEST_F(Portrait, TheHeaderCountsNotTheEnding) {
    put_file(visit.images() / "faux.jpg", gif(30, 20));
    visit.click("Bouton_Image");
    visit.choose("File_Fichier", "faux.jpg");
    visit.double_click("File_Fichier");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "file:faux.jpg");
}

}  // namespace

}  // namespace navarun::test
