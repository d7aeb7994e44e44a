// The remote folder window: browsing a real server, and an event loop that keeps running while
// the server stalls.
#include "ftp/widgets/ftpDir.h"
#include "ftp/FTPFile.h"
#include "support/FtpTestServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Runs the event loop until the window has a listing or `ms` passed; false on the timeout.
bool waitForListing(ftpDir& window, int ms) {
    QEventLoop loop;
    bool arrived = false;
    QObject::connect(&window, &ftpDir::listingReady, &loop, [&] {
        arrived = true;
        loop.quit();
    });
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    return arrived;
}

class FtpDirTest : public ::testing::Test {
protected:
    void start(FtpTestServer::Fault fault) {
        QDir().mkpath(remote.filePath(u"DATA/SUB"_s));
        QDir().mkpath(remote.filePath(u"OTHER"_s));
        server = std::make_unique<FtpTestServer>(remote.path(), u"pw"_s, fault);
        ASSERT_NE(server->port(), 0);
        ftpFile.settings.port = server->port();
        ftpFile.settings.connectTimeoutMs = 2000;
        ftpFile.settings.replyTimeoutMs = 2000;
        ftpFile.settings.acceptTimeoutMs = 2000;
        ftpFile.settings.stallMs = 20000; // longer than the test: only a cancel ends the wait
    }
    int rowOf(const ftpDir& window, const QString& name) const {
        for (int r = 1; r < window.listModel().rowCount(); ++r)
            if (window.listModel().entryAt(r)->Name == name) return r;
        return -1;
    }
    QTemporaryDir remote;
    std::unique_ptr<FtpTestServer> server;
    FTPFile ftpFile;
};

TEST_F(FtpDirTest, EntersOnlyDataFoldersAndHandsBackThePath) {
    start(FtpTestServer::Fault::None);
    ftpDir window(ftpFile);
    window.openAt(u"127.0.0.1"_s, u"pw"_s);
    ASSERT_TRUE(waitForListing(window, 5000));
    EXPECT_EQ(window.listModel().curDir(), u"/"_s);
    ASSERT_EQ(window.listModel().rowCount(), 3);

    window.activateRow(rowOf(window, u"OTHER"_s));
    EXPECT_FALSE(window.busy()); // other folders do not respond
    window.activateRow(rowOf(window, u"DATA"_s));
    ASSERT_TRUE(waitForListing(window, 5000));
    EXPECT_EQ(window.listModel().curDir(), u"/DATA"_s);

    window.table()->setCurrentIndex(window.listModel().index(rowOf(window, u"SUB"_s), 1));
    window.accept();
    EXPECT_EQ(window.chosenPath(), u"DATA/SUB"_s);

    window.activateRow(0);
    ASSERT_TRUE(waitForListing(window, 5000));
    EXPECT_EQ(window.listModel().curDir(), u"/"_s);
}

TEST_F(FtpDirTest, TheEventLoopRunsWhileTheServerStalls) {
    start(FtpTestServer::Fault::StallList);
    auto window = std::make_unique<ftpDir>(ftpFile);
    window->show();
    window->openAt(u"127.0.0.1"_s, u"pw"_s);
    int ticks = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] { ++ticks; });
    ticker.start(20);
    EXPECT_FALSE(waitForListing(*window, 800));
    EXPECT_GE(ticks, 10);
    EXPECT_TRUE(window->busy());

    QElapsedTimer closing;
    closing.start();
    window.reset(); // cancels the transfer and waits for the worker
    EXPECT_LT(closing.elapsed(), 5000);
}

} // namespace
