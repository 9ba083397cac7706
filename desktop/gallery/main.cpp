// galerie FOLDER [SCENE...] [--scale N]: pictures of the program's windows, with no display; of
// all scenes or of those that are named.
//
// Each scene plays in a program of its own, on a clock that stands still, so that two runs give
// the same pictures.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <cstring>
#include <iostream>

#include "desktop/application.h"
#include "desktop/gallery/scenes.h"
#include "desktop/gallery/stage.h"

namespace {

// The toolkit reads the scale before it knows of any option.
void set_scale(int argc, char** argv) {
    for (int place = 1; place + 1 < argc; ++place) {
        if (std::strcmp(argv[place], "--scale") == 0)
            qputenv("QT_SCALE_FACTOR", argv[place + 1]);
    }
}

// What a program with no display has no use for telling.
void tell(QtMsgType, QMessageLogContext const&, QString const& message) {
    if (message.startsWith(QLatin1String{"This plugin does not support"})) return;
    if (message.startsWith(QLatin1String{"QStandardPaths:"})) return;
    std::cerr << message.toStdString() << '\n';
}

int take_pictures(QDir const& folder, QStringList wanted) {
    bool const all = wanted.isEmpty();
    for (auto const& scene : navarun::gallery::scenes()) {
        if (!all && wanted.removeAll(QLatin1String{scene.name}) == 0) continue;
        QString const file = folder.filePath(QLatin1String{scene.name} + QLatin1String{".png"});
        try {
            navarun::gallery::Stage stage;
            if (!scene.play(stage).save(file)) throw std::runtime_error{"cannot be written"};
        } catch (std::exception const& error) {
            std::cerr << "galerie: " << scene.name << ": " << error.what() << '\n';
            return 1;
        }
    }
    for (auto const& unknown : wanted) {
        std::cerr << "galerie: no scene " << unknown.toStdString() << '\n';
    }
    return wanted.isEmpty() ? 0 : 2;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    set_scale(argc, argv);
    qInstallMessageHandler(tell);
    QApplication application{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    navarun::desktop::set_up(application);

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Pictures of the program's windows."));
    options.addPositionalArgument(QStringLiteral("folder"),
                                  QStringLiteral("where the pictures go"));
    options.addPositionalArgument(QStringLiteral("scenes"),
                                  QStringLiteral("those to be taken; all without"),
                                  QStringLiteral("[scenes...]"));
    options.addOption({QStringLiteral("scale"), QStringLiteral("pixels to the pixel"),
                       QStringLiteral("number"), QStringLiteral("1")});
    options.addHelpOption();
    options.process(application);
    QStringList wanted = options.positionalArguments();
    if (wanted.isEmpty()) options.showHelp(2);

    QDir const folder{wanted.takeFirst()};
    if (!folder.mkpath(QStringLiteral("."))) {
        std::cerr << "galerie: the folder cannot be made\n";
        return 1;
    }
    return take_pictures(folder, wanted);
}
