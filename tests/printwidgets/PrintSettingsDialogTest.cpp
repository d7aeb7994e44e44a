#include "base/LanguageTable.h"
#include "print/widgets/SPRDprint.h"
#include "support/RecordingMessageSink.h"

#include <QComboBox>

#include <gtest/gtest.h>

namespace {

TEST(SPRDprint, OkWritesTheRecordAndCancelMarksIt) {
    const QStringList printers = {QStringLiteral("office")};
    PrintSetting::shared() = PrintSetting();
    {
        SPRDprint dialog(3, nullptr, &printers);
        ASSERT_EQ(dialog.cboPrinter()->count(), 2); // the PDF file, then the printers
        dialog.cboPrinter()->setCurrentIndex(1);
        dialog.cboSize()->setCurrentIndex(4);
        dialog.cmdOK();
    }
    EXPECT_EQ(PrintSetting::shared().Printer, QStringLiteral("office"));
    EXPECT_EQ(PrintSetting::shared().Paper, 4);
    EXPECT_EQ(PrintSetting::shared().Cancelled, 0);
    SPRDprint cancel(3, nullptr, &printers);
    cancel.cboSize()->setCurrentIndex(0);
    cancel.reject();
    EXPECT_EQ(PrintSetting::shared().Paper, 4); // unchanged
}

TEST(SPRDprint, APdfFileIsAlwaysThereAndAnEmptyListSays564) {
    RecordingMessageSink sink;
    EXPECT_TRUE(IsPrinterInstalled());
    EXPECT_TRUE(sink.calls().isEmpty());
    const QStringList none;
    EXPECT_FALSE(IsPrinterInstalled(&none));
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().text, MsgText(564));
}

} // namespace
