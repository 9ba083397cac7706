// Windows and their widgets.
#include "desktop/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>

#include "desktop/session.h"
#include "desktop/to_qt.h"

namespace navarun::desktop {

FormWindow::FormWindow(Session& session, screen::Form& form)
    : m_session{session}, m_form{form}, m_canvas{new QWidget} {
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
    auto* const area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(m_canvas);
    setCentralWidget(area);
    make_menus();
    make_views();
    make_timers();
    chain_tab_order();
}

FormWindow::~FormWindow() = default;

void FormWindow::make_views() {
    for (auto* control : m_form.controls()) {
        auto* const placed = dynamic_cast<screen::PlacedControl*>(control);
        if (placed == nullptr) continue;
        auto* const container = placed->container();
        QWidget* const parent =
            container == nullptr ? m_canvas : m_views.at(container)->widget();
        auto view = make_view(m_session, *placed, *parent);
        view->widget()->setObjectName(to_qt(placed->full_name()));
        view->refresh();
        m_views[placed] = std::move(view);
    }
}

void FormWindow::make_menus() {
    std::map<screen::Control const*, QMenu*> menus;
    auto const opens_a_menu = [&](screen::Control const* entry) {
        return std::ranges::any_of(
            m_form.controls(), [&](auto const* other) { return other->container() == entry; });
    };
    for (auto* control : m_form.controls()) {
        bool const separates = control->kind() == screen::Kind::menu_separator;
        if (separates) {
            menus.at(control->container())->addSeparator();
            continue;
        }
        auto* const entry = dynamic_cast<screen::MenuEntry*>(control);
        if (entry == nullptr) continue;
        QString const caption = to_qt(entry->Caption.get());
        auto* const above =
            entry->container() == nullptr ? nullptr : menus.at(entry->container());
        if (opens_a_menu(entry)) {
            menus[entry] =
                above == nullptr ? menuBar()->addMenu(caption) : above->addMenu(caption);
            menus[entry]->setObjectName(to_qt(entry->name()));
            continue;
        }
        QAction* const action =
            above == nullptr ? menuBar()->addAction(caption) : above->addAction(caption);
        auto view = std::make_unique<MenuEntryView>(m_session, *entry, *action);
        view->refresh();
        m_views[entry] = std::move(view);
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

void FormWindow::chain_tab_order() {
    QWidget* before = nullptr;
    auto const chain = [&](screen::Control const* control) {
        auto const view = m_views.find(control);
        if (view == m_views.end()) return;
        auto* const target = view->second->focus_widget();
        if (target == nullptr || target->focusPolicy() == Qt::NoFocus) return;
        if (before != nullptr) QWidget::setTabOrder(before, target);
        before = target;
    };
    for (auto const* control : m_form.tab_order) chain(control);
    for (auto const* control : m_form.controls()) {
        if (std::ranges::find(m_form.tab_order, control) == m_form.tab_order.end())
            chain(control);
    }
}

void FormWindow::show_form() {
    setWindowTitle(to_qt(m_form.Caption.get()));
    QPalette colours = m_canvas->palette();
    colours.setColor(QPalette::Window, to_qt(m_form.BackColor.get()));
    m_canvas->setPalette(colours);
    m_canvas->setFixedSize(to_pixels(m_form.Width), to_pixels(m_form.Height));
    if (m_form.Visible == isVisible()) return;
    if (!m_form.Visible) {
        hide();
        return;
    }
    int const menu_height = menuBar()->actions().isEmpty() ? 0 : menuBar()->sizeHint().height();
    QSize const whole = m_canvas->size() + QSize{0, menu_height};
    QRect const room = screen()->availableGeometry();
    setMaximumSize(whole);
    if (whole.width() <= room.width() && whole.height() <= room.height()) setMinimumSize(whole);
    resize(whole.boundedTo(room.size()));
    if (is_main()) {
        move(room.center() - rect().center());
    } else {
        auto const& main = *m_session.window(m_session.program().form1);
        move(main.m_canvas->mapToGlobal(
            QPoint{to_pixels(m_form.Opening.left), to_pixels(m_form.Opening.top)}));
    }
    show();
}

bool FormWindow::is_main() const { return &m_form == &m_session.program().form1; }

void FormWindow::show_control(screen::Control const& control) {
    if (&control == &m_form) {
        show_form();
        return;
    }
    auto const view = m_views.find(&control);
    if (view != m_views.end()) view->second->refresh();
}

void FormWindow::show_focus(screen::Control const& control) {
    auto* const target = m_views.at(&control)->focus_widget();
    if (target == nullptr || target->hasFocus()) return;
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
