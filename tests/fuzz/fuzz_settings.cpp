// Any bytes as the settings file: every value is a number from 0 to 255, or the run ends.
#include "core/fatal_error.h"
#include "files/delimited.h"
#include "tests/fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    navarun::DelimitedReader reader{navarun::fuzz::text_of(data, size), "essai"};
    std::size_t values = 0;
    try {
        for (; !reader.at_end(); ++values) reader.read_byte();
    } catch (navarun::FatalError const&) {
        return 0;
    }
    navarun::fuzz::require(values <= size, "each value takes a byte at least");
    return 0;
}
