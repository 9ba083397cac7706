// `dates_age`, the schedule of a person: the birthday of the year in which each period starts.
#pragma once

#include <string>

#include "periods/lord_circle.h"

namespace navarun {

/// Ninety texts, of which a generation looks at one at the most: each is made when somebody
/// asks for it, from what the schedule was made of.
class DatesAge {
  public:
    static constexpr int rows = static_cast<int>(circle.size()) * nombre_cycles;

    /// Before the first person all texts are empty.
    DatesAge() = default;
    /// @param birthday  day and month as the person's dates begin
    /// @param column    the sequence, 1..9
    DatesAge(std::string birthday, int birth_year, int column);

    /// @param row  of `ages_seigneurs`, 1..rows; another one is a programming error.
    std::string operator()(int row) const;

  private:
    std::string m_birthday;
    int m_birth_year = 0;
    int m_column = 0;
};

}  // namespace navarun
