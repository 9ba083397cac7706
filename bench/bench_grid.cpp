// How long the calculation takes, beside the floor of the same run: writing the same fields
// with ready texts. The ratio to the floor is what counts; machines are noisy, ratios are less
// so.
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/ratios.h"
#include "tools/pilote/pilot.h"

namespace navarun {

namespace {

// Two persons whose grids differ in every text, taken in turn so that no write finds its text.
constexpr std::array<std::string_view, 2> persons{"17051962", "04111987"};

// A folder for the program's files, gone with the benchmark.
class Folder {
  public:
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    Folder(Folder const&) = delete;
    Folder& operator=(Folder const&) = delete;
    std::filesystem::path const path = std::filesystem::temp_directory_path() / "navarun-bench";
};

// What one control of the grid shows after a generation.
struct ReadyField {
    screen::Label* label;
    std::string caption;
    screen::Colour fore;
    screen::Colour back;
    bool bold;
};

class Desk {
  public:
    Desk() : program{platform, folder.path} {
        platform.set_clock(*date_of(21, 11, 2026), 36900);
        program.start();
    }

    void enter(std::string_view digits) {
        program.event(
            [&](screen::User& user) { user.type(program.form1.Combo_jourNaiss, digits); });
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

    // The labels of the window as they stand, to be written back as ready texts.
    std::vector<ReadyField> ready_fields() {
        std::vector<ReadyField> fields;
        for (auto* control : program.form1.controls()) {
            auto* const label = dynamic_cast<screen::Label*>(control);
            if (label == nullptr) continue;
            fields.push_back({label, label->Caption.get(), label->ForeColor.get(),
                              label->BackColor.get(), label->FontBold.get()});
        }
        return fields;
    }

    static void write(std::vector<ReadyField> const& fields) {
        for (auto const& field : fields) {
            field.label->Caption = field.caption;
            field.label->ForeColor = field.fore;
            field.label->BackColor = field.back;
            field.label->FontBold = field.bold;
        }
    }

    Folder folder;
    pilot::ScriptedPlatform platform;
    Program program;
};

// The grids of both persons, ready.
std::array<std::vector<ReadyField>, 2> both_grids(Desk& desk) {
    std::array<std::vector<ReadyField>, 2> grids;
    for (std::size_t i = 0; i < persons.size(); ++i) {
        desk.enter(persons[i]);
        desk.generate();
        grids[i] = desk.ready_fields();
    }
    return grids;
}

void floor_of_a_generation(benchmark::State& state) {
    Desk desk;
    auto const grids = both_grids(desk);
    std::size_t person = 0;
    for (auto _ : state) {
        Desk::write(grids[person]);
        desk.program.screen.take_changed();
        person = 1 - person;
    }
}
BENCHMARK(floor_of_a_generation);

// The birth dates change hands outside the clock; a generation alone is measured.
void a_generation(benchmark::State& state) {
    Desk desk;
    std::array<BirthDate, 2> births;
    for (std::size_t i = 0; i < persons.size(); ++i) {
        desk.enter(persons[i]);
        births[i] = desk.program.consultation.birth;
    }
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
    auto& form = desk.program.form1;
    std::array<std::array<std::string, 4>, 2> ready;
    for (std::size_t i = 0; i < 2; ++i) {
        desk.set_age(static_cast<int>(40 + i));
        ready[i] = {form.Label_anneedefile.Caption.get(),
                    form.Label_anneedefile_Suite.Caption.get(),
                    form.Label_Lal_Kitab.Caption.get(), form.Label_age.Caption.get()};
    }
    std::size_t age = 0;
    for (auto _ : state) {
        form.Label_anneedefile.Caption = ready[age][0];
        form.Label_anneedefile_Suite.Caption = ready[age][1];
        form.Label_Lal_Kitab.Caption = ready[age][2];
        form.Label_age.Caption = ready[age][3];
        desk.program.screen.take_changed();
        age = 1 - age;
    }
}
BENCHMARK(floor_of_an_age_step);

void an_age_step(benchmark::State& state) {
    Desk desk;
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
    auto const grids = both_grids(desk);
    for (auto _ : state) {
        for (int age = 1; age <= greatest_age; ++age) {
            Desk::write(grids[static_cast<std::size_t>(age % 2)]);
            desk.program.screen.take_changed();
        }
    }
}
BENCHMARK(floor_of_a_walk)->Unit(benchmark::kMillisecond);

void start_to_finished_grid(benchmark::State& state) {
    Folder const folder;
    for (auto _ : state) {
        pilot::Pilot pilot{folder.path};
        benchmark::DoNotOptimize(
            pilot.answer_line(R"({"op":"clock","date":"21/11/2026","time":"10:15:00"})"));
        benchmark::DoNotOptimize(pilot.answer_line(R"({"op":"load"})"));
    }
}
BENCHMARK(start_to_finished_grid)->Unit(benchmark::kMicrosecond);

// The window's controls, and the settings written once: what a start cannot go below.
void floor_of_a_start(benchmark::State& state) {
    Folder const folder;
    for (auto _ : state) {
        screen::Screen screen;
        Form1 form{screen};
        benchmark::DoNotOptimize(form.controls().size());
        write_file(folder.path / "CONFIG.CFG", "0,0\r\n", "CONFIG.CFG");
    }
}
BENCHMARK(floor_of_a_start)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace navarun

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    navarun::Ratios reporter{{{"a_generation", "floor_of_a_generation"},
                              {"an_age_step", "floor_of_an_age_step"},
                              {"a_walk_through_350_ages", "floor_of_a_walk"},
                              {"start_to_finished_grid", "floor_of_a_start"}},
                             navarun::TimeOf::processor};
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
