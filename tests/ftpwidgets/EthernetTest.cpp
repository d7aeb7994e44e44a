#include "ftp/FtpTable.h"
#include "ftp/widgets/frmEthernet.h"

#include <QComboBox>

#include <gtest/gtest.h>

namespace {

// The combos show the table's indices; cmdSet stores them, closing stores nothing.
TEST(frmEthernet, SetStoresTheIndicesAndCloseDoesNot) {
    FtpTable table;
    table.Retry = 3;
    table.Wait = 1;
    {
        frmEthernet dialog(table);
        EXPECT_EQ(dialog.cmbRetry()->count(), 21);
        EXPECT_EQ(dialog.cmbWait()->count(), 11);
        EXPECT_EQ(dialog.cmbRetry()->currentIndex(), 3);
        EXPECT_TRUE(dialog.cmbWait()->currentText().startsWith(QStringLiteral("10")));
        dialog.cmbRetry()->setCurrentIndex(0);
        dialog.reject();
    }
    EXPECT_EQ(table.Retry, 3);
    frmEthernet dialog(table);
    dialog.cmbRetry()->setCurrentIndex(5);
    dialog.cmbWait()->setCurrentIndex(0);
    dialog.cmdSet();
    EXPECT_EQ(table.Retry, 5);
    EXPECT_EQ(table.Wait, 0);
}

} // namespace
