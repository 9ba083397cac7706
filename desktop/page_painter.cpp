// The operations of a page in the toolkit's.
#include "desktop/page_painter.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/to_qt.h"

namespace navarun::desktop {

namespace {

constexpr double points_per_inch = 72;
// A fine line that every printer holds; on a screen a pixel at least.
constexpr double stroke_inches = 0.01;
// Enough for a portrait of its size on paper.
constexpr double picture_dots_per_inch = 600;
// Windows fits each small letter to the pixels by itself, which tears the words of a page made
// small for the screen apart: there they are drawn by their outlines.
#ifdef Q_OS_WIN
constexpr bool screen_letters_by_outline = true;
#else
constexpr bool screen_letters_by_outline = false;
#endif

class OperationPainter {
  public:
    OperationPainter(QPainter& painter, Pictures& pictures, screen::Page const& page,
                     double inch, PageDevice device)
        : m_painter{painter},
          m_pictures{pictures},
          m_ratio{page.ratio},
          m_scale{inch},
          m_device{device} {}

    void operator()(screen::PageStroke const& stroke) const {
        double const pixel = 1 / m_painter.device()->devicePixelRatioF();
        double const width = stroke_inches * m_scale;
        double const least = m_device == PageDevice::screen ? pixel : 0;
        m_painter.setPen(
            QPen{Qt::black, std::max(width, least), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setRenderHint(QPainter::Antialiasing, m_device == PageDevice::paper);
        QPointF const from = place(stroke.x1, stroke.y1);
        QPointF const to = place(stroke.x2, stroke.y2);
        if (stroke.shape == screen::PageStroke::Shape::box) {
            m_painter.drawRect(QRectF{from, to});
        } else {
            m_painter.drawLine(from, to);
        }
    }

    void operator()(screen::PagePicture const& picture) const {
        if (picture.file) {
            auto const& file = *picture.file;
            m_pictures.draw_file(m_painter,
                                 {.path = file.path,
                                  .x = file.x * m_scale,
                                  .y = file.y * m_scale,
                                  .width = file.size.width * m_scale,
                                  .height = file.size.height * m_scale},
                                 pixels_of_file());
            return;
        }
        QRectF const where{place(picture.x, picture.y),
                           QSizeF{picture.size.width, picture.size.height} * m_scale};
        if (m_device == PageDevice::paper) {
            m_pictures.draw_vectors(m_painter, picture.picture.name(), where);
        } else {
            // On whole pixels: sharp.
            m_pictures.draw(m_painter, picture.picture.name(), where.toAlignedRect());
        }
    }

    void operator()(screen::PageText const& text) const {
        QFont const font = page_font(text, m_ratio);
        QFontMetricsF const metrics{font};
        m_painter.save();
        m_painter.translate(place(text.x, text.y));
        m_painter.scale(m_scale / page_text_units, m_scale / page_text_units);
        m_painter.setFont(font);
        m_painter.setPen(to_qt(text.colour));
        m_painter.setRenderHint(QPainter::TextAntialiasing);
        double baseline = metrics.ascent();
        for (QString const& line : to_qt(text.text).split(QLatin1Char('\n'))) {
            draw_line(line, baseline, metrics, (text.right_edge - text.x) * page_text_units);
            baseline += metrics.lineSpacing();
        }
        m_painter.restore();
    }

  private:
    QPointF place(double x, double y) const { return {x * m_scale, y * m_scale}; }

    double pixels_of_file() const {
        return m_device == PageDevice::paper ? picture_dots_per_inch / m_scale
                                             : m_painter.device()->devicePixelRatioF();
    }

    // A tab leads to the next stop to the right of what stands before it.
    // @param room  in units of the text; not above 0 for as much as it takes
    void draw_line(QString const& line, double baseline, QFontMetricsF const& metrics,
                   double room) const {
        double const width = metrics.horizontalAdvance(line);
        m_painter.save();
        if (room > 0 && width > room) m_painter.scale(room / width, 1);
        double end = 0;  // inches from the left edge
        bool after_a_tab = false;
        for (QString const& part : line.split(QLatin1Char('\t'))) {
            if (std::exchange(after_a_tab, true)) end = stop_after(end);
            if (part.isEmpty()) continue;
            draw_letters(QPointF{end * page_text_units, baseline}, part);
            end += metrics.horizontalAdvance(part) / page_text_units;
        }
        m_painter.restore();
    }

    void draw_letters(QPointF const& where, QString const& part) const {
        if (!screen_letters_by_outline || m_device == PageDevice::paper) {
            m_painter.drawText(where, part);
            return;
        }
        QPainterPath letters;
        letters.addText(where, m_painter.font(), part);
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.fillPath(letters, m_painter.pen().brush());
    }

    static double stop_after(double place) {
        double const steps = std::floor((place - screen::first_tab_stop) / screen::tab_step);
        return screen::first_tab_stop + std::max(0.0, steps + 1) * screen::tab_step;
    }

    QPainter& m_painter;
    Pictures& m_pictures;
    double m_ratio;
    double m_scale;
    PageDevice m_device;
};

}  // namespace

QFont page_font(screen::PageText const& text, double ratio) {
    QFont font = font_named(text.font);
    font.setPixelSize(
        std::max(1, qRound(text.size / ratio / points_per_inch * page_text_units)));
    font.setBold(text.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void paint_page(QPainter& painter, Pictures& pictures, screen::Page const& page, double inch,
                PageDevice device) {
    OperationPainter const paint{painter, pictures, page, inch, device};
    for (auto const& operation : page.operations) std::visit(paint, operation);
}

}  // namespace navarun::desktop
