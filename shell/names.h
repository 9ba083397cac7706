// Controls, properties and state values by their names: for those who drive the program from
// outside and for the tests. The program itself never looks anything up by text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "shell/program.h"

namespace navarun {

/// A control by its name: "Label_Dasha(3)" on the main window, "choix_age.Label2(50)" on
/// another, a window by its own name. Null where there is none.
screen::Control* find_control(Program& program, std::string_view name);

/// The name by which find_control() finds a control.
std::string name_of(screen::Control const& control);

/// What a property or a state value holds.
using NamedValue = std::variant<std::string, bool, int, double, screen::Colour,
                                std::vector<std::string>, std::vector<screen::DrawnLine>>;

/// The value of "Label_Dasha(3).Caption" or of "dates_age(7)". Tables that the practice counts
/// from 1 are counted from 1. Empty where nothing has that name.
std::optional<NamedValue> find_value(Program& program, std::string_view name);

struct NamedProperty {
    std::string name;
    NamedValue value;
};
/// All properties of a control.
std::vector<NamedProperty> properties_of(screen::Control const& control);

}  // namespace navarun
