// The toolkit's application round the tests of the window.
#include <gtest/gtest.h>

#include "desktop/application.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);
    navarun::desktop::set_up(application);
    return RUN_ALL_TESTS();
}
