// The picture on which lines, files and pages are drawn.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/screen/control.h"
#include "shell/screen/page.h"
#include "shell/screen/picture.h"

namespace navarun::screen {

/// The rubber lines vanish with the next clear; the persistent ones stay until the picture is
/// loaded again.
enum class Layer : std::uint8_t { persistent, rubber };

/// The picture of a box on which lines are drawn. Loading one wipes them, also where it is the
/// same picture.
class PictureBox;
class SurfacePicture {
  public:
    SurfacePicture(PictureBox& owner, Picture picture)
        : m_owner{&owner}, m_picture{std::move(picture)} {}
    SurfacePicture(SurfacePicture const&) = delete;
    SurfacePicture& operator=(SurfacePicture const&) = delete;

    screen::Picture const& get() const { return m_picture; }
    SurfacePicture& operator=(screen::Picture const& picture);

  private:
    PictureBox* m_owner;
    screen::Picture m_picture;
};

/// A picture on which other controls lie, and on which lines can be drawn.
class PictureBox : public PlacedControl {
  public:
    PictureBox(Form& form, std::string_view name, Design const& design,
               Control* container = nullptr);
    void visit(PropertyVisitor& visitor) const override;

    SurfacePicture Picture;
    Property<bool> Border;

    /// Shows a picture file in place of the picture; its name is the picture's from now on.
    void paint(PaintedFile file, std::string_view file_name);
    std::optional<PaintedFile> const& painted() const { return m_painted; }

    std::vector<DrawnLine> const& lines(Layer layer) const;
    void draw(Layer layer, DrawnLine const& line);
    void clear_rubber();
    /// Shows a page, its width filling that of the box.
    void show_page(Page page);
    void clear_page();
    /// The page shown; null is none.
    std::shared_ptr<Page const> const& page() const { return m_page; }
    /// Told of each page shown, for whoever keeps a record.
    std::function<void(Page const&)> on_page;
    /// The width of the lines to come, in pixels.
    int draw_width() const { return m_draw_width; }
    void set_draw_width(int pixels) { m_draw_width = pixels; }

  private:
    friend class SurfacePicture;
    std::vector<DrawnLine> m_persistent;
    std::vector<DrawnLine> m_rubber;
    std::optional<PaintedFile> m_painted;
    std::shared_ptr<Page const> m_page;
    int m_draw_width = 1;
};

}  // namespace navarun::screen
