// The readings of the two numbers and of the mansions, word for word.
#include <optional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "zodiac/readings.h"

namespace navarun::test {
namespace {

struct DinankaRow {
    int number;
    char const* keyword;
    char const* positive;
    char const* negative;
    friend std::ostream& operator<<(std::ostream& out, DinankaRow const& row) {
        return out << "dinanka " << row.number;
    }
};
// clang-format off
constexpr DinankaRow dinanka_rows[] = {
    {1, "Mots clé: Direction",
     "(^_^): habileté, ambition, débrouillardise.",
     "(>_<): arrivisme, vantardise, agitation."},
    {2, "Mot clé: Emotion.",
     "(^_^): réserve, discrétion, méditation.",
     "(>_<): dissimulation, introversion, hypocrisie."},
    {3, "Mot clé: communication.",
     "(^_^): compréhension, culture, intelligence.",
     "(>_<): prétention, coquetterie, condescendance."},
    {4, "Mot clé: Persévérant.",
     "(^_^): volonté, ténacité, amour du commandement.",
     "(>_<): entêtement, intransigeance, tyrannie."},
    {5, "Mot clé: Mouvement.",
     "(^_^): conseil, rigueur, honnêteté.",
     "(>_<): sévérité, intolérance, étroitesse d'esprit."},
    {6, "Mot clé: Séduction.",
     "(^_^): enthousiasme, interrogation, discussion.",
     "(>_<): doute, manque de confiance, justification."},
    {7, "Mot clé: Investigation.",
     "(^_^): réussite par le mérite, goût de la direction, progrès.",
     "(>_<): suractivité, inquiétude, despotisme."},
    {8, "Mot clé: Evolution.",
     "(^_^): grande logique, esprit de méthode, pondération.",
     "(>_<): déséquilibre, manque d'ordre, esprit querelleur."},
    {9, "Mot clé: Résolution.",
     "(^_^): temps de réflexion, sagesse, discrétion.",
     "(>_<): timidité, crainte, repli sur soi."},
};
// clang-format on

class DinankaReading : public testing::TestWithParam<DinankaRow> {};
TEST_P(DinankaReading, HasKeywordBothLinesAndARuleBelow) {
    DinankaRow const& row = GetParam();
    EXPECT_EQ(dinanka_reading(row.number),
              "DINANKA:" + std::to_string(row.number) + "\r\n" + row.keyword + "\r\n\r\n" +
                  row.positive + "\r\n\r\n" + row.negative + "\r\n___________________\r\n");
}
INSTANTIATE_TEST_SUITE_P(Numbers, DinankaReading, testing::ValuesIn(dinanka_rows),
                         [](auto const& row) {
                             return "dinanka_" + std::to_string(row.param.number);
                         });

TEST(DinankaReading, OfTheFirstNumberWrittenOut) {
    EXPECT_EQ(dinanka_reading(1),
              "DINANKA:1\r\n"
              "Mots clé: Direction\r\n"
              "\r\n"
              "(^_^): habileté, ambition, débrouillardise.\r\n"
              "\r\n"
              "(>_<): arrivisme, vantardise, agitation.\r\n"
              "___________________\r\n");
}

struct PurnankaRow {
    int number;
    char const* first_line;
    char const* second_line;  // none for number 2
    friend std::ostream& operator<<(std::ostream& out, PurnankaRow const& row) {
        return out << "purnanka " << row.number;
    }
};
// clang-format off
constexpr PurnankaRow purnanka_rows[] = {
    {1, "Vie d'indépendance et d'action individuelles.",
     " Qualiter à développer :L'ambition, la confiance en soi, la détermination."},
    {2, "Vie d'association et de recherche d'harmonie, Qualiter à développer: La compréhension, la patience,la diplomatie.",
     nullptr},
    {3, "Vie d'expression.",
     "Qualiter à développer : La créativité, l'ouverture aux autres, l'ambition."},
    {4, "Vie de travail et de luttes.",
     "Qualiter à développer : L'organisation, la persévérance, la patience."},
    {5, "Vie d'ouverture et de changements.",
     "Qualiter à développer : l'adaptation, l'expression de soi, l'audace."},
    {6, "Vie de responsabilité et d'harmonie.",
     "Qualiter à développer :Le sens du devoir, la générosité, la conciliation."},
    {7, "Vie de reflexion.",
     "Qualiter à développer : Le sens pratique, l'intuition, le sens du dialogue."},
    {8, "Vie d'ambition matérielle.",
     "Qualiter à développer : La pugnacité, le sens des affaires, le respect des autres."},
    {9, "Vie d'idéal et d'émotion.",
     "Qualiter à développer : La générosité, l'imagination, les respect des autres."},
};
// clang-format on

class PurnankaReading : public testing::TestWithParam<PurnankaRow> {};
TEST_P(PurnankaReading, HasOneOrTwoLines) {
    PurnankaRow const& row = GetParam();
    std::string expected = "PURNANKA:" + std::to_string(row.number) + "\r\n" + row.first_line;
    if (row.second_line != nullptr) expected += "\r\n\r\n" + std::string{row.second_line};
    EXPECT_EQ(purnanka_reading(row.number), expected);
}
INSTANTIATE_TEST_SUITE_P(Numbers, PurnankaReading, testing::ValuesIn(purnanka_rows),
                         [](auto const& row) {
                             return "purnanka_" + std::to_string(row.param.number);
                         });

TEST(PurnankaReading, OfTheSecondNumberHasOneLineOnly) {
    EXPECT_EQ(purnanka_reading(2),
              "PURNANKA:2\r\n"
              "Vie d'association et de recherche d'harmonie, Qualiter à développer: La "
              "compréhension, la patience,la diplomatie.");
}

struct MansionReadingRow {
    int number;
    char const* positive;
    char const* negative;
    friend std::ostream& operator<<(std::ostream& out, MansionReadingRow const& row) {
        return out << "mansion " << row.number;
    }
};
// clang-format off
constexpr MansionReadingRow mansion_reading_rows[] = {
    {1,
     "(^_^)  qualité de mouvement, déplacement, rapidité, charme, élégance, intelligence, progrès, dynamisme, compréhensif, leadership, intelligent et habile.",
     "(>_<)  remuant, querelleur, une trop grande hâte, risque d'extravagance, déterminé, aime plaire et séduire."},
    {2,
     "(^_^)  décidé, volontaire, heureux, têtu, habile, attachement à la famille, calme, stable, solide, déterminé, persévérant, fidèle, sens du devoir, digne de confiance, fier, courageux, aime les enfants (la matrice est associée à l'amour maternel).Triomphe sur les difficultés. ",
     "(>_<)  compulsion dans le travail (travail de façon.acharnée ou beaucoup trop), un trop grand contrôle de soi, va trop en avant."},
    {3,
     "(^_^)  séduisant, sympathique, sensuel.",
     "(>_<)  jouisseur (éventuellement et suivant le cas: aimant les femmes des autres, dragueur, etc.), infidèle et gourmand. C'est, en général, un indice d'aisance, mais avec un risque d'adultère, avec les complications qui peuvent en découler."},
    {4,
     "(^_^)  indice de fidélité, de créativité, de sensibilité aux arts, de réussite et de stabilité; la diplomatie; aimable, poli, sincère, fidèle, charitable, moral, calme, sobre, stable et ferme.",
     "(>_<)  excès dans les qualités ci-dessus ; par exemple, bigot (charitable en excès), inébranlable et ne revenant pas sur sa décision (excès de fermeté), la fourberie ou le mensonge (excès de diplomatie), etc."},
    {5,
     "(^_^)  la bienveillance (avec éventuellement de la timidité), le développement des arts ou de ses capacités artistiques (éventuellement les études), persuasif, habile.",
     "(>_<)  changeant, indice d'aspect volage (ou trop sensuel), capricieux; bavard, beau parleur, épicurien, profiteur, tendance à aimer la vie facile."},
    {6,
     "(^_^)  toute situation, même délicate, peut évoluer. Les larmes versées par Ardrâ (en signe de compassion) ont permis de sauver les hommes d'une terrible sécheresse.",
     "(>_<)   indice de malice, de soucis ou d'égoïsme ; ingrat, menteur, trompeur, perfide, rusé (en affaires), fourbe, voleur, inconstant et infidèle."},
    {7,
     "(^_^)  indice de calme, de bonté et de réflexion ; aimable, sympathique, calme, patient, optimiste, bon, généreux, sincère, fiable, naïf, aime l'art, le retour au foyer; aime vivre simplement, retiré du monde dans l'intimité de sa famille ou avec ses amis ; intérêt pour le yoga, la méditation, etc.",
     "(>_<)  l'excès des qualités ci-dessus, supporte mal les mondanités et la foule, indice de déménagement."},
    {8,
     "(^_^)   serviable, charitable, généreux, persévérant, réservé, prudent, économe, travailleur (ténacité dans l'effort) ; indice d'aisance, de renommée ou de popularité.",
     "(>_<)  tenace, obstiné, frugal, contrôlé, impassible; la difficulté d'arrêter (ou de changer d'avis) si le sujet fait fausse route."},
    {9,
     "(^_^)  favorise l'élévation mentale et l'énergie, éloquent, habile, rusé, la transmutation de la peur en courage.",
     "(>_<)  manque de franchise, risque d'avarice, déception, égoïste, ingrat, dur, asocial, versatile, malhonnête; indice de rupture familiale, professionnelle ou de tous ordres, désillusions."},
    {10,
     "(^_^)  ambitieux, enthousiaste, entreprenant, travailleur, industrieux, ne manque de rien, aime profiter de la vie et des belles choses ; indice de richesse, de savoir-faire.",
     "(>_<)  carriériste, domination, exaltation de la puissance."},
    {11,
     "(^_^)  les qualités de Shukra (aime les arts, etc.), aimable, courtois, éloquent, généreux, érudit, la relaxation ; aime voyager, attiré par tout ce qui est féminin, les jeux amoureux.",
     "(>_<)   gaspilleur, frivole, impétuosité, un peu d'orgueil, instable ; aime flirter, le luxe ; une certaine méfiance pour ce qui touche le feu."},
    {12,
     "(^_^)   influence heureuse, joyeuse; populaire, généreux, plein d'amis, vif, sans soucis, éloquent, renommé, cultivé, goût pour la lecture; prédisposé au bonheur, à la volupté, sensuel; le mérite personnel est favorisé; indice de savoir, de popularité ; la capacité d'acquérir des richesses.",
     "(>_<)  goût du luxe ou de paraître, gaspilleur, comportement imprudent, frivole, dragueur, voire jouisseur ; risque d'esclandre par suite d'une liaison amoureuse."},
    {13,
     "(^_^)  envie d'agir, esprit inventif, subtil, le travail journalier ou routinier, débrouillard, travailleur, peu ambitieux, au service des autres, plus que patron dans l'âme, doué pour le commerce, érudit (mais avec un savoir technique ou pratique) ; aime le travail.",
     "(>_<)  rusé, une conscience un peu fragile («élastique», mouvante), fuyante et peu fiable; mauvaise relation avec la famille, indice d'indélicatesse, voire de vol."},
    {14,
     "(^_^)  la lumière, l'élégance, le charme personnel, intuitif, charmant, amical, sentimental, élégant, aime le luxe, bonne relation avec le conjoint, à la recherche de la vérité, aime à peser le pour et le contre.",
     "(>_<)   indécis et peu courageux."},
    {15,
     "(^_^)  calme, sobre, plein de maîtrise et de sang-froid, juste, loyal, charitable, généreux (en général, sans rien attendre en retour), gentil, sociable, poli, courtois, modeste, susceptible, sympathique et reconnaissant, supporte mal l'injustice; dispose d'un sens commercial développé.",
     "(>_<)  peur de manquer, instable en amitié, l'excès des qualités ; susceptible d'induire les gens en erreur."},
    {16,
     "(^_^)  intelligent, courageux, plein de bon sens, habile, vif, doué pour les affaires.",
     "(>_<)  querelleur, promesses prises à la légère ou non tenues, paroles blessantes par manque de tact, tendance à brasser du vent, beau parleur, avare, mesquin, jaloux, cynique, peu charitable; obtenir un résultat par tous les moyens."},
    {17,
     "(^_^)  opportunité dans la vie, déplacements, peu satisfait de l'endroit choisi, vaillant, travailleur, un peu vaniteux, gourmand, influent, respectueux de la parole donnée, peu de chance au jeu, pleinement conscient des marques d'amitié.",
     "(>_<)  vaniteux, dragueur, tendance à trop penser au sexe opposé ou à l'argent, égocentrique."},
    {18,
     "(^_^)  pouvoir de diriger, content de soi, plein de ressources ; dans le thème de naissance, cette demeure prédispose au mariage avec quelqu'un de plus mature ou de plus âgé; gain auquel on ne s'attendait pas ou par un moyen qui n'est pas habituel au consultant; la découverte d'ennemis cachés.",
     "(>_<)  difficulté à se faire des amis (des relations, etc.), perte, tendance à exagérer, asocial, peu ou sans amis, dur en paroles, autoritaire, ambitieux, vaillant, irritable, irascible, coléreux, emporté, querelleur."},
    {19,
     "(^_^)  favorable aux idées personnelles et aux domaines techniques, indice d'aisance (en thème natal), fier, ferme, discipliné, déterminé; aime le confort et la stabilité; propice aux activités salariées.",
     "(>_<)   l'excès des qualités (par exemple: rude, intransigeant, etc.), déteste l'insécurité, peur de l'avenir; défavorable au commerce, peu propice au travailleur indépendant (profession libérale ou assimilée)."},
    {20,
     "(^_^)  l'invincibilité, la résistance, l'endurance, apprivoiser l'animal (peur, etc.) qui est en chacun, les espoirs, bon rapport avec les frères et sœurs ; compétent, fidèle en arnour, sincère, sait rester simple, constant en amitié, sensuel et fin gourmet.",
     "(>_<)  problèmes d'argent; ambitieux, vaniteux, fier, aime le faste, autoritaire, trop dans le pouvoir, l'excès des qualités."},
    {21,
     "(^_^)  Prédispose à la vie militaire (par extension, l'homme d'action, le sportif), le combattant pour une idée; tempérament vertueux et reconnaissant, respectueux de la hiérarchie, obéissant, sociable, poli, populaire, humble, discret, modeste, honorable dans ses actions ; la droiture.",
     "(>_<)  tendance à abuser des plaisirs sexuels, amours instables, le rebelle, l'énergie physique mal canalisée."},
    {22,
     "(^_^)  généreux, populaire, séduisant, bon, aimant, fidèle, cultivé, adroit, astucieux, actif, hardi et enthousiaste ; indice de renommée, de richesse, si on écoute judicieusement les autres; exprimer ses convictions pour créer un espace bénéfique.",
     "(>_<)  se méfier des spéculations, éviter les prêts d'argent, ne pas s'engager, ne pas signer de contrat; les excès des qualités."},
    {23,
     "(^_^)  indépendant, courageux, vaillant, populaire, charitable, non assez démonstratif, célibataire ; aime la musique, les femmes.",
     "(>_<)   caustique, peu sensible, peu affectif, sans amis, effronté, intrépide, voire héroïque; indice de désaccord conjugal, risque de misogynie."},
    {24,
     "(^_^)  sincère, fidèle, ambitieux, indépendant, courageux, audacieux; favorable si on agit avec prudence.",
     "(>_<)   facilement trompé, très sensible, volubile, versatile, implacable, rude, brusque, entêté, aventureux, irréfléchi ; implacable si trompé dans ses affections ; peu propice au domaine des affaires."},
    {25,
     "(^_^)  patient, compétent, digne, mélancolique, beaucoup d'imagination, éloquent; la politique et le domaine des affaires sont favorisés.",
     "(>_<)  lugubre, triste, avare, jaloux, mesquin, angoissé; prudence avec les femmes, surtout si c'est une nouvelle rencontre, facilement manipulé par le sexe opposé; la richesse n'est pas associée au bonheur conjugal."},
    {26,
     "(^_^)  sensible, charitable, généreux, plein de tact, timide, vertueux, méditatif, spirituel; tendance à vivre retiré; le domaine spirituel est important, la méditation (ou la voyance) est favorisée; succès sur les ennemis.",
     "(>_<)   les excès des qualités ; évoque un retard si décision hâtive, l'argent risque d'être dépensé aussi vite que gagné."},
    {27,
     "(^_^)  combatif, vaillant, courageux, sobre, compétent, créatif; tendance à mépriser l'argent, mais est sensible au sexe opposé; intérieurement paix de l'âme, même si les événements extérieurs sont contraires.",
     " (>_<)  irascible, a des principes trop stricts; l'excès des qualités. "},
};
// clang-format on

class MansionReading : public testing::TestWithParam<MansionReadingRow> {};
TEST_P(MansionReading, HasBothParagraphs) {
    MansionReadingRow const& row = GetParam();
    EXPECT_EQ(mansion_reading(row.number),
              std::string{row.positive} + "\r\n\r\n" + row.negative);
}
INSTANTIATE_TEST_SUITE_P(Mansions, MansionReading, testing::ValuesIn(mansion_reading_rows),
                         [](auto const& row) {
                             return "mansion_" + std::to_string(row.param.number);
                         });

TEST(MansionReading, OutsideTheMansionsThereIsNone) {
    EXPECT_EQ(mansion_reading(0), std::nullopt);
    EXPECT_EQ(mansion_reading(28), std::nullopt);
    EXPECT_EQ(mansion_reading(-1), std::nullopt);
}

}  // namespace
}  // namespace navarun::test
