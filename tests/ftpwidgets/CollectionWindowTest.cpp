#include "base/LanguageTable.h"
#include "ftp/FTPFile.h"
#include "ftp/FtpFixture.h"
#include "ftp/widgets/ftpDataForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTableWidget>

namespace {

class CollectionWindow : public FtpFixture {
protected:
    void setRow(int n, const char* tag, const char* address, const char* password) {
        FtpRow& row = *file.table.row(n);
        row.Tag = QString::fromLatin1(tag);
        row.IPAddress = QString::fromLatin1(address);
        row.Password = QString::fromLatin1(password);
        row.VXDir = QStringLiteral("DATA");
        row.PCDir = localPath(QStringLiteral("pc%1").arg(n));
        QDir().mkpath(row.PCDir);
    }
    QString status(ftpDataForm& form, int row) { return form.grid()->item(row - 1, 4)->text(); }

    FTPFile file;
};

// One pass over a good row, a host that refuses and a wrong password: 13, 496 and 496, with the
// time of the good row; the pass runs on a worker while the window stays live.
TEST_F(CollectionWindow, APassShowsTheStatusOfEveryRow) {
    writeFile(remotePath("DATA/a.vxf"), "aaaa");
    startServer();
    file.settings = shortWaits(port());
    setRow(1, "good", "127.  0.  0.  1", kPassword);
    setRow(2, "refused", "127.  0.  0.  2", kPassword);
    setRow(3, "locked", "127.  0.  0.  1", "wrong");
    ftpDataForm form(file);
    EXPECT_EQ(status(form, 1), MsgText(496));
    form.RunCollection();
    form.waitForPass();
    QApplication::processEvents(); // the status changes posted by the worker
    EXPECT_EQ(status(form, 1), MsgText(13));
    EXPECT_EQ(status(form, 2), MsgText(496));
    EXPECT_EQ(status(form, 3), MsgText(496));
    EXPECT_FALSE(form.grid()->item(0, 5)->text().isEmpty());
    EXPECT_TRUE(form.grid()->item(1, 5)->text().isEmpty());
    EXPECT_EQ(readFile(localPath("pc1/a.vxf")), QByteArray("aaaa"));
    EXPECT_TRUE(form.button("cmdSet")->isEnabled());
    EXPECT_EQ(form.engine().CollectionBusyRow, 0);
}

TEST_F(CollectionWindow, OkStoresTheFlagAndTheTimesAndCancelDoesNot) {
    setRow(1, "good", "127.  0.  0.  1", kPassword);
    file.table.AutoReadFlg = 0;
    {
        ftpDataForm form(file);
        form.Check()->setChecked(true);
        form.cmdCancel();
    }
    EXPECT_EQ(file.table.AutoReadFlg, 0);
    ftpDataForm form(file);
    form.Check()->setChecked(true);
    form.cmdOK();
    EXPECT_EQ(file.table.AutoReadFlg, 1);
}

} // namespace
