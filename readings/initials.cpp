// The texts of the letters.
#include "readings/initials.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace navarun {

namespace {

// Letters A to Z; spacing and dashes are those of the practitioners' own text.
constexpr std::array<std::string_view, 26> letter_texts{
    "A- INITIATIVE, INTELLIGENCE : Ambition et sens de l'action. Volonté. Tendance à être "
    "impatient et obstiné. Désir de s'élever dans l'échelle sociale.",
    "B - INTROVERSION : Sentimentalité, sensibilité. Besoin de confort et de sécurité. "
    "Comportement souvent lunatique ou indécis.",
    "C -intuition: Rapidité d  'esprit et sens de la communication. Talent pour l'expression "
    "et adaptation aisée. Tendance à avoir des réactions exagérées.",
    "D - EXTRAVERSION : Sens du travail et de la construction. Esprit logique et nature "
    "persévérante. Efficacité. Tendance à être possessif et entêté.",
    "E - ÉNERGIE : Savoir-faire et intelligence. Esprit créatif et sens de l'indépendance. "
    "Habilité. Tendance à être impulsif et nerveux.",
    "F – RESPONSABILITÉ : Emotivité, discrétion. Sens des responsabilités. Qualités humaines "
    "et organisation. Tendance à être susceptible et rancunier.",
    "G - SECRET : Ardeur au travail, esprit logique et force intérieure. Concentration et "
    "esprit analytique. Tendance à ruminer et à trop exiger.",
    "H - EXCÈS : Détermination et volonté de réussir. Qualités d'organisation et de "
    "direction. Tendance à être arrogant et à dominer.",
    "I – ÉMOTIVITÉ : Inspiration et ouverture d'esprit. Chaleur humaine et grande "
    "créativité. Sens du public. Emotivité souvent trop grande.",
    "J - PERSONNALITÉ BRILLANTE : Aspirations élevées et sens de la gestion. Amour de la "
    "justice. Besoin de communication. Incertitude et tendance à ne pas persévérer.",
    "K - ANGOISSE, AGRESSIVITÉ : Individualité et besoin de s'imposer. Intuition développée "
    "et force de caractère. Tendance aux abus et aux excès. Nervosité extrême.",
    "L - TENDANCE A L'ANALYSE : Originalité et créativité. Comportement sociable et direct. "
    "Expression facile. Réactions souvent colériques et imprudentes.",
    "M - ACTIVITÉS : Sens de l'activité et qualités constructives. Besoin de construire et "
    "de réaliser. Comportement souvent rude et carré.",
    "N - CHANGEMENT : Sens de la négociation et qualités d'animation ou de promotion. "
    "Adaptation et finesse. Tendance à être de mauvaise foi et impatient.",
    "O - IDÉALISME, ÉMOTIVITÉ CONTROLÉE : Compréhension d'autrui et chaleur humaine. "
    "Sensibilité et sens esthétique. Intuition. Tendance à être obstiné et trop émotif.",
    "P - RÉSERVE : Nature secrète et besoin d'autonomie. Qualités d'analyse et d'étude; "
    "conseil à autrui. Caractère souvent irascible et borné.",
    "Q - INTROSPECTION : Caractère fort avec une tendance à la domination. Rapidité "
    "d'action. Sens des affaires. Néanmoins, intrépidité, imprudence et risque d'action "
    "impulsive.",
    "R - POSSIBILITÉ OCCULTE : (Possibilité cachée) - Sens du service et du dévouement. "
    "Personnalité active et besoin d'espace. Combativité. Tendance à se mettre au premier "
    "plan. Eparpillement.",
    "S - NATURE FUYANTE : Besoin d'indépendance et de réussite personnelle. Sens de la "
    "gestion et des responsabilités. Emotivité fréquente et un comportement dur.",
    "T - BLOCAGE : Sens du contact avec autrui. Dons créatifs. Originalité. Efficacité dans "
    "la collaboration. Tendance à douter et à être trop réservé.",
    "U - IMAGINATION, RÊVERIE : Compréhension intuitive d'autrui. Désir de réalisation pour "
    "autrui ou la collectivité. Tendance à manquer de tact et à avoir des préjugés.",
    "V – VOLONTÉ : Qualités de maîtrise et de réalisations ambitieuses. Volonté et solidité. "
    "Sens de la lutte. Tendance à trop imposer et au non-conformisme.",
    "W - INTROSPECTION : Qualités sociales et sens du contact. Talent pour la communication. "
    "Facilités d'adaptation. Tendance à l'instabilité et au désordre.",
    "X -SACRIFICE, RENONCEMENT: Intelligence et intuition. Facilités pour toucher à tout. "
    "Talent pour les affaires. Tendance à la confusion et au gaspillage.",
    "Y - NATURE MNÉMONIQUE : Amour des valeurs vraies. Grande sensibilité et créativité à "
    "exploiter. Indépendance. Difficulté à faire des choix.",
    "Z - SENS DE LA MATIÈRE : Sens du travail et des affaires. Énergie et combativité. "
    "Facilités de contacts avec le monde. Tendance à être agressif et impulsif.",
};

// The place, from 1, of the first `separator`; 0 where there is none.
int place_of(std::vector<char32_t> const& name, char32_t separator) {
    auto const found = std::ranges::find(name, separator);
    return found == name.end() ? 0 : static_cast<int>(found - name.begin()) + 1;
}

// The capital of the character at a place, from 1; empty beyond the end.
std::string capital_at(std::vector<char32_t> const& name, int place) {
    auto const at = static_cast<std::size_t>(place - 1);
    return at < name.size() ? text::upper(text::encoded(name[at])) : std::string{};
}

}  // namespace

std::optional<std::string_view> letter_text(std::string_view letter) {
    if (letter.size() != 1 || letter[0] < 'A' || letter[0] > 'Z') return {};
    return letter_texts[static_cast<std::size_t>(letter[0] - 'A')];
}

std::vector<std::string> initials_of(std::string_view first_name, std::string_view last_name) {
    auto const first = text::characters(first_name);
    std::string const last_initial = capital_at(text::characters(last_name), 1);
    // The places are or-ed, not compared: one separator gives its place, two different ones a
    // number that can point elsewhere.
    int const separator = place_of(first, U' ') | place_of(first, U'-') | place_of(first, U'.');
    std::vector<std::string> initials{capital_at(first, 1)};
    if (separator > 0) {
        std::string const second = capital_at(first, separator + 1);
        initials.push_back(second.empty() ? last_initial : second);
    }
    initials.push_back(last_initial);
    return initials;
}

}  // namespace navarun
