// How long the calculation takes, beside the floor of the same run: writing the same fields
// with ready texts. The ratio to the floor is what counts; machines are noisy, ratios are less
// so.
#include <array>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "benchmarks/ratios.h"
#include "benchmarks/ready_fields.h"
#include "benchmarks/scratch_folder.h"
#include "shell/names.h"
#include "tools/pilote/pilot.h"

namespace navarun {

namespace {

// Two persons whose grids differ in every text, taken in turn so that no write finds its text.
constexpr std::array<std::string_view, 2> persons{"17051962", "04111987"};

class Desk {
  public:
    Desk() : program{platform, folder.path()} {
        platform.set_clock(*date_of(21, 11, 2026), 36900);
        program.start();
    }

    void enter(std::string_view digits) {
        program.event(
            [&](screen::User& user) { user.type(program.form1.Combo_jourNaiss, digits); });
        program.screen.take_changed();
    }
    void generate() {
        program.event([&](screen::User& user) { user.click(program.form1.Command2); });
        program.screen.take_changed();
    }
    void set_age(int age) {
        program.event(
            [&](screen::User& user) { user.set_position(program.form1.HScroll_age, age); });
        program.screen.take_changed();
    }
    /// From now on the age bar may be written without a step of the age following.
    void deafen_the_age_bar() { program.form1.HScroll_age.on_change = nullptr; }

    ScratchFolder folder;
    pilot::ScriptedPlatform platform;
    Program program;
};

using Values = std::map<std::string, NamedValue>;

// Every property of every control of every window.
Values all_values(Program& program) {
    Values values;
    for (auto* form : program.screen.forms()) {
        for (auto const* control : form->controls()) {
            for (auto& property : properties_of(*control)) {
                values[name_of(*control) + "." + property.name] = std::move(property.value);
            }
        }
    }
    return values;
}

// A floor that leaves a field out would be too low: the run ends.
void require_same(Values const& operation, Values const& floor) {
    for (auto const& [name, value] : operation) {
        if (floor.at(name) == value) continue;
        std::cerr << "the floor does not write " << name << "\n";
        std::exit(1);
    }
}

// The birth dates of both persons, entered. They change hands outside the entry, so that a
// generation alone is measured.
std::array<BirthDate, 2> both_births(Desk& desk) {
    std::array<BirthDate, 2> births;
    for (std::size_t i = 0; i < persons.size(); ++i) {
        desk.enter(persons[i]);
        births[i] = desk.program.consultation.birth;
    }
    desk.generate();
    return births;
}

void floor_of_a_generation(benchmark::State& state) {
    Desk desk;
    auto const births = both_births(desk);
    std::vector<ReadyGrid> grids;
    std::array<Values, 2> generated;
    for (std::size_t i = 0; i < births.size(); ++i) {
        desk.program.consultation.birth = births[i];
        desk.generate();
        grids.emplace_back(desk.program);
        generated[i] = all_values(desk.program);
    }
    for (std::size_t i = 0; i < grids.size(); ++i) {
        grids[i].write(desk.program);
        require_same(generated[i], all_values(desk.program));
    }
    std::size_t person = 0;
    for (auto _ : state) {
        grids[person].write(desk.program);
        desk.program.screen.take_changed();
        person = 1 - person;
    }
}
BENCHMARK(floor_of_a_generation);

void a_generation(benchmark::State& state) {
    Desk desk;
    auto const births = both_births(desk);
    std::size_t person = 0;
    for (auto _ : state) {
        desk.program.consultation.birth = births[person];
        desk.generate();
        person = 1 - person;
    }
}
BENCHMARK(a_generation);

void floor_of_an_age_step(benchmark::State& state) {
    Desk desk;
    desk.enter(persons.front());
    auto& form = desk.program.form1;
    std::vector<ReadyAge> ages;
    std::array<Values, 2> stepped;
    for (std::size_t i = 0; i < 2; ++i) {
        desk.set_age(static_cast<int>(40 + i));
        ages.emplace_back(form);
        stepped[i] = all_values(desk.program);
    }
    desk.deafen_the_age_bar();
    for (std::size_t i = 0; i < 2; ++i) {
        ages[i].write(form);
        require_same(stepped[i], all_values(desk.program));
    }
    std::size_t age = 0;
    for (auto _ : state) {
        ages[age].write(form);
        desk.program.screen.take_changed();
        age = 1 - age;
    }
}
BENCHMARK(floor_of_an_age_step);

void an_age_step(benchmark::State& state) {
    Desk desk;
    desk.enter(persons.front());
    int age = 40;
    for (auto _ : state) {
        desk.set_age(age);
        age = age == 40 ? 41 : 40;
    }
}
BENCHMARK(an_age_step);

void a_walk_through_350_ages(benchmark::State& state) {
    Desk desk;
    desk.enter(persons.front());
    for (auto _ : state) {
        for (int age = 1; age <= greatest_age; ++age) {
            desk.set_age(age);
            desk.generate();
        }
    }
}
BENCHMARK(a_walk_through_350_ages)->Unit(benchmark::kMillisecond);

void floor_of_a_walk(benchmark::State& state) {
    Desk desk;
    desk.enter(persons.front());
    auto& program = desk.program;
    auto& form = program.form1;
    struct Step {
        ReadyAge age;
        ReadyState stale;
        ReadyGrid grid;
        ReadyState valid;
    };
    std::vector<Step> steps;
    for (int age = 1; age <= greatest_age; ++age) {
        desk.set_age(age);
        ReadyAge const ready_age{form};
        ReadyState const stale{form};
        desk.generate();
        steps.push_back({ready_age, stale, ReadyGrid{program}, ReadyState{form}});
    }
    Values const last = all_values(program);
    desk.deafen_the_age_bar();
    auto const walk = [&] {
        for (auto const& step : steps) {
            step.age.write(form);
            step.stale.write(form);
            program.screen.take_changed();
            step.grid.write(program);
            step.valid.write(form);
            program.screen.take_changed();
        }
    };
    walk();
    require_same(last, all_values(program));
    for (auto _ : state) walk();
}
BENCHMARK(floor_of_a_walk)->Unit(benchmark::kMillisecond);

void start_to_finished_grid(benchmark::State& state) {
    ScratchFolder const folder;
    for (auto _ : state) {
        pilot::Pilot pilot{folder.path()};
        benchmark::DoNotOptimize(
            pilot.answer_line(R"({"op":"clock","date":"21/11/2026","time":"10:15:00"})"));
        benchmark::DoNotOptimize(pilot.answer_line(R"({"op":"load"})"));
    }
}
BENCHMARK(start_to_finished_grid)->Unit(benchmark::kMicrosecond);

// The window's controls, and the settings written once: what a start cannot go below.
void floor_of_a_start(benchmark::State& state) {
    ScratchFolder const folder;
    for (auto _ : state) {
        screen::Screen screen;
        Form1 form{screen};
        benchmark::DoNotOptimize(form.controls().size());
        write_file(folder.path() / "CONFIG.CFG", "0,0\r\n", "CONFIG.CFG");
    }
}
BENCHMARK(floor_of_a_start)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace navarun

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    navarun::Ratios reporter{
        {{"a generation", "a_generation", "floor_of_a_generation", 2},
         {"a step of the age bar", "an_age_step", "floor_of_an_age_step", 2},
         {"a walk through 350 ages", "a_walk_through_350_ages", "floor_of_a_walk", 2},
         {"a start, without a window", "start_to_finished_grid", "floor_of_a_start", {}}},
        navarun::TimeOf::processor};
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
