// The window beside the preview that switches the sections of the page.
#pragma once

namespace navarun {

class Program;

/// Gives the page the period lines of the person on screen, and draws the preview anew.
void choix_periode(Program& program);

/// Where period lines were given to the page, makes them those of the person now on screen: a
/// page never bears another person's.
void keep_periods_of_the_person(Program& program);

/// Closes the window, and with it the preview; nothing where it is not open.
void close_print_options(Program& program);

/// The check boxes, the bar of the span told, the printer picture.
void wire_print_options(Program& program);

}  // namespace navarun
