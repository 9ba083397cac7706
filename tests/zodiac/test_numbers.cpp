// The two numbers of a birth date.
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/core/mismatches.h"
#include "zodiac/numbers.h"

namespace navarun::test {
namespace {

TEST(Dinanka, OfEachDayOfTheMonth) {
    constexpr int dinankas[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4, 5, 6, 7,
                                8, 9, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4};
    for (int day = 1; day <= 31; ++day) {
        EXPECT_EQ(dinanka_of(text::padded(day, 2)), dinankas[day - 1]) << day;
    }
}

TEST(Dinanka, NineForTheMultiplesOfNine) {
    EXPECT_EQ(dinanka_of("09"), 9);
    EXPECT_EQ(dinanka_of("18"), 9);
    EXPECT_EQ(dinanka_of("27"), 9);
    EXPECT_EQ(dinanka_of("9"), 9);
}

struct BirthDateCase {
    char const* name;
    std::string_view day;
    std::string_view month;
    std::string_view century;
    std::string_view year;
    int purnanka;
    friend std::ostream& operator<<(std::ostream& out, BirthDateCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr BirthDateCase birth_date_cases[] = {
    {"sum_of_103",             "17", "05", "19", "62", 4},
    {"sum_of_46",              "09", "09", "19", "09", 1},
    {"first_of_1900",          "01", "01", "19", "00", 3},
    {"sum_of_45_is_9",         "15", "03", "18", "09", 9},
    {"sum_of_54_is_9",         "27", "09", "18", "00", 9},
    {"sum_of_18_is_9",         "01", "01", "16", "00", 9},
    {"greatest_sum",           "31", "12", "21", "99", 1},
    {"leap_day_of_2000",       "29", "02", "20", "00", 6},
};
// clang-format on

class Purnanka : public testing::TestWithParam<BirthDateCase> {};
TEST_P(Purnanka, IsTheReducedSumOfTheFourNumbers) {
    BirthDateCase const& row = GetParam();
    EXPECT_EQ(purnanka_of(row.day, row.month, row.century, row.year), row.purnanka);
}
INSTANTIATE_TEST_SUITE_P(BirthDates, Purnanka, testing::ValuesIn(birth_date_cases),
                         [](auto const& row) { return row.param.name; });

/// Digits added until one is left.
int digit_root(std::string_view digits) {
    int sum = 0;
    for (char const digit : digits) sum += digit - '0';
    return sum < 10 ? sum : digit_root(std::to_string(sum));
}

TEST(Purnanka, EveryDateComesDownToTheSumOfItsDigits) {
    Mismatches mismatches;
    for (int years = 1600; years <= 2199; ++years) {
        std::string const century = text::padded(years / 100, 2);
        std::string const year = text::padded(years % 100, 2);
        for (int months = 1; months <= 12; ++months) {
            std::string const month = text::padded(months, 2);
            for (int days = 1; days <= 31; ++days) {
                std::string const day = text::padded(days, 2);
                if (purnanka_of(day, month, century, year) !=
                    digit_root(day + month + century + year)) {
                    mismatches.note(day, '/', month, '/', century, year);
                }
            }
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
}

}  // namespace
}  // namespace navarun::test
