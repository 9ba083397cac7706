// How long the program takes from its start to its painted window, and how much memory it then
// holds, beside a bare window of ordinary widgets: in pairs, one after the other, so that both
// meet the same moods of the machine. The medians count.
//
//   bench_window PROGRAM FLOOR [PAIRS]
//
// It writes a line for each figure, its fields parted by tabs: what, measured, floor, ratio,
// target.
#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "benchmarks/desktop/started_program.h"

namespace {

using navarun::StartFigures;

constexpr int usual_pairs = 20;
constexpr double target = 1.2;

double median(std::vector<StartFigures> const& starts, double StartFigures::*figure) {
    std::vector<double> values;
    values.reserve(starts.size());
    for (auto const& start : starts) values.push_back(start.*figure);
    std::ranges::sort(values);
    auto const middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: bench_window PROGRAM FLOOR [PAIRS]\n";
        return 2;
    }
    int const pairs = argc > 3 ? std::atoi(argv[3]) : usual_pairs;
    std::vector<StartFigures> program;
    std::vector<StartFigures> floor;
    try {
        // The first start of each reads the files from the disk.
        navarun::measure_start(argv[1]);
        navarun::measure_start(argv[2]);
        for (int i = 0; i < pairs; ++i) {
            program.push_back(navarun::measure_start(argv[1]));
            floor.push_back(navarun::measure_start(argv[2]));
        }
    } catch (std::runtime_error const& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
    struct Row {
        char const* what;
        double StartFigures::*figure;
        char const* unit;
        double scale;
    };
    constexpr Row rows[]{
        {"start to painted window", &StartFigures::milliseconds, "ms", 1},
        {"memory of the window (RSS)", &StartFigures::rss, "MB", 1024},
        {"memory of the window (PSS)", &StartFigures::pss, "MB", 1024},
    };
    std::cout << std::fixed;
    for (auto const& row : rows) {
        double const measured = median(program, row.figure);
        double const below = median(floor, row.figure);
        std::cout << std::setprecision(1) << row.what << "\t" << measured / row.scale << " "
                  << row.unit << "\t" << below / row.scale << " " << row.unit << "\t"
                  << std::setprecision(2) << measured / below << "\t" << std::setprecision(1)
                  << target << "\n";
    }
}
