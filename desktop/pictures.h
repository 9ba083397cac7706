// The pictures by name, drawn at the real resolution of the screen.
#pragma once

#include <QCursor>
#include <QDateTime>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "desktop/drawn_picture.h"
#include "shell/screen/control.h"

namespace navarun::desktop {

class Pictures {
  public:
    /// Size at which the picture is meant, in logical pixels; empty where none has that name.
    QSize natural_size(std::string const& name);
    /// Draws the picture into `place`; nothing where none has that name.
    void draw(QPainter& painter, std::string const& name, QRectF const& place);
    /// Draws the picture in vectors, for paper.
    void draw_vectors(QPainter& painter, std::string const& name, QRectF const& place);
    /// Draws a picture file where it is painted; nothing where it cannot be decoded.
    /// @param dots  the file's pixels wanted to the painter's unit
    void draw_file(QPainter& painter, screen::PaintedFile const& file, double dots);
    /// The size of a picture file in pixels; empty where it yields nothing to show. What was
    /// decoded for that is kept for drawing.
    QSize file_size(QString const& path);
    QPixmap pixmap(std::string const& name, QSize size, double device_pixel_ratio);
    /// The hand over what can be clicked.
    QCursor hand_cursor(std::string const& name, double device_pixel_ratio);

  private:
    /// null where no picture has that name
    DrawnPicture const* picture(std::string const& name);

    std::map<std::string, std::unique_ptr<DrawnPicture>> m_pictures;
    std::map<std::string, QPixmap> m_pixmaps;  // by name and real size
    // By name and ratio. Half the labels can be clicked: they share one.
    std::map<std::pair<std::string, double>, std::optional<QCursor>> m_hands;
    struct DecodedFile {
        std::string path;
        QDateTime written;  // a file may be replaced under its name
        QSize size;
        QImage image;
    };
    std::optional<DecodedFile> m_glance;  // of the file that was asked for last
    std::deque<DecodedFile> m_files;      // those drawn last
};

}  // namespace navarun::desktop
