// Reading the entered birth date as a date of the Julian calendar, by the user's choice.
#pragma once

#include <cstdint>
#include <string>

namespace navarun {

class Program;

/// The wordings of the calendar's indicator.
enum class CalendarIndicator : std::uint8_t {
    gregorian,
    julian_generated,  // as Position_solaire leaves it
    julian_chosen,     // as the menu entry leaves it
};

/// Sets caption, colour and picture that tell the calendar in force.
void show_calendar(Program& program, CalendarIndicator indicator);

/// Converts the birth date to the Gregorian calendar and keeps the result in the consultation.
/// Where it reads 29 February of a year that has none in the Gregorian calendar,
/// `date_naissance` becomes 28 February. A text that is no date is told in a message box.
/// @return the Gregorian date dd/mm/yyyy; empty where there is none.
std::string Conversion_JG(Program& program);

/// Back to the Gregorian calendar: every change of a date field does so. `julien_actif` stays.
void JG_reset(Program& program);

/// The menu entry and the calendar's picture switch the calendar; the pointer over the picture
/// tells the Gregorian date.
void wire_julian_mode(Program& program);

}  // namespace navarun
