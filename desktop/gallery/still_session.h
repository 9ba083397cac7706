// A run of the program for taking pictures: the clock stands still and nobody has to wait.
#pragma once

#include <functional>

#include "desktop/session.h"

namespace navarun::gallery {

class StillSession : public desktop::Session {
  public:
    explicit StillSession(std::filesystem::path application_folder)
        : Session{std::move(application_folder), [] {}} {}

    Date today() override;
    double seconds_since_midnight() override;
    /// Does not wait; a transient message stands on the window while `on_wait` runs.
    void wait(double seconds, std::string_view shown_message) override;
    /// Answers OK. With `on_box` set the box is really shown, and handed over before the
    /// answer.
    Answer box(std::string_view title, std::string_view text, BoxButtons buttons) override;
    /// Nothing leaves the program for a picture.
    void open(std::string_view) override {}
    void view_text(std::filesystem::path const&, std::string const&) override {}

    std::function<void()> on_wait;
    std::function<void(QWidget&)> on_box;
};

}  // namespace navarun::gallery
