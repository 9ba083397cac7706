// The desktop's style with the room that the fixed window needs.
#pragma once

#include <QProxyStyle>

namespace navarun::desktop {

class CompactStyle : public QProxyStyle {
  public:
    CompactStyle();
    QRect subControlRect(ComplexControl control, QStyleOptionComplex const* option,
                         SubControl part, QWidget const* widget) const override;
};

}  // namespace navarun::desktop
