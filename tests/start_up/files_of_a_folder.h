// What lies on the disk, read past the program, and the program started on such a disk.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "tests/support/files.h"
#include "tests/support/visit.h"

namespace navarun::test {

/// Each file with its bytes and each folder, by its path from `folder` on with "/"; a folder's
/// path ends with "/" and its bytes are empty.
std::map<std::string, std::string> tree_of(std::filesystem::path const& folder);

inline std::filesystem::path const settings_file{"RESSOURCES/CONFIG.CFG"};
inline std::filesystem::path const address_file{"RESSOURCES/INTERNET.DAT"};

/// The program on a folder that is already there.
class Start {
  public:
    explicit Start(std::filesystem::path const& folder, std::string_view today = "21/11/2026",
                   std::string_view time = "10:15:00");

    Json const& answer() const { return m_answer; }
    bool is_up() const { return m_answer.contains("ok"); }
    Json ask(Json const& request);
    /// Clicks; the answer as the pilot gives it.
    Json click(std::string_view control);
    Json value(std::string_view name);
    pilot::Pilot& pilot() { return m_pilot; }

  private:
    pilot::Pilot m_pilot;
    Json m_answer;
};

/// Fails the test unless `answer` is that of a run that a fatal error ended, told in one box
/// that bears the program's name and holds each of `told`.
void expect_fatal_report(Json const& answer, std::vector<std::string> const& told);

}  // namespace navarun::test
