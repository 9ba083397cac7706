// The caption's rule and the rows that stand apart from it.
#include "periods/lal_kitab.h"

#include <array>

#include "periods/lord_circle.h"

namespace navarun {

namespace {

struct Gap {
    Lord sequence;
    int first_age;  // both inside
    int last_age;
};

// clang-format off
constexpr std::array<Gap, 2> ages_without_a_case{{
    {Lord::Budha, 324, 329},
    {Lord::Guru,  328, 333},
}};
// clang-format on

// The Surya sequence writes its Shukra periods with two blanks before the stroke.
constexpr Lord wide_sequence = Lord::Surya;
constexpr Lord wide_period = Lord::Shukra;

constexpr int greatest_tabulated_age = greatest_age + 1;

}  // namespace

std::optional<LalKitab> lal_kitab(int column, int age) {
    if (age < 1 || age > greatest_tabulated_age) return {};
    Lord const sequence = circle.at(static_cast<std::size_t>(column - 1)).lord;
    for (auto const& gap : ages_without_a_case) {
        if (gap.sequence == sequence && gap.first_age <= age && age <= gap.last_age) return {};
    }
    Period const period = period_at(column, age);
    auto const& row = circle[static_cast<std::size_t>(circle_place(period.lord) - 1)];
    if (period.lord == Lord::Chandra) return LalKitab{"CHANDRA (1 / 1 an)", 0};
    bool const wide = sequence == wide_sequence && period.lord == wide_period;
    std::string caption;
    caption.reserve(row.capitals.size() + std::string_view{" (1  / 3 ans)"}.size());
    caption.append(row.capitals);
    caption.append(" (").append(std::to_string(period.rank)).append(wide ? "  / " : " / ");
    caption.append(std::to_string(period.years)).append(" ans)");
    return LalKitab{std::move(caption), period.rank};
}

}  // namespace navarun
