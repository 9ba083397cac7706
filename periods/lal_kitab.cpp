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

constexpr std::size_t longest_period = 6;  // years

// By the place of the period in the circle and the rank of the year in it, both from 0. They
// are few and the age bar runs through them: each is written once.
using Captions = std::array<std::array<LalKitab, longest_period>, circle.size()>;

Captions captions_with(std::string_view stroke) {
    Captions captions;
    for (std::size_t place = 0; place < circle.size(); ++place) {
        auto const& row = circle[place];
        for (int rank = 1; rank <= row.years; ++rank) {
            auto& [caption, year_rank] = captions[place][static_cast<std::size_t>(rank - 1)];
            caption.append(row.capitals).append(" (").append(std::to_string(rank));
            caption.append(stroke).append(std::to_string(row.years));
            caption.append(row.lord == Lord::Chandra ? " an)" : " ans)");
            year_rank = row.lord == Lord::Chandra ? 0 : rank;
        }
    }
    return captions;
}

}  // namespace

LalKitab const* lal_kitab(int column, int age) {
    static Captions const captions = captions_with(" / ");
    static Captions const wide_captions = captions_with("  / ");
    if (age < 1 || age > greatest_tabulated_age) return nullptr;
    Lord const sequence = circle.at(static_cast<std::size_t>(column - 1)).lord;
    for (auto const& gap : ages_without_a_case) {
        if (gap.sequence == sequence && gap.first_age <= age && age <= gap.last_age) {
            return nullptr;
        }
    }
    Period const period = period_at(column, age);
    auto const place = static_cast<std::size_t>(circle_place(period.lord) - 1);
    bool const wide = sequence == wide_sequence && period.lord == wide_period;
    return &(wide ? wide_captions : captions)[place][static_cast<std::size_t>(period.rank - 1)];
}

}  // namespace navarun
