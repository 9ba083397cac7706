// Sums modulo nine.
#include "periods/cycle_lords.h"

#include "core/lords.h"

namespace navarun {

int lord_of_year(int weekday_lord, int day, int month, int year_of_century) {
    return reduced_to_nine(weekday_lord + day + month + year_of_century);
}

int lord_of_first_month(int age, int month_of_birth, int year_lord) {
    return reduced_to_nine((age - 1) * 12 + (month_of_birth - 1) + year_lord);
}

}  // namespace navarun
