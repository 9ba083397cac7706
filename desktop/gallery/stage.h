// Where a scene plays: the real program in a folder of its own, driven by its user, and the
// pictures of its windows.
#pragma once

#include <QPixmap>
#include <QTemporaryDir>
#include <string_view>

#include "desktop/gallery/still_session.h"

namespace navarun::gallery {

class Stage {
  public:
    /// The program is up, on an empty folder.
    Stage();

    Program& program() { return m_session.program(); }
    Form1& form() { return program().form1; }
    screen::User& user() { return program().user; }

    // The acts of the user. An act that no user could do ends the run with an error: the scene
    // is wrong.
    void act(std::function<void(screen::User&)> const& event);
    void click(screen::Control& control);
    void type(screen::Control& control, std::string_view text);
    /// Types names and birth date (ddmmyyyy) and goes to the present age, which generates.
    void consult(std::string_view first_name, std::string_view last_name,
                 std::string_view birth_date);
    /// Keeps the consultation as a record of the active folder.
    void save();
    /// The person of the manual, at her present age.
    void consult_camille();

    /// The window as it stands, in full also where the screen is smaller.
    QPixmap picture(screen::Form const& form);
    /// A page on white A4 paper.
    QPixmap sheet(screen::Page const& page);
    /// The menu that the entry opens.
    QPixmap menu(screen::MenuEntry const& entry);
    /// The question that `event` asks.
    QPixmap question(std::function<void(screen::User&)> const& event);
    /// The main window while the first transient message of `event` stands on it.
    QPixmap message(std::function<void(screen::User&)> const& event);

  private:
    QTemporaryDir m_folder;
    StillSession m_session;
};

}  // namespace navarun::gallery
