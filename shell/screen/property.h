// A property of a control: a value that tells its control when it changes.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace navarun::screen {

class Control;

namespace detail {
/// Marks `owner` as changed for whoever shows it.
inline void mark_changed(Control& owner);

template <typename T, typename U>
bool same(T const& one, U const& other) {
    return one == other;
}
/// As a view, so that a literal of another length costs no look at the characters.
inline bool same(std::string const& one, char const* other) {
    return one == std::string_view{other};
}
}  // namespace detail

/// Reads like the value; writing it marks the control as changed where the value differs.
template <typename T>
class Property {
  public:
    Property(Control& owner, T value) : m_owner{&owner}, m_value{std::move(value)} {}
    Property(Property const&) = delete;
    Property& operator=(Property const&) = delete;

    T const& get() const { return m_value; }
    operator T const&() const { return m_value; }

    /// Takes anything that compares with and is assignable to T, so that a text written twice
    /// costs a comparison and no copy.
    template <typename U>
    requires(!std::is_same_v<std::remove_cvref_t<U>, Property>) Property& operator=(U&& value) {
        if (!detail::same(m_value, value)) {
            m_value = std::forward<U>(value);
            detail::mark_changed(*m_owner);
        }
        return *this;
    }

  private:
    Control* m_owner;
    T m_value;
};

}  // namespace navarun::screen
