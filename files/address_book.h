// The address book of web pages.
#pragma once

namespace navarun {

class Program;

/// Creates the address book with the default addresses where there is none.
void create_address_book(Program& program);

}  // namespace navarun
