// The menu bar of a window, with its letters.
#pragma once

#include <QMenuBar>
#include <map>
#include <utility>
#include <vector>

#include "shell/screen/control.h"

namespace navarun::desktop {

class Session;

class Menus {
  public:
    /// Makes the actions of all menu entries of `form`; none where it has no menu.
    Menus(Session& session, screen::Form const& form, QMenuBar& bar);
    /// Shows the present properties of the entries.
    void refresh();

  private:
    struct Entry {
        screen::MenuEntry* entry;
        QAction* action;  // the one that opens the menu, where the entry opens one
        bool opens;
    };

    Session& m_session;
    std::map<QWidget const*, std::vector<Entry>> m_entries;  // by the bar or menu they stand in
};

}  // namespace navarun::desktop
