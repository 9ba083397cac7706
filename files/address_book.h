// The address book of web pages.
#pragma once

namespace navarun {

class Program;

/// Creates the address book with the default addresses where there is none.
void create_address_book(Program& program);

/// Adds the typed address to the book.
void Sauve_URL(Program& program);

/// Asks, and deletes the selected address.
void Efface_Url(Program& program);

/// The button of the panel and its list.
void wire_address_book(Program& program);

}  // namespace navarun
