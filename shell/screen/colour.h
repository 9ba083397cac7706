// Colours as the screen model knows them: values, or the name of a role of the desktop.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace navarun::screen {

/// The roles whose colour the desktop chooses.
enum class SystemColour : std::uint8_t { title_bar, window, highlight_3d };

/// A colour: red, green, blue of eight bits each, or a role of the desktop.
class Colour {
  public:
    constexpr Colour() = default;
    /// @param rgb  0xRRGGBB; higher bits are ignored.
    constexpr explicit Colour(std::uint32_t rgb) : m_value{rgb & 0xFFFFFFU} {}
    constexpr Colour(int red, int green, int blue)
        : m_value{(static_cast<std::uint32_t>(red) << 16U) |
                  (static_cast<std::uint32_t>(green) << 8U) |
                  static_cast<std::uint32_t>(blue)} {}
    constexpr Colour(SystemColour role)
        : m_value{system_flag | static_cast<std::uint32_t>(role)} {}

    constexpr bool is_system() const { return (m_value & system_flag) != 0; }
    /// REQUIRES is_system().
    constexpr SystemColour role() const { return static_cast<SystemColour>(m_value & 0xFFU); }
    /// 0xRRGGBB. REQUIRES !is_system().
    constexpr std::uint32_t rgb() const { return m_value; }

    constexpr bool operator==(Colour const&) const = default;

  private:
    static constexpr std::uint32_t system_flag = 0x80000000U;
    std::uint32_t m_value = 0;
};

/// The standard table of sixteen colours, 0 to 15.
inline constexpr std::array<Colour, 16> standard_colours{
    Colour{0x000000}, Colour{0x000080}, Colour{0x008000}, Colour{0x008080},
    Colour{0x800000}, Colour{0x800080}, Colour{0x808000}, Colour{0xC0C0C0},
    Colour{0x808080}, Colour{0x0000FF}, Colour{0x00FF00}, Colour{0x00FFFF},
    Colour{0xFF0000}, Colour{0xFF00FF}, Colour{0xFFFF00}, Colour{0xFFFFFF},
};

/// Entry `number` of the standard table. REQUIRES 0 <= number <= 15.
constexpr Colour standard_colour(int number) {
    return standard_colours[static_cast<std::size_t>(number)];
}

inline constexpr Colour black = standard_colour(0);
inline constexpr Colour white = standard_colour(15);
/// The grey of what lies aside: dates and names that are not the selected ones.
inline constexpr Colour grey = Colour{128, 128, 128};

/// "#RRGGBB" in capitals, or "system:title-bar", "system:window", "system:3d-highlight".
std::string to_text(Colour colour);

}  // namespace navarun::screen
