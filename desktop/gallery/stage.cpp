// Driving the program and taking its pictures.
#include "desktop/gallery/stage.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <stdexcept>

#include "desktop/form_window.h"
#include "desktop/page_painter.h"
#include "desktop/to_qt.h"

namespace navarun::gallery {

namespace {

QPixmap taken(QPixmap const& picture) {
    if (picture.isNull()) throw std::runtime_error{"nothing was shown"};
    return picture;
}

}  // namespace

Stage::Stage() : m_session{m_folder.path().toStdString()} {
    m_session.start();
    if (m_session.exit_status()) throw std::runtime_error{"the program did not start"};
}

void Stage::act(std::function<void(screen::User&)> const& event) {
    program().event(event);
    m_session.show_changes();
}

void Stage::click(screen::Control& control) {
    act([&](screen::User& user) { user.click(control); });
}

void Stage::type(screen::Control& control, std::string_view text) {
    act([&](screen::User& user) { user.type(control, text); });
}

void Stage::consult(std::string_view first_name, std::string_view last_name,
                    std::string_view birth_date) {
    type(form().Text_prenom, first_name);
    type(form().Text_nom, last_name);
    type(form().Combo_jourNaiss, birth_date);
    click(form().Command_DateNow);
    // Takes the box off the sun's cell of who stood there before.
    click(form().Command_categorie);
    click(form().Command_categorie);
    act([&](screen::User& user) { user.focus(form().Text_Note); });
}

void Stage::save() { click(form().Command_Disk_Vert); }

void Stage::consult_camille() { consult("Camille", "Exemple", "22101986"); }

QPixmap Stage::picture(screen::Form const& form) {
    auto* const window = m_session.window(form);
    if (window == nullptr || !window->isVisible()) {
        throw std::runtime_error{"the window " + std::string{form.name()} + " is not open"};
    }
    window->setMinimumSize(window->maximumSize());
    window->resize(window->maximumSize());
    window->activateWindow();
    QApplication::processEvents();
    // Without the room for scroll bars that a small screen asks for.
    auto const* const canvas = window->findChild<QWidget*>(QStringLiteral("canvas"));
    QRect const inside{canvas->mapTo(window, QPoint{0, 0}), canvas->size()};
    return taken(window->grab(QRect{QPoint{0, 0}, inside.bottomRight()}));
}

QPixmap Stage::sheet(screen::Page const& page) {
    constexpr double pixels_to_the_inch = 96;
    double const scale = qApp->devicePixelRatio();
    QSizeF const size = QSizeF{screen::a4.width, screen::a4.height} * pixels_to_the_inch;
    QPixmap paper{(size * scale).toSize()};
    paper.setDevicePixelRatio(scale);
    paper.fill(Qt::white);
    QPainter painter{&paper};
    desktop::paint_page(painter, m_session.pictures(), page, pixels_to_the_inch,
                        desktop::PageDevice::screen);
    return paper;
}

QPixmap Stage::menu(screen::MenuEntry const& entry) {
    auto* const menu =
        m_session.window(form())->findChild<QMenu*>(desktop::to_qt(entry.name()));
    if (menu == nullptr) throw std::runtime_error{std::string{entry.name()} + " is no menu"};
    menu->ensurePolished();
    menu->resize(menu->sizeHint());
    return taken(menu->grab());
}

QPixmap Stage::question(std::function<void(screen::User&)> const& event) {
    QPixmap shown;
    m_session.on_box = [&](QWidget& box) { shown = box.grab(); };
    act(event);
    m_session.on_box = nullptr;
    return taken(shown);
}

QPixmap Stage::message(std::function<void(screen::User&)> const& event) {
    QPixmap shown;
    m_session.on_wait = [&] {
        if (shown.isNull()) shown = picture(form());
    };
    act(event);
    m_session.on_wait = nullptr;
    return taken(shown);
}

}  // namespace navarun::gallery
