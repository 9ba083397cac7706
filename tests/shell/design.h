// Looking things up on a window that nothing has touched yet.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "shell/form1.h"
#include "shell/names.h"
#include "shell/screen/screen.h"

namespace navarun::test {

/// The main window as it is designed, with no program behind it.
class Designed : public testing::Test {
  protected:
    screen::Control* control(std::string_view name) const {
        auto const open = name.find('(');
        if (open == std::string_view::npos) return form.find(name, {});
        return form.find(name.substr(0, open), std::stoi(std::string{name.substr(open + 1)}));
    }

    std::optional<NamedValue> value(std::string_view name, std::string_view property) const {
        screen::Control const* const found = control(name);
        if (found == nullptr) return {};
        for (auto& [other, held] : properties_of(*found)) {
            if (other == property) return held;
        }
        return {};
    }

    template <typename T>
    T get(std::string_view name, std::string_view property) const {
        auto const found = value(name, property);
        if (!found || !std::holds_alternative<T>(*found)) {
            ADD_FAILURE() << name << " has no such " << property;
            return T{};
        }
        return std::get<T>(*found);
    }

    std::string colour(std::string_view name, std::string_view property) const {
        return screen::to_text(get<screen::Colour>(name, property));
    }

    screen::Screen all_windows;
    Form1 form{all_windows};
};

}  // namespace navarun::test
