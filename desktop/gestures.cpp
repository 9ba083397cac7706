// Event filters that turn the toolkit's events into those of the model.
#include "desktop/gestures.h"

#include <QDropEvent>
#include <QFocusEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <utility>

#include "desktop/session.h"
#include "desktop/to_qt.h"

namespace navarun::desktop {

namespace {

class MouseFilter : public QObject {
  public:
    MouseFilter(Session& session, screen::PlacedControl& control, QWidget& widget)
        : QObject{&widget}, m_session{session}, m_control{control}, m_widget{widget} {
        widget.setMouseTracking(true);
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != &m_widget) return false;
        auto const mouse = [&] { return static_cast<QMouseEvent*>(event); };
        switch (event->type()) {
            case QEvent::MouseButtonPress:
                m_pressed = mouse()->button() == Qt::LeftButton;
                tell(screen::MouseEvent::down, *mouse(), button_of(mouse()->button()));
                return true;
            case QEvent::MouseMove:
                tell(screen::MouseEvent::move, *mouse(), button_of(mouse()->buttons()));
                return true;
            case QEvent::MouseButtonRelease:
                tell(screen::MouseEvent::up, *mouse(), button_of(mouse()->button()));
                if (std::exchange(m_pressed, false) &&
                    m_widget.rect().contains(mouse()->position().toPoint())) {
                    m_session.act([&](screen::User& user) { user.click(m_control); });
                }
                return true;
            case QEvent::MouseButtonDblClick:
                m_pressed = false;
                if (mouse()->button() == Qt::LeftButton) {
                    m_session.act([&](screen::User& user) { user.double_click(m_control); });
                }
                return true;
            default:
                return false;
        }
    }

  private:
    static int button_of(Qt::MouseButtons buttons) {
        if (buttons.testFlag(Qt::LeftButton)) return 1;
        return buttons.testFlag(Qt::RightButton) ? 2 : 0;
    }

    bool listens(screen::MouseEvent what) const {
        if (what == screen::MouseEvent::down) return static_cast<bool>(m_control.on_mouse_down);
        if (what == screen::MouseEvent::move) return static_cast<bool>(m_control.on_mouse_move);
        return static_cast<bool>(m_control.on_mouse_up);
    }

    void tell(screen::MouseEvent what, QMouseEvent const& event, int button) {
        if (!listens(what)) return;
        screen::Mouse const where{.button = button,
                                  .x = event.position().x() * twips_per_pixel,
                                  .y = event.position().y() * twips_per_pixel};
        m_session.act([&](screen::User& user) { user.mouse(m_control, what, where); });
    }

    Session& m_session;
    screen::PlacedControl& m_control;
    QWidget& m_widget;
    bool m_pressed = false;
};

class PointerFilter : public QObject {
  public:
    PointerFilter(Session& session, screen::PlacedControl& control, QWidget& widget)
        : QObject{&widget}, m_session{session}, m_control{control} {
        widget.setMouseTracking(true);
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::MouseMove || !m_control.on_mouse_move) return false;
        auto const position = static_cast<QMouseEvent*>(event)->position();
        screen::Mouse const where{.x = position.x() * twips_per_pixel,
                                  .y = position.y() * twips_per_pixel};
        m_session.act([&](screen::User& user) {
            user.mouse(m_control, screen::MouseEvent::move, where);
        });
        return false;
    }

  private:
    Session& m_session;
    screen::PlacedControl& m_control;
};

class FileDropFilter : public QObject {
  public:
    FileDropFilter(Session& session, screen::PlacedControl& control, QWidget& widget)
        : QObject{&widget}, m_session{session}, m_control{control} {
        widget.setAcceptDrops(true);
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        bool const enters = event->type() == QEvent::DragEnter;
        if (!enters && event->type() != QEvent::Drop) return false;
        // A drag that enters is a drop that has not been let go.
        auto& drop = *static_cast<QDropEvent*>(event);
        auto const urls = drop.mimeData()->urls();
        if (urls.isEmpty() || !urls.front().isLocalFile()) return false;
        drop.acceptProposedAction();
        if (enters) return true;
        std::string const path = urls.front().toLocalFile().toStdString();
        m_session.act([&](screen::User& user) { user.drop_file(m_control, path); });
        return true;
    }

  private:
    Session& m_session;
    screen::PlacedControl& m_control;
};

class FocusFilter : public QObject {
  public:
    FocusFilter(Session& session, screen::PlacedControl& control, QWidget& widget)
        : QObject{&widget}, m_session{session}, m_control{control} {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::FocusIn) return false;
        switch (static_cast<QFocusEvent*>(event)->reason()) {
            case Qt::MouseFocusReason:
            case Qt::TabFocusReason:
            case Qt::BacktabFocusReason:
            case Qt::ShortcutFocusReason:
            case Qt::OtherFocusReason:  // a screen reader; or the model, whose focus is here
                take_focus();
                break;
            case Qt::ActiveWindowFocusReason:
                // A window that opens takes no focus: nothing has been done in it yet.
                if (is_back_from_small_window()) take_focus();
                break;
            default:
                break;
        }
        return false;
    }

  private:
    void take_focus() {
        // What a drag is let go on takes no keyboard.
        if (m_session.program().screen.dragged() != nullptr) return;
        m_session.act([&](screen::User& user) { user.focus(m_control); });
    }

    bool is_back_from_small_window() const {
        auto const* const focused = m_session.program().screen.focus();
        auto const* const main = &m_session.program().form1;
        return &m_control.form() == main && (focused == nullptr || &focused->form() != main);
    }

    Session& m_session;
    screen::PlacedControl& m_control;
};

}  // namespace

void tell_mouse(Session& session, screen::PlacedControl& control, QWidget& widget) {
    new MouseFilter{session, control, widget};  // owned by the widget
}

void tell_pointer(Session& session, screen::PlacedControl& control, QWidget& widget) {
    new PointerFilter{session, control, widget};  // owned by the widget
}

void tell_file_drops(Session& session, screen::PlacedControl& control, QWidget& widget) {
    new FileDropFilter{session, control, widget};  // owned by the widget
}

void tell_focus(Session& session, screen::PlacedControl& control, QWidget& widget) {
    new FocusFilter{session, control, widget};  // owned by the widget
}

}  // namespace navarun::desktop
