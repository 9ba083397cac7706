// A consultation becomes a record: its name, its bytes, what the screen says.
#include <ostream>

#include "tests/files/practice.h"

namespace navarun::test {

namespace {

struct NamingCase {
    char const* name;
    char const* first_name;  // typed
    char const* last_name;
    char const* record;
    char const* shown_first_name;  // after the save
    char const* shown_last_name;
    friend std::ostream& operator<<(std::ostream& out, NamingCase const& row) {
        return out << row.name;
    }
};
constexpr NamingCase naming_cases[] = {
    {"last_name_first", "Marie", "Dupont", "Dupont Marie.fcy", "Marie", "Dupont"},
    {"nobody", "", "", "01_01_1900 Consultant.fcy", "Consultant", "01_01_1900"},
    {"only_a_last_name", "", "Dupont", "Dupont 01_01_1900.fcy", "01_01_1900", "Dupont"},
    {"only_a_first_name", "Marie", "", "01_01_1900 Marie.fcy", "Marie", "01_01_1900"},
    {"accents_are_kept", "Zoë", "Éluard", "Éluard Zoë.fcy", "Zoë", "Éluard"},
    {"a_comma_is_safe", "A, B", "C", "C A, B.fcy", "A, B", "C"},
    {"leading_blanks_are_kept", "  Marie", "Dupont", "Dupont   Marie.fcy", "  Marie", "Dupont"},
    {"a_blank_is_a_name", " ", " ", "   .fcy", " ", " "},
    {"ends_in_a_dot", "Jean.", "Dr.", "Dr. Jean..fcy", "Jean.", "Dr."},
    {"ends_in_a_blank", "Jean ", "Dupont ", "Dupont  Jean .fcy", "Jean ", "Dupont "},
    {"beyond_the_page", "Łucja", "Őry", "Ory Lucja.fcy", "Lucja", "Ory"},
};

class Naming : public testing::TestWithParam<NamingCase> {};
TEST_P(Naming, TheRecordBearsTheNamesAndTheScreenShowsThem) {
    auto const& row = GetParam();
    Practice visit;
    visit.name_person(row.first_name, row.last_name);
    visit.save();
    EXPECT_EQ(names_in(visit.data(1)), std::vector<std::string>{row.record});
    EXPECT_TRUE(names_in(visit.data(2)).empty());
    EXPECT_EQ(visit.text("Text_prenom.Text"), row.shown_first_name);
    EXPECT_EQ(visit.text("Text_nom.Text"), row.shown_last_name);
    EXPECT_EQ(visit.text("chemin_fichier"), std::string{"RESSOURCES/DATA1/"} + row.record);
}
INSTANTIATE_TEST_SUITE_P(Persons, Naming, testing::ValuesIn(naming_cases),
                         [](auto const& row) { return row.param.name; });

TEST(Saving, WritesNineFieldsInTheCodePage) {
    Practice visit;
    visit.name_person("Zoë", "Dupont");
    visit.type("Combo_jourNaiss", "07031952");
    visit.set("Text_Note", "Œuvre, 3 €\r\ndeux\r\n");
    visit.save();
    EXPECT_EQ(visit.record("Dupont Zoë.fcy"),
              "\"Zo\xEB\",\"Dupont\",\"07\",\"03\",\"19\",\"52\",0,\"\","
              "\"\x8Cuvre, 3 \x80\r\ndeux\r\n\"\r\n");
}

TEST(Saving, WritesTheJulianFlagAsABareDigit) {
    Practice visit;
    visit.name_person("Zoé", "Dupont");
    visit.generate_for("01011950");
    visit.click("Mnu_Julien");
    visit.save();
    EXPECT_EQ(visit.record("Dupont Zoé.fcy"),
              "\"Zo\xE9\",\"Dupont\",\"01\",\"01\",\"19\",\"50\",1,\"\",\"\"\r\n");
}

TEST(Saving, AsksByNameAndDateAndSaysSo) {
    Practice visit;
    visit.name_person("Marie", "Dupont");
    visit.type("Combo_jourNaiss", "17051962");
    visit.effects();
    visit.save();
    EXPECT_EQ(
        visit.effects(),
        (Json{box("SAUVEGARDER", "VOULEZ-VOUS SAUVER: \r\nMarie Dupont\r\n17/05/1962 ?", 1),
              message("Sauvegarde OK !", 1)}));
    EXPECT_EQ(visit.text("Label_message.Caption"), "Sauvegarde OK !");
    EXPECT_FALSE(visit.truth("frame_messageSauve.Visible"));
}

// The question is asked before the missing names are filled in.
TEST(Saving, AsksWithTheNamesAsTheyStand) {
    Practice visit;
    visit.effects();
    visit.save();
    EXPECT_EQ(visit.effects()[0],
              box("SAUVEGARDER", "VOULEZ-VOUS SAUVER: \r\n \r\n01/01/1900 ?", 1));
}

TEST(Saving, DeclinedWritesNothingAndFillsInNothing) {
    Practice visit;
    visit.answer_next_box(2);
    visit.save();
    EXPECT_TRUE(names_in(visit.data(1)).empty());
    EXPECT_EQ(visit.text("Text_prenom.Text"), "");
    EXPECT_EQ(visit.text("Text_nom.Text"), "");
    EXPECT_EQ(visit.text("chemin_fichier"), "RESSOURCES/INTERNET.DAT");
}

TEST(Saving, TwiceReplacesWithoutAsking) {
    Practice visit;
    visit.name_person("Marie", "Dupont");
    visit.set("Text_Note", "une longue note");
    visit.save();
    visit.set("Text_Note", "courte");
    visit.effects();
    visit.save();
    EXPECT_EQ(visit.effects().size(), 2U);
    EXPECT_EQ(names_in(visit.data(1)), std::vector<std::string>{"Dupont Marie.fcy"});
    EXPECT_TRUE(visit.record("Dupont Marie.fcy").ends_with(",\"courte\"\r\n"));
}

TEST(Saving, LeavesTheDisketteRedUntilTheNextLoad) {
    Practice visit;
    EXPECT_EQ(visit.diskette(), "Diskette(0)");
    visit.name_person("Marie", "Dupont");
    EXPECT_EQ(visit.diskette(), "Diskette(1)");
    visit.save();
    EXPECT_EQ(visit.diskette(), "Diskette(1)");
    visit.load("Dupont Marie.fcy");
    EXPECT_EQ(visit.diskette(), "Diskette(0)");
}

TEST(Saving, GoesToTheActiveFolder) {
    Practice visit;
    visit.open_browser(2);
    visit.name_person("Marie", "Dupont");
    visit.save();
    EXPECT_TRUE(names_in(visit.data(1)).empty());
    EXPECT_EQ(names_in(visit.data(2)), std::vector<std::string>{"Dupont Marie.fcy"});
    EXPECT_EQ(visit.list(), std::vector<std::string>{"Dupont Marie.fcy"});
}

// The list is read anew, and what stood selected in it no longer does.
TEST(Saving, ShowsTheNewRecordInTheOpenListWithoutASelection) {
    Practice visit;
    visit.put("Adam Zoé.fcy", record_of("Zoe", "Adam"));
    visit.open_browser();
    visit.choose("File_Fichier", "Adam Zoé.fcy");
    EXPECT_EQ(visit.text("fichier_selectionne"), "Adam Zoé.fcy");
    visit.name_person("Marie", "Dupont");
    visit.save();
    EXPECT_EQ(visit.list(), (std::vector<std::string>{"Adam Zoé.fcy", "Dupont Marie.fcy"}));
    EXPECT_EQ(visit.number("File_Fichier.ListIndex"), -1);
    EXPECT_EQ(visit.text("fichier_selectionne"), "");
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
}

// Leaving the field for the diskette gives the last name its capital too.
TEST(Saving, NamesTypedInSmallLettersAreSavedWithTheirCapitals) {
    Practice visit;
    visit.name_person("marie", "dupont");
    visit.save();
    EXPECT_EQ(names_in(visit.data(1)), std::vector<std::string>{"Dupont Marie.fcy"});
    EXPECT_TRUE(visit.record("Dupont Marie.fcy").starts_with("\"Marie\",\"Dupont\","));
}

// The folder went away under the program: nothing can be kept there, and the report says so.
TEST(SavingIntoNothing, AFolderThatVanishedTellsThatNothingCouldBeKept) {
    Practice visit;
    visit.name_person("Zoe", "Adam");
    std::filesystem::remove_all(visit.data(1));
    std::string const report = report_of(visit.fatal_click("Command_Disk_Vert"));
    EXPECT_NE(report.find("L'écriture du fichier « Adam Zoe.fcy » a échoué."),
              std::string::npos)
        << report;
    EXPECT_NE(report.find("La consultation à l'écran n'a pas pu être gardée"),
              std::string::npos)
        << report;
    EXPECT_EQ(visit.exit_status(), 1);
}

struct RefusedCase {
    char const* name;
    char const* last_name;
    friend std::ostream& operator<<(std::ostream& out, RefusedCase const& row) {
        return out << row.name;
    }
};
constexpr RefusedCase refused_cases[] = {
    {"stroke", "Du/pont"},
    {"parent_folder", "../Dupont"},
    {"backslash", "Du\\pont"},
    {"colon", "Du:pont"},
    {"star", "Du*pont"},
    {"question_mark", "Dupont?"},
    {"double_quote", "Du\"pont"},
    {"below", "<Dupont"},
    {"above", "Dupont>"},
    {"bar", "Du|pont"},
    {"letter_of_no_page", "Ωmega"},
    {"tab", "Du\tpont"},
};

class RefusedName : public testing::TestWithParam<RefusedCase> {};
TEST_P(RefusedName, EndsTheRunAndKeepsTheConsultation) {
    Practice visit;
    visit.put("Adam Zoe.fcy", record_of("Zoe", "Adam"));
    visit.set("Text_prenom", "Marie");
    visit.ask({{"op", "set"}, {"control", "Text_nom"}, {"value", GetParam().last_name}});
    visit.set("Text_Note", "une note");
    std::string const shown = visit.text("Text_nom.Text");
    std::string const first_name = visit.text("Text_prenom.Text");

    Json const answer = visit.fatal_click("Command_Disk_Vert");
    EXPECT_NE(report_of(answer).find("SAUVETAGE.fcy"), std::string::npos) << answer;
    EXPECT_EQ(names_in(visit.data(1)),
              (std::vector<std::string>{"Adam Zoe.fcy", "SAUVETAGE.fcy"}));
    EXPECT_EQ(visit.record("Adam Zoe.fcy"), record_of("Zoe", "Adam"));
    EXPECT_EQ(visit.record("SAUVETAGE.fcy"),
              "\"" + first_name + "\",\"" + shown +
                  "\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"une note\"\r\n");
    EXPECT_TRUE(names_in(visit.data(2)).empty());
    EXPECT_EQ(
        names_in(visit.folder() / "RESSOURCES"),
        (std::vector<std::string>{"CONFIG.CFG", "DATA1", "DATA2", "IMAGE", "INTERNET.DAT"}));
}
INSTANTIATE_TEST_SUITE_P(Signs, RefusedName, testing::ValuesIn(refused_cases),
                         [](auto const& row) { return row.param.name; });

TEST(Rescue, TakesAFreeName) {
    Practice visit;
    visit.put("SAUVETAGE.fcy", "premier");
    visit.put("SAUVETAGE (2).fcy", "second");
    visit.name_person("Marie", "a/b");
    Json const answer = visit.fatal_click("Command_Disk_Vert");
    EXPECT_NE(report_of(answer).find("SAUVETAGE (3).fcy"), std::string::npos);
    EXPECT_EQ(visit.record("SAUVETAGE.fcy"), "premier");
    EXPECT_EQ(visit.record("SAUVETAGE (2).fcy"), "second");
    EXPECT_NE(visit.record("SAUVETAGE (3).fcy"), "");
}

// With a green diskette there is nothing to lose: the record is on the disk.
TEST(Rescue, KeepsNothingWhereTheDisketteIsGreen) {
    Practice visit;
    visit.open_browser();
    visit.put("Adam Zoe.fcy", "\"Zoe\"");
    visit.click("Charge(1)");
    visit.open_browser();
    visit.choose("File_Fichier", "Adam Zoe.fcy");
    visit.fatal_double_click("File_Fichier");
    EXPECT_EQ(names_in(visit.data(1)), std::vector<std::string>{"Adam Zoe.fcy"});
}

TEST(Rescue, SaysWhereItFailsToo) {
    Practice visit;
    visit.name_person("Marie", "Dupont");
    std::filesystem::remove_all(visit.data(1));
    Json const answer = visit.fatal_click("Command_Disk_Vert");
    EXPECT_NE(report_of(answer).find("n'a pas pu être gardée"), std::string::npos) << answer;
}

TEST(Rescue, TheReportNamesWhatFailedTheFileAndTheReason) {
    Practice visit;
    visit.name_person("Marie", "Dupont");
    std::filesystem::remove_all(visit.data(1));
    std::string const report = report_of(visit.fatal_click("Command_Disk_Vert"));
    EXPECT_NE(report.find("L'écriture"), std::string::npos) << report;
    EXPECT_NE(report.find("Dupont Marie.fcy"), std::string::npos) << report;
    EXPECT_NE(report.find("n'existe pas"), std::string::npos) << report;
}

// A name of many accented letters is longer in the folder than on the screen.
TEST(Saving, NamesOf25AccentedLettersAreSavedAndFoundAgain) {
    std::string letters = "É";
    for (int i = 1; i < 25; ++i) letters += "é";
    Practice visit;
    visit.name_person(letters, letters);
    visit.save();
    EXPECT_EQ(names_in(visit.data(1)),
              std::vector<std::string>{letters + " " + letters + ".fcy"});
    visit.name_person("x", "y");
    visit.load(letters + " " + letters + ".fcy");
    EXPECT_EQ(visit.text("Text_prenom.Text"), letters);
    EXPECT_EQ(visit.text("Text_nom.Text"), letters);
}

// A second program, or a click while the message stands: the record is complete by then.
TEST(Saving, ALoadDuringTheMessageFindsTheWholeRecord) {
    Practice visit;
    visit.put("Adam Zoe.fcy", record_of("Zoe", "Adam"));
    visit.name_person("Marie", "Dupont");
    visit.ask({{"op", "during-pause"},
               {"requests",
                {{{"op", "click"}, {"control", "Charge(1)"}},
                 {{"op", "choose"}, {"control", "File_Fichier"}, {"item", "Dupont Marie.fcy"}},
                 {{"op", "dblclick"}, {"control", "File_Fichier"}}}}});
    visit.save();
    EXPECT_EQ(visit.text("Text_nom.Text"), "Dupont");
    EXPECT_EQ(visit.diskette(), "Diskette(0)");
}

TEST(Saving, MidnightDuringTheMessageEndsTheRunWithTheRecordWritten) {
    Practice visit{"21/11/2026", "23:59:59"};
    visit.name_person("Marie", "Dupont");
    visit.fatal_click("Command_Disk_Vert");
    EXPECT_EQ(visit.record("Dupont Marie.fcy"),
              "\"Marie\",\"Dupont\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"\"\r\n");
}

}  // namespace

}  // namespace navarun::test
