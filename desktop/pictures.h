// The pictures by name, drawn at the real resolution of the screen.
#pragma once

#include <QCursor>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QSvgRenderer>
#include <map>
#include <memory>
#include <string>

namespace navarun::desktop {

class Pictures {
  public:
    /// Size at which the picture is meant, in logical pixels; empty where none has that name.
    QSize natural_size(std::string const& name);
    /// Draws the picture into `place`; nothing where none has that name.
    void draw(QPainter& painter, std::string const& name, QRectF const& place);
    QPixmap pixmap(std::string const& name, QSize size, double device_pixel_ratio);
    /// The hand over what can be clicked.
    QCursor hand_cursor(std::string const& name, double device_pixel_ratio);

  private:
    QSvgRenderer* renderer(std::string const& name);

    std::map<std::string, std::unique_ptr<QSvgRenderer>> m_renderers;
    std::map<std::string, QPixmap> m_pixmaps;  // by name and real size
};

}  // namespace navarun::desktop
