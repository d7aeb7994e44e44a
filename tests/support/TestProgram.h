#pragma once

#include "base/AppPaths.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

// Runs a test program under an application of type App (QGuiApplication, or QApplication for
// window tests) on the offscreen platform, with private per-user folders so that no test touches
// the real user's settings or running program, and work folders below them so that nothing
// lands in the working directory.
template <typename App> int runTests(int argc, char** argv, const char* language = nullptr) {
    QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8() + "/data");
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8() + "/config");
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    if (language) qputenv("RECVIEW_LANG", language);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    App app(argc, argv);
    setWorkPaths(userDataFolder(), 0);
    createWorkDirectories();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
