#include "ftp/FtpFixture.h"
#include "ftp/widgets/frmIpInput.h"
#include "ftp/widgets/ftpForm.h"
#include "support/RecordingMessageSink.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace {

class ManualTransferWindow : public FtpFixture {};

// Connected the boxes close and the transfer buttons open; disconnected the other way round.
TEST_F(ManualTransferWindow, EnabledStatesAcrossConnectAndDisconnect) {
    writeFile(remotePath("a.vxf"), "A");
    startServer();
    RecordingMessageSink sink;
    ftpForm window(nullptr, localPath("FTPset.ini"));
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.transfer().settings() = shortWaits(port());
    window.TAddress()->setText(QStringLiteral("127.0.0.1"));
    window.findChild<QLineEdit*>("TPassword")->setText(QString::fromLatin1(kPassword));
    EXPECT_FALSE(window.button("CGet")->isEnabled());
    EXPECT_TRUE(window.TAddress()->isEnabled());
    window.connectHost();
    ASSERT_TRUE(window.transfer().connected()) << sink.calls().size();
    EXPECT_TRUE(window.button("CGet")->isEnabled());
    EXPECT_TRUE(window.button("CPut")->isEnabled());
    EXPECT_FALSE(window.TAddress()->isEnabled());
    EXPECT_GE(window.vaSpread1()->model()->rowCount(), 2);
    window.disconnectHost();
    EXPECT_FALSE(window.button("CPut")->isEnabled());
    EXPECT_TRUE(window.TAddress()->isEnabled());
    window.close(); // the address goes to FTPset.ini
    ManualTransfer again;
    again.load(localPath("FTPset.ini"));
    EXPECT_EQ(again.TAddress, QStringLiteral("127.0.0.1"));
}

TEST(frmIpInput, BoxesHoldTheBoundsAndTheResultIsPadded) {
    frmIpInput dialog(QStringLiteral("10.0.0.1"));
    EXPECT_EQ(dialog.result(), QStringLiteral(" 10.  0.  0.  1"));
    dialog.box(1)->setText(QString());
    dialog.box(1)->insert(QStringLiteral("300")); // typed: held at 255
    EXPECT_EQ(dialog.box(1)->text(), QStringLiteral("255"));
    EXPECT_EQ(dialog.result(), QStringLiteral(" 10.255.  0.  1"));
    frmIpInput empty{QString()};
    EXPECT_EQ(empty.result(), QStringLiteral("   .   .   .   "));
}

} // namespace
