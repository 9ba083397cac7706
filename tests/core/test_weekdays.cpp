// The week: names, lords and readings of the seven days.
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/weekdays.h"

namespace navarun::test {
namespace {

struct WeekdayRow {
    int number;
    std::string_view name;
    std::string_view short_name;
    Lord lord;
    int lord_number;
    std::string_view divinity;
    std::string_view positive;
    std::string_view negative;
    friend std::ostream& operator<<(std::ostream& out, WeekdayRow const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr WeekdayRow weekday_rows[] = {
    {1, "Dimanche", "dim.", Lord::Surya, 1, "Surya 1",
     "(^_^) Orgueilleux, ambitieux, autoritaire, confiant en lui, enthousiaste, esprit clair et cartésien. Recherche d'élévation.",
     "(>_<) Égoïsme, autoritaire, domination, impose son point de vue."},
    {2, "Lundi", "lun.", Lord::Chandra, 2, "Chandra 2",
     "(^_^) Nature réceptive et sensible, émotif, rêveur, imaginatif, intuitif, réceptif, créatif, fécond,goût des relations.",
     "(>_<) Irréalisme, caractère lunatique ou instable, émotif, faiblesse."},
    {3, "Mardi", "mar.", Lord::Kuja, 9, "Kuja 9",
     "(^_^) Combativité, force,Impulsif, passionné, brave, actif, courageux, audacieux, franc, volontaire et ardent. ",
     "(>_<) Tempérament colérique, Impulsif, Intransigeance, arrogance ou agressivité, ne prend pas le temps."},
    {4, "Mercredi", "mer.", Lord::Budha, 5, "Budha 5",
     "(^_^) vivacité d'esprit, Communicatif, habile, diplomate, souple, adaptable,sens des échanges, qualités intellectuelles.",
     "(>_<) Tendance aux mensonge,a l'hypocrisie, rusé, menteur, instable, hésitant,nerveux."},
    {5, "Jeudi", "jeu.", Lord::Guru, 3, "Guru 3",
     "(^_^) Ambitieux, loyal, moral, optimiste, franc, jovial, expansif, sensuel, sens de la justice et des règles.",
     "(>_<) Excès de toute nature, à l’exagération, éparpillement, aventure risquées."},
    {6, "Vendredi", "ven.", Lord::Shukra, 6, "Shukra 6",
     "(^_^) Sensible, sensuel, créatif, gentil, sentimental, recherche l'harmonie, sociable, gai, rieur, charmant, sens de l'humain.",
     "(>_<) Versatilité, indécision, caprices, désordre, matérialiste, inclinations douteuses."},
    {7, "Samedi", "sam.", Lord::Shani, 8, "Shani 8",
     "(^_^) Sens du devoir, réfléchi, patient, fidèle, concentré,prudent, persévérant, cérébral et solitaire.",
     "(>_<) Pessimiste, froideur, introversion, manque de dynamisme, esprit limité."},
};
// clang-format on

class Weekdays : public testing::TestWithParam<WeekdayRow> {};
TEST_P(Weekdays, HaveTheirNames) {
    EXPECT_EQ(weekday(GetParam().number).name, GetParam().name);
    EXPECT_EQ(weekday(GetParam().number).short_name, GetParam().short_name);
}
TEST_P(Weekdays, HaveTheirLord) {
    Weekday const& day = weekday(GetParam().number);
    EXPECT_EQ(day.lord, GetParam().lord);
    EXPECT_EQ(number_of(day.lord), GetParam().lord_number);
    EXPECT_EQ(divinity_caption(day), GetParam().divinity);
}
TEST_P(Weekdays, AreReadFirstForGoodThenForBad) {
    Weekday const& day = weekday(GetParam().number);
    EXPECT_EQ(day.positive, GetParam().positive);
    EXPECT_EQ(day.negative, GetParam().negative);
    EXPECT_EQ(weekday_reading(day),
              std::string{GetParam().positive} + "\r\n\r\n" + std::string{GetParam().negative});
}
INSTANTIATE_TEST_SUITE_P(Week, Weekdays, testing::ValuesIn(weekday_rows),
                         [](auto const& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace navarun::test
