// The twelve palaces: qualities and descriptions.
#include "zodiac/palaces.h"

#include <array>
#include <optional>

#include "core/text.h"

namespace navarun {

namespace {

using enum Quality;

// Palaces 1 to 12.
constexpr std::array<Quality, 12> qualities{
    benefic, neutral, unstable, vedha,   benefic, malefic,
    vedha,   malefic, benefic,  benefic, benefic, malefic,
};

// In the order of the qualities.
// clang-format off
constexpr std::array<QualityRow, 5> quality_rows{{
    {"B", "Bénéfique",       screen::Colour{128, 255, 128}},
    {"M", "Maléfique",       screen::Colour{255, 128, 128}},
    {"V", "Vedha",           screen::SystemColour::title_bar},
    {"I", "Instable",        screen::Colour{255, 255, 128}},
    {"N", "Neutre(Maraka)",  screen::Colour{255, 255, 255}},
}};
// clang-format on

constexpr std::array<std::string_view, 12> numbers{"1", "2", "3", "4",  "5",  "6",
                                                   "7", "8", "9", "10", "11", "12"};

struct Description {
    std::string_view matters;
    std::string_view people_heading;
    std::optional<std::string_view> people;  // none where the heading says it all
    std::string_view body;
};

// Palaces 1 to 12; blanks and spellings are those of the practitioners' own text.
constexpr std::array<Description, 12> descriptions{{
    {" La constitution - Les capacités - Le charisme - L'image de soi - Le caractère - La "
     "santé - La vitalité - Les efforts et les résolutions.",
     "Personnages :", " Le consultant.", "Le physique, la tête, le cerveau."},
    {"Richesse / Acquis - la famille - Nourriture - Les biens matériels - L'instruction - La "
     "parole - La mort.",
     "Personnages:  Aucun", std::nullopt, " visage, gorge, dentition, oeil droit."},
    {"La communication - Les écrits - Déménagement - Déplacement - Changement - Voyage - Le "
     "courage - Les disputes - Les discussions - les differents - Les querelles - les "
     "rumeurs.",
     "Personnages: ", " Les frères et les soeurs - Les voisins - Les collègues.",
     " poumons, oreille droite, épaules, main."},
    {"Le foyer - La patrie - Le mental - L'éducation - Les études - Le bonheur - Les "
     "ressources intérieures.",
     "Personnages: ", " La mère - Le peuple.", " Poitrine, coeur, seins."},
    {"Relations Sentimentales - Flirt - Stage - Formation - Examens - Concours - Naissance - "
     "Initiatives personnelles - Jeux et spéculation - Spiritualité - Intuition.",
     "Personnages: ", "Les enfants - l'Amant - La maitresse. ",
     "Système digestif, dos, colonne vertébrale."},
    {"Maladie - Accident -  Blessure - Ennemis - Les luttes - Les efforts - Compétitions - "
     "Ruptures - divorces - Ennuis - Animaux de compagnies.",
     "Personnages: ", "Les serviteurs - Les ennemis. ", " Les intestins."},
    {"Mariage - Contrat - La sociabilité - Le public - Le relationel - Voyage d'affaire.",
     "Personnages: ", "Le conjoint - L'associé - L'opposant  - L'autre. ",
     " Reins, vessie, système de reproduction interne (ovaire, utérus, testicules, sperme)."},
    {"Transformation - Bouleversement - Danger - Mort - Héritage - Changements soudains - "
     "souffrance psychique  - Crise  -  les secrets.",
     "Personnages:  Aucun ", "    ",
     "Système de reproduction externe (pénis; vagin), bas-ventre."},
    {"Chance - Voyage lointain -  Étrangers - Sagesse - Affaires juridiques - Perte de la "
     "profession - Études supérieures - Religion - Philosophie - Croyance - Le Divin - Le "
     "destin - Mérite karmique.",
     "Personnages: ", "Le Père - Le guide - L'enseignant. ",
     " Bassins, cuisses,hanches, coccyx."},
    {"Travail - Statut - Autorité - Pouvoir - Réputation - ambition - promotions.",
     "Personnages: ", "Roi/Reine - Chef d'État - Patron - Le juge - Le chef  ",
     " Os, genoux, articulations."},
    {"Succès - Soutien - Partisans - Réalisation des désirs - Les projets - Les espoirs - "
     "Appuis et protections -  Salaire - Le luxe. ",
     "Personnages: ",
     "Les amis - Les relations amicales - Les conseillers - Les partisans - Frère/soeur plus "
     "agé ",
     " Jambes, oreille gauche."},
    {"Privation - Perte -  Danger - Épreuves - Séparation - Exil - Hospitalisation - "
     "Emprisonnements - Voyage lointain -  La Fin - Epuisement - l'Émancipation - Les "
     "emprunts - Dépenses - Liaisons secrètes -  Ce qui est dissimulé - Le plaisir et les "
     "fantasmes sexuel  - Le don de soi - La solitude.",
     "Personnages: ", "Les ennemis cachés  ", "Pieds, oeil gauche, circulation du sang."},
}};

}  // namespace

Quality quality_of_palace(int palace) {
    return qualities.at(static_cast<std::size_t>(palace - 1));
}

QualityRow const& row_of(Quality quality) {
    return quality_rows[static_cast<std::size_t>(quality)];
}

std::string_view palace_number(int palace) {
    return numbers.at(static_cast<std::size_t>(palace - 1));
}

std::string description_palais(int palace) {
    auto const& row = descriptions.at(static_cast<std::size_t>(palace - 1));
    std::string text = "Description:";
    auto const line = [&](std::string_view content) {
        text.append(text::line_break).append(content);
    };
    line(row.matters);
    line(palace_rule());
    // The next heading follows the rule at once.
    text.append(row.people_heading);
    if (row.people) line(*row.people);
    line(palace_rule());
    text.append("Parties du corps:");
    line(row.body);
    return text;
}

std::string const& palace_rule() {
    static std::string const twenty_one_overlines = text::repeated("¯", 21);
    return twenty_one_overlines;
}

}  // namespace navarun
