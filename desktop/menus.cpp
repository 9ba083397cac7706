// Actions out of menu entries.
#include "desktop/menus.h"

#include <algorithm>

#include "desktop/mnemonics.h"
#include "desktop/session.h"
#include "desktop/to_qt.h"

namespace navarun::desktop {

Menus::Menus(Session& session, screen::Form const& form, QMenuBar& bar) : m_session{session} {
    bar.setAccessibleName(QStringLiteral("Barre de menus"));
    std::map<screen::Control const*, QMenu*> menus;
    auto const add_action = [&](screen::Control const& in, auto const& text) {
        auto* const menu = in.container() == nullptr ? nullptr : menus.at(in.container());
        return menu == nullptr ? bar.addAction(text) : menu->addAction(text);
    };
    for (auto* control : form.controls()) {
        if (control->kind() == screen::Kind::menu_separator) {
            menus.at(control->container())->addSeparator();
            continue;
        }
        auto* const entry = dynamic_cast<screen::MenuEntry*>(control);
        if (entry == nullptr) continue;
        auto* const action = add_action(*entry, to_qt(entry->Caption.get()));
        action->setObjectName(to_qt(entry->name()));
        bool const opens = std::ranges::any_of(
            form.controls(),
            [&](screen::Control const* other) { return other->container() == entry; });
        if (opens) {
            auto* const menu = new QMenu{&bar};
            menu->setObjectName(to_qt(entry->name()));
            action->setMenu(menu);
            menus[entry] = menu;
        } else {
            QObject::connect(action, &QAction::triggered, action, [this, entry] {
                m_session.act([&](screen::User& user) { user.click(*entry); });
                // The toolkit moves a check mark by itself; the model's stands.
                refresh();
            });
        }
        QWidget const* const place = entry->container() == nullptr
                                         ? static_cast<QWidget const*>(&bar)
                                         : menus.at(entry->container());
        m_entries[place].push_back({entry, action, opens});
    }
    refresh();
}

void Menus::refresh() {
    for (auto const& [place, entries] : m_entries) {
        QStringList captions;
        for (auto const& entry : entries) captions.append(to_qt(entry.entry->Caption.get()));
        QStringList const marked = with_mnemonics(captions);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            auto const& [entry, action, opens] = entries[i];
            action->setText(marked[static_cast<qsizetype>(i)]);
            if (opens) {
                action->menu()->setAccessibleName(
                    QString{marked[static_cast<qsizetype>(i)]}.remove(QLatin1Char('&')));
            }
            action->setEnabled(entry->Enabled);
            action->setVisible(entry->Visible);
            if (opens) continue;
            action->setCheckable(entry->Checked);
            action->setChecked(entry->Checked);
        }
    }
}

}  // namespace navarun::desktop
