#pragma once

#include "base/AppPaths.h"
#include "recording/ViewState.h"
#include "savedwork/RecordNames.h"
#include "savedwork/SavedWorkRecords.h"
#include "trend/TrendViewState.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Fresh trend settings, archive work and work file directories for each test, and the view
// used by the tests emptied before and after.
class RecordDirs : public ::testing::Test {
protected:
    static constexpr int kView = 3;

    void SetUp() override;
    void TearDown() override;

    // Moves a file of the trend settings directory to the archive work directory, as saving
    // and then opening an archive does.
    static void carryOver(const QString& name);

    QTemporaryDir root_;
};

namespace RecordBytesAt {

qint64 le(const QByteArray& bytes, qsizetype offset, int width);
double f64(const QByteArray& bytes, qsizetype offset);
void putLe(QByteArray& bytes, qsizetype offset, int width, qint64 value);

QByteArray readAll(const QString& path);
void writeAll(const QString& path, const QByteArray& bytes);

} // namespace RecordBytesAt
