// Every test program starts here: a GUI application on the offscreen platform, and a private
// per-user data folder so that no test touches the real user's settings.
#include <QGuiApplication>
#include <QTemporaryDir>

#include "app/AppPaths.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8() + "/data");
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8() + "/config");
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    // Work folders below the private data folder, so that nothing lands in the working directory.
    setWorkPaths(userDataFolder(), 0);
    createWorkDirectories();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
