// Popping the menu up.
#include "desktop/copy_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>

namespace navarun::desktop {

void offer_copies(QWidget& widget, QContextMenuEvent const& asked, QPoint by_key,
                  std::vector<CopyOffer> const& offers) {
    auto* const menu = new QMenu{&widget};
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (auto const& offer : offers) {
        auto* const action = menu->addAction(offer.caption);
        action->setEnabled(offer.there);
        QObject::connect(action, &QAction::triggered, menu,
                         [text = offer.text] { QApplication::clipboard()->setText(text()); });
    }
    bool const keyboard = asked.reason() == QContextMenuEvent::Keyboard;
    menu->popup(keyboard ? widget.mapToGlobal(by_key) : asked.globalPos());
}

}  // namespace navarun::desktop
