// One run of the program on the desktop: lets the user's events into the logic, shows what they
// changed, and ends the run.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "desktop/drag_mode.h"
#include "desktop/pictures.h"
#include "desktop/printer.h"
#include "desktop/text_viewer.h"
#include "shell/program.h"

class QEventLoop;

namespace navarun::desktop {

class FormWindow;

class Session : public Platform {
  public:
    /// @param on_end  called once, when the run is over.
    Session(std::filesystem::path application_folder, std::function<void()> on_end);
    ~Session() override;

    /// Brings the program and its windows up.
    void start();
    /// Lets one event in, then shows what it changed. An act that no user could do is let be.
    void act(std::function<void(screen::User&)> const& event);
    /// Shows what has changed since the last time.
    void show_changes();

    Program& program() { return m_program; }
    Pictures& pictures() { return m_pictures; }
    /// The control under a point of the screen; null where there is none.
    screen::Control* control_at(QPoint where) const;
    /// The control that `widget` shows or stands in; null where there is none.
    screen::Control* control_of(QWidget const& widget) const;
    /// The window of a form; null before it is first shown.
    FormWindow* window(screen::Form const& form) const;
    /// Set once the run is over: 0 by the program's own doing, 1 by a fatal error.
    std::optional<int> exit_status() const { return m_exit_status; }

    Date today() override;
    double seconds_since_midnight() override;
    void wait(double seconds, std::string_view shown_message) override;
    Answer box(std::string_view title, std::string_view text, BoxButtons buttons) override;
    void open(std::string_view target) override;
    void open_file(std::filesystem::path const& file, std::string_view shown_as) override;
    bool has_program(OutsideProgram wanted) override;
    void start_program(OutsideProgram wanted) override;
    bool has_text_viewer() override;
    void view_text(std::filesystem::path const& file, std::string const& shown_as) override;
    PictureSize picture_size(std::filesystem::path const& file) override;
    screen::PageSize printer_page() override { return m_printer.page(); }
    Answer printer_dialog() override;
    void print(std::vector<screen::Page> const& pages) override;
    bool key_is_held(int code) override;

  private:
    void show_new_windows();
    void end(int exit_status);

    Pictures m_pictures;
    Program m_program;
    std::vector<std::unique_ptr<FormWindow>> m_windows;
    DragMode m_drag_mode{*this};
    std::optional<TextViewer> m_text_viewer;  // once the folder is known to be this run's
    Printer m_printer;
    QEventLoop* m_waiting = nullptr;
    std::optional<int> m_exit_status;
    std::function<void()> m_on_end;
};

}  // namespace navarun::desktop
