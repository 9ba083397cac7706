// The rule of the sequences and the table of their exceptions.
//
// The nine sequences were long lists of cases by age, kept by hand. Where they differ from the
// rule, practitioners have read charts by them for years: the differences are rows here.
#include "periods/dasha_schedule.h"

#include <array>

namespace navarun {

namespace {

enum class Deviation {
    no_case,               // nothing is written
    as_first_year,         // date and column of the age itself
    column_of_age,         // date of the period, column of the age itself
    as_period_started_at,  // wholly as a later year of the period that started at that age
    date_of_next_period,   // date of the period that starts at that age; the rest stays
};

struct ExceptionRow {
    Lord sequence;
    int first_age;  // both inside
    int last_age;
    Deviation deviation;
    int start_age = 0;  // of the period meant, where another is
};

using enum Deviation;

// clang-format off
constexpr std::array<ExceptionRow, 23> exceptions{{
    {Lord::Guru,   265, 265, no_case},
    {Lord::Guru,   300, 300, no_case},
    {Lord::Guru,   335, 335, no_case},
    {Lord::Ketu,   258, 258, no_case},
    {Lord::Ketu,   285, 289, no_case},
    {Lord::Ketu,   320, 324, no_case},
    {Lord::Ketu,   259, 259, as_first_year},
    {Lord::Ketu,   261, 261, as_period_started_at, 258},
    {Lord::Ketu,   291, 295, as_period_started_at, 284},
    {Lord::Ketu,   326, 330, as_period_started_at, 319},
    {Lord::Rahu,   155, 155, no_case},
    {Lord::Shani,  2,   3,   no_case},
    {Lord::Shani,  268, 268, no_case},
    {Lord::Budha,  343, 344, no_case},
    {Lord::Kuja,   171, 171, no_case},
    {Lord::Kuja,   288, 288, no_case},
    {Lord::Kuja,   300, 300, no_case},
    {Lord::Shukra, 104, 104, column_of_age},
    {Lord::Shukra, 242, 242, no_case},
    {Lord::Surya,  241, 245, date_of_next_period,  246},
    {Lord::Surya,  296, 300, no_case},
    {Lord::Surya,  321, 321, no_case},
    {Lord::Surya,  335, 335, no_case},
}};
// clang-format on

// The step of a lord differs in one sequence: twelve cells then span three years, not two.
struct StepRow {
    Lord sequence;
    Lord period;
    int months;
};
constexpr StepRow odd_step{Lord::Shukra, Lord::Surya, 3};

// Which lord a sequence assigns to the cells.
enum class Assignment {
    lord_of_the_period,
    surya_for_shukra_and_ketu,  // the lord of the period but in these two
    own_period_only,
    never,
};

struct AssignmentRow {
    Lord sequence;
    Assignment assignment;
};

// clang-format off
constexpr std::array<AssignmentRow, 9> assignments{{
    {Lord::Surya,   Assignment::surya_for_shukra_and_ketu},
    {Lord::Chandra, Assignment::lord_of_the_period},
    {Lord::Shukra,  Assignment::lord_of_the_period},
    {Lord::Kuja,    Assignment::lord_of_the_period},
    {Lord::Budha,   Assignment::lord_of_the_period},
    {Lord::Shani,   Assignment::never},
    {Lord::Rahu,    Assignment::own_period_only},
    {Lord::Ketu,    Assignment::never},
    {Lord::Guru,    Assignment::never},
}};
// clang-format on

constexpr bool in_the_order_of_the_circle() {
    for (std::size_t i = 0; i < circle.size(); ++i) {
        if (assignments[i].sequence != circle[i].lord) return false;
    }
    return true;
}
static_assert(in_the_order_of_the_circle());

std::optional<Lord> assigned_lord(int column, Lord period) {
    auto const& row = assignments.at(static_cast<std::size_t>(column - 1));
    switch (row.assignment) {
        case Assignment::lord_of_the_period:
            return period;
        case Assignment::surya_for_shukra_and_ketu:
            return period == Lord::Shukra || period == Lord::Ketu ? Lord::Surya : period;
        case Assignment::own_period_only:
            if (period == row.sequence) return period;
            return {};
        case Assignment::never:
            return {};
    }
    return {};
}

ExceptionRow const* exception_at(Lord sequence, int age) {
    for (auto const& row : exceptions) {
        if (row.sequence == sequence && row.first_age <= age && age <= row.last_age)
            return &row;
    }
    return nullptr;
}

}  // namespace

std::optional<DashaStep> dasha_step(int column, int age) {
    if (age < 1 || age > greatest_age) return {};
    Lord const sequence = circle.at(static_cast<std::size_t>(column - 1)).lord;
    auto const* const exception = exception_at(sequence, age);
    if (exception != nullptr && exception->deviation == no_case) return {};

    bool const elsewhere = exception != nullptr && exception->deviation == as_period_started_at;
    Period const period = period_at(column, elsewhere ? exception->start_age : age);
    DashaStep step{
        .date_row = period.row,
        .column_age = period.start_age,
        .months = period.years,
        .assigned = assigned_lord(column, period.lord),
    };
    if (age == period.start_age) step.date_row.reset();
    if (sequence == odd_step.sequence && period.lord == odd_step.period) {
        step.months = odd_step.months;
    }
    if (exception == nullptr) return step;
    switch (exception->deviation) {
        case as_first_year:
            step.date_row.reset();
            step.column_age = age;
            break;
        case column_of_age:
            step.column_age = age;
            break;
        case date_of_next_period:
            step.date_row = period_at(column, exception->start_age).row;
            break;
        case as_period_started_at:
        case no_case:
            break;
    }
    return step;
}

bool repairs_leap_days(int column) { return column == circle_place(Lord::Rahu); }

}  // namespace navarun
