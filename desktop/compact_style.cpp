// Narrow arrows of the date fields, and the one of a menu bar that has no room.
#include "desktop/compact_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionComboBox>

namespace navarun::desktop {

namespace {

constexpr int arrow_width = 13;  // pixels: two digits and the cursor fit beside it

// Drawn when it is seen.
class ArrowIcon : public QIconEngine {
  public:
    void paint(QPainter* painter, QRect const& place, QIcon::Mode, QIcon::State) override {
        QStyleOption arrow;
        arrow.rect = place;
        arrow.state = QStyle::State_Enabled;
        arrow.palette = QApplication::palette();
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorArrowRight, &arrow, painter);
    }
    QPixmap pixmap(QSize const& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn{size};
        drawn.fill(Qt::transparent);
        QPainter painter{&drawn};
        paint(&painter, QRect{QPoint{}, size}, mode, state);
        return drawn;
    }
    QIconEngine* clone() const override { return new ArrowIcon{*this}; }
};

}  // namespace

CompactStyle::CompactStyle() : QProxyStyle{QStyleFactory::create(QStringLiteral("Fusion"))} {}

QRect CompactStyle::subControlRect(ComplexControl control, QStyleOptionComplex const* option,
                                   SubControl part, QWidget const* widget) const {
    QRect const whole = option->rect;
    if (control == CC_ComboBox && part == SC_ComboBoxArrow) {
        return {whole.right() - arrow_width, whole.top(), arrow_width, whole.height()};
    }
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
        return whole.adjusted(2, 2, -arrow_width - 2, -2);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void CompactStyle::drawControl(ControlElement element, QStyleOption const* option,
                               QPainter* painter, QWidget const* widget) const {
    auto const* const entry = element == CE_MenuBarItem
                                  ? qstyleoption_cast<QStyleOptionMenuItem const*>(option)
                                  : nullptr;
    if (entry == nullptr || !entry->state.testFlag(State_Selected)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    // Where the keyboard stands is marked as clearly as a menu that is open.
    QStyleOptionMenuItem marked{*entry};
    marked.state |= State_Sunken;
    QProxyStyle::drawControl(element, &marked, painter, widget);
}

// A menu bar asks for its arrow when it is made, whether it will have room or not; the
// toolkit's own is a file, and with the first file comes all that can read pictures.
QIcon CompactStyle::standardIcon(StandardPixmap icon, QStyleOption const* option,
                                 QWidget const* widget) const {
    return icon == SP_ToolBarHorizontalExtensionButton
               ? QIcon{new ArrowIcon}
               : QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace navarun::desktop
