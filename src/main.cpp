#include "app/cli/Cli.h"
#include "app/widgets/StartWindow.h"

#include <QApplication>
#include <QDir>
#include <QGuiApplication>

int main(int argc, char** argv) {
    QStringList args;
    for (int i = 1; i < argc; ++i) args << QString::fromLocal8Bit(argv[i]);

    if (Cli::isHeadless(args)) {
        // Headless verbs never need a display.
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", QDir::tempPath().toUtf8());
        QGuiApplication app(argc, argv);
        return Cli::run(args);
    }

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("recview"));
    StartWindow window(args);
    window.show();
    return QApplication::exec();
}
