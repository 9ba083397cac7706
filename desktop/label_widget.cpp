// Painting of labels.
#include "desktop/label_widget.h"

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/copy_menu.h"

namespace navarun::desktop {

namespace {

// Air between a text and the edge of its ground, in pixels.
constexpr int margin = 2;

QColor const border_colour{0x64, 0x64, 0x64};

bool wraps(QRect const& box, QFont const& font) {
    return box.height() >= 2 * QFontMetrics{font}.height();
}

}  // namespace

void draw_border(QPainter& painter, QRect const& box) {
    QRegion const inside{box.adjusted(1, 1, -1, -1)};
    for (QRect const& side : QRegion{box} - inside) painter.fillRect(side, border_colour);
}

LabelWidget::LabelWidget(QWidget* parent) : QWidget{parent} {}

void LabelWidget::set_look(Look look) {
    if (look == m_look) return;
    if (look.text != m_look.text || look.font != m_look.font) m_text_width.reset();
    m_look = std::move(look);
    update();
}

double LabelWidget::text_width() const {
    if (!m_text_width) {
        m_text_width = QFontMetricsF{m_look.font}.horizontalAdvance(m_look.text);
    }
    return *m_text_width;
}

QRect LabelWidget::grown(QRect const& box) const {
    if (!m_look.centred || m_look.opaque || m_look.text.isEmpty()) return box;
    if (wraps(box, m_look.font)) return box;
    int const needed = static_cast<int>(std::ceil(text_width())) + 2;
    int const more = needed - box.width();
    if (more <= 0) return box;
    int const left = (more + 1) / 2;
    return box.adjusted(-left, 0, more - left, 0);
}

int LabelWidget::indent() const { return m_look.opaque ? margin : 0; }

double LabelWidget::room() const { return width() - 2 * indent(); }

double LabelWidget::narrowing() const {
    double const needed = text_width();
    return needed > room() && !wraps(rect(), m_look.font) ? room() / needed : 1.0;
}

void LabelWidget::contextMenuEvent(QContextMenuEvent* event) {
    QString text = m_look.text.simplified();
    if (text.isEmpty()) {
        event->ignore();
        return;
    }
    offer_copies(*this, *event, rect().center(),
                 {{QStringLiteral("Co&pier"), true, [text] { return text; }}});
}

void LabelWidget::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    if (m_look.opaque) painter.fillRect(rect(), m_look.back);
    if (m_look.border) draw_border(painter, rect());
    // The font of no letter need not be found.
    if (m_look.text.isEmpty()) return;
    painter.setPen(m_look.fore);
    painter.setFont(m_look.font);
    auto const across = m_look.centred ? Qt::AlignHCenter : Qt::AlignLeft;
    if (wraps(rect(), m_look.font)) {
        painter.drawText(rect().adjusted(margin, margin, -margin, -margin),
                         static_cast<int>(across | Qt::AlignVCenter) | Qt::TextWordWrap,
                         m_look.text);
        return;
    }
    // What does not fit is drawn narrower, never clipped.
    double const narrower = narrowing();
    painter.translate(indent(), 0);
    painter.scale(narrower, 1);
    painter.drawText(QRectF{0, 0, room() / narrower, static_cast<double>(height())},
                     static_cast<int>(across | Qt::AlignVCenter) | Qt::TextSingleLine,
                     m_look.text);
}

}  // namespace navarun::desktop
