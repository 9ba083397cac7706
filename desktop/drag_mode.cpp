// Pointer and drop of the drag.
#include "desktop/drag_mode.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <vector>

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
    if (event->type() == QEvent::KeyPress) return press(static_cast<QKeyEvent*>(event)->key());
    return false;
}

// Answers whether nobody else gets the key.
bool DragMode::press(int key) {
    auto& screen = m_session.program().screen;
    switch (key) {
        case Qt::Key_Control:
        case Qt::Key_Shift:
        case Qt::Key_Alt:
            return false;
        case Qt::Key_Tab:
        case Qt::Key_Right:
        case Qt::Key_Down:
            go_to_next_target(+1);
            return true;
        case Qt::Key_Backtab:
        case Qt::Key_Left:
        case Qt::Key_Up:
            go_to_next_target(-1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: {
            auto* const keyboard = QApplication::focusWidget();
            auto* const target =
                keyboard == nullptr ? nullptr : m_session.control_of(*keyboard);
            if (target == nullptr || !target->on_drag_drop) break;
            m_session.act([&](screen::User& user) { user.drop(*target); });
            return true;
        }
        default:
            break;
    }
    m_session.act([&](screen::User&) { screen.end_drag(); });
    return key == Qt::Key_Escape;
}

void DragMode::go_to_next_target(int step) {
    std::vector<QWidget*> targets;
    for (auto const* form : m_session.program().screen.forms()) {
        auto const* const window = m_session.window(*form);
        for (auto const* control : form->controls()) {
            if (window == nullptr || !control->on_drag_drop || !control->can_be_used())
                continue;
            targets.push_back(window->widget(*control));
        }
    }
    if (targets.empty()) return;
    auto const count = std::ssize(targets);
    auto const here = std::ranges::find(targets, QApplication::focusWidget());
    auto const place = here == targets.end() ? (step > 0 ? -1 : count) : here - targets.begin();
    auto* const next = targets[static_cast<std::size_t>((place + step + count) % count)];
    // The focus of the model stays on the list that the record comes from.
    next->setFocus(Qt::OtherFocusReason);
}

}  // namespace navarun::desktop
