// The report of the personality.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "shell/program.h"
#include "tests/readings/golden.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

/// A consultation that can bring records back.
struct Practice : Visit {
    /// @param record  a line of the record file in the code page of the files
    void load(std::string const& record) {
        auto const data = folder() / "RESSOURCES" / "DATA1";
        for (auto const& old : std::filesystem::directory_iterator{data}) {
            std::filesystem::remove(old.path());
        }
        std::ofstream{data / "personne.fcy", std::ios::binary} << record << "\r\n";
        click("Charge(1)");
        choose("File_Fichier", "personne.fcy");
        double_click("File_Fichier");
        effects();
    }

    /// What the viewer was shown.
    std::string report() {
        click("MnuPersonalite");
        Json const shown = effects();
        if (shown.size() != 1 || shown[0]["kind"] != "view") {
            ADD_FAILURE() << shown;
            return "";
        }
        m_file = shown[0]["file"].get<std::string>();
        return shown[0]["text"].get<std::string>();
    }
    std::string const& file() const { return m_file; }

  private:
    std::string m_file;
};

struct ReportCase {
    char const* name;
    char const* record;
    char const* file;
    friend std::ostream& operator<<(std::ostream& out, ReportCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr ReportCase report_cases[] = {
    {"two_given_names",       R"("Marie-Claire","Dupont","17","05","19","62",0,"","")",
                              "RESSOURCES/Marie-Claire Dupont.txt"},
    {"small_letters",         "\"zo\xE9 b\",\"x\",\"29\",\"02\",\"20\",\"00\",0,\"\",\"\"",
                              "RESSOURCES/zoé b x.txt"},
    {"last_name_only",        R"("","Zola","02","04","19","40",0,"","")",
                              "RESSOURCES/ Zola.txt"},
    {"accented_first_letter", "\"\xC9lodie\",\"Martin\",\"14\",\"07\",\"19\",\"85\",0,\"\",\"\"",
                              "RESSOURCES/Élodie Martin.txt"},
    {"two_separators",        R"("Abcd-fgh.ijklmno","Quant","31","12","19","99",0,"","")",
                              "RESSOURCES/Abcd-fgh.ijklmno Quant.txt"},
    {"closing_separator",     R"("Anne.","Roux","10","11","19","11",0,"","")",
                              "RESSOURCES/Anne. Roux.txt"},
};
// clang-format on
class ReportOf : public testing::TestWithParam<ReportCase> {};
TEST_P(ReportOf, ALoadedPersonIsTheKeptText) {
    auto const& row = GetParam();
    Practice practice;
    practice.load(row.record);
    EXPECT_EQ(practice.report(), golden(std::string{"report_"} + row.name));
    EXPECT_EQ(practice.file(), row.file);
    EXPECT_FALSE(std::filesystem::exists(practice.folder() / row.file));
}
INSTANTIATE_TEST_SUITE_P(Persons, ReportOf, testing::ValuesIn(report_cases),
                         [](auto const& row) { return row.param.name; });

TEST(Report, OfNobodyIsToldAsUnknown) {
    Practice practice;
    EXPECT_EQ(practice.report(), golden("report_nameless"));
    EXPECT_EQ(practice.file(), "RESSOURCES/ .txt");
    EXPECT_FALSE(std::filesystem::exists(practice.folder() / "RESSOURCES" / " .txt"));
}

TEST(Report, OfANameTypedAfterALoadBearsTheInitialsOfTheLoadedPerson) {
    Practice practice;
    practice.load(report_cases[0].record);
    practice.set("Text_prenom", "Jean");
    practice.set("Text_nom", "Valjean");
    practice.generate_for("24061970");
    EXPECT_EQ(practice.report(), golden("report_typed_after_a_load"));
    EXPECT_EQ(practice.file(), "RESSOURCES/Jean Valjean.txt");
}

TEST(Report, OfANameTypedAfterAStartHasNoInitials) {
    Practice practice;
    practice.set("Text_prenom", "Jean");
    practice.set("Text_nom", "Valjean");
    EXPECT_NE(practice.report().find("Vos initiales sont: \r\n¯¯¯"), std::string::npos);
}

TEST(Report, BeginsAndEndsWithTheQuotesOfItsField) {
    Practice practice;
    std::string const report = practice.report();
    EXPECT_TRUE(report.starts_with("\"NOM INCONNU\r\n"));
    EXPECT_TRUE(report.ends_with("\"\r\n"));
}

TEST(Report, GoesToTheViewerAgainAtEachAsking) {
    Practice practice;
    practice.load(report_cases[0].record);
    std::string const first = practice.report();
    EXPECT_EQ(practice.report(), first);
}

TEST(Report, OfANameThatNoFileCanHaveEndsTheRun) {
    for (char const* name : {"A/B", "A\\B", "A:B", "A*B", "A?B"}) {
        Practice practice;
        practice.set("Text_prenom", name);
        Json const answer = practice.ask({{"op", "click"}, {"control", "MnuPersonalite"}});
        EXPECT_EQ(answer["error"], "fatal") << name;
        ASSERT_FALSE(answer["effects"].empty());
        EXPECT_EQ(answer["effects"].back()["kind"], "box");
        EXPECT_EQ(answer["effects"].back()["title"], "N.A.V.A.R.U.N");
        EXPECT_EQ(practice.exit_status(), 1);
    }
}

// --- what is left from the initial before

std::size_t count(std::string const& text, std::string_view part) {
    std::size_t found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

TEST(Initials, ALetterWithoutATextRepeatsTheOneBefore) {
    Practice practice;
    practice.load(report_cases[0].record);  // its last initial is D
    practice.load(report_cases[3].record);
    std::string const texts = practice.text("texte_initiales");
    EXPECT_TRUE(texts.starts_with("D - EXTRAVERSION"));
    EXPECT_EQ(count(texts, "M - ACTIVITÉS"), 1u);
    EXPECT_EQ(count(texts, "\r\n\r\n"), 2u);
}

TEST(Initials, OfALastNameAloneRepeatTheOldTextThenTellTheirOwn) {
    Practice practice;
    practice.load(report_cases[0].record);
    practice.load(report_cases[2].record);
    std::string const texts = practice.text("texte_initiales");
    EXPECT_TRUE(texts.starts_with("D - EXTRAVERSION"));
    EXPECT_EQ(count(texts, "\r\n\r\nZ - SENS DE LA MATIÈRE"), 1u);
}

TEST(Initials, OfANamelessRecordAreNoneAndSaidInThePlaceOfTheWeekday) {
    Practice practice;
    practice.load(report_cases[0].record);
    auto const data = practice.folder() / "RESSOURCES" / "DATA1" / "personne.fcy";
    std::ofstream{data, std::ios::binary} << R"("","","17","05","19","62",0,"","")"
                                          << "\r\n";
    practice.click("Charge(1)");
    practice.choose("File_Fichier", "personne.fcy");
    Json const during = Json::array({{{"op", "get"}, {"names", {"Text_jourdeSemaine.Text"}}}});
    practice.ask({{"op", "during-pause"}, {"requests", during}});
    Json const answer = practice.ask({{"op", "dblclick"}, {"control", "File_Fichier"}});
    ASSERT_TRUE(answer.contains("during")) << answer;
    EXPECT_EQ(answer["during"][0]["values"]["Text_jourdeSemaine.Text"],
              "Aucun prénom ou nom !");
    EXPECT_EQ(practice.effects()[0], (Json{{"kind", "pause"}, {"seconds", 1.5}}));
    EXPECT_EQ(practice.text("texte_initiales"), "");
    EXPECT_TRUE(practice.text("Text_jourdeSemaine.Text").starts_with("(^_^) Ambitieux"));
    EXPECT_NE(practice.report().find("\r\nIl n'y a pas d'initiales a analyser !\r\n\r\n¯"),
              std::string::npos);
}

TEST(Initials, StayThroughAGeneration) {
    Practice practice;
    practice.load(report_cases[0].record);
    std::string const texts = practice.text("texte_initiales");
    practice.set("Text_prenom", "Zoé");
    practice.click("Command2");
    EXPECT_EQ(practice.text("texte_initiales"), texts);
}

}  // namespace
}  // namespace navarun::test
