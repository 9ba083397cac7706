// Any text as a date: none, or a day of the years 1 to 9999 that is written and read back
// equal.
#include "core/calendar.h"
#include "tests/fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using navarun::fuzz::require;
    auto const date = navarun::read_date(navarun::fuzz::text_of(data, size));
    if (!date) return 0;
    std::string const written = navarun::write_date(*date);
    require(written.size() == 10 && written[2] == '/' && written[5] == '/', "dd/mm/yyyy");
    require(navarun::read_date(written) == date, "the same date");
    return 0;
}
