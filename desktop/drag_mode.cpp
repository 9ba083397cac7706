// Pointer and drop of the drag.
#include "desktop/drag_mode.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/form_window.h"
#include "desktop/session.h"

namespace navarun::desktop {

namespace {

constexpr char const* drag_picture = "Image_Deplace";
constexpr QSize drag_picture_size{32, 32};

}  // namespace

DragMode::DragMode(Session& session) : m_session{session} { qApp->installEventFilter(this); }

DragMode::~DragMode() {
    if (m_shown) QApplication::restoreOverrideCursor();
}

void DragMode::follow_model() {
    bool const dragging = m_session.program().screen.dragged() != nullptr;
    if (dragging == m_shown) return;
    m_shown = dragging;
    if (!dragging) {
        QApplication::restoreOverrideCursor();
        return;
    }
    double const ratio = qApp->devicePixelRatio();
    QApplication::setOverrideCursor(
        QCursor{m_session.pictures().pixmap(drag_picture, drag_picture_size, ratio)});
}

bool DragMode::eventFilter(QObject*, QEvent* event) {
    auto& screen = m_session.program().screen;
    if (screen.dragged() == nullptr) return false;
    bool const pressed = event->type() == QEvent::MouseButtonPress;
    if (pressed || event->type() == QEvent::MouseButtonRelease) {
        auto const where = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        auto* const target = m_session.control_at(where);
        // On the list the drag only comes from.
        if (target == screen.focus()) return true;
        m_session.act([&](screen::User& user) {
            bool const takes =
                target != nullptr && (target->on_drag_drop || target->on_drag_over);
            if (takes) {
                user.drop(*target);
            } else {
                screen.end_drag();
            }
        });
        return true;
    }
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_Control) {
        m_session.act([&](screen::User&) { screen.end_drag(); });
        return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    }
    return false;
}

}  // namespace navarun::desktop
