// Runs of the program under events.
#include "tests/monkeys/practice_run.h"

#include <fstream>
#include <utility>

#include "shell/names.h"
#include "tests/files/pictures.h"

namespace navarun::monkeys {

namespace {

void put(std::filesystem::path const& path, std::string const& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream{path, std::ios::binary} << bytes;
}

double seconds_of(std::string const& time) {
    return std::stoi(time.substr(0, 2)) * 3600 + std::stoi(time.substr(3, 2)) * 60 +
           std::stoi(time.substr(6, 2));
}

screen::MouseEvent mouse_event_of(std::string const& name) {
    if (name == "down") return screen::MouseEvent::down;
    return name == "move" ? screen::MouseEvent::move : screen::MouseEvent::up;
}

}  // namespace

void prepare(std::filesystem::path const& folder) {
    auto const resources = folder / "RESSOURCES";
    auto const record = [](std::string const& names, std::string const& date,
                           std::string const& rest) {
        return names + "," + date + "," + rest + "\r\n";
    };
    std::string const born = "\"17\",\"05\",\"19\",\"62\"";
    put(resources / "DATA1/Dupont Zoe.fcy",
        record("\"Zoe\",\"Dupont\"", born, "0,\"zoe.gif\",\"une note\""));
    put(resources / "DATA1/Julien Ancien.fcy",
        record("\"Ancien\",\"Julien\"", "\"29\",\"02\",\"17\",\"00\"", "1,\"\",\"\""));
    put(resources / "DATA1/Seigneur Vrai.fcy",
        record("\"Vrai\",\"Seigneur\"", born, "0,#TRUE#,\"portrait perdu\""));
    put(resources / "DATA1/Perdu Jean.fcy",
        record("\"Jean\",\"Perdu\"", born, "0,\"perdu.gif\",\"  \""));
    put(resources / "DATA1/Lettres Date.fcy",
        record("\"Date\",\"Lettres\"", "\"ab\",\"cd\",\"ef\",\"gh\"", "0,\"\",\"\""));
    put(resources / "DATA1/Rien.fcy", "");
    put(resources / "DATA1/Deux.fcy",
        record("\"Un\",\"Premier\"", born, "0,\"\",\"\"") +
            record("\"Une\",\"Seconde\"", "\"01\",\"01\",\"21\",\"99\"", "0,\"\",\"\""));
    put(resources / "DATA2/Tronque.fcy", "\"Zoe\",\"Dup");
    put(resources / "DATA2/Chiffre.fcy", record("\"A\",\"B\"", born, "300,\"\",\"\""));
    put(resources / "DATA2/Long.fcy",
        record("\"" + std::string(200, 'l') + "\",\"" + std::string(100, 'm') + "\"", born,
               "0,\"\",\"" + std::string(5000, 'n') + "\""));
    put(resources / "IMAGE/zoe.gif", test::gif(40, 60));
    put(resources / "IMAGE/luc.jpg", test::jpeg(300, 20));
    put(resources / "IMAGE/faux.bmp", "ceci n'est pas une image");
    put(folder / "depot/large.bmp", test::bmp(900, 30));
    put(folder / "depot/zoe.gif", test::gif(10, 10));
    put(folder / "depot/texte.txt", "du texte");
    put(folder / "depot/vide.jpg", "");
}

PracticeRun::PracticeRun(std::filesystem::path folder) : m_folder{std::move(folder)} {
    for (auto const& entry : std::filesystem::directory_iterator{m_folder}) {
        std::filesystem::remove_all(entry.path());
    }
    prepare(m_folder);
}

Outcome PracticeRun::perform(Event const& event) {
    m_effects = pilot::Json::array();
    m_began = m_run == nullptr;
    Outcome outcome;
    try {
        if (m_began) start();
        let_in(event);
    } catch (ProgramEnded const& ended) {
        outcome = {Outcome::Kind::ended, ended.what()};
    } catch (FatalError const& fatal) {
        outcome = {Outcome::Kind::fatal, fatal.what()};
    } catch (std::exception const& other) {
        outcome = {Outcome::Kind::broken, other.what()};
    }
    m_effects = m_run->platform.take_effects();
    m_run->platform.take_pages();
    bool const over =
        outcome.kind != Outcome::Kind::done && outcome.kind != Outcome::Kind::refused;
    if (over) {
        m_run.reset();
    } else if (!m_run->program.option_impression.Visible) {
        m_printed_from_menu = false;
    }
    return outcome;
}

void PracticeRun::start() {
    m_run = std::make_unique<Run>(m_folder);
    m_printed_from_menu = false;
    auto& platform = m_run->platform;
    platform.set_user(m_run->program.user);
    platform.set_during_wait([this] { act_during_pause(); });
    platform.set_clock(*read_date(first_date), seconds_of(first_time));
    m_run->program.start();
}

void PracticeRun::let_in(Event const& event) {
    try {
        act(event);
    } catch (screen::Refused const&) {
    } catch (screen::BadValue const&) {
    } catch (screen::UnknownEntry const&) {
    }
}

void PracticeRun::act_during_pause() {
    for (auto const& event : std::exchange(m_run->for_next_pause, {})) let_in(event);
}

void PracticeRun::act(Event const& event) {
    auto& program = m_run->program;
    if (event.act == Act::answer) {
        m_run->platform.queue_answer(static_cast<Answer>(event.number));
        return;
    }
    if (event.act == Act::during_pause) {
        m_run->for_next_pause = event.inside;
        return;
    }
    if (event.act == Act::clock) {
        m_run->platform.set_clock(*read_date(event.control), seconds_of(event.text));
        program.event([&](screen::User&) { program.screen.tick_timers(); });
        return;
    }
    auto* const control = find_control(program, event.control);
    if (control == nullptr) throw std::logic_error{"no control " + event.control};
    if (event.act == Act::click && control == &program.form1.MnuImprime) {
        m_printed_from_menu = true;
    }
    program.event([&](screen::User& user) {
        switch (event.act) {
            case Act::focus:
                return user.focus(*control);
            case Act::type:
                return user.type(*control, event.text);
            case Act::set_text:
                return user.set_text(dynamic_cast<screen::EntryControl&>(*control), event.text);
            case Act::set_number:
                if (auto* const box = dynamic_cast<screen::CheckBox*>(control)) {
                    return user.set_check(*box, event.number);
                }
                return user.set_position(dynamic_cast<screen::ScrollBar&>(*control),
                                         event.number);
            case Act::set_truth:
                return user.set_option(dynamic_cast<screen::OptionButton&>(*control),
                                       event.number != 0);
            case Act::drag:
                return user.drag(dynamic_cast<screen::ScrollBar&>(*control), event.number);
            case Act::choose:
                return user.choose(*control, event.number);
            case Act::click:
                return user.click(*control);
            case Act::double_click:
                return user.double_click(*control);
            case Act::hover:
                return user.hover(*control);
            case Act::key:
                return user.key(*control, event.number);
            case Act::mouse:
                return user.mouse(*control, mouse_event_of(event.text),
                                  {.button = event.number, .x = event.x, .y = event.y});
            case Act::drop:
                return user.drop(*control);
            case Act::drop_file:
                return user.drop_file(*control, event.text);
            case Act::close:
                return user.close(dynamic_cast<screen::Form&>(*control));
            case Act::clock:
            case Act::answer:
            case Act::during_pause:
                return;
        }
    });
}

}  // namespace navarun::monkeys
