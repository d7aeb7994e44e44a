#include "DesktopFixture.h"

#include "app/SubMain.h"
#include "app/widgets/TrMdiForm.h"
#include "recording/SelectionLists.h"
#include "recording/ViewSlots.h"
#include "support/VxfWriter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

void processEventsFor(int ms) {
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(2);
    }
}

void DesktopFixture::SetUp() {
    clearViewSlots();
    selection().clear();
}

void DesktopFixture::TearDown() {
    closeFrame();
    host.reset();
    processEventsFor(10);
    clearViewSlots();
    selection().clear();
}

void DesktopFixture::start(const QStringList& paths) {
    host = std::make_unique<DesktopStartup>(paths, runtime.filePath(QStringLiteral("t.sock")));
    ASSERT_EQ(SubMain(*host), StartResult::Started);
}

void DesktopFixture::closeFrame() {
    if (host && host->frame() && host->frame()->isVisible()) host->frame()->close();
    processEventsFor(10);
}

QString DesktopFixture::vxf(const QString& name, quint32 startTime, quint32 intervalTenths,
                            int rows) {
    return files.write(name, fixtures::buildVxf(fixtures::simpleVxf(
                                 2, rows, startTime, intervalTenths,
                                 [](int row, int channel) { return qint16(row * 10 + channel); })));
}

QString DesktopFixture::junk(const QString& name) {
    return files.write(name, QByteArray("NOT A RECORDER FILE AT ALL", 26));
}
