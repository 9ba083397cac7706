// Rounding within 16 bits.
#include "core/small_number.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "core/fatal_error.h"

namespace navarun {

int small_number(double number, char const* attempted) {
    using Limits = std::numeric_limits<std::int16_t>;
    double const rounded = std::nearbyint(number);
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
        throw FatalError{attempted, "Dépassement de capacité."};
    }
    return static_cast<int>(rounded);
}

}  // namespace navarun
