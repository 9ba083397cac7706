// The Meeus/Jones/Butcher computus; all divisions are whole.
#include "readings/easter.h"

namespace navarun {

EasterSunday easter_sunday(int year) {
    int const a = year % 19;
    int const b = year / 100;
    int const c = year % 100;
    int const d = b / 4;
    int const e = b % 4;
    int const f = (b + 8) / 25;
    int const g = (b - f + 1) / 3;
    int const h = (19 * a + b - d - g + 15) % 30;
    int const i = c / 4;
    int const k = c % 4;
    int const l = (32 + 2 * e + 2 * i - h - k) % 7;
    int const m = (a + 11 * h + 22 * l) / 451;
    int const sum = h + l - 7 * m + 114;
    return {.day = sum % 31 + 1, .month = sum / 31};
}

}  // namespace navarun
