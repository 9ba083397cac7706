// The twelve signs: names, elements and texts.
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "zodiac/signs.h"

namespace navarun::test {
namespace {

struct SignRow {
    int number;
    std::string_view name;
    std::string_view element;
    std::string_view text;
    friend std::ostream& operator<<(std::ostream& out, SignRow const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr SignRow sign_rows[] = {
    {1, "Bélier", " - FEU",
     "Impulsive, rapide, spontané, enthousiaste, impatient, têtu, égoïste, aventureux, intrépide."},
    {2, "Taureau", " - TERRE",
     "Patient, prévisible, stable, passif, perfectionniste, matérialiste, possessif, obstiné, sensuel."},
    {3, "Couple", " - AIR",
     "Adaptable, curieux, agité, sociable, amical, superficiel, volage, hésitant, nerveux."},
    {4, "Crabe", " - EAU",
     "Émotionnel, romantique, réactif, sensible, réceptif, intuitif, maternel, besoin de sécurité, dépendant."},
    {5, "Lion", " - FEU",
     "Autorité, loyal, fidèle, l'estime de soi, confiance en soi, arrogant, vaniteux, affectueux, généreux."},
    {6, "Jeune-Fille", " - TERRE",
     "Timide, réservé, pratique, économe,hypocondriaque, pointilleux, perfectionniste, critique, inquiet."},
    {7, "Balance", " - AIR",
     "Diplomate, pacifique, romantique, impartial, idéalistes, indécis, coquet, esthète, prévenant."},
    {8, "Scorpion", " - EAU",
     "Passionné, émotion forte, les extrêmes, sensuel, jaloux, le chercheur, mystérieux, secret, suspicieux."},
    {9, "Arc", " - FEU",
     "Optimiste, indépendant, impatient, le voyage, les animaux, le sport, le philosophe, l'enseignant, ne s'engage pas."},
    {10, "Crocodile", " - TERRE",
     "Pessimiste, conservateur, responsable, fiable, ambitieux, travaille dur, prudent, froid, rigide."},
    {11, "Jarre", " - AIR",
     "humaniste, anticonformiste, excentriques, imprévisible, inventif, froid, réservé, rebelle, imaginatif. "},
    {12, "Poissons", " - EAU",
     "Sensible, rêveurs,introverti, empathie, mystique, psychique, sacrifice personnel, vague, romantique."},
};
// clang-format on

class Signs : public testing::TestWithParam<SignRow> {};
TEST_P(Signs, HaveTheirNameElementAndText) {
    Sign const& one = sign(GetParam().number);
    EXPECT_EQ(one.name, GetParam().name);
    EXPECT_EQ(one.element, GetParam().element);
    EXPECT_EQ(one.text, GetParam().text);
}
INSTANTIATE_TEST_SUITE_P(Zodiac, Signs, testing::ValuesIn(sign_rows), [](auto const& row) {
    return "sign_" + std::to_string(row.param.number);
});

}  // namespace
}  // namespace navarun::test
