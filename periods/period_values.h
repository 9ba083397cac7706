// The values of the period engine: the person's schedule, and what its steps remember between
// two calls.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "periods/dates_age.h"
#include "shell/screen/colour.h"

namespace navarun {

/// Text colour of the period and the month in progress, and of a cell picked by hand.
inline constexpr screen::Colour couleur_actuelle{192, 64, 0};

struct PeriodValues {
    DatesAge dates_age;  // the schedule of the person

    // The row of the periods.
    int seigneur_dasha = 0;  // lord last assigned by any sequence; never reset
    int pas_mois = 0;
    screen::Colour couleur_dasha;

    // The lords of year and months.
    int annee_2chiffres = 0;
    std::string nom_seigneur_an;
    int age_precedent = 0;
    int age_compare = 0;
    std::array<std::string_view, 12> noms_mois{};

    // The age bar.
    int age_scroll = 1;
    int pas_defile = 0;

    // The triple coincidence.
    std::array<int, 2> cellules_tridevas{};
    int nombre_tridevas = 0;
    std::string_view genre_trideva;

    // The grid reduced to the selected cells.
    bool cycle_partiel_actif = false;
};

}  // namespace navarun
