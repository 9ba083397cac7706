// The system's printers: the dialog in which one is chosen, and a document on it.
#pragma once

#include <QPrinter>
#include <memory>
#include <vector>

#include "desktop/pictures.h"
#include "shell/screen/page.h"

class QWidget;

namespace navarun::desktop {

class Printer {
  public:
    /// The paper of the printer chosen last, before that of the system's default printer; A4
    /// where there is none.
    screen::PageSize page() const;
    /// Shows the system's printer dialog. Without a printer it still offers a PDF file.
    /// @return false where the user gives up.
    bool choose(QWidget* parent);
    /// Prints a document on the printer chosen. A printer that cannot prints nothing; nor does
    /// one whose document finds no room on the disk: never a part of it.
    void print(std::vector<screen::Page> const& pages, Pictures& pictures);

  private:
    std::unique_ptr<QPrinter> m_chosen;
};

}  // namespace navarun::desktop
