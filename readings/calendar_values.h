// What the calendar window remembers between two events.
#pragma once

#include <string>

namespace navarun {

struct CalendarValues {
    std::string cal_jour;   // two digits
    std::string cal_mois;   // two digits
    std::string cal_annee;  // four digits
    int cal_jour_n = 0;
    int cal_mois_n = 0;
    int cal_annee_n = 0;
    int cal_case = -1;        // the cell last clicked; -1 for none
    bool cal_calcul = false;  // the calculation runs: the lists must not start it again
};

}  // namespace navarun
