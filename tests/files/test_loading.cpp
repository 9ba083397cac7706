// A record becomes a consultation again: fields, calendar, portrait, grid.
#include "tests/files/pictures.h"
#include "tests/files/practice.h"

namespace navarun::test {

namespace {

std::string line(std::string_view names, std::string_view date, std::string_view rest) {
    std::string bytes{names};
    return bytes.append(",").append(date).append(",").append(rest).append("\r\n");
}

TEST(Loading, PutsTheFieldsBack) {
    Practice visit;
    visit.put("Dupont Zoë.fcy",
              "\"Zo\xEB\",\"Dupont\",\"07\",\"03\",\"19\",\"52\",0,\"\",\"une\r\ndeux\"\r\n");
    visit.load("Dupont Zoë.fcy");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "Zoë");
    EXPECT_EQ(visit.text("Text_nom.Text"), "Dupont");
    EXPECT_EQ(visit.text("Combo_jourNaiss.Text"), "07");
    EXPECT_EQ(visit.text("Combo_moisNaiss.Text"), "03");
    EXPECT_EQ(visit.text("Combo_AnNaiss1.Text"), "19");
    EXPECT_EQ(visit.text("Combo_AnNaiss2.Text"), "52");
    EXPECT_EQ(visit.text("date_naissance"), "07/03/1952");
    EXPECT_EQ(visit.text("Text_Note.Text"), "une\r\ndeux");
    EXPECT_EQ(visit.text("prenom_lu"), "Zoë");
    EXPECT_EQ(visit.text("nom_lu"), "Dupont");
    EXPECT_FALSE(visit.truth("Mnu_Julien.Checked"));
}

TEST(Loading, ClosesThePanelAndMarksTheConsultationSaved) {
    Practice visit;
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Dupont"));
    visit.open_browser();
    visit.type("Text_Cherche", "dup");
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), 0);
    visit.double_click("File_Fichier");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
    EXPECT_EQ(visit.text("Text_Cherche.Text"), "");
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Initialise");
    EXPECT_EQ(visit.diskette(), "Diskette(0)");
    EXPECT_TRUE(visit.truth("Command_Disk_Vert.Enabled"));
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
    EXPECT_TRUE(visit.truth("MnuImprime.Enabled"));
}

// Nothing computed is stored, so a load computes what typing and generating compute.
TEST(Loading, ShowsTheGridOfTheSamePersonTypedAndGenerated) {
    struct Person {
        char const* digits;
        char const* fields;
    };
    for (auto const& [digits, fields] : {Person{"17051962", "\"17\",\"05\",\"19\",\"62\""},
                                         Person{"29022000", "\"29\",\"02\",\"20\",\"00\""},
                                         Person{"31121899", "\"31\",\"12\",\"18\",\"99\""},
                                         Person{"15102150", "\"15\",\"10\",\"21\",\"50\""}}) {
        Practice typed;
        typed.name_person("Zoe", "Dupont");
        // The first digit of the day goes last, so that a 29 February finds its year.
        typed.type("Combo_AnNaiss1", std::string{digits}.substr(4, 2));
        typed.type("Combo_AnNaiss2", std::string{digits}.substr(6, 2));
        typed.type("Combo_moisNaiss", std::string{digits}.substr(2, 2));
        typed.type("Combo_jourNaiss", std::string{digits}.substr(0, 2));
        typed.click("Command2");
        Practice loaded;
        loaded.put("Dupont Zoe.fcy", line("\"Zoe\",\"Dupont\"", fields, "0,\"\",\"\""));
        loaded.load("Dupont Zoe.fcy");
        auto const one = typed.dump();
        auto const other = loaded.dump();
        for (auto const& [control, properties] : one.items()) {
            bool const grid = control.starts_with("Label_") || control.starts_with("Text_") ||
                              control.starts_with("Combo_") ||
                              control.starts_with("HScroll_age");
            bool const of_the_browser = control == "Label_Nbr_Fiche" ||
                                        control == "Label_deplace" ||
                                        control == "Label_message";
            if (!grid || of_the_browser) continue;
            for (auto const& [property, value] : properties.items()) {
                // The box of the former sun's cell stays until a load takes it off.
                bool const box = property == "Border" || property == "Opaque";
                if (box && control.starts_with("Label_Solaire")) continue;
                EXPECT_EQ(value, other[control][property])
                    << control << "." << property << " of " << digits;
            }
        }
        for (char const* const state :
             {"palais_index", "numero_nakshatra", "colonne_age", "colonne_dasha",
              "colonne_mois", "seigneur_an", "seigneur_jour", "dinanka", "purnanka",
              "date_naissance", "genre_trideva"}) {
            EXPECT_EQ(typed.value(state), loaded.value(state)) << state << " of " << digits;
        }
    }
}

TEST(Loading, RestoresTheJulianMarkLast) {
    Practice visit;
    visit.put("Dupont Zoe.fcy",
              line("\"Zoe\",\"Dupont\"", "\"01\",\"01\",\"19\",\"50\"", "1,\"\",\"\""));
    visit.load("Dupont Zoe.fcy");
    EXPECT_TRUE(visit.truth("Mnu_Julien.Checked"));
    EXPECT_EQ(visit.number("julien_actif"), 1);
    EXPECT_EQ(visit.text("date_convertie"), "14/01/1950");

    Practice typed;
    typed.name_person("Zoe", "Dupont");
    typed.generate_for("01011950");
    typed.click("Mnu_Julien");
    typed.click("Command2");
    for (char const* const state : {"palais_index", "numero_nakshatra", "seigneur_jour"}) {
        EXPECT_EQ(visit.value(state), typed.value(state)) << state;
    }
}

TEST(Loading, AGregorianRecordTakesTheJulianMarkOff) {
    Practice visit;
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Dupont"));
    visit.generate_for("01011950");
    visit.click("Mnu_Julien");
    visit.load("Dupont Zoe.fcy");
    EXPECT_FALSE(visit.truth("Mnu_Julien.Checked"));
    EXPECT_EQ(visit.number("julien_actif"), 0);
}

TEST(Loading, AnyFlagButZeroChecksTheMark) {
    Practice visit;
    visit.put("Dupont Zoe.fcy",
              line("\"Zoe\",\"Dupont\"", "\"01\",\"01\",\"19\",\"50\"", "255,\"\",\"\""));
    visit.load("Dupont Zoe.fcy");
    EXPECT_TRUE(visit.truth("Mnu_Julien.Checked"));
    EXPECT_EQ(visit.number("julien_actif"), 255);
}

TEST(Loading, ASavedJulianRecordComesBackJulianAndIsSavedAlike) {
    Practice visit;
    visit.name_person("Zoe", "Dupont");
    visit.generate_for("01011950");
    visit.click("Mnu_Julien");
    visit.save();
    auto const saved = visit.record("Dupont Zoe.fcy");
    visit.click("Command_reset");
    visit.load("Dupont Zoe.fcy");
    EXPECT_TRUE(visit.truth("Mnu_Julien.Checked"));
    visit.save();
    EXPECT_EQ(visit.record("Dupont Zoe.fcy"), saved);
}

TEST(Loading, OfSeveralRecordsTheLastStaysOnTheScreen) {
    Practice visit;
    visit.put("a.fcy", record_of("Un", "Premier", "", "note 1") +
                           record_of("Deux", "Second", "", "note 2") +
                           record_of("Trois", "Dernier"));
    visit.load("a.fcy");
    EXPECT_EQ(visit.text("Text_prenom.Text"), "Trois");
    EXPECT_EQ(visit.text("Text_nom.Text"), "Dernier");
    EXPECT_EQ(visit.text("Text_Note.Text"), "");
}

TEST(Loading, CutsTheTrailingBlanksOfTheNoteOnTheScreenAlone) {
    Practice visit;
    visit.put("a.fcy", record_of("Zoe", "Dupont", "", "  un  \r\ndeux   "));
    visit.load("a.fcy");
    EXPECT_EQ(visit.text("Text_Note.Text"), "  un  \r\ndeux");
    EXPECT_EQ(visit.text("note_consultant"), "  un  \r\ndeux   ");
}

TEST(Loading, KeepsALineBreakAtTheEndOfTheNote) {
    Practice visit;
    visit.put("a.fcy", record_of("Zoe", "Dupont", "", "un\r\ndeux\r\n"));
    visit.load("a.fcy");
    EXPECT_EQ(visit.text("Text_Note.Text"), "un\r\ndeux\r\n");
}

TEST(Loading, AFileOfLineEndsOfAnotherSystemIsReadAlike) {
    Practice visit;
    visit.put("a.fcy", "  \"Zoe\", \"Dupont\"\n\"17\"\n\"05\"\n19,62\n 0 ,\"\",\"note\"\n");
    visit.load("a.fcy");
    EXPECT_EQ(visit.text("Text_nom.Text"), "Dupont");
    EXPECT_EQ(visit.text("date_naissance"), "17/05/1962");
    EXPECT_EQ(visit.text("Text_Note.Text"), "note");
}

TEST(Loading, NamesLongerThanTheFieldsArePutInWhole) {
    std::string const name(60, 'a');
    Practice visit;
    visit.put("a.fcy", record_of(name, name));
    visit.load("a.fcy");
    EXPECT_EQ(visit.text("Text_prenom.Text"), name);
    EXPECT_EQ(visit.text("Text_nom.Text"), name);
}

TEST(Loading, PreparesTheReadingOfTheInitials) {
    Practice visit;
    visit.put("a.fcy", record_of("marie-claire", "dupont"));
    visit.load("a.fcy");
    std::string const reading = visit.text("texte_initiales");
    auto const first = reading.find("M - ACTIVITÉS");
    auto const second = reading.find("C -intuition");
    auto const third = reading.find("D - EXTRAVERSION");
    EXPECT_EQ(first, 0U);
    EXPECT_LT(first, second);
    EXPECT_LT(second, third);
    EXPECT_NE(third, std::string::npos);
    EXPECT_TRUE(reading.ends_with(".\r\n\r\n"));
}

// An initial without a text of its own repeats the one before, of the previous person even.
TEST(Loading, AnAccentedInitialRepeatsTheTextBefore) {
    Practice visit;
    visit.put("a.fcy", record_of("\xC9mile", "Dupont"));
    visit.put("b.fcy", record_of("Paul", "Zola"));
    visit.load("a.fcy");
    EXPECT_TRUE(visit.text("texte_initiales").starts_with("\r\n\r\nD - EXTRAVERSION"));
    visit.load("b.fcy");
    visit.load("a.fcy");
    EXPECT_TRUE(visit.text("texte_initiales").starts_with("Z - SENS DE LA MATIÈRE"));
}

TEST(Loading, ANamelessRecordSaysSoForAMomentAndShowsTheWeekdayAgain) {
    Practice visit;
    visit.put("a.fcy", record_of("", ""));
    visit.effects();
    visit.ask({{"op", "during-pause"},
               {"requests", {{{"op", "get"}, {"names", {"Text_jourdeSemaine.Text"}}}}}});
    visit.open_browser();
    visit.choose("File_Fichier", "a.fcy");
    Json const answer = visit.ask({{"op", "dblclick"}, {"control", "File_Fichier"}});
    EXPECT_EQ(answer["during"][0]["values"]["Text_jourdeSemaine.Text"],
              "Aucun prénom ou nom !");
    EXPECT_EQ(visit.effects(), (Json{{{"kind", "pause"}, {"seconds", 1.5}}}));
    EXPECT_NE(visit.text("Text_jourdeSemaine.Text"), "Aucun prénom ou nom !");
    EXPECT_EQ(visit.text("texte_initiales"), "");
}

TEST(Loading, TakesTheBoxesOfTheColouredViewOff) {
    Practice visit;
    visit.put("a.fcy", record_of("Zoe", "Dupont"));
    visit.click("Command_categorie");
    visit.load("a.fcy");
    auto const sun = visit.number("palais_index");
    for (int cell = 1; cell <= 12; ++cell) {
        auto const name = "Label_Solaire(" + std::to_string(cell) + ").Border";
        EXPECT_EQ(visit.truth(name), cell == sun) << cell;
    }
}

TEST(Loading, ADateThatIsNoneStopsBeforeTheComputation) {
    Practice visit;
    visit.put("a.fcy", line("\"Zoe\",\"Dupont\"", "\"\",\"\",\"\",\"\"", "0,\"\",\"note\""));
    visit.put("b.fcy", record_of("Jean", "Martin"));
    visit.load("b.fcy");
    auto const mansion = visit.text("Label_nomNakshatra.Caption");
    visit.effects();
    visit.load("a.fcy");
    EXPECT_EQ(visit.effects(), Json::array({box("Erreur", "Date de naissance invalide !", 1)}));
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_EQ(visit.text("Label_nomNakshatra.Caption"), mansion);
    EXPECT_EQ(visit.text("Text_nom.Text"), "Dupont");
    EXPECT_EQ(visit.text("Text_Note.Text"), "note");
    EXPECT_FALSE(visit.truth("MnuImprime.Enabled"));
}

TEST(Loading, ADateBeyondItsRangeIsRepairedByTheFields) {
    Practice visit;
    visit.put("a.fcy",
              line("\"Zoe\",\"Dupont\"", "\"45\",\"13\",\"99\",\"52\"", "0,\"\",\"\""));
    visit.effects();
    visit.load("a.fcy");
    EXPECT_TRUE(visit.effects().empty());
    EXPECT_EQ(visit.text("date_naissance"), "31/12/2152");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "VERT");
}

TEST(Loading, OpenedTwiceShowsTheSame) {
    Practice visit;
    visit.put("a.fcy", record_of("Zoe", "Dupont", "", "note"));
    visit.load("a.fcy");
    auto const once = visit.dump();
    visit.load("a.fcy");
    EXPECT_EQ(visit.dump(), once);
}

// Portraits of records.

TEST(RecordPortrait, IsShownWhereItsFileStands) {
    Practice visit;
    put_file(visit.images() / "zoe.jpg", jpeg(100, 50));
    visit.put("a.fcy", record_of("Zoe", "Dupont", "zoe.jpg"));
    visit.load("a.fcy");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "file:zoe.jpg");
    EXPECT_EQ(visit.text("fichier_photo"), "zoe.jpg");
}

TEST(RecordPortrait, NoneIsGanesha) {
    Practice visit;
    put_file(visit.images() / "zoe.jpg", jpeg(100, 50));
    visit.put("a.fcy", record_of("Zoe", "Dupont", "zoe.jpg"));
    visit.put("b.fcy", record_of("Jean", "Martin"));
    visit.load("a.fcy");
    visit.load("b.fcy");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "Image_Ganesha");
    EXPECT_EQ(visit.text("fichier_photo"), "");
}

TEST(RecordPortrait, ThatIsGoneBecomesATruthValueAndIsSavedAsOne) {
    Practice visit;
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Dupont", "partie.jpg"));
    visit.load("Dupont Zoe.fcy");
    EXPECT_EQ(visit.value("fichier_photo"), Json(true));
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "Image_Ganesha");
    visit.save();
    EXPECT_EQ(visit.record("Dupont Zoe.fcy"),
              "\"Zoe\",\"Dupont\",\"17\",\"05\",\"19\",\"62\",0,#TRUE#,\"\"\r\n");
    // The word is looked for as a file, is none, and goes the same way.
    visit.load("Dupont Zoe.fcy");
    EXPECT_EQ(visit.value("fichier_photo"), Json(true));
    visit.save();
    EXPECT_TRUE(visit.record("Dupont Zoe.fcy").ends_with(",0,#TRUE#,\"\"\r\n"));
}

// The box keeps the portrait before, so the record is marked by the other truth value.
TEST(RecordPortrait, ThatIsGoneAfterAnotherPortraitBecomesFalse) {
    Practice visit;
    put_file(visit.images() / "zoe.jpg", jpeg(100, 50));
    visit.put("a.fcy", record_of("Zoe", "Dupont", "zoe.jpg"));
    visit.put("Martin Jean.fcy", record_of("Jean", "Martin", "partie.jpg"));
    visit.load("a.fcy");
    visit.load("Martin Jean.fcy");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "file:zoe.jpg");
    EXPECT_EQ(visit.value("fichier_photo"), Json(false));
    visit.save();
    EXPECT_TRUE(visit.record("Martin Jean.fcy").ends_with(",0,#FALSE#,\"\"\r\n"));
}

TEST(RecordPortrait, AFileNamedAsTheTruthValueIsItsPortrait) {
    Practice visit;
    put_file(visit.images() / "#TRUE#", gif(10, 10));
    visit.put("a.fcy", "\"Zoe\",\"Dupont\",\"17\",\"05\",\"19\",\"62\",0,#TRUE#,\"\"\r\n");
    visit.load("a.fcy");
    EXPECT_EQ(visit.text("fichier_photo"), "#TRUE#");
    EXPECT_EQ(visit.text("Picture_PHOTO.Picture"), "file:#TRUE#");
}

TEST(RecordPortrait, ThePointerOverAnEmptyOneNamesItInTheRecordItself) {
    Practice visit;
    visit.name_person("Zoe", "Dupont");
    visit.hover("Picture_PHOTO");
    EXPECT_EQ(visit.text("fichier_photo"), "Seigneur Ganesha");
    EXPECT_EQ(visit.text("Picture_PHOTO.ToolTipText"), "Seigneur Ganesha");
    visit.save();
    EXPECT_EQ(visit.record("Dupont Zoe.fcy"),
              "\"Zoe\",\"Dupont\",\"01\",\"01\",\"19\",\"00\",0,\"Seigneur Ganesha\",\"\"\r\n");
    visit.load("Dupont Zoe.fcy");
    EXPECT_EQ(visit.value("fichier_photo"), Json(true));
}

TEST(RecordPortrait, ThePointerTellsTheNameOfAPortrait) {
    Practice visit;
    put_file(visit.images() / "zoe.jpg", jpeg(100, 50));
    visit.put("a.fcy", record_of("Zoe", "Dupont", "zoe.jpg"));
    visit.load("a.fcy");
    visit.hover("Picture_PHOTO");
    EXPECT_EQ(visit.text("Picture_PHOTO.ToolTipText"), "zoe.jpg");
    EXPECT_EQ(visit.text("fichier_photo"), "zoe.jpg");
}

TEST(RecordPortrait, ThePointerLeavesATruthValueAsItIs) {
    Practice visit;
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Dupont", "partie.jpg"));
    visit.load("Dupont Zoe.fcy");
    visit.hover("Picture_PHOTO");
    EXPECT_EQ(visit.value("fichier_photo"), Json(true));
    visit.save();
    EXPECT_TRUE(visit.record("Dupont Zoe.fcy").ends_with(",0,#TRUE#,\"\"\r\n"));
}

TEST(RecordPortrait, AFolderOfThatNameIsNoPortrait) {
    Practice visit;
    std::filesystem::create_directories(visit.images() / "zoe.jpg");
    visit.put("a.fcy", record_of("Zoe", "Dupont", "zoe.jpg"));
    visit.load("a.fcy");
    EXPECT_EQ(visit.value("fichier_photo"), Json(true));
}

TEST(RecordPortrait, AFileThatIsNoPictureEndsTheRun) {
    Practice visit;
    put_file(visit.images() / "zoe.jpg", "ceci n'est pas une image, mais un texte");
    visit.put("a.fcy", record_of("Zoe", "Dupont", "zoe.jpg"));
    visit.open_browser();
    visit.choose("File_Fichier", "a.fcy");
    auto const answer = visit.fatal_double_click("File_Fichier");
    EXPECT_NE(report_of(answer).find("zoe.jpg"), std::string::npos);
    EXPECT_EQ(visit.record("a.fcy"), record_of("Zoe", "Dupont", "zoe.jpg"));
}

}  // namespace

}  // namespace navarun::test
