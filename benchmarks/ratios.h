// Tells each figure beside its floor: machines are noisy, ratios are less so.
#pragma once

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace navarun {

/// A benchmark and what it cannot go below. Both may be run on several sizes.
struct FloorPair {
    std::string_view what;
    std::string_view figure;
    std::string_view floor;
    std::optional<double> target{};  // greatest ratio wanted
};

/// Which time counts: the processor's for what computes, the wall's for what waits for a disk.
enum class TimeOf { processor, wall };

/// The usual table goes to the error stream. At the end the output gets a line for each figure,
/// its fields parted by tabs: what, measured, floor, ratio, target. Where a benchmark was
/// repeated its median counts.
class Ratios : public benchmark::ConsoleReporter {
  public:
    Ratios(std::vector<FloorPair> pairs, TimeOf time)
        : m_pairs{std::move(pairs)}, m_time{time} {}

    bool ReportContext(Context const& context) override {
        SetOutputStream(&std::cerr);
        return benchmark::ConsoleReporter::ReportContext(context);
    }

    void ReportRuns(std::vector<Run> const& runs) override {
        benchmark::ConsoleReporter::ReportRuns(runs);
        for (auto const& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            m_seconds[name_of(run)].push_back(seconds(run));
        }
    }

    void Finalize() override {
        for (auto const& pair : m_pairs) {
            for (auto const& [name, times] : m_seconds) {
                bool const of_figure =
                    name == pair.figure || name.starts_with(std::string{pair.figure} + "/");
                if (!of_figure) continue;
                std::string const size = name.substr(pair.figure.size());
                auto const below = m_seconds.find(std::string{pair.floor} + size);
                if (below != m_seconds.end()) tell(pair, size, times, below->second);
            }
        }
    }

  private:
    using Times = std::vector<double>;

    // "a_save/1000": without what tells how it was run.
    static std::string name_of(Run const& run) {
        std::string name = run.run_name.function_name;
        if (!run.run_name.args.empty()) name += "/" + run.run_name.args;
        return name;
    }

    double seconds(Run const& run) const {
        double const all =
            m_time == TimeOf::processor ? run.cpu_accumulated_time : run.real_accumulated_time;
        return all / static_cast<double>(run.iterations);
    }

    static double median(Times times) {
        std::ranges::sort(times);
        auto const middle = times.size() / 2;
        return times.size() % 2 == 1 ? times[middle] : (times[middle - 1] + times[middle]) / 2;
    }

    static std::string told(double seconds) {
        constexpr std::pair<double, char const*> units[]{{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}};
        std::ostringstream text;
        text << std::setprecision(3);
        for (auto const& [unit, name] : units) {
            if (seconds < unit) continue;
            text << seconds / unit << " " << name;
            return text.str();
        }
        text << seconds * 1e9 << " ns";
        return text.str();
    }

    static void tell(FloorPair const& pair, std::string const& size, Times const& figure,
                     Times const& floor) {
        std::cout << pair.what;
        if (!size.empty()) std::cout << " (" << size.substr(1) << ")";
        double const above = median(figure);
        double const below = median(floor);
        std::cout << "\t" << told(above) << "\t" << told(below) << "\t" << std::fixed
                  << std::setprecision(2) << above / below << "\t";
        if (pair.target) {
            std::cout << std::setprecision(1) << *pair.target;
        } else {
            std::cout << "-";
        }
        std::cout << "\n";
    }

    std::vector<FloorPair> m_pairs;
    TimeOf m_time;
    std::map<std::string, Times> m_seconds;
};

}  // namespace navarun
