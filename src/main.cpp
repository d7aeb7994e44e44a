#include "analysis/widgets/frmBatchInfo.h"
#include "analysis/widgets/frmCalcLineSet.h"
#include "analysis/widgets/frmItiran.h"
#include "analysis/widgets/frmMarkerView.h"
#include "analysis/widgets/frmRECSUB.h"
#include "analysis/widgets/frmSearch.h"
#include "app/SubMain.h"
#include "app/cli/Cli.h"
#include "app/widgets/AppIcon.h"
#include "app/widgets/DesktopStartup.h"
#include "base/ShowMsg.h"
#include "base/widgets/frmMessageBox.h"
#include "print/widgets/ExportCommands.h"
#include "print/widgets/PrintCommands.h"
#include "savedwork/SavedTrendSettings.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

int main(int argc, char** argv) {
    QStringList args;
    for (int i = 1; i < argc; ++i) args << QString::fromLocal8Bit(argv[i]);

    if (Cli::isHeadless(args)) {
        // Headless verbs never need a display.
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
            // The offscreen platform wants a private runtime folder; a headless machine may have
            // none.
            const QString runtime = QDir::tempPath() + QStringLiteral("/recview-runtime-") +
                                    qEnvironmentVariable("USER");
            QDir().mkpath(runtime);
            QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                               QFileDevice::ExeOwner);
            qputenv("XDG_RUNTIME_DIR", runtime.toUtf8());
        }
        QGuiApplication app(argc, argv);
        return Cli::run(args);
    }

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("recview"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    // The desktop entry's name lets the desktop match windows to the entry and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("recview"));
    QApplication::setWindowIcon(recviewIcon());
    MessageBoxSink boxes;
    setMessageSink(&boxes);
    installSavedTrendSettings();
    installDataList();
    installBatchInfo();
    installMarkerView();
    installSearch();
    installChannelSettings();
    installCalcLines();
    installExportCommands();
    installPrintCommands();
    DesktopStartup host(args);
    const int code = SubMain(host) == StartResult::Started ? QApplication::exec() : 0;
    setMessageSink(nullptr);
    return code;
}
