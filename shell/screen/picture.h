// Pictures by name: the model never holds pixels.
#pragma once

#include <string>
#include <string_view>

namespace navarun::screen {

/// A picture of the image store ("Image_Kundali(2)"), a button's own picture (the control's
/// name), a portrait ("file:" and the file's name without folder), or none ("").
class Picture {
  public:
    Picture() = default;
    explicit Picture(std::string_view name) : m_name{name} {}
    Picture(std::string_view name, int member) : m_name{name} {
        m_name.append("(").append(std::to_string(member)).append(")");
    }

    std::string const& name() const { return m_name; }
    bool operator==(Picture const&) const = default;

  private:
    std::string m_name;
};

/// A picture file painted into a box, in pixels of the box.
struct PaintedFile {
    std::string path;
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(PaintedFile const&) const = default;
};

}  // namespace navarun::screen
