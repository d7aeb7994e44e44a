#include "app/cli/Cli.h"
#include "app/widgets/StartWindow.h"
#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "trend/widgets/frmScrollTime.h"

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
    // Until the main window holds the views, files open straight into view 1.
    if (!args.isEmpty()) {
        CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine(args), false);
        if (selection().SelFileCount > 0) {
            copySelectionToView(views(1));
            auto* view = new frmScrollTime(1);
            view->show();
            view->LoadRecording();
            return QApplication::exec();
        }
    }
    StartWindow window(args);
    window.show();
    return QApplication::exec();
}
