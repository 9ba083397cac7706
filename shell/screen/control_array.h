// Rows of controls.
#pragma once

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/screen/control.h"

namespace navarun::screen {

/// Controls of one name, told apart by an index. Indexes may have gaps.
template <typename T>
class ControlArray {
  public:
    /// @param design_of  the design of the member of an index.
    template <typename DesignOf>
    ControlArray(Form& form, std::string_view name, std::vector<int> indexes,
                 DesignOf const& design_of, Control* container = nullptr)
        : m_indexes{std::move(indexes)} {
        for (int const index : m_indexes) {
            m_members.resize(static_cast<std::size_t>(index) + 1);
            m_members.back() =
                std::make_unique<T>(form, name, design_of(index), container, index);
        }
    }

    /// REQUIRES a member of that index; a missing one is a programming error.
    T& operator()(int index) { return *m_members.at(static_cast<std::size_t>(index)); }
    T const& operator()(int index) const {
        return *m_members.at(static_cast<std::size_t>(index));
    }
    std::vector<int> const& indexes() const { return m_indexes; }

  private:
    std::vector<int> m_indexes;  // ascending
    std::vector<std::unique_ptr<T>> m_members;
};

}  // namespace navarun::screen
