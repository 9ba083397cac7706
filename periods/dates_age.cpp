// The texts of the schedule.
#include "periods/dates_age.h"

#include <stdexcept>
#include <utility>

namespace navarun {

DatesAge::DatesAge(std::string birthday, int birth_year, int column)
    : m_birthday{std::move(birthday)}, m_birth_year{birth_year}, m_column{column} {}

std::string DatesAge::operator()(int row) const {
    if (row < 1 || row > rows) throw std::out_of_range{"dates_age"};
    if (m_column == 0) return {};
    int const year = m_birth_year + ages_seigneurs(row, m_column);
    return m_birthday + "/" + std::to_string(year);
}

}  // namespace navarun
