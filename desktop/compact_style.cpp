// Narrow arrows of the date fields.
#include "desktop/compact_style.h"

#include <QStyleFactory>
#include <QStyleOptionComboBox>

namespace navarun::desktop {

namespace {

constexpr int arrow_width = 13;  // pixels: two digits and the cursor fit beside it

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

}  // namespace navarun::desktop
