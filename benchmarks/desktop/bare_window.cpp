// The floor of a start: a window of the toolkit's ordinary widgets, as many of each kind and as
// large as the program's main window has. The labels that get their texts from a calculation
// show a word of the length of a lord's name. No logic, no pictures, no colours, no fonts but
// the toolkit's own.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>
#include <map>

#include "shell/form1.h"
#include "shell/screen/screen.h"
#include "shell/screen/units.h"

namespace {

using namespace navarun;

constexpr int twips_per_pixel = 15;

QString to_qt(std::string const& text) { return QString::fromStdString(text); }

QWidget* make_widget(screen::PlacedControl const& control, QWidget* parent) {
    switch (control.kind()) {
        case screen::Kind::label: {
            auto const& caption = static_cast<screen::Label const&>(control).Caption.get();
            return new QLabel{caption.empty() ? QStringLiteral("Shukra") : to_qt(caption),
                              parent};
        }
        case screen::Kind::text_field:
            return new QLineEdit{
                to_qt(static_cast<screen::TextField const&>(control).Text.get()), parent};
        case screen::Kind::text_area:
            return new QPlainTextEdit{
                to_qt(static_cast<screen::TextArea const&>(control).Text.get()), parent};
        case screen::Kind::combo: {
            auto* const box = new QComboBox{parent};
            box->setEditable(true);
            for (auto const& entry : static_cast<screen::Combo const&>(control).entries()) {
                box->addItem(to_qt(entry));
            }
            return box;
        }
        case screen::Kind::list:
            return new QListWidget{parent};
        case screen::Kind::button:
            return new QPushButton{parent};
        case screen::Kind::scroll_bar:
            return new QScrollBar{Qt::Horizontal, parent};
        default:
            return new QFrame{parent};
    }
}

void fill_menus(QMainWindow& window, screen::Form const& form) {
    std::map<screen::Control const*, QMenu*> menus;
    for (auto const* control : form.controls()) {
        bool const separator = control->kind() == screen::Kind::menu_separator;
        if (!separator && control->kind() != screen::Kind::menu_entry) continue;
        if (separator) {
            menus.at(control->container())->addSeparator();
            continue;
        }
        QString const caption =
            to_qt(static_cast<screen::MenuEntry const&>(*control).Caption.get());
        bool const opens = std::ranges::any_of(
            form.controls(), [&](auto const* other) { return other->container() == control; });
        QMenu* const above =
            control->container() == nullptr ? nullptr : menus.at(control->container());
        if (opens) {
            menus[control] =
                above == nullptr ? window.menuBar()->addMenu(caption) : above->addMenu(caption);
        } else if (above == nullptr) {
            window.menuBar()->addAction(caption);
        } else {
            above->addAction(caption);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    screen::Screen model;
    Form1 const form{model};
    QMainWindow window;
    auto* const canvas = new QWidget;
    std::map<screen::Control const*, QWidget*> widgets;
    for (auto const* control : form.controls()) {
        auto const* const placed = dynamic_cast<screen::PlacedControl const*>(control);
        if (placed == nullptr) continue;
        QWidget* const parent =
            placed->container() == nullptr ? canvas : widgets.at(placed->container());
        auto* const widget = make_widget(*placed, parent);
        widget->setGeometry(placed->Left / twips_per_pixel, placed->Top / twips_per_pixel,
                            placed->Width / twips_per_pixel, placed->Height / twips_per_pixel);
        widget->setVisible(placed->Visible);
        widgets[placed] = widget;
    }
    fill_menus(window, form);
    canvas->setFixedSize(form.Width / twips_per_pixel, form.Height / twips_per_pixel);
    window.setCentralWidget(canvas);
    window.show();
    return QApplication::exec();
}
