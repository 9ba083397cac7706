// The random user and her promises can be trusted: each promise is seen when it is broken, a
// script is the same for the pilot, and what is found is shortened to what matters.
#include <functional>
#include <ostream>

#include <gtest/gtest.h>

#include "shell/image_store.h"
#include "tests/monkeys/monkey.h"
#include "tests/monkeys/promises.h"
#include "tests/monkeys/shrink.h"
#include "tests/support/visit.h"
#include "tools/pilote/pilot.h"

namespace navarun::monkeys {

namespace {

Event const generate{.act = Act::click, .control = "Command2"};

// A practice that the process stands in, as the files dropped are named from there.
class InAFolder {
  public:
    InAFolder() { std::filesystem::current_path(m_folder.path()); }
    ~InAFolder() { std::filesystem::current_path("/"); }
    std::filesystem::path const& path() const { return m_folder.path(); }

  private:
    test::TemporaryFolder m_folder;
};

struct Breakage {
    char const* name;
    std::string_view promise;
    std::function<void(Program&)> breaks;
    friend std::ostream& operator<<(std::ostream& out, Breakage const& row) {
        return out << row.name;
    }
};

// clang-format off
Breakage const breakages[]{
    {"two_cells_of_one_number", "numbered 1 to 12",
     [](Program& p) { p.form1.Label_Solaire(p.consultation.palais_index).Caption = "2"; }},
    {"a_cell_hidden", "all twelve cells show",
     [](Program& p) { p.form1.Label_Solaire(p.consultation.palais_index).Visible = false; }},
    {"another_quality", "tell the quality",
     [](Program& p) { p.form1.Label_Solaire(4).ToolTipText = "Instables"; }},
    {"a_true_grid_that_cannot_be_printed", "tell one state",
     [](Program& p) { p.form1.MnuImprime.Enabled = false; }},
    {"a_tag_alone", "tell one state", [](Program& p) { p.form1.HScroll_age.Tag = "ROUGE"; }},
    {"no_date", "every caption of a date",
     [](Program& p) { p.form1.Label_MoisDate(12).Caption = "30/02/1901"; }},
    {"another_year", "the cycle year",
     [](Program& p) { p.form1.Label_anneedefile.Caption = "01/01/1950"; }},
    {"two_schemes", "exactly one scheme",
     [](Program& p) { p.form1.MnuMauve_Aum.Checked = true; }},
    {"another_chart", "exactly one scheme",
     [](Program& p) { p.form1.Picture_KUNDALI.Picture = picture::charts[2]; }},
    {"another_age", "the ages are alike", [](Program& p) { p.consultation.age_courant = 2; }},
    {"no_month", "lie in their ranges", [](Program& p) { p.consultation.colonne_mois = 0; }},
    {"no_lord_of_the_year", "names the lord of the year once",
     [](Program& p) { for (int i = 1; i <= 12; ++i) p.form1.Label_annee(i).Caption = ""; }},
    {"two_periods", "one period fills the row",
     [](Program& p) { p.form1.Label_Dasha(7).Caption = "Rahu "; }},
    {"a_month_gone", "whole or reduced",
     [](Program& p) { p.form1.Label_mois(7).Visible = false; }},
    {"a_page_without_options", "tell one preview",
     [](Program& p) { p.form1.Picture2.Visible = true; }},
    {"a_mark_without_a_window", "marks follow",
     [](Program& p) { p.form1.MnuFleche.Checked = true; }},
    {"a_message_left", "no message stays",
     [](Program& p) { p.form1.frame_messageSauve.Visible = true; }},
    {"a_letter_in_a_date", "at most two digits",
     [](Program& p) { p.form1.Combo_AnNaiss2.Text = "x"; }},
    {"a_letter_no_file_holds", "kept in a file",
     [](Program& p) { p.form1.Text_prenom.Text = "Łukasz"; }},
    {"another_weekday", "the weekday",
     [](Program& p) { p.consultation.numero_jour = p.consultation.numero_jour % 7 + 1; }},
    {"another_diskette", "one of their pictures",
     [](Program& p) { p.form1.Command_Disk_Vert.Picture = picture::ganesha; }},
};
// clang-format on

class Promises : public testing::TestWithParam<Breakage> {};

TEST_P(Promises, AreSeenToBeBroken) {
    InAFolder folder;
    PracticeRun run{folder.path()};
    Outcome const outcome = run.perform(generate);
    ASSERT_EQ(broken_promise(run, outcome), std::nullopt);
    GetParam().breaks(*run.program());
    auto const broken = broken_promise(run, outcome);
    ASSERT_TRUE(broken);
    EXPECT_NE(broken->find(GetParam().promise), std::string::npos) << *broken;
}

INSTANTIATE_TEST_SUITE_P(Table, Promises, testing::ValuesIn(breakages),
                         [](auto const& row) { return row.param.name; });

TEST(Ends, AnErrorThatNobodyToldOfIsSeen) {
    InAFolder folder;
    PracticeRun run{folder.path()};
    run.perform(generate);
    std::filesystem::remove_all(folder.path() / "RESSOURCES");
    Outcome const outcome = run.perform({.act = Act::click, .control = "MnuMauve_Aum"});
    EXPECT_EQ(outcome.kind, Outcome::Kind::fatal);
    auto const broken = broken_promise(run, outcome);
    ASSERT_TRUE(broken);
    EXPECT_NE(broken->find("CONFIG.CFG"), std::string::npos) << *broken;
}

TEST(Ends, TheNextEventBeginsTheNextRunOnTheSameFolder) {
    InAFolder folder;
    PracticeRun run{folder.path()};
    run.perform({.act = Act::click, .control = "MnuMauve_Aum"});
    Outcome const left = run.perform({.act = Act::click, .control = "MnuQuitter"});
    EXPECT_EQ(left.kind, Outcome::Kind::ended);
    EXPECT_EQ(broken_promise(run, left), std::nullopt);
    EXPECT_EQ(run.program(), nullptr);
    EXPECT_EQ(run.perform(generate).kind, Outcome::Kind::done);
    EXPECT_TRUE(run.began());
}

// What a failing run prints does the same to the pilot: its window then stands alike.
TEST(Scripts, DoTheSameToThePilot) {
    for (std::uint64_t seed = 1; seed <= 8; ++seed) {
        InAFolder folder;
        Monkey monkey{seed};
        std::vector<Event> script;
        std::vector<std::string> stands;
        auto const stand = [](Program& program) {
            std::string told;
            for (auto const* form : program.screen.forms()) {
                for (auto const* control : form->controls()) {
                    auto const* const label = dynamic_cast<screen::Label const*>(control);
                    auto const* const entry =
                        dynamic_cast<screen::EntryControl const*>(control);
                    if (label != nullptr) told += label->Caption.get() + "\n";
                    if (entry != nullptr) told += entry->Text.get() + "\n";
                    told += control->Visible.get() ? '1' : '0';
                    told += control->Enabled.get() ? '1' : '0';
                }
            }
            return told;
        };
        {
            PracticeRun run{folder.path()};
            for (int i = 0; i < 400; ++i) {
                Event const event = monkey.next(run.program());
                run.perform(event);
                if (run.program() == nullptr) break;  // one run is one pilot
                script.push_back(event);
                stands.push_back(stand(*run.program()));
            }
        }
        { PracticeRun const as_it_was{folder.path()}; }
        pilot::Pilot pilot{folder.path()};
        pilot.answer_line(
            as_request({.act = Act::clock, .control = first_date, .text = first_time}).dump());
        pilot.answer_line(R"({"op":"load"})");
        for (std::size_t i = 0; i < script.size(); ++i) {
            std::string const line = as_request(script[i]).dump();
            auto const answer = pilot::Json::parse(pilot.answer_line(line));
            EXPECT_NE(answer.value("error", ""), "fatal") << line << answer;
            ASSERT_EQ(stand(pilot.program()), stands[i]) << "seed " << seed << ": " << line;
        }
    }
}

// A fault planted for the purpose: no first name has more than four letters.
TEST(Shortest, LeavesWhatMatters) {
    InAFolder folder;
    auto const shows = [&](std::vector<Event> const& script) {
        PracticeRun run{folder.path()};
        for (auto const& event : script) {
            run.perform(event);
            auto* const program = run.program();
            if (program != nullptr && program->form1.Text_prenom.Text.get().size() > 4 &&
                program->form1.MnuMauve_cycle.Checked) {
                return true;
            }
        }
        return false;
    };
    Monkey monkey{3};
    std::vector<Event> script;
    {
        PracticeRun run{folder.path()};
        for (int i = 0; i < 150; ++i) {
            script.push_back(monkey.next(run.program()));
            run.perform(script.back());
        }
    }
    script.push_back({.act = Act::click, .control = "MnuMauve_cycle"});
    script.push_back({.act = Act::click, .control = "MnuApercu_Impression"});
    script.push_back({.act = Act::set_text, .control = "Text_prenom", .text = "Marguerite"});
    script.push_back(generate);
    ASSERT_TRUE(shows(script));
    auto const left = shortest(script, shows);
    ASSERT_EQ(left.size(), 2U);
    EXPECT_TRUE(shows(left));
}

TEST(ToldErrors, EachHasItsReason) {
    for (auto const& error : told_errors()) {
        EXPECT_FALSE(error.attempted.empty() || error.reason.empty() || error.why.empty());
    }
}

}  // namespace

}  // namespace navarun::monkeys
