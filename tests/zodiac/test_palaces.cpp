// The twelve palaces: qualities with their signs on the grid, and what each palace stands for.
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "zodiac/palaces.h"

namespace navarun::test {
namespace {

// Twenty-one overlines, U+00AF, written out.
constexpr std::string_view twenty_one_overlines = "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯";
static_assert(twenty_one_overlines.size() == 21 * std::string_view{"¯"}.size());

struct QualityCase {
    char const* name;
    int palace;
    std::string_view letter;
    std::string_view tooltip;
    std::string_view back;
    friend std::ostream& operator<<(std::ostream& out, QualityCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr QualityCase quality_cases[] = {
    {"palace_1",  1,  "B", "Bénéfique",      "#80FF80"},
    {"palace_2",  2,  "N", "Neutre(Maraka)", "#FFFFFF"},
    {"palace_3",  3,  "I", "Instable",       "#FFFF80"},
    {"palace_4",  4,  "V", "Vedha",          "system:title-bar"},
    {"palace_5",  5,  "B", "Bénéfique",      "#80FF80"},
    {"palace_6",  6,  "M", "Maléfique",      "#FF8080"},
    {"palace_7",  7,  "V", "Vedha",          "system:title-bar"},
    {"palace_8",  8,  "M", "Maléfique",      "#FF8080"},
    {"palace_9",  9,  "B", "Bénéfique",      "#80FF80"},
    {"palace_10", 10, "B", "Bénéfique",      "#80FF80"},
    {"palace_11", 11, "B", "Bénéfique",      "#80FF80"},
    {"palace_12", 12, "M", "Maléfique",      "#FF8080"},
};
// clang-format on

class PalaceQuality : public testing::TestWithParam<QualityCase> {};
TEST_P(PalaceQuality, IsTheOneOfThePalace) {
    QualityRow const& row = row_of(quality_of_palace(GetParam().palace));
    EXPECT_EQ(row.letter, GetParam().letter);
    EXPECT_EQ(row.tooltip, GetParam().tooltip);
    EXPECT_EQ(to_text(row.back), GetParam().back);
}
INSTANTIATE_TEST_SUITE_P(Palaces, PalaceQuality, testing::ValuesIn(quality_cases),
                         [](auto const& row) { return row.param.name; });

TEST(Rule, IsALineOfTwentyOneOverlines) { EXPECT_EQ(palace_rule(), twenty_one_overlines); }

struct PalaceRow {
    int number;
    char const* stands_for;
    char const* persons_heading;
    char const* persons;  // none where the heading says that there are none
    char const* body;
    friend std::ostream& operator<<(std::ostream& out, PalaceRow const& row) {
        return out << "palace " << row.number;
    }
};
// clang-format off
constexpr PalaceRow palace_rows[] = {
    {1,
     " La constitution - Les capacités - Le charisme - L'image de soi - Le caractère - La santé - La vitalité - Les efforts et les résolutions.",
     "Personnages :", " Le consultant.",
     "Le physique, la tête, le cerveau."},
    {2,
     "Richesse / Acquis - la famille - Nourriture - Les biens matériels - L'instruction - La parole - La mort.",
     "Personnages:  Aucun", nullptr,
     " visage, gorge, dentition, oeil droit."},
    {3,
     "La communication - Les écrits - Déménagement - Déplacement - Changement - Voyage - Le courage - Les disputes - Les discussions - les differents - Les querelles - les rumeurs.",
     "Personnages: ", " Les frères et les soeurs - Les voisins - Les collègues.",
     " poumons, oreille droite, épaules, main."},
    {4,
     "Le foyer - La patrie - Le mental - L'éducation - Les études - Le bonheur - Les ressources intérieures.",
     "Personnages: ", " La mère - Le peuple.",
     " Poitrine, coeur, seins."},
    {5,
     "Relations Sentimentales - Flirt - Stage - Formation - Examens - Concours - Naissance - Initiatives personnelles - Jeux et spéculation - Spiritualité - Intuition.",
     "Personnages: ", "Les enfants - l'Amant - La maitresse. ",
     "Système digestif, dos, colonne vertébrale."},
    {6,
     "Maladie - Accident -  Blessure - Ennemis - Les luttes - Les efforts - Compétitions - Ruptures - divorces - Ennuis - Animaux de compagnies.",
     "Personnages: ", "Les serviteurs - Les ennemis. ",
     " Les intestins."},
    {7,
     "Mariage - Contrat - La sociabilité - Le public - Le relationel - Voyage d'affaire.",
     "Personnages: ", "Le conjoint - L'associé - L'opposant  - L'autre. ",
     " Reins, vessie, système de reproduction interne (ovaire, utérus, testicules, sperme)."},
    {8,
     "Transformation - Bouleversement - Danger - Mort - Héritage - Changements soudains - souffrance psychique  - Crise  -  les secrets.",
     "Personnages:  Aucun ", nullptr,
     "Système de reproduction externe (pénis; vagin), bas-ventre."},
    {9,
     "Chance - Voyage lointain -  Étrangers - Sagesse - Affaires juridiques - Perte de la profession - Études supérieures - Religion - Philosophie - Croyance - Le Divin - Le destin - Mérite karmique.",
     "Personnages: ", "Le Père - Le guide - L'enseignant. ",
     " Bassins, cuisses,hanches, coccyx."},
    {10,
     "Travail - Statut - Autorité - Pouvoir - Réputation - ambition - promotions.",
     "Personnages: ", "Roi/Reine - Chef d'État - Patron - Le juge - Le chef  ",
     " Os, genoux, articulations."},
    {11,
     "Succès - Soutien - Partisans - Réalisation des désirs - Les projets - Les espoirs - Appuis et protections -  Salaire - Le luxe. ",
     "Personnages: ", "Les amis - Les relations amicales - Les conseillers - Les partisans - Frère/soeur plus agé ",
     " Jambes, oreille gauche."},
    {12,
     "Privation - Perte -  Danger - Épreuves - Séparation - Exil - Hospitalisation - Emprisonnements - Voyage lointain -  La Fin - Epuisement - l'Émancipation - Les emprunts - Dépenses - Liaisons secrètes -  Ce qui est dissimulé - Le plaisir et les fantasmes sexuel  - Le don de soi - La solitude.",
     "Personnages: ", "Les ennemis cachés  ",
     "Pieds, oeil gauche, circulation du sang."},
};
// clang-format on

class PalaceDescription : public testing::TestWithParam<PalaceRow> {};
TEST_P(PalaceDescription, HasThreeHeadedBlocks) {
    PalaceRow const& row = GetParam();
    std::string const overlines{twenty_one_overlines};
    std::string persons = row.persons_heading;
    if (row.persons != nullptr) persons += "\r\n" + std::string{row.persons};
    // The palace of upheavals keeps an empty line of blanks where the persons would stand.
    if (row.number == 8) persons += "\r\n    ";
    EXPECT_EQ(description_palais(row.number),
              "Description:\r\n" + std::string{row.stands_for} + "\r\n" + overlines + persons +
                  "\r\n" + overlines + "Parties du corps:\r\n" + row.body);
}
INSTANTIATE_TEST_SUITE_P(Palaces, PalaceDescription, testing::ValuesIn(palace_rows),
                         [](auto const& row) {
                             return "palace_" + std::to_string(row.param.number);
                         });

TEST(PalaceDescription, OfTheFirstPalaceWrittenOut) {
    EXPECT_EQ(
        description_palais(1),
        "Description:\r\n"
        " La constitution - Les capacités - Le charisme - L'image de soi - Le caractère - "
        "La santé - La vitalité - Les efforts et les résolutions.\r\n"
        "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯Personnages :\r\n"
        " Le consultant.\r\n"
        "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯Parties du corps:\r\n"
        "Le physique, la tête, le cerveau.");
}

TEST(PalaceDescription, OfTheSecondPalaceHasNoPersonsLine) {
    EXPECT_EQ(description_palais(2),
              "Description:\r\n"
              "Richesse / Acquis - la famille - Nourriture - Les biens matériels - "
              "L'instruction - La parole - La mort.\r\n"
              "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯Personnages:  Aucun\r\n"
              "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯Parties du corps:\r\n"
              " visage, gorge, dentition, oeil droit.");
}

TEST(PalaceDescription, OfTheEighthPalaceHasALineOfFourBlanks) {
    EXPECT_EQ(
        description_palais(8),
        "Description:\r\n"
        "Transformation - Bouleversement - Danger - Mort - Héritage - Changements soudains "
        "- souffrance psychique  - Crise  -  les secrets.\r\n"
        "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯Personnages:  Aucun \r\n"
        "    \r\n"
        "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯Parties du corps:\r\n"
        "Système de reproduction externe (pénis; vagin), bas-ventre.");
}

}  // namespace
}  // namespace navarun::test
