// The menu that offers a text for copying: of a label, of a list.
#pragma once

#include <QContextMenuEvent>
#include <QWidget>
#include <functional>
#include <vector>

namespace navarun::desktop {

struct CopyOffer {
    QString caption;  // with the letter of the keyboard marked
    bool there;       // else it cannot be taken
    std::function<QString()> text;
};

/// Shows the menu where `asked` asks for it on `widget`; asked for with the keyboard, at the
/// point `by_key` of the widget. It tells the model nothing.
void offer_copies(QWidget& widget, QContextMenuEvent const& asked, QPoint by_key,
                  std::vector<CopyOffer> const& offers);

}  // namespace navarun::desktop
