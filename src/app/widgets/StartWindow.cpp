#include "app/widgets/StartWindow.h"

#include <QLabel>

StartWindow::StartWindow(const QStringList& files, QWidget* parent) : QMainWindow(parent) {
    setWindowTitle(QStringLiteral("recview"));
    auto* label = new QLabel(files.isEmpty() ? QStringLiteral("No file opened.")
                                             : files.join(QLatin1Char('\n')),
                             this);
    label->setMargin(24);
    setCentralWidget(label);
    resize(900, 600);
}
