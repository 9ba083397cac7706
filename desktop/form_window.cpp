// Windows and their widgets.
#include "desktop/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <algorithm>

#include "desktop/session.h"
#include "desktop/to_qt.h"

namespace navarun::desktop {

FormWindow::FormWindow(Session& session, screen::Form& form)
    : m_session{session},
      m_form{form},
      m_canvas{new QWidget},
      m_area{new QScrollArea},
      m_ring{new FocusRing{*m_canvas}},
      m_menus{session, form, *menuBar()} {
    setObjectName(to_qt(form.name()));
    if (!is_main()) {
        // A small window beside the main one, above it and all others.
        setWindowFlags(Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint);
        if (form.Modal) setWindowModality(Qt::ApplicationModal);
    }
    setContextMenuPolicy(Qt::NoContextMenu);
    m_canvas->setAutoFillBackground(true);
    m_canvas->setObjectName(QStringLiteral("canvas"));
    // On a screen smaller than the window it scrolls.
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidget(m_canvas);
    setCentralWidget(m_area);
    make_views();
    make_timers();
    make_tab_order();
    make_shortcuts();
    QObject::connect(qApp, &QApplication::focusChanged, this,
                     [this](QWidget*, QWidget* to) { keyboard_moved(to); });
}

// The toolkit takes the keyboard from a window that goes, and tells so when its parts have
// gone.
FormWindow::~FormWindow() { QObject::disconnect(qApp, nullptr, this, nullptr); }

void FormWindow::make_views() {
    for (auto* control : m_form.controls()) {
        auto* const placed = dynamic_cast<screen::PlacedControl*>(control);
        if (placed == nullptr) continue;
        auto* const container = placed->container();
        QWidget* const parent =
            container == nullptr ? m_canvas : m_views.at(container)->widget();
        auto view = make_view(m_session, *placed, *parent);
        view->widget()->setObjectName(to_qt(placed->full_name()));
        if (placed->is_shown()) {
            view->refresh();
        } else {
            // Its fonts would be loaded for nobody's eyes.
            if (!placed->Visible) view->widget()->hide();
            m_unseen.insert(placed);
        }
        m_views[placed] = std::move(view);
    }
}

// One by one: what is filled may let another event in, which comes back here.
void FormWindow::fill_what_came_up() {
    auto const next = [this] {
        return std::ranges::find_if(
            m_unseen, [](screen::Control const* control) { return control->is_shown(); });
    };
    for (auto found = next(); found != m_unseen.end(); found = next()) {
        auto& view = *m_views.at(*found);
        m_unseen.erase(found);
        view.refresh();
    }
}

void FormWindow::make_timers() {
    for (auto* control : m_form.controls()) {
        if (control->kind() != screen::Kind::timer) continue;
        auto& timer = static_cast<screen::Timer&>(*control);
        auto* const clock = new QTimer{this};
        clock->setInterval(timer.Interval);
        QObject::connect(clock, &QTimer::timeout, this, [this, &timer] {
            if (isVisible()) m_session.act([&](screen::User&) { timer.on_tick(); });
        });
        clock->start();
    }
}

void FormWindow::make_shortcuts() {
    auto const on = [this](QKeySequence const& keys, auto const& does) {
        auto* const action = new QAction{this};
        action->setShortcut(keys);
        QObject::connect(action, &QAction::triggered, this, does);
        addAction(action);
    };
    auto const clicks = [this](screen::Button& button) {
        return
            [this, &button] { m_session.act([&](screen::User& user) { user.click(button); }); };
    };
    if (auto* const button = m_form.default_button) {
        on(Qt::Key_Return, clicks(*button));
        on(Qt::Key_Enter, clicks(*button));
    }
    if (auto* const button = m_form.cancel_button) on(Qt::Key_Escape, clicks(*button));
    // The keys of the desktop for the menu bar and for the next window of a program.
    on(Qt::Key_F10, [this] {
        auto const entries = menuBar()->actions();
        if (entries.isEmpty()) return;
        menuBar()->setFocus(Qt::MenuBarFocusReason);
        menuBar()->setActiveAction(entries.front());
    });
    on(Qt::Key_F6, [this] {
        auto const& forms = m_session.program().screen.forms();
        auto const here = std::ranges::find(forms, &m_form) - forms.begin();
        auto const count = std::ssize(forms);
        for (auto step = 1; step < count; ++step) {
            auto const* const form = forms[static_cast<std::size_t>((here + step) % count)];
            auto* const next = m_session.window(*form);
            if (next == nullptr || !next->isVisible()) continue;
            next->raise();
            next->activateWindow();
            return;
        }
    });
}

void FormWindow::make_tab_order() {
    QWidget* before = nullptr;
    auto const add = [&](screen::Control* control) {
        auto const view = m_views.find(control);
        if (view == m_views.end()) return;
        auto* const target = view->second->focus_widget();
        if (target->focusPolicy() == Qt::NoFocus) return;
        m_walk.add({control, target});
        target->installEventFilter(this);
        // The toolkit asks its own chain which widget comes first.
        if (before != nullptr) QWidget::setTabOrder(before, target);
        before = target;
    };
    for (auto* control : m_form.tab_order) add(control);
    for (auto* control : m_form.controls()) {
        if (std::ranges::find(m_form.tab_order, control) == m_form.tab_order.end())
            add(control);
    }
}

// Only the main window changes its place: the small ones stand above all from the first.
void FormWindow::show_stacking() {
    if (!is_main() || m_form.Stacking == m_stacking || windowHandle() == nullptr) return;
    m_stacking = m_form.Stacking;
    windowHandle()->setFlag(Qt::WindowStaysOnTopHint, m_stacking == screen::Stacking::topmost);
    if (m_stacking == screen::Stacking::bottom) lower();
}

bool FormWindow::focusNextPrevChild(bool next) {
    QWidget const* from = focusWidget();
    // Where nobody has the keyboard, the way goes on from the control that has the focus.
    if (m_walk.control_of(from) == nullptr) {
        auto const* const focused = m_session.program().screen.focus();
        if (focused != nullptr && &focused->form() == &m_form) from = widget(*focused);
    }
    auto* const to = m_walk.after(from, next);
    if (to == nullptr) return false;
    walk_to(*to, next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void FormWindow::walk_to(QWidget& stop, Qt::FocusReason reason) {
    stop.setFocus(reason);
    m_walk.visited(stop);
    // What is a picture only tells what it is for, as it does under the pointer.
    auto const* const control = m_walk.control_of(&stop);
    bool const told_by_itself =
        control == nullptr || dynamic_cast<screen::EntryControl const*>(control) != nullptr;
    if (told_by_itself || stop.toolTip().isEmpty()) return;
    QToolTip::showText(stop.mapToGlobal(QPoint{0, stop.height()}), stop.toolTip(), &stop);
}

void FormWindow::keyboard_moved(QWidget* to) {
    if (to != nullptr && to->window() != this) to = nullptr;
    auto const* const control = to == nullptr ? nullptr : m_walk.control_of(to);
    m_ring->go_round(control == nullptr ? nullptr : to);
    if (control == nullptr) return;
    m_area->ensureWidgetVisible(to, 8, 8);
}

bool FormWindow::give_keyboard_back() {
    auto const* const focused = m_session.program().screen.focus();
    if (focused == nullptr || &focused->form() != &m_form) return false;
    m_focus_at_stop = nullptr;
    show_focus(*focused);
    return true;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        auto const* const control = m_walk.control_of(qobject_cast<QWidget*>(watched));
        bool const own = control != nullptr && !control->takes_focus();
        m_focus_at_stop = own ? m_session.program().screen.focus() : nullptr;
    }
    if (event->type() != QEvent::KeyPress) return QMainWindow::eventFilter(watched, event);
    using enum TabWalk::Direction;
    static std::map<int, TabWalk::Direction> const directions{
        {Qt::Key_Left, left}, {Qt::Key_Right, right}, {Qt::Key_Up, up},
        {Qt::Key_Down, down}, {Qt::Key_Home, first},  {Qt::Key_End, last},
    };
    auto const direction = directions.find(static_cast<QKeyEvent*>(event)->key());
    auto const* const stop = qobject_cast<QWidget*>(watched);
    if (direction == directions.end() || stop == nullptr) return false;
    if (!m_walk.is_walked(*stop)) return false;
    if (auto* const to = m_walk.neighbour(*stop, direction->second)) {
        walk_to(*to, Qt::TabFocusReason);
    }
    return true;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    // What blocks the other windows goes by Escape, as the toolkit's own boxes do.
    if (event->key() == Qt::Key_Escape && m_form.Modal) {
        close();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void FormWindow::show_form() {
    setWindowTitle(to_qt(m_form.Caption.get()));
    setAccessibleName(to_qt(m_form.SpokenName.get()));
    QColor const ground = to_qt(m_form.BackColor.get());
    QPalette colours = m_canvas->palette();
    colours.setColor(QPalette::Window, ground);
    m_canvas->setPalette(colours);
    m_canvas->setFixedSize(to_pixels(m_form.Width), to_pixels(m_form.Height));
    show_stacking();
    m_ring->set_tone(deep_tone_on(ground));
    if (m_form.Visible == isVisible()) return;
    if (!m_form.Visible) {
        hide();
        return;
    }
    fit_to_screen();
    // The keyboard begins where Tab does.
    auto* const first = m_walk.after(nullptr, true);
    if (!is_main() && first != nullptr) first->setFocus(Qt::OtherFocusReason);
    show();
    // Who opened it with the keyboard goes on in it; not every window manager sees to that.
    activateWindow();
}

void FormWindow::fit_to_screen() {
    int const menu_height = menuBar()->actions().isEmpty() ? 0 : menuBar()->sizeHint().height();
    QSize const whole = m_canvas->size() + QSize{0, menu_height};
    // The frame is known once the window has been shown.
    QSize const frame = frameGeometry().size() - size();
    // Between scaled pixels and those of the screen there is some rounding.
    constexpr int air = 8;
    QRect const screen_room = room_on_screen().adjusted(air / 2, air / 2, -air / 2, -air / 2);
    QSize const room = screen_room.size() - frame;
    // A bar that scrolls one way takes room the other way.
    int const bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QSize wanted = whole;
    if (whole.height() > room.height()) wanted.rwidth() += bar;
    if (whole.width() > room.width()) wanted.rheight() += bar;
    setMaximumSize(wanted);
    setMinimumSize(wanted == whole ? whole : QSize{0, 0});
    resize(wanted.boundedTo(room));
    QPoint place = screen_room.center() - QRect{QPoint{0, 0}, size() + frame}.center();
    if (!is_main()) {
        auto const& main = main_window();
        QSize const scrolled{main.m_area->horizontalScrollBar()->value(),
                             main.m_area->verticalScrollBar()->value()};
        place = main.m_canvas->mapToGlobal(
            QPoint{to_pixels(m_form.Opening.left) + scrolled.width(),
                   to_pixels(m_form.Opening.top) + scrolled.height()});
    }
    // Nothing of it beyond the screen.
    QPoint const last{screen_room.right() + 1 - width() - frame.width(),
                      screen_room.bottom() + 1 - height() - frame.height()};
    move(std::clamp(place.x(), screen_room.left(), std::max(screen_room.left(), last.x())),
         std::clamp(place.y(), screen_room.top(), std::max(screen_room.top(), last.y())));
}

// The frame that the window manager puts round the window is known some events after it is
// shown; then it has to fit too. Once: afterwards the place is the user's.
void FormWindow::fit_with_frame() {
    if (m_fits_with_frame || !isVisible() || frameGeometry() == geometry()) return;
    m_fits_with_frame = true;
    if (!room_on_screen().contains(frameGeometry())) fit_to_screen();
}

bool FormWindow::event(QEvent* event) {
    bool const done = QMainWindow::event(event);
    switch (event->type()) {
        case QEvent::Hide:
            m_fits_with_frame = false;
            break;
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowActivate:
            fit_with_frame();
            break;
        default:
            break;
    }
    return done;
}

bool FormWindow::is_main() const { return &m_form == &m_session.program().form1; }

FormWindow& FormWindow::main_window() const {
    return *m_session.window(m_session.program().form1);
}

QRect FormWindow::room_on_screen() const {
    // A window that was never shown knows no screen but the first.
    return main_window().screen()->availableGeometry();
}

void FormWindow::show_control(screen::Control const& control) {
    if (&control == &m_form) {
        show_form();
        return;
    }
    if (control.kind() == screen::Kind::menu_entry) {
        m_menus.refresh();
        return;
    }
    auto const view = m_views.find(&control);
    if (view == m_views.end()) return;
    // Before it shows, so that nothing half made is seen on it.
    if (control.Visible) fill_what_came_up();
    view->second->refresh();
}

void FormWindow::show_focus(screen::Control const& control) {
    auto* const target = m_views.at(&control)->focus_widget();
    if (target->hasFocus()) return;
    // On a label or a picture the keyboard stays until the focus goes elsewhere, and on what a
    // record may be dropped on until it is.
    if (&control == m_focus_at_stop || m_session.program().screen.dragged() != nullptr) return;
    // A menu or a list that has popped up keeps the keyboard until it closes.
    if (QApplication::activePopupWidget() == nullptr) target->setFocus(Qt::OtherFocusReason);
}

QWidget* FormWindow::widget(screen::Control const& control) const {
    auto const view = m_views.find(&control);
    return view == m_views.end() ? nullptr : view->second->widget();
}

screen::Control* FormWindow::control_of(QWidget const& widget) const {
    for (auto* control : m_form.controls()) {
        auto const view = m_views.find(control);
        if (view != m_views.end() && view->second->widget() == &widget) return control;
    }
    return nullptr;
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The logic decides whether the window goes.
    event->ignore();
    m_session.act([this](screen::User& user) { user.close(m_form); });
}

}  // namespace navarun::desktop
