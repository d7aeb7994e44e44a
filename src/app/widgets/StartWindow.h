#pragma once

#include <QMainWindow>

// The first window of the desktop program until the main window and its views take over.
class StartWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit StartWindow(const QStringList& files, QWidget* parent = nullptr);
};
