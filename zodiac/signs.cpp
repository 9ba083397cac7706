// The table of signs.
#include "zodiac/signs.h"

#include <array>

namespace navarun {

namespace {

// Names and texts stand as the practitioners know them, the blank at the end of sign 11 too.
constexpr std::array<Sign, 12> signs{{
    {"Bélier", " - FEU",
     "Impulsive, rapide, spontané, enthousiaste, impatient, têtu, égoïste, aventureux, "
     "intrépide."},
    {"Taureau", " - TERRE",
     "Patient, prévisible, stable, passif, perfectionniste, matérialiste, possessif, "
     "obstiné, sensuel."},
    {"Couple", " - AIR",
     "Adaptable, curieux, agité, sociable, amical, superficiel, volage, hésitant, nerveux."},
    {"Crabe", " - EAU",
     "Émotionnel, romantique, réactif, sensible, réceptif, intuitif, maternel, besoin de "
     "sécurité, dépendant."},
    {"Lion", " - FEU",
     "Autorité, loyal, fidèle, l'estime de soi, confiance en soi, arrogant, vaniteux, "
     "affectueux, généreux."},
    {"Jeune-Fille", " - TERRE",
     "Timide, réservé, pratique, économe,hypocondriaque, pointilleux, perfectionniste, "
     "critique, inquiet."},
    {"Balance", " - AIR",
     "Diplomate, pacifique, romantique, impartial, idéalistes, indécis, coquet, esthète, "
     "prévenant."},
    {"Scorpion", " - EAU",
     "Passionné, émotion forte, les extrêmes, sensuel, jaloux, le chercheur, mystérieux, "
     "secret, suspicieux."},
    {"Arc", " - FEU",
     "Optimiste, indépendant, impatient, le voyage, les animaux, le sport, le philosophe, "
     "l'enseignant, ne s'engage pas."},
    {"Crocodile", " - TERRE",
     "Pessimiste, conservateur, responsable, fiable, ambitieux, travaille dur, prudent, "
     "froid, rigide."},
    {"Jarre", " - AIR",
     "humaniste, anticonformiste, excentriques, imprévisible, inventif, froid, réservé, "
     "rebelle, imaginatif. "},
    {"Poissons", " - EAU",
     "Sensible, rêveurs,introverti, empathie, mystique, psychique, sacrifice personnel, "
     "vague, romantique."},
}};

}  // namespace

Sign const& sign(int number) { return signs.at(static_cast<std::size_t>(number - 1)); }

}  // namespace navarun
