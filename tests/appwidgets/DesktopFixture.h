#pragma once

#include "app/widgets/DesktopStartup.h"
#include "support/RecordingFixture.h"
#include "support/RecordingMessageSink.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

class frmMain;

// Starts the desktop program inside the test process (start-up, frame and main window) with
// recorder files written by the fixture writers; boxes go to a recording sink.
class DesktopFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    void start(const QStringList& files = {});
    // Closes the frame as the user would: the program's end.
    void closeFrame();
    frmMain& main() { return *host->main(); }
    // A VXF file of two channels; files of one interval join in one view.
    QString vxf(const QString& name, quint32 startTime = 0, quint32 intervalTenths = 10,
                int rows = 60);
    QString junk(const QString& name);
    // Lets the program's timers and queued work run for a while, or until `done` holds.
    template <typename Done> bool waitFor(Done done, int ms = 10000);

    RecordingMessageSink sink;
    FixtureDir files;
    QTemporaryDir runtime;
    std::unique_ptr<DesktopStartup> host;
};

void processEventsFor(int ms);

template <typename Done> bool DesktopFixture::waitFor(Done done, int ms) {
    for (int waited = 0; waited < ms; waited += 20) {
        if (done()) return true;
        processEventsFor(20);
    }
    return done();
}
