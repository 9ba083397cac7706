// Digit sums of the birth date.
#include "zodiac/numbers.h"

#include "core/lords.h"
#include "core/text.h"

namespace navarun {

int dinanka_of(std::string_view day) { return reduced_to_nine(text::number_of(day)); }

int purnanka_of(std::string_view day, std::string_view month, std::string_view century,
                std::string_view year) {
    return reduced_to_nine(text::number_of(day) + text::number_of(month) +
                           text::number_of(century) + text::number_of(year));
}

}  // namespace navarun
