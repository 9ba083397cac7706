// Keys told as what the pointer does.
#include "desktop/stand_in_keys.h"

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>
#include <algorithm>
#include <optional>
#include <utility>

#include "desktop/form_window.h"
#include "desktop/session.h"
#include "desktop/to_qt.h"

namespace navarun::desktop {

namespace {

constexpr int steps_across = 10;  // of the point over a picture; by pixels with Control

class StandInKeys : public QObject {
  public:
    StandInKeys(Session& session, screen::PlacedControl& control, QWidget& widget)
        : QObject{&widget}, m_session{session}, m_control{control}, m_widget{widget} {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != &m_widget) return false;
        switch (event->type()) {
            case QEvent::FocusIn:
                come_over(static_cast<QFocusEvent*>(event)->reason());
                return false;
            case QEvent::FocusOut:
                let_go();
                m_point.reset();
                return false;
            case QEvent::KeyPress:
                return press(*static_cast<QKeyEvent*>(event));
            default:
                return false;
        }
    }

  private:
    // What shows itself under the pointer shows itself under the keyboard too.
    void come_over(Qt::FocusReason reason) {
        bool const walked = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
        if (!walked || !m_control.on_mouse_move || m_control.on_mouse_down) return;
        m_session.act([this](screen::User& user) { user.hover(m_control); });
    }

    // Answers whether the key was meant for the control.
    bool press(QKeyEvent const& event) {
        if (event.matches(QKeySequence::Copy)) return copy();
        if (event.matches(QKeySequence::Paste)) return drop_copied_file();
        switch (event.key()) {
            case Qt::Key_Return:
            case Qt::Key_Enter:
            case Qt::Key_Space:
                if (!event.isAutoRepeat()) enter(event.modifiers().testFlag(Qt::ShiftModifier));
                return true;
            case Qt::Key_Left:
                return move(-1, 0, event.modifiers());
            case Qt::Key_Right:
                return move(1, 0, event.modifiers());
            case Qt::Key_Up:
                return move(0, -1, event.modifiers());
            case Qt::Key_Down:
                return move(0, 1, event.modifiers());
            case Qt::Key_Escape:
                return leave();
            default:
                return false;
        }
    }

    void enter(bool twice) {
        if (twice) {
            m_session.act([this](screen::User& user) { user.double_click(m_control); });
            return;
        }
        if (m_control.on_mouse_down) {
            press_button();
            return;
        }
        m_session.act([this](screen::User& user) { user.click(m_control); });
    }

    QPointF point() const { return m_point.value_or(QRectF{m_widget.rect()}.center()); }

    void tell(screen::MouseEvent what) {
        screen::Mouse const where{.button = 1,
                                  .x = point().x() * twips_per_pixel,
                                  .y = point().y() * twips_per_pixel};
        m_session.act([&](screen::User& user) { user.mouse(m_control, what, where); });
    }

    void press_button() {
        if (m_held) {
            let_go();
            return;
        }
        m_held = static_cast<bool>(m_control.on_mouse_up);
        tell(screen::MouseEvent::down);
        if (m_control.on_click)
            m_session.act([this](screen::User& user) { user.click(m_control); });
    }

    void let_go() {
        if (std::exchange(m_held, false)) tell(screen::MouseEvent::up);
    }

    bool move(int right, int down, Qt::KeyboardModifiers modifiers) {
        if (!m_control.on_mouse_down) return false;
        bool const finely = modifiers.testFlag(Qt::ControlModifier);
        QPointF const step = finely ? QPointF{1, 1}
                                    : QPointF{1.0 * m_widget.width() / steps_across,
                                              1.0 * m_widget.height() / steps_across};
        QPointF const moved = point() + QPointF{step.x() * right, step.y() * down};
        m_point = QPointF{std::clamp(moved.x(), 0.0, m_widget.width() - 1.0),
                          std::clamp(moved.y(), 0.0, m_widget.height() - 1.0)};
        if (auto* const shown = m_session.window(m_control.form())) {
            shown->show_point(*m_point);
        }
        if (m_held) tell(screen::MouseEvent::move);
        return true;
    }

    bool copy() {
        auto const* const label = dynamic_cast<screen::Label const*>(&m_control);
        if (label == nullptr || label->Caption.get().empty()) return false;
        QApplication::clipboard()->setText(to_qt(label->Caption.get()).simplified());
        return true;
    }

    bool drop_copied_file() {
        auto const* const copied = QApplication::clipboard()->mimeData();
        if (!m_control.on_file_drop || copied == nullptr) return false;
        auto const urls = copied->urls();
        if (urls.isEmpty() || !urls.front().isLocalFile()) return false;
        std::string const path = urls.front().toLocalFile().toStdString();
        m_session.act([&](screen::User& user) { user.drop_file(m_control, path); });
        return true;
    }

    bool leave() {
        auto* const shown = m_session.window(m_control.form());
        return shown != nullptr && shown->give_keyboard_back();
    }

    Session& m_session;
    screen::PlacedControl& m_control;
    QWidget& m_widget;
    std::optional<QPointF> m_point;  // where Enter presses; the centre before the first arrow
    bool m_held = false;
};

}  // namespace

void tell_keys(Session& session, screen::PlacedControl& control, QWidget& widget) {
    widget.setFocusPolicy(Qt::TabFocus);
    new StandInKeys{session, control, widget};  // owned by the widget
}

}  // namespace navarun::desktop
