// The short names of the lords.
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/start_up/files_of_a_folder.h"

namespace navarun::test {

namespace {

using testing::AnyOf;
using testing::Contains;
using testing::Each;

auto const is_short_name = AnyOf("Su", "Ca", "Gu", "Ra", "Bu", "Sk", "Ke", "Sa", "Ku");
auto const is_full_name =
    AnyOf("Surya", "Chandra", "Guru", "Rahu", "Budha", "Shukra", "Ketu", "Shani", "Kuja");
// Lord n stands at n.
constexpr std::array<std::string_view, 10> short_names_of_lords{"",   "Su", "Ca", "Gu", "Ra",
                                                                "Bu", "Sk", "Ke", "Sa", "Ku"};

constexpr std::array<char const*, 3> name_rows{"Label_Dasha", "Label_annee", "Label_mois"};

TEST(ShortNames, FillTheGridInLargerType) {
    Visit visit;
    visit.click("Mnu_abrege");
    EXPECT_TRUE(visit.truth("Mnu_abrege.Checked"));
    EXPECT_EQ(visit.number("decalage_nom_seigneur"), 9);
    for (auto const* row : name_rows) {
        EXPECT_THAT(visit.cells(row, "FontSize"), Each("14.0")) << row;
    }
    EXPECT_THAT(visit.cells("Label_Dasha", "Caption"), Each(is_short_name));
    EXPECT_THAT(visit.cells("Label_mois", "Caption"), Each(is_short_name));
    EXPECT_THAT(visit.cells("Label_annee", "Caption"), Contains(is_short_name));
}

TEST(ShortNames, TakenBackLeaveTheFullOnesInTheirType) {
    Visit visit;
    visit.click("Mnu_abrege");
    visit.click("Mnu_abrege");
    EXPECT_FALSE(visit.truth("Mnu_abrege.Checked"));
    EXPECT_EQ(visit.number("decalage_nom_seigneur"), 0);
    for (auto const* row : name_rows) {
        // Not the size of the design.
        EXPECT_THAT(visit.cells(row, "FontSize"), Each("13.0")) << row;
    }
    EXPECT_THAT(visit.cells("Label_Dasha", "Caption"), Each(is_full_name));
    EXPECT_THAT(visit.cells("Label_mois", "Caption"), Each(is_full_name));
}

TEST(ShortNames, LeaveTheOtherFieldsAndTheirTypeInFull) {
    Visit visit;
    struct {
        char const* name;
        Json before;
    } kept[] = {
        {"Label_Nak.Caption", {}},          {"Label_divinite.Caption", {}},
        {"Label_Lal_Kitab.Caption", {}},    {"Label_DashaDate(4).FontSize", {}},
        {"Label_MoisDate(4).FontSize", {}}, {"Label_Solaire(4).FontSize", {}},
        {"Label_DashaDate(4).Caption", {}}, {"Label_Solaire(4).Caption", {}},
    };
    for (auto& field : kept) field.before = visit.value(field.name);
    visit.click("Mnu_abrege");
    for (auto const& field : kept)
        EXPECT_EQ(visit.value(field.name), field.before) << field.name;
    EXPECT_EQ(visit.text("Label_Nak.Caption"), "Shukra");
}

TEST(ShortNames, SurviveAGenerationAndAReset) {
    Visit visit;
    visit.click("Mnu_abrege");
    visit.generate_for("17051962");
    EXPECT_THAT(visit.cells("Label_Dasha", "Caption"), Each(is_short_name));
    EXPECT_EQ(visit.text("Label_Nak.Caption").size() > 2, true);
    visit.click("Command_reset");
    EXPECT_THAT(visit.cells("Label_mois", "Caption"), Each(is_short_name));
    EXPECT_THAT(visit.cells("Label_mois", "FontSize"), Each("14.0"));
}

TEST(ShortNames, EndThePartialView) {
    Visit visit;
    visit.click("Btn_cycle_partiel");
    EXPECT_THAT(visit.cells("Label_mois", "Visible"), Contains("false"));
    visit.click("Mnu_abrege");
    EXPECT_THAT(visit.cells("Label_mois", "Visible"), Each("true"));
    EXPECT_THAT(visit.cells("Label_Dasha", "Visible"), Each("true"));
    EXPECT_THAT(visit.cells("Label_DashaDate", "Visible"), Each("true"));
}

TEST(ShortNames, DoNotMakeAStaleGridTrue) {
    Visit visit;
    visit.set("HScroll_age", 7);
    visit.click("Mnu_abrege");
    EXPECT_EQ(visit.text("HScroll_age.Tag"), "ROUGE");
    EXPECT_FALSE(visit.truth("MnuImprime.Enabled"));
}

// The months are worked out before the lord of the year: on an age that was walked to but not
// generated they still start from the lord of the year before.
TEST(ShortNames, TheMonthsOfAnAgeWalkedToStartFromTheOldLordOfTheYear) {
    Visit visit;
    visit.generate_for("01011900");
    int const old_lord = visit.number("seigneur_an");
    visit.set("HScroll_age", 2);
    visit.click("Mnu_abrege");
    int const new_lord = visit.number("seigneur_an");
    ASSERT_NE(new_lord, old_lord) << "both orders would give the same months";
    auto const first_month_from = [](int lord_of_year) {
        int const month = (12 + lord_of_year) % 9;  // second year of age, born in January
        return std::string{
            short_names_of_lords[static_cast<std::size_t>(month == 0 ? 9 : month)]};
    };
    // Sagittarius is the sun's cell, 9; the age of 2 stands one further.
    EXPECT_EQ(visit.text("Label_mois(10).Caption"), first_month_from(old_lord));
    visit.click("Command2");
    EXPECT_EQ(visit.text("Label_mois(10).Caption"), first_month_from(new_lord));
}

TEST(ShortNames, AFailedWriteEndsTheRunOnceTheEntryIsChecked) {
    Visit visit;
    std::filesystem::remove(visit.folder() / settings_file);
    std::filesystem::create_directories(visit.folder() / settings_file);
    expect_fatal_report(visit.ask({{"op", "click"}, {"control", "Mnu_abrege"}}),
                        {"CONFIG.CFG"});
    EXPECT_EQ(visit.exit_status(), 1);
}

}  // namespace

}  // namespace navarun::test
