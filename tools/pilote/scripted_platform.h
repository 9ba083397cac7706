// The outside as the pilot plays it: a clock that stands still, boxes answered from a queue,
// and a record of all that reached the outside.
#pragma once

#include <deque>
#include <functional>

#include <nlohmann/json.hpp>

#include "shell/platform.h"
#include "shell/screen/user.h"

namespace navarun::pilot {

using Json = nlohmann::ordered_json;

class ScriptedPlatform : public Platform {
  public:
    Date today() override { return m_today; }
    double seconds_since_midnight() override { return m_seconds; }
    void wait(double seconds, std::string_view shown_message) override;
    Answer box(std::string_view title, std::string_view text, BoxButtons buttons) override;
    void open(std::string_view target) override;
    void open_file(std::filesystem::path const& file, std::string_view shown_as) override;
    bool has_program(OutsideProgram) override { return true; }
    void start_program(OutsideProgram wanted) override;
    bool has_text_viewer() override { return true; }
    void view_text(std::filesystem::path const& file, std::string const& shown_as) override;
    PictureSize picture_size(std::filesystem::path const& file) override;
    screen::PageSize printer_page() override { return screen::a4; }
    Answer printer_dialog() override;
    void print(std::vector<screen::Page> const& pages) override;
    bool key_is_held(int code) override;

    /// @param seconds  since midnight, 0 to below 86400
    void set_clock(Date today, double seconds);
    /// The answer of the next question box or printer dialog; OK where none is queued.
    void queue_answer(Answer answer) { m_answers.push_back(answer); }
    /// What runs inside each wait, before the clock moves on.
    void set_during_wait(std::function<void()> run) { m_during_wait = std::move(run); }
    /// Whose keys key_is_held() tells.
    void set_user(screen::User const& user) { m_user = &user; }

    /// The effects since the last call, in order.
    Json take_effects();
    /// Keeps a page for take_pages().
    void record_page(std::string_view target, screen::Page const& page);
    /// The pages drawn since the last call, in order.
    Json take_pages();

  private:
    Answer next_answer();

    Date m_today{};
    double m_seconds = 0;
    std::deque<Answer> m_answers;
    std::function<void()> m_during_wait;
    screen::User const* m_user = nullptr;
    Json m_effects = Json::array();
    Json m_pages = Json::array();
};

}  // namespace navarun::pilot
