// Any bytes as a picture file: a size of at least one pixel each way, or none.
#include "tests/fuzz/fuzz.h"
#include "tools/pilote/picture_header.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    auto const found = navarun::pilot::size_in_header(navarun::fuzz::text_of(data, size));
    navarun::fuzz::require(!found || (found->width > 0 && found->height > 0), "a size");
    return 0;
}
