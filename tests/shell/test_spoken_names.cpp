// What a screen reader says.
#include <algorithm>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/spoken_names.h"
#include "tests/support/visit.h"

namespace navarun::test {

namespace {

using screen::Kind;

// Visit, with somebody listening.
class Spoken : public testing::Test {
  protected:
    Program& program() { return visit.program(); }
    Form1& form() { return program().form1; }
    std::string said(screen::Control const& control) {
        follow_spoken_names(program().screen);
        return control.SpokenName.get();
    }

    Visit visit;
};

bool is_for_the_eye_alone(screen::Control const& control) {
    static std::set<std::string_view> const decorations{"Image1", "Image2"};
    bool const cloud = control.form().name() == "Form1" && control.kind() == Kind::image &&
                       decorations.contains(control.name());
    static std::set<std::string_view> const about{"Image1", "Image_Ganesha"};
    bool const beside_the_texts =
        control.form().name() == "a_propos" && about.contains(control.name());
    return cloud || beside_the_texts || control.kind() == Kind::shape ||
           control.kind() == Kind::timer || control.kind() == Kind::menu_separator;
}

TEST_F(Spoken, EveryControlThatIsShownHasANameAndOrnamentsHaveNone) {
    visit.generate_for("17051962");
    visit.click("MnuApercu_Impression");
    for (auto* form : program().screen.forms()) {
        if (!form->Visible) form->open();
        EXPECT_NE(said(*form), "") << form->name();
        for (auto const* control : form->controls()) {
            if (!control->is_shown()) continue;
            if (is_for_the_eye_alone(*control)) {
                EXPECT_EQ(said(*control), "") << form->name() << "." << control->full_name();
            } else {
                EXPECT_NE(said(*control), "") << form->name() << "." << control->full_name();
            }
        }
    }
}

TEST_F(Spoken, EntryFieldsOfAWindowAreToldApart) {
    for (auto* form : program().screen.forms()) {
        std::set<std::string> names;
        for (auto const* control : form->controls()) {
            if (dynamic_cast<screen::EntryControl const*>(control) == nullptr) continue;
            EXPECT_TRUE(names.insert(said(*control)).second) << control->full_name();
        }
    }
}

TEST_F(Spoken, ACellIsSaidAsAPersonWouldSayIt) {
    visit.generate_for("17051962");
    EXPECT_EQ(said(form().Label_Solaire(4)), "Palais 3, Instable");
    EXPECT_EQ(said(form().Label_mois(4)),
              "Palais 3, Instable; seigneur du mois: " + form().Label_mois(4).Caption.get() +
                  ", depuis le " + form().Label_MoisDate(4).Caption.get());
    EXPECT_EQ(said(form().Label_MoisDate(4)),
              "Palais 3, Instable; mois, depuis le " + form().Label_MoisDate(4).Caption.get());
    EXPECT_EQ(
        said(form().Label_Dasha(4)),
        "Palais 3, Instable; seigneur de la période: " + form().Label_Dasha(4).Caption.get() +
            ", depuis le " + form().Label_DashaDate(4).Caption.get());
}

TEST_F(Spoken, TheNameFollowsWhatTheCellShows) {
    visit.generate_for("17051962");
    std::string const before = said(form().Label_mois(4));
    visit.generate_at(2);
    EXPECT_NE(said(form().Label_mois(4)), before);
    EXPECT_THAT(said(form().Label_mois(4)), testing::HasSubstr("1964"));
}

TEST_F(Spoken, ThePickedMonthIsToldNotByItsColourAlone) {
    visit.click("Label_mois(7)");
    EXPECT_THAT(said(form().Label_mois(7)), testing::EndsWith(", marqué"));
    visit.click("Label_mois(8)");
    EXPECT_THAT(said(form().Label_mois(7)), testing::Not(testing::EndsWith(", marqué")));
    EXPECT_THAT(said(form().Label_mois(8)), testing::EndsWith(", marqué"));
}

TEST_F(Spoken, TheLordOfTheYearAndTheMarksOfTheTriDevaAreSaid) {
    visit.generate_for("17051962");
    int years = 0;
    for (int cell = 1; cell <= 12; ++cell) {
        if (form().Label_annee(cell).Caption.get().empty()) continue;
        ++years;
        EXPECT_THAT(
            said(form().Label_annee(cell)),
            testing::MatchesRegex("Palais [0-9]+, .*; seigneur de l'année: [A-Z][a-z]+"));
    }
    EXPECT_EQ(years, 1);
    for (int const member : form().ImageTriDeva.indexes()) {
        form().ImageTriDeva(member).Visible = true;
        EXPECT_THAT(said(form().ImageTriDeva(member)), testing::StartsWith("Tri-Deva"));
    }
}

TEST_F(Spoken, ShortNamesAreSaidInFull) {
    visit.generate_for("17051962");
    std::string const in_full = said(form().Label_mois(4));
    visit.click("Mnu_abrege");
    visit.click("Command2");
    ASSERT_EQ(form().Label_mois(4).Caption.get().size(), 2U);
    EXPECT_EQ(said(form().Label_mois(4)), in_full);
}

TEST_F(Spoken, WhatIsToldByAColourIsSaid) {
    visit.generate_for("17051962");
    EXPECT_EQ(said(form().Label_age), "Âge: 1, cycle vrai");
    visit.set("HScroll_age", 2);
    EXPECT_EQ(said(form().Label_age), "Âge: 2, cycle faux");
    EXPECT_EQ(said(form().Command_Disk_Vert), "Sauve, à sauver");
    Visit first_sight;
    follow_spoken_names(first_sight.program().screen);
    EXPECT_EQ(first_sight.program().form1.Command_Disk_Vert.SpokenName.get(),
              "Sauve, rien à sauver");
}

TEST_F(Spoken, ARunOfBlanksIsOneBlank) { EXPECT_EQ(said(form().Label4), "Prénom Nom"); }

TEST_F(Spoken, TheNamesAreNoPropertyOfTheDump) {
    auto const dump = visit.dump();
    ASSERT_TRUE(dump.at("Command2").contains("ToolTipText"));
    for (auto const& [name, properties] : dump.items()) {
        for (auto const& [property, value] : properties.items()) {
            EXPECT_NE(property, "SpokenName") << name;
        }
    }
}

TEST_F(Spoken, NamesThatStandMarkNothingAsChanged) {
    follow_spoken_names(program().screen);
    program().screen.take_changed();
    follow_spoken_names(program().screen);
    EXPECT_TRUE(program().screen.take_changed().empty());
}

}  // namespace

}  // namespace navarun::test
