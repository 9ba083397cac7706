// One picture of the program, as it is drawn. In two forms: from its vectors, or, where the
// toolkit comes without the module that reads them, from what the build made of these. Either
// has at hand, as images, the sizes that most screens ask for.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QSize>
#include <QString>
#include <memory>

namespace navarun::desktop {

class DrawnPicture {
  public:
    /// @param name  of its file among the program's pictures, without ending: "Image_Kundali_2"
    explicit DrawnPicture(QString const& name);
    ~DrawnPicture();
    DrawnPicture(DrawnPicture const&) = delete;
    DrawnPicture& operator=(DrawnPicture const&) = delete;

    /// Size at which it is meant, in logical pixels; empty where no picture has that name.
    QSize natural_size() const;
    /// Draws it into `place`, as fine as the painter's device shows it.
    void draw(QPainter& painter, QRectF const& place) const;
    /// The picture at exactly `size` where the build has drawn it so; null elsewhere.
    QImage drawn_ahead(QSize size) const;

  private:
    struct Content;
    std::unique_ptr<Content> m_content;  // null where no picture has that name
};

/// The picture of that name as an icon of windows.
QIcon icon_of(QString const& name);

}  // namespace navarun::desktop
