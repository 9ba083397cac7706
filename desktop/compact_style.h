// The desktop's style with the room that the fixed window needs, and with the place of the
// keyboard shown in the menu bar too.
#pragma once

#include <QProxyStyle>

namespace navarun::desktop {

class CompactStyle : public QProxyStyle {
  public:
    CompactStyle();
    QRect subControlRect(ComplexControl control, QStyleOptionComplex const* option,
                         SubControl part, QWidget const* widget) const override;
    void drawControl(ControlElement element, QStyleOption const* option, QPainter* painter,
                     QWidget const* widget) const override;
    QIcon standardIcon(StandardPixmap icon, QStyleOption const* option,
                       QWidget const* widget) const override;
};

}  // namespace navarun::desktop
