#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "support/QtPrinters.h"

// A temporary folder for recorder files written by the fixture writers.
class FixtureDir {
public:
    QString write(const QString& name, const QByteArray& bytes);
    QString path(const QString& name) const { return dir_.filePath(name); }

private:
    QTemporaryDir dir_;
};
