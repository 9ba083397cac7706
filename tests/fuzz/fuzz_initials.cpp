// Any two names: two or three initials, the last one the last name's.
#include "readings/initials.h"
#include "tests/fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using navarun::fuzz::require;
    std::string const names = navarun::fuzz::text_of(data, size);
    auto const end = std::min(names.find('\n'), names.size());
    std::string const first_name = names.substr(0, end);
    std::string const last_name = end < names.size() ? names.substr(end + 1) : "";
    auto const initials = navarun::initials_of(first_name, last_name);
    bool const separated = first_name.find_first_of(" -.") != std::string::npos;
    require(initials.size() == (separated ? 3U : 2U), "as many as the name has");
    require(initials.back().empty() == last_name.empty(), "the last name's");
    require(initials.front().empty() == first_name.empty(), "the first name's");
    for (auto const& initial : initials) navarun::letter_text(initial);
    return 0;
}
