// The program without a window, as a test uses it: each act of the user in a word, each field
// by its name.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tools/pilote/pilot.h"

namespace navarun::test {

using pilot::Json;

/// A folder of its own, gone with the test.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;
    std::filesystem::path const& path() const { return m_path; }

  private:
    std::filesystem::path m_path;
};

/// A day on which the practitioner works. The program is up: the grid of 01/01/1900 stands.
class Visit {
  public:
    /// @param today  dd/mm/yyyy; an empty text leaves the program not started.
    explicit Visit(std::string_view today = "21/11/2026", std::string_view time = "10:15:00");

    /// Sends one request; its answer as the pilot gives it.
    Json ask(Json const& request);
    Json ask_line(std::string const& line);

    // The acts of the user; each REQUIRES that the pilot answers ok, and fails the test
    // elsewhere.
    void focus(std::string_view control);
    void type(std::string_view control, std::string_view text);
    void set(std::string_view control, Json const& value);
    void drag(std::string_view control, int value);
    void choose(std::string_view control, std::string_view item);
    void click(std::string_view control);
    void double_click(std::string_view control);
    void hover(std::string_view control);
    void key(std::string_view control, int code);
    void clock(std::string_view date, std::string_view time);

    /// Types a birth date, ddmmyyyy, into the date fields and generates.
    void generate_for(std::string_view date_digits);
    /// Sets the age and generates.
    void generate_at(int age);

    /// The value of a property or a state value; fails the test where nothing has that name.
    Json value(std::string_view name);
    std::string text(std::string_view name);
    int number(std::string_view name);
    bool truth(std::string_view name);
    /// A property of the twelve members of an array, 1 to 12 at 0 to 11.
    std::vector<std::string> cells(std::string_view array, std::string_view property);
    /// All controls of the main window with all their properties.
    Json dump();
    /// What reached the outside since the last asking.
    Json effects();

    /// Ends where the program has ended.
    std::optional<int> exit_status() const { return m_pilot.exit_status(); }
    Program& program() { return m_pilot.program(); }
    std::filesystem::path const& folder() const { return m_folder.path(); }

  private:
    void act(Json const& request);

    TemporaryFolder m_folder;
    pilot::Pilot m_pilot;
};

}  // namespace navarun::test
