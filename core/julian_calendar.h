// From a date of the Julian calendar to the Gregorian date of the same day, by table.
#pragma once

#include <optional>
#include <string>

#include "core/calendar.h"

namespace navarun {

struct JulianConversion {
    /// What the conversion came to.
    enum class Outcome {
        converted,
        outside_the_table,  // the day lies in no row
        no_date,            // the text could not be read
    };
    Outcome outcome = Outcome::no_date;
    /// The date as the conversion read it: the given one, but "28/02/" and the year where 29
    /// February does not exist in the Gregorian calendar.
    std::string read_as;
    /// Set where converted.
    std::optional<Date> gregorian;
};

/// @param date_text  dd/mm/yyyy of the Julian calendar.
JulianConversion julian_to_gregorian(std::string const& date_text);

}  // namespace navarun
