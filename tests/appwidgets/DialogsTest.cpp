// The message box, the selection dialog and the group name dialog.
#include "app/StartFiles.h"
#include "app/widgets/dlgSelect.h"
#include "app/widgets/frmGroupNameDialog.h"
#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "base/widgets/frmMessageBox.h"
#include "recording/SelectionLists.h"
#include "support/RecordingFixture.h"
#include "support/RecordingMessageSink.h"
#include "support/VxfWriter.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

QStringList buttonTexts(const QWidget& box) {
    QStringList texts;
    for (const QPushButton* b : box.findChildren<QPushButton*>()) texts << b->text();
    return texts;
}

TEST(frmMessageBox, ButtonCaptionsComeFromTheLanguageTable) {
    const struct {
        int flags;
        QList<int> captions;
        int closedAnswer;
    } cases[] = {
        {kFlagOK | kFlagExclamation, {46}, kOK},
        {kFlagOKCancel | kFlagQuestion, {46, 47}, kCancel},
        {kFlagAbortRetryIgnore, {263, 264, 265}, kIgnore},
        {kFlagYesNoCancel, {266, 267, 47}, kCancel},
        {kFlagYesNo | kFlagQuestion, {266, 267}, kNo},
        {kFlagRetryCancel | kFlagCritical, {264, 47}, kCancel},
    };
    for (const auto& c : cases) {
        frmMessageBox box(QStringLiteral("text"), c.flags, QStringLiteral("title"));
        QStringList expected;
        for (int n : c.captions) expected << MsgText(n);
        EXPECT_EQ(buttonTexts(box), expected) << c.flags;
        EXPECT_EQ(box.windowTitle(), QLatin1String("title"));
        EXPECT_TRUE(box.windowFlags() & Qt::WindowStaysOnTopHint);
        EXPECT_EQ(box.pressed(), c.closedAnswer) << c.flags;
    }
}

TEST(frmMessageBox, ShowMsgGoesThroughTheBoxAndReturnsThePressedButton) {
    MessageBoxSink sink;
    setMessageSink(&sink);
    QString shownText;
    // Waits for the box; when none comes, fails and closes every window so the test ends.
    QTimer poll;
    int tries = 0;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QWidget* box = QApplication::activeModalWidget();
        auto* button = box ? box->findChild<QPushButton*>(QStringLiteral("btn7")) : nullptr;
        if (button) {
            poll.stop();
            shownText = box->findChild<QLabel*>(QStringLiteral("lblMessage"))->text();
            button->click();
        } else if (++tries > 250) {
            poll.stop();
            ADD_FAILURE() << "no message box came up";
            QApplication::closeAllWindows();
        }
    });
    poll.start(20);
    EXPECT_EQ(ShowMsg(kMsgQuestionNote, QStringLiteral("Go on?")), kNo);
    setMessageSink(nullptr);
    EXPECT_EQ(shownText, QStringLiteral("Go on?\n") + MsgText(577));
}

class dlgSelectTest : public ::testing::Test {
protected:
    QString vxf(const char* name, quint32 start, quint32 interval = 10) {
        return files.write(QLatin1String(name),
                           fixtures::buildVxf(fixtures::simpleVxf(
                               1, 20, start, interval, [](int row, int) { return qint16(row); })));
    }
    QString dir() const { return QFileInfo(files.path(QStringLiteral("x"))).absolutePath(); }
    RecordingMessageSink sink;
    FixtureDir files;
};

TEST_F(dlgSelectTest, OptionPatternsPickTheFilesOfAFolder) {
    vxf("B.VXF", 0);
    vxf("a.vxf", 0);
    files.write(QStringLiteral("c.qdf"), "QD30");
    files.write(QStringLiteral("notes"), "x");
    const struct {
        int family;
        QStringList names;
    } cases[] = {
        {0, {"a.vxf", "B.VXF"}},
        {2, {"c.qdf"}},
        {3, {"a.vxf", "B.VXF", "c.qdf", "notes"}},
        {5, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(dlgSelect::matchingFiles(dir(), c.family), c.names) << c.family;
}

TEST_F(dlgSelectTest, ChosenFilesBecomeTheSelectionInStartOrder) {
    vxf("late.vxf", 7200);
    vxf("early.vxf", 0);
    vxf("other interval.vxf", 100, 20);
    dlgSelect dialog(0);
    dialog.setDirectory(dir());
    dialog.setDispType(0);
    dialog.selectFiles({"late.vxf", "early.vxf"});
    dialog.btnSelect_Click();
    ASSERT_EQ(dialog.chooser().chosen().size(), 2);
    dialog.selectFiles({"other interval.vxf"});
    dialog.btnSelect_Click();
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().text, MsgText(556));
    EXPECT_EQ(sink.last().title, MsgText(217));
    dialog.btnRegister_Click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const SelectionLists& sel = selection();
    ASSERT_EQ(sel.SelFileCount, 2);
    EXPECT_EQ(QFileInfo(sel.SelFileName[0]).fileName(), QLatin1String("early.vxf"));
    EXPECT_EQ(QFileInfo(sel.SelFileName[1]).fileName(), QLatin1String("late.vxf"));
    // The folder is kept for the next time.
    EXPECT_EQ(QFileInfo(ReadLastDirectory()).absoluteFilePath(), dir());
    selection().clear();
}

TEST_F(dlgSelectTest, RegisteringNothingKeepsTheDialogWithABox) {
    dlgSelect dialog(0);
    dialog.setDirectory(dir());
    dialog.btnRegister_Click();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().text, MsgText(561));
}

TEST(frmGroupNameDialog, ChosenRowIsTheViewAndNamesAreKept) {
    frmGroupNameDialog dialog;
    auto* grid = dialog.findChild<QTableWidget*>();
    ASSERT_NE(grid, nullptr);
    ASSERT_EQ(grid->rowCount(), 10);
    grid->item(2, 0)->setText(QStringLiteral("  Boiler  "));
    dialog.selectRow(3);
    grid->setCurrentCell(2, 0);
    Q_EMIT grid->cellDoubleClicked(2, 0);
    EXPECT_EQ(dialog.chosenView(), 3);
    EXPECT_EQ(GroupNames(3), QLatin1String("Boiler"));
}

} // namespace
