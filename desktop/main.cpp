// The program on the desktop.
#include <QApplication>
#include <QFontDatabase>
#include <future>

#include "desktop/application.h"
#include "desktop/font_rules.h"
#include "desktop/session.h"
#include "desktop/started_program.h"

int main(int argc, char** argv) {
    using namespace navarun::desktop;
    // Only there can a window be kept above or below all others.
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariableIsSet("DISPLAY") &&
        !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    auto const folder = application_folder(argv[0]);
    // Reading the system's rules for fonts and their list takes as long as all else before the
    // window is made: it goes on meanwhile, and who first asks for a font waits for its end.
    auto const font_rules = std::async(std::launch::async, read_font_rules);
    QApplication application{argc, argv};
    font_rules.wait();
    auto const fonts = std::async(std::launch::async, [] { QFontDatabase::families(); });
    // Windows that close do not end the program: its own question does.
    QApplication::setQuitOnLastWindowClosed(false);
    set_up(application);
    Session session{folder, [] { QCoreApplication::exit(); }};
    session.start();
    if (!session.exit_status()) QApplication::exec();
    return session.exit_status().value_or(0);
}
