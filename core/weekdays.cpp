// The table of the week.
#include "core/weekdays.h"

#include <array>

#include "core/text.h"

namespace navarun {

namespace {

// Sunday first.
constexpr std::array<Weekday, 7> week{{
    {"Dimanche", "dim.", Lord::Surya,
     "(^_^) Orgueilleux, ambitieux, autoritaire, confiant en lui, enthousiaste, esprit clair "
     "et cartésien. Recherche d'élévation.",
     "(>_<) Égoïsme, autoritaire, domination, impose son point de vue."},
    {"Lundi", "lun.", Lord::Chandra,
     "(^_^) Nature réceptive et sensible, émotif, rêveur, imaginatif, intuitif, réceptif, "
     "créatif, fécond,goût des relations.",
     "(>_<) Irréalisme, caractère lunatique ou instable, émotif, faiblesse."},
    {"Mardi", "mar.", Lord::Kuja,
     "(^_^) Combativité, force,Impulsif, passionné, brave, actif, courageux, audacieux, "
     "franc, volontaire et ardent. ",
     "(>_<) Tempérament colérique, Impulsif, Intransigeance, arrogance ou agressivité, ne "
     "prend pas le temps."},
    {"Mercredi", "mer.", Lord::Budha,
     "(^_^) vivacité d'esprit, Communicatif, habile, diplomate, souple, adaptable,sens des "
     "échanges, qualités intellectuelles.",
     "(>_<) Tendance aux mensonge,a l'hypocrisie, rusé, menteur, instable, hésitant,nerveux."},
    {"Jeudi", "jeu.", Lord::Guru,
     "(^_^) Ambitieux, loyal, moral, optimiste, franc, jovial, expansif, sensuel, sens de la "
     "justice et des règles.",
     "(>_<) Excès de toute nature, à l’exagération, éparpillement, aventure risquées."},
    {"Vendredi", "ven.", Lord::Shukra,
     "(^_^) Sensible, sensuel, créatif, gentil, sentimental, recherche l'harmonie, sociable, "
     "gai, rieur, charmant, sens de l'humain.",
     "(>_<) Versatilité, indécision, caprices, désordre, matérialiste, inclinations "
     "douteuses."},
    {"Samedi", "sam.", Lord::Shani,
     "(^_^) Sens du devoir, réfléchi, patient, fidèle, concentré,prudent, persévérant, "
     "cérébral et solitaire.",
     "(>_<) Pessimiste, froideur, introversion, manque de dynamisme, esprit limité."},
}};

}  // namespace

Weekday const& weekday(int number) { return week.at(static_cast<std::size_t>(number - 1)); }

std::string divinity_caption(Weekday const& day) {
    std::string caption{row_of(day.lord).name};
    return caption.append(" ").append(std::to_string(number_of(day.lord)));
}

std::string weekday_reading(Weekday const& day) {
    std::string reading{day.positive};
    return reading.append(text::line_break).append(text::line_break).append(day.negative);
}

}  // namespace navarun
