// Files that no save of this program made: each is read, or ends the run with its report; no
// file changes.
#include <array>
#include <ostream>

#include "tests/files/practice.h"

namespace navarun::test {

namespace {

constexpr char const* good_head = "\"Zoe\",\"Dupont\",\"17\",\"05\",\"19\",\"62\"";

std::string rest(std::string const& bytes) { return good_head + bytes; }

struct BadCase {
    char const* name;
    std::string bytes;
    friend std::ostream& operator<<(std::ostream& out, BadCase const& row) {
        return out << row.name;
    }
};

BadCase const fatal_cases[] = {
    {"eight_fields", rest(",0,\"\"\r\n")},
    {"one_field", "\"Zoe\"\r\n"},
    {"a_line_end_alone", "\r\n"},
    {"flag_is_a_letter", rest(",x,\"\",\"\"\r\n")},
    {"flag_is_300", rest(",300,\"\",\"\"\r\n")},
    {"flag_is_below_zero", rest(",-1,\"\",\"\"\r\n")},
    {"flag_is_a_truth_value", rest(",#TRUE#,\"\",\"\"\r\n")},
    {"flag_is_enormous", rest(",99999999999999999999999,\"\",\"\"\r\n")},
    {"note_without_its_end", rest(",0,\"\",\"une note\r\n")},
    {"a_quote_in_the_note", rest(",0,\"\",\"la \"grande\" note\"\r\n")},
    {"a_quote_at_the_end_of_the_note", rest(",0,\"\",\"note\"\"\r\n")},
    {"a_second_record_cut_off", record_of("Zoe", "Dupont") + "\"Jean\",\"Mar"},
    {"a_first_name_without_its_end", "\"Zoe,Dupont,17,05,19,62,0,,\r\n"},
};

class FatalRecord : public testing::TestWithParam<BadCase> {};
TEST_P(FatalRecord, EndsTheRunWithItsReportAndLosesNothing) {
    Practice visit;
    visit.put("Martin Luc.fcy", record_of("Luc", "Martin"));
    visit.put("a.fcy", GetParam().bytes);
    visit.name_person("Marie", "Nouvelle");
    visit.set("Text_Note", "pas encore gardée");
    visit.open_browser();
    visit.choose("File_Fichier", "a.fcy");
    auto const answer = visit.fatal_double_click("File_Fichier");
    EXPECT_NE(report_of(answer).find("a.fcy"), std::string::npos) << answer;
    EXPECT_EQ(visit.record("a.fcy"), GetParam().bytes);
    EXPECT_EQ(visit.record("Martin Luc.fcy"), record_of("Luc", "Martin"));
    EXPECT_NE(report_of(answer).find("SAUVETAGE.fcy"), std::string::npos) << answer;
    EXPECT_NE(visit.record("SAUVETAGE.fcy"), "");
}
INSTANTIATE_TEST_SUITE_P(Files, FatalRecord, testing::ValuesIn(fatal_cases),
                         [](auto const& row) { return row.param.name; });

// A quote in a name shifts every field that follows, so the record cannot be taken for whole.
TEST(BadRecord, AQuoteInANameNeverLoadsAsAnotherPerson) {
    Practice visit;
    std::string const bytes =
        "\"Jean \"Jojo\" Luc\",\"Dupont\",\"17\",\"05\",\"19\",\"62\",0,\"\",\"note\"\r\n";
    visit.put("a.fcy", bytes);
    visit.open_browser();
    visit.choose("File_Fichier", "a.fcy");
    Json const answer = visit.ask({{"op", "dblclick"}, {"control", "File_Fichier"}});
    EXPECT_EQ(answer.value("error", ""), "fatal")
        << answer << " shows " << visit.text("Text_prenom.Text");
    EXPECT_EQ(visit.record("a.fcy"), bytes);
}

// Digits without end where two are meant: read as the greatest number there is, which no sum
// of days, months and years carries any further.
TEST(BadRecord, AnOverlongDatePartIsNoEndWithoutAReport) {
    std::string const overlong = "\"2999999999\"";
    for (std::size_t part = 0; part < 4; ++part) {
        std::array<std::string, 4> date{"\"17\"", "\"05\"", "\"19\"", "\"62\""};
        date[part] = overlong;
        Practice visit;
        std::string bytes = "\"Zoe\",\"Dupont\"";
        for (auto const& text : date) bytes += "," + text;
        visit.put("a.fcy", bytes += ",0,\"\",\"\"\r\n");
        visit.open_browser();
        visit.choose("File_Fichier", "a.fcy");
        Json const answer = visit.ask({{"op", "dblclick"}, {"control", "File_Fichier"}});
        if (!answer.contains("ok")) {
            EXPECT_NE(report_of(answer), "") << answer;
        }
        EXPECT_EQ(visit.record("a.fcy"), bytes);
    }
}

TEST(BadRecord, AnEmptyFileLeavesThePersonOnTheScreen) {
    Practice visit;
    visit.put("a.fcy", "");
    visit.name_person("Marie", "Nouvelle");
    visit.load("a.fcy");
    EXPECT_EQ(visit.text("Text_nom.Text"), "Nouvelle");
    EXPECT_EQ(visit.text("date_naissance"), "01/01/1900");
    EXPECT_FALSE(visit.truth("Frame_FileFichier.Visible"));
}

TEST(BadRecord, ZeroBytesInsideATextAreCharacters) {
    Practice visit;
    std::string const note("un\0deux", 7);
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Dupont", "", note));
    visit.load("Dupont Zoe.fcy");
    EXPECT_EQ(visit.text("Text_Note.Text"), note);
    visit.save();
    EXPECT_EQ(visit.record("Dupont Zoe.fcy"), record_of("Zoe", "Dupont", "", note));
}

TEST(BadRecord, AFileOfZeroBytesEndsTheRun) {
    Practice visit;
    visit.put("a.fcy", std::string(4096, '\0'));
    visit.open_browser();
    visit.choose("File_Fichier", "a.fcy");
    visit.fatal_double_click("File_Fichier");
    EXPECT_EQ(visit.record("a.fcy"), std::string(4096, '\0'));
}

// The portrait's name ends nowhere but at its end: a zero byte hides nothing behind it.
TEST(BadRecord, AZeroByteInThePortraitsNameFindsNoOtherFile) {
    Practice visit;
    put_file(visit.images() / "zoe.gif", std::string("GIF89a\x0A\0\x0A\0", 10));
    visit.put("a.fcy", record_of("Zoe", "Dupont", std::string("zoe.gif\0.jpg", 12)));
    visit.load("a.fcy");
    EXPECT_EQ(visit.value("fichier_photo"), Json(true));
}

TEST(BadRecord, AFileOf50MegabytesWithoutALineEndEndsTheRunSoon) {
    Practice visit;
    visit.put("a.fcy", "\"" + std::string(50'000'000, 'x'));
    visit.put("b.fcy", std::string(50'000'000, ' '));
    visit.open_browser();
    visit.choose("File_Fichier", "a.fcy");
    visit.fatal_double_click("File_Fichier");
    EXPECT_EQ(std::filesystem::file_size(visit.data(1) / "a.fcy"), 50'000'001U);

    Practice other;
    other.put("b.fcy", std::string(50'000'000, 'x'));
    other.open_browser();
    other.choose("File_Fichier", "b.fcy");
    other.fatal_double_click("File_Fichier");
}

TEST(BadRecord, ANoteOfAMegabyteIsReadAndSavedWhole) {
    std::string note;
    while (note.size() < 1'000'000) note += "une ligne de la note\r\n";
    Practice visit;
    visit.put("Dupont Zoe.fcy", record_of("Zoe", "Dupont", "", note));
    visit.load("Dupont Zoe.fcy");
    visit.save();
    EXPECT_EQ(visit.record("Dupont Zoe.fcy"), record_of("Zoe", "Dupont", "", note));
}

TEST(BadRecord, AFileThatWentAwayBetweenListingAndReadingEndsTheRun) {
    Practice visit;
    visit.put("a.fcy", record_of("Zoe", "Dupont"));
    visit.name_person("Marie", "Nouvelle");
    visit.open_browser();
    visit.choose("File_Fichier", "a.fcy");
    std::filesystem::remove(visit.data(1) / "a.fcy");
    auto const answer = visit.fatal_double_click("File_Fichier");
    EXPECT_NE(report_of(answer).find("a.fcy"), std::string::npos);
    EXPECT_EQ(visit.record("SAUVETAGE.fcy"),
              "\"Marie\",\"Nouvelle\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"\"\r\n");
}

TEST(BadRecord, AFolderThatWentAwayIsAnEmptyList) {
    Practice visit;
    std::filesystem::remove_all(visit.data(2));
    visit.open_browser(2);
    EXPECT_TRUE(visit.list().empty());
    EXPECT_EQ(visit.text("Label_Nbr_Fiche.Caption"), "0");
}

// Where the control characters of a loaded name are no part of any file name.
TEST(BadRecord, ALineBreakInALoadedNameIsRefusedByTheNextSave) {
    Practice visit;
    visit.put("a.fcy", record_of("Zoe\r\nMarie", "Dupont"));
    visit.load("a.fcy");
    visit.set("Text_Note", "changée");
    visit.fatal_click("Command_Disk_Vert");
    EXPECT_EQ(visit.record("a.fcy"), record_of("Zoe\r\nMarie", "Dupont"));
    EXPECT_NE(visit.record("SAUVETAGE.fcy")
                  .find("chang\xE9"
                        "e"),
              std::string::npos);
}

TEST(BadRecord, ANameTooLongForTheDiskIsReportedAndKept) {
    std::string const name(300, 'a');
    Practice visit;
    visit.put("a.fcy", record_of(name, "Dupont"));
    visit.load("a.fcy");
    visit.set("Text_Note", "nouvelle note");
    auto const answer = visit.fatal_click("Command_Disk_Vert");
    EXPECT_NE(report_of(answer).find("SAUVETAGE.fcy"), std::string::npos);
    EXPECT_EQ(visit.record("a.fcy"), record_of(name, "Dupont"));
    EXPECT_NE(visit.record("SAUVETAGE.fcy").find("nouvelle note"), std::string::npos);
}

TEST(BadRecord, AFileNameOfForeignBytesIsListedAndLoads) {
    Practice visit;
    visit.put("Zo\xEB Dupont.fcy", record_of("Zoe", "Dupont"));
    visit.open_browser();
    EXPECT_EQ(visit.list().size(), 1U);
    visit.ask({{"op", "choose"}, {"control", "File_Fichier"}, {"index", 0}});
    visit.double_click("File_Fichier");
    EXPECT_EQ(visit.text("Text_nom.Text"), "Dupont");
}

}  // namespace

}  // namespace navarun::test
