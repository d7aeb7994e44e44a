#include "ftp/FTPFile.h"
#include "ftp/widgets/ftpSetForm.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace {

TEST(ftpSetForm, TimeBoxesKeepTheLastAcceptedValue) {
    int last = 5;
    EXPECT_EQ(ftpSetForm::acceptTime("23", 23, last), "23");
    EXPECT_EQ(last, 23);
    EXPECT_EQ(ftpSetForm::acceptTime("24", 23, last), "23"); // out of range: the last value
    EXPECT_EQ(ftpSetForm::acceptTime("x", 59, last), "23");
    EXPECT_EQ(ftpSetForm::acceptTime("", 59, last), ""); // an empty box is left as it is
    EXPECT_EQ(last, 23);
}

// OK stores the flag, the times and the rows; Cancel nothing.
TEST(ftpSetForm, OkStoresAndCancelDoesNot) {
    FTPFile file;
    file.table.RegularH = 6;
    {
        ftpSetForm form(file);
        form.grid()->item(0, 0)->setText(QStringLiteral("kiln"));
        form.reject();
    }
    EXPECT_TRUE(file.table.row(1)->Tag.isEmpty());
    ftpSetForm form(file);
    form.Check()->setChecked(true);
    form.hourBox()->setText(QStringLiteral("7"));
    Q_EMIT form.hourBox()->editingFinished();
    form.minuteBox()->setText(QString()); // empty: the last accepted minute stays
    Q_EMIT form.minuteBox()->editingFinished();
    form.grid()->item(0, 0)->setText(QStringLiteral("a tag longer than fifteen"));
    form.grid()->item(0, 6)->setText(QStringLiteral("/data/kiln"));
    form.cmdOK();
    EXPECT_EQ(file.table.FileReadFlg, 1);
    EXPECT_EQ(file.table.RegularH, 7);
    EXPECT_EQ(file.table.RegularM, 0);
    EXPECT_EQ(file.table.row(1)->Tag, QStringLiteral("a tag longer th"));
    EXPECT_EQ(file.table.row(1)->PCDir, QStringLiteral("/data/kiln"));
}

} // namespace
