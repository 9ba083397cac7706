// Following and drawing.
#include "desktop/focus_ring.h"

#include <QEvent>
#include <QPainter>

namespace navarun::desktop {

namespace {

constexpr int air = 2;        // pixels between a control and the middle of its ring
constexpr int thickness = 2;  // pixels of the dark line; the light edge adds one on each side
constexpr int reach = air + thickness;
// What stands at the window's edge leaves no room round it: so much of the ring is cut off
// there, so that the rest does not lie on the letters inside.
constexpr int cut_at_edge = 2;
constexpr int cross_arm = 5;

}  // namespace

FocusRing::FocusRing(QWidget& canvas)
    : QFocusFrame{&canvas}, m_canvas{canvas}, m_tone{0x0B, 0x3A, 0x66} {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FocusRing::go_round(QWidget* target) {
    if (m_target == target) return;
    if (m_target != nullptr) m_target->removeEventFilter(this);
    m_point.reset();
    m_target = target;
    if (target != nullptr) target->installEventFilter(this);
    place();
}

void FocusRing::set_tone(QColor const& tone) {
    if (tone == m_tone) return;
    m_tone = tone;
    update();
}

void FocusRing::show_point(std::optional<QPointF> point) {
    m_point = point;
    update();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_target) return false;
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::ZOrderChange:
            place();
            break;
        default:
            break;
    }
    return false;
}

void FocusRing::place() {
    if (m_target == nullptr || !m_target->isVisibleTo(&m_canvas)) {
        hide();
        return;
    }
    QRect const round{m_target->mapTo(&m_canvas, QPoint{0, 0}), m_target->size()};
    QRect const room =
        m_canvas.rect().adjusted(-cut_at_edge, -cut_at_edge, cut_at_edge, cut_at_edge);
    setGeometry(round.adjusted(-reach, -reach, reach, reach).intersected(room));
    raise();
    show();
}

bool FocusRing::target_is_covered() const {
    auto const* const on_top =
        m_canvas.childAt(m_target->mapTo(&m_canvas, m_target->rect().center()));
    return on_top != m_target && !m_target->isAncestorOf(on_top);
}

void FocusRing::paintEvent(QPaintEvent*) {
    // A message over the control lies over its ring too.
    if (m_target == nullptr || target_is_covered()) return;
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF const ring = QRectF{rect()}.adjusted(2, 2, -2, -2);
    painter.setPen(QPen{Qt::white, thickness + 2});
    painter.drawRoundedRect(ring, 3, 3);
    painter.setPen(QPen{m_tone, thickness});
    painter.drawRoundedRect(ring, 3, 3);
    if (!m_point) return;
    QPointF const at = *m_point + mapFrom(&m_canvas, m_target->mapTo(&m_canvas, QPoint{0, 0}));
    for (auto const& pen : {QPen{Qt::white, 3}, QPen{m_tone, 1}}) {
        painter.setPen(pen);
        painter.drawLine(at - QPointF{cross_arm, 0}, at + QPointF{cross_arm, 0});
        painter.drawLine(at - QPointF{0, cross_arm}, at + QPointF{0, cross_arm});
    }
}

}  // namespace navarun::desktop
