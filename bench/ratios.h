// Prints each figure as the ratio to its floor: machines are noisy, ratios are less so.
#pragma once

#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace navarun {

/// A benchmark and what it cannot go below. Both may be run on several sizes.
struct FloorPair {
    std::string_view figure;
    std::string_view floor;
};

/// Which time counts: the processor's for what computes, the wall's for what waits for a disk.
enum class TimeOf { processor, wall };

/// After the usual table, the ratios.
class Ratios : public benchmark::ConsoleReporter {
  public:
    Ratios(std::vector<FloorPair> pairs, TimeOf time)
        : m_pairs{std::move(pairs)}, m_time{time} {}

    void ReportRuns(std::vector<Run> const& runs) override {
        benchmark::ConsoleReporter::ReportRuns(runs);
        for (auto const& run : runs) m_seconds[run.benchmark_name()] = seconds(run);
    }

    void Finalize() override {
        std::cout << "\nratio to the floor\n";
        for (auto const& [figure, floor] : m_pairs) {
            for (auto const& [name, time] : m_seconds) {
                bool const of_figure = name == figure || name.starts_with(prefix(figure));
                if (!of_figure) continue;
                std::string const size = name.substr(figure.size());
                auto const below = m_seconds.find(std::string{floor} + size);
                if (below == m_seconds.end()) continue;
                std::cout << "  " << name << " / " << floor << " : " << time / below->second
                          << "\n";
            }
        }
    }

  private:
    static std::string prefix(std::string_view figure) { return std::string{figure} + "/"; }

    double seconds(Run const& run) const {
        double const all =
            m_time == TimeOf::processor ? run.cpu_accumulated_time : run.real_accumulated_time;
        return all / static_cast<double>(run.iterations);
    }

    std::vector<FloorPair> m_pairs;
    TimeOf m_time;
    std::map<std::string, double> m_seconds;
};

}  // namespace navarun
