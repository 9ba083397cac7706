// How long the practice's files take in folders of 1,000, 10,000 and 100,000 records, beside
// the floor of the same run: listing the folder's names, or writing and flushing the bytes.
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include "benchmarks/ratios.h"
#include "benchmarks/scratch_folder.h"
#include "tools/pilote/pilot.h"

namespace navarun {

namespace {

constexpr int key_control = 17;

// A running program whose first folder holds many records; gone with the benchmark.
class Practice {
  public:
    explicit Practice(int records) {
        std::filesystem::create_directories(data(1));
        for (int i = 0; i < records; ++i) std::ofstream{data(1) / name_of(i)} << record;
        program = std::make_unique<Program>(platform, folder.path());
        platform.set_user(program->user);
        platform.set_clock(*date_of(21, 11, 2026), 36900);
        program->start();
    }

    std::filesystem::path data(int number) const {
        return folder.path() / "RESSOURCES" / ("DATA" + std::to_string(number));
    }
    // Names of years of consultations, of which the order of creation is not the alphabet's.
    static std::string name_of(int i) {
        static char const* const first_names[] = {"Zoé", "Jean", "Marie-claire", "Luc",
                                                  "Élise"};
        return "Dupont" + std::to_string((i * 7919) % 1'000'003) + " " + first_names[i % 5] +
               ".fcy";
    }
    template <typename Act>
    void act(Act const& one_act) {
        program->event(one_act);
        program->screen.take_changed();
    }
    Form1& form() { return program->form1; }
    void toggle_panel() {
        act([&](screen::User& user) { user.click(form().Charge(1)); });
    }
    void open_panel() {
        if (!form().Frame_FileFichier.Visible) toggle_panel();
    }
    void close_panel() {
        if (form().Frame_FileFichier.Visible) toggle_panel();
    }
    std::string choose_the_middle() {
        auto& list = form().File_Fichier;
        act([&](screen::User& user) { user.choose(list, list.count() / 2); });
        return list.selected();
    }
    void click_reset() {
        act([&](screen::User& user) { user.click(form().Command_reset); });
        platform.take_effects();
    }

    static constexpr std::string_view record =
        "\"Zo\xE9\",\"Dupont\",\"17\",\"05\",\"19\",\"62\",0,\"\",\"une note\"\r\n";

    ScratchFolder folder;
    pilot::ScriptedPlatform platform;
    std::unique_ptr<Program> program;
};

// One size after the other: the folder is made once for all its benchmarks.
Practice& practice_of(benchmark::State const& state) {
    static std::unique_ptr<Practice> current;
    static std::int64_t records = -1;
    if (records != state.range(0)) {
        current.reset();
        records = state.range(0);
        current = std::make_unique<Practice>(static_cast<int>(records));
    }
    return *current;
}

void floor_of_listing(benchmark::State& state) {
    auto const folder = practice_of(state).data(1);
    for (auto _ : state) {
        std::vector<std::string> names;
        for (auto const& entry : std::filesystem::directory_iterator{folder}) {
            names.push_back(entry.path().filename().string());
        }
        benchmark::DoNotOptimize(names.data());
    }
}

void opening_the_panel(benchmark::State& state) {
    auto& practice = practice_of(state);
    practice.close_panel();
    for (auto _ : state) {
        practice.open_panel();
        practice.close_panel();
    }
}

void a_search_key(benchmark::State& state) {
    auto& practice = practice_of(state);
    practice.open_panel();
    std::string const last = practice.form().File_Fichier.entries().back();
    bool other = false;
    for (auto _ : state) {
        // The last entry, and one that is none, in turn: both are the longest way.
        std::string const wanted = other ? "Zzz" : last;
        practice.act(
            [&](screen::User& user) { user.set_text(practice.form().Text_Cherche, wanted); });
        other = !other;
    }
}

void a_move(benchmark::State& state) {
    auto& practice = practice_of(state);
    auto& form = practice.form();
    for (auto _ : state) {
        state.PauseTiming();
        practice.close_panel();
        practice.open_panel();
        std::string const name = practice.choose_the_middle();
        state.ResumeTiming();
        practice.act([&](screen::User& user) {
            user.key(form.File_Fichier, key_control);
            user.drop(form.Charge(2));
        });
        state.PauseTiming();
        std::filesystem::rename(practice.data(2) / name, practice.data(1) / name);
        state.ResumeTiming();
    }
}

void a_deletion(benchmark::State& state) {
    auto& practice = practice_of(state);
    for (auto _ : state) {
        state.PauseTiming();
        practice.close_panel();
        practice.open_panel();
        std::string const name = practice.choose_the_middle();
        state.ResumeTiming();
        practice.click_reset();
        state.PauseTiming();
        std::ofstream{practice.data(1) / name} << Practice::record;
        state.ResumeTiming();
    }
}

void a_save(benchmark::State& state) {
    auto& practice = practice_of(state);
    auto& form = practice.form();
    practice.close_panel();
    practice.act([&](screen::User& user) {
        user.set_text(form.Text_prenom, "Zoé");
        user.set_text(form.Text_nom, "Dupont");
        user.set_text(form.Text_Note, "une note");
    });
    for (auto _ : state) {
        practice.act([&](screen::User& user) { user.click(form.Command_Disk_Vert); });
        practice.platform.take_effects();
    }
}

void write_and_flush(std::filesystem::path const& path) {
    int const file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    auto const written = ::write(file, Practice::record.data(), Practice::record.size());
    benchmark::DoNotOptimize(written);
    ::fsync(file);
    ::close(file);
}

void floor_of_a_save(benchmark::State& state) {
    auto const path = practice_of(state).data(1) / "Plancher.fcy";
    for (auto _ : state) {
        write_and_flush(path);
    }
    std::filesystem::remove(path);
}

// What a told save cannot do without: the bytes beside the old file, on the disk before they
// take its name, and the name on the disk with its folder.
void floor_of_a_lasting_save(benchmark::State& state) {
    auto const folder = practice_of(state).data(1);
    auto const beside = folder / "Plancher.tmp";
    auto const path = folder / "Plancher.fcy";
    for (auto _ : state) {
        write_and_flush(beside);
        std::filesystem::rename(beside, path);
        int const directory = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::fsync(directory);
        ::close(directory);
    }
    std::filesystem::remove(path);
}

void register_all() {
    using Function = void (*)(benchmark::State&);
    struct Row {
        char const* name;
        Function function;
    };
    constexpr Row rows[] = {
        {"floor_of_listing", floor_of_listing},
        {"opening_the_panel", opening_the_panel},
        {"a_search_key", a_search_key},
        {"a_move", a_move},
        {"a_deletion", a_deletion},
        {"floor_of_a_save", floor_of_a_save},
        {"floor_of_a_lasting_save", floor_of_a_lasting_save},
        {"a_save", a_save},
    };
    for (int const records : {1'000, 10'000, 100'000}) {
        for (auto const& row : rows) {
            benchmark::RegisterBenchmark(row.name, row.function)
                ->Arg(records)
                ->UseRealTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
}

}  // namespace

}  // namespace navarun

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    navarun::register_all();
    navarun::Ratios reporter{
        {{"opening a folder of records", "opening_the_panel", "floor_of_listing", 3},
         {"a key in the search field", "a_search_key", "floor_of_listing", {}},
         {"moving a record", "a_move", "floor_of_listing", {}},
         {"deleting a record", "a_deletion", "floor_of_listing", {}},
         {"saving a record", "a_save", "floor_of_a_save", 1.5},
         {"saving a record, to a lasting write", "a_save", "floor_of_a_lasting_save", {}}},
        navarun::TimeOf::wall};
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
