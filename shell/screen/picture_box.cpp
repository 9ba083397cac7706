// Layers, files and pages of a picture.
#include "shell/screen/picture_box.h"

namespace navarun::screen {

SurfacePicture& SurfacePicture::operator=(screen::Picture const& picture) {
    m_picture = picture;
    m_owner->m_persistent.clear();
    m_owner->m_rubber.clear();
    m_owner->m_painted.reset();
    detail::mark_changed(*m_owner);
    return *this;
}

PictureBox::PictureBox(Form& form, std::string_view name, Design const& design,
                       Control* container)
    : PlacedControl{form, container, Kind::picture_box, name, {}, design},
      Picture{*this, design.picture},
      Border{*this, design.border} {}

void PictureBox::paint(PaintedFile file, std::string_view file_name) {
    Picture = screen::Picture{"file:" + std::string{file_name}};
    m_painted = std::move(file);
}

std::vector<DrawnLine> const& PictureBox::lines(Layer layer) const {
    return layer == Layer::persistent ? m_persistent : m_rubber;
}

void PictureBox::draw(Layer layer, DrawnLine const& line) {
    (layer == Layer::persistent ? m_persistent : m_rubber).push_back(line);
    detail::mark_changed(*this);
}

void PictureBox::clear_rubber() {
    if (m_rubber.empty()) return;
    m_rubber.clear();
    detail::mark_changed(*this);
}

void PictureBox::show_page(Page page) {
    m_page = std::make_shared<Page const>(std::move(page));
    detail::mark_changed(*this);
    if (on_page) on_page(*m_page);
}

void PictureBox::clear_page() {
    m_page.reset();
    detail::mark_changed(*this);
}

void PictureBox::visit(PropertyVisitor& visitor) const {
    PlacedControl::visit(visitor);
    visitor.property("Picture", &Picture.get());
    visitor.property("Border", Border.get());
    visitor.property("Drawing", &m_persistent);
}

}  // namespace navarun::screen
