// Any bytes as the address book: the addresses without a quote are written and read back equal.
#include <vector>

#include "core/fatal_error.h"
#include "files/delimited.h"
#include "tests/fuzz/fuzz.h"

namespace {

std::vector<std::string> read(std::string bytes) {
    navarun::DelimitedReader reader{std::move(bytes), "essai"};
    std::vector<std::string> addresses;
    while (!reader.at_end()) addresses.push_back(reader.read_text());
    return addresses;
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::vector<std::string> addresses;
    try {
        addresses = read(navarun::fuzz::text_of(data, size));
    } catch (navarun::FatalError const&) {
        return 0;
    }
    navarun::DelimitedWriter writer;
    for (auto const& address : addresses) {
        if (address.find('"') != std::string::npos) return 0;
        writer.text(address).end_record();
    }
    navarun::fuzz::require(read(writer.bytes()) == addresses, "the same addresses");
    return 0;
}
