#include "base/clsCommon.h"
#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "recording/ViewState.h"
#include "support/NpWriter.h"
#include "support/RecordingFixture.h"
#include "trend/widgets/frmScrollTime.h"

#include <gtest/gtest.h>

using namespace fixtures;

namespace {

// The program's operation mode for the length of a test.
struct OperationModeScope {
    explicit OperationModeScope(int mode) : saved(clsCommon::shared().OperationMode()) {
        clsCommon::shared().setOperationMode(mode);
    }
    ~OperationModeScope() { clsCommon::shared().setOperationMode(saved); }
    int saved;
};

} // namespace

// In GS mode the window reads a P4F file with the P4F reader, as the command line does.
TEST(frmScrollTime, LoadsP4fInGsMode) {
    OperationModeScope gs(clsCommon::kGsMode);
    FixtureDir dir;
    NpDescription d;
    d.magic = QByteArray("PB4\0", 4);
    d.gsStride = true;
    d.startUnix = 1715000000;
    d.channels = {{"Flow", "m3/h", 1, 2}};
    d.rows = {{{100, 0, 0}}, {{250, 0, 0}}, {{-40, 0, 0}}};
    const QString path = dir.write(QStringLiteral("g.p4f"), buildNp(d));
    selection().clear();
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({path}), true);
    ASSERT_EQ(selection().SelFileCount, 1);
    copySelectionToView(views(9));
    frmScrollTime window(9);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    ASSERT_TRUE(window.LoadRecording());
    EXPECT_EQ(views(9).PointCount, 3);
    QString cell;
    views(9).Storage.GetText(2, 2, cell);
    EXPECT_EQ(cell, QStringLiteral("250"));
}

// The view's "Open files" asks the main window, which opens the selection dialog for it.
TEST(frmScrollTime, OpenFilesAsksForTheSelectionDialog) {
    frmScrollTime window(8);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    QList<int> asked;
    QObject::connect(&window, &frmScrollTime::openFilesRequested, [&](int n) { asked << n; });
    window.toolbar1Command(2);
    EXPECT_EQ(asked, QList<int>({8}));
}
