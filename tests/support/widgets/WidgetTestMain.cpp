// The window tests run under a widget application on the offscreen platform, with private
// per-user folders so that no test touches the real user's settings or running program.
#include <QApplication>
#include <QTemporaryDir>

#include "app/AppPaths.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8() + "/data");
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8() + "/config");
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("RECVIEW_LANG", "en");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // Work folders below the private data folder, so that nothing lands in the working directory.
    setWorkPaths(userDataFolder(), 0);
    createWorkDirectories();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
