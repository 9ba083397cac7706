// Any text as a Julian date: a Gregorian day six to fourteen days later, or none.
#include "core/calendar.h"
#include "core/julian_calendar.h"
#include "tests/fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using navarun::fuzz::require;
    using Outcome = navarun::JulianConversion::Outcome;
    auto const conversion = navarun::julian_to_gregorian(navarun::fuzz::text_of(data, size));
    bool const converted = conversion.outcome == Outcome::converted;
    require(conversion.gregorian.has_value() == converted, "a day where converted");
    if (!converted) return 0;
    auto const read_as = navarun::read_date(conversion.read_as);
    require(read_as.has_value(), "what was read is a date");
    int const later = navarun::days_between(*read_as, *conversion.gregorian);
    require(later >= 6 && later <= 14, "six to fourteen days later");
    return 0;
}
