// The document flow of the main window: command line, drops, hand-off, view slots, window record.
#include "DesktopFixture.h"

#include "app/ClickFile.h"
#include "app/StartFiles.h"
#include "app/widgets/TrMdiForm.h"
#include "app/widgets/frmMain.h"
#include "base/LanguageTable.h"
#include "recording/CommandFiles.h"
#include "recording/ViewSlots.h"
#include "recording/ViewState.h"
#include "savedwork/BackupRecords.h"
#include "trend/widgets/frmScrollTime.h"

#include <QAction>
#include <QCoreApplication>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QToolBar>
#include <QUrl>

namespace {

void drop(QWidget* target, const QStringList& paths) {
    QMimeData mime;
    QList<QUrl> urls;
    for (const QString& p : paths) urls << QUrl::fromLocalFile(p);
    mime.setUrls(urls);
    // A drop is delivered only to a widget that took the drag's entry.
    QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent event(QPointF(20, 20), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

// What a second instance started with `paths` leaves behind.
void handOff(const QStringList& paths) {
    SelectionLists sel;
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine(paths), false, sel);
    ASSERT_GT(sel.SelFileCount, 0);
    ASSERT_TRUE(WriteClickFile(sel));
}

QStringList fileNames(int view) {
    QStringList names;
    for (const QString& p : views(view).FileName) names << QFileInfo(p).fileName();
    return names;
}

class MainWindowTest : public DesktopFixture {};

TEST_F(MainWindowTest, CommandLineOpensViewOneWithTheData) {
    start({vxf(QStringLiteral("first.vxf"), 0, 10, 120)});
    ASSERT_NE(main().ViewForm(1), nullptr);
    EXPECT_EQ(views(1).PointCount, 120);
    EXPECT_EQ(views(1).ChannelCount, 2);
    EXPECT_EQ(main().Label2Text(), QLatin1String("VXF"));
    EXPECT_EQ(main().ViewForm(1)->windowTitle(), QLatin1String("first.vxf"));
    for (int group = 1; group <= 10; ++group) EXPECT_FALSE(GroupNames(group).isEmpty());
    EXPECT_TRUE(sink.calls().isEmpty());
}

TEST_F(MainWindowTest, WithoutFilesTheFrameStandsEmptyWithItsTexts) {
    start();
    EXPECT_EQ(main().openViewCount(), 0);
    EXPECT_TRUE(main().frame()->isVisible());
    EXPECT_TRUE(main().frame()->windowTitle().startsWith(QLatin1String("recview")));
    const auto* bar = main().frame()->findChild<QToolBar*>(QStringLiteral("Toolbar1"));
    ASSERT_NE(bar, nullptr);
    const QList<int> texts{450, 451, 452, 453, 454, 455, 497};
    QList<QAction*> buttons;
    for (QAction* a : bar->actions())
        if (!a->isSeparator()) buttons << a;
    ASSERT_EQ(buttons.size(), texts.size());
    for (int i = 0; i < texts.size(); ++i) EXPECT_EQ(buttons[i]->text(), MsgText(texts[i])) << i;
}

TEST_F(MainWindowTest, DropWithOneWrongMagicOpensTheOthers) {
    start();
    drop(main().frame(), {vxf(QStringLiteral("a.vxf"), 0), junk(QStringLiteral("bad.vxf")),
                          vxf(QStringLiteral("c.vxf"), 3600)});
    ASSERT_NE(main().ViewForm(1), nullptr);
    EXPECT_EQ(fileNames(1), QStringList({"a.vxf", "c.vxf"}));
    EXPECT_GT(views(1).PointCount, 60);
    EXPECT_TRUE(sink.calls().isEmpty());
    // Dropped on the view itself, files replace what the view shows.
    drop(main().ViewForm(1), {vxf(QStringLiteral("d.vxf"), 0, 10, 30)});
    EXPECT_EQ(fileNames(1), QStringList({"d.vxf"}));
    EXPECT_EQ(views(1).PointCount, 30);
    EXPECT_EQ(main().openViewCount(), 1);
}

TEST_F(MainWindowTest, DropOfNothingReadableShowsMessage553) {
    start();
    drop(main().frame(), {junk(QStringLiteral("x.vxf"))});
    EXPECT_EQ(main().openViewCount(), 0);
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().text, MsgText(553));
}

TEST_F(MainWindowTest, HandOffFileOpensTheNextView) {
    start({vxf(QStringLiteral("first.vxf"))});
    handOff({vxf(QStringLiteral("second.vxf"), 0, 10, 45)});
    main().timDoubleClick_Timer();
    ASSERT_NE(main().ViewForm(2), nullptr);
    EXPECT_EQ(fileNames(2), QStringList({"second.vxf"}));
    EXPECT_EQ(views(2).PointCount, 45);
    EXPECT_FALSE(QFile::exists(clickFilePath()));
}

TEST_F(MainWindowTest, HandOffWhileASettingsWindowIsOpenIsDropped) {
    start();
    const QString file = vxf(QStringLiteral("late.vxf"));
    {
        QWidget settings;
        settings.setObjectName(QStringLiteral("frmEthernet"));
        settings.show();
        handOff({file});
        main().timDoubleClick_Timer();
        EXPECT_FALSE(QFile::exists(clickFilePath()));
    }
    // The files do not open later either.
    main().timDoubleClick_Timer();
    EXPECT_EQ(main().openViewCount(), 0);
}

TEST_F(MainWindowTest, TenViewsAtMostAndAClosedViewFreesItsSlot) {
    start();
    const QString file = vxf(QStringLiteral("v.vxf"), 0, 10, 20);
    for (int n = 1; n <= 10; ++n) drop(main().frame(), {file});
    EXPECT_EQ(main().openViewCount(), 10);
    EXPECT_EQ(FirstFreeView(), 0);
    // An eleventh request opens nothing: neither a drop nor a hand-off, whose file goes.
    drop(main().frame(), {file});
    handOff({file});
    main().timDoubleClick_Timer();
    EXPECT_EQ(main().openViewCount(), 10);
    EXPECT_FALSE(QFile::exists(clickFilePath()));
    EXPECT_TRUE(sink.calls().isEmpty());

    main().ViewForm(4)->parentWidget()->close();
    processEventsFor(20);
    EXPECT_EQ(main().ViewForm(4), nullptr);
    EXPECT_FALSE(ViewInUse(3));
    EXPECT_EQ(views(4).PointCount, 0);
    EXPECT_EQ(FirstFreeView(), 4);
    drop(main().frame(), {file});
    EXPECT_NE(main().ViewForm(4), nullptr);
}

TEST_F(MainWindowTest, TilingArrangesTheViews) {
    start();
    const QString file = vxf(QStringLiteral("v.vxf"), 0, 10, 20);
    for (int n = 1; n <= 3; ++n) drop(main().frame(), {file});
    QMdiArea* area = main().frame()->mdiArea();
    const QSize size = area->viewport()->size();
    for (const bool sideBySide : {true, false}) {
        main().Toolbar1_ButtonClick(sideBySide ? 2 : 3);
        const QList<QMdiSubWindow*> subs = area->subWindowList(QMdiArea::CreationOrder);
        ASSERT_EQ(subs.size(), 3);
        // Each view takes a third along the split and the whole other way.
        for (int i = 0; i < 3; ++i) {
            const QRect g = subs[i]->geometry();
            EXPECT_EQ(sideBySide ? std::pair(g.left(), g.height()) : std::pair(g.top(), g.width()),
                      sideBySide ? std::pair(size.width() * i / 3, size.height())
                                 : std::pair(size.height() * i / 3, size.width()))
                << i;
        }
    }
}

TEST_F(MainWindowTest, WindowPositionIsKeptAtTheEndAndRestoredAtLoad) {
    start();
    const QRect placed(40, 50, 640, 420);
    main().frame()->setGeometry(placed);
    closeFrame();
    WindBakRecord rec;
    ASSERT_TRUE(ReadWindBak(0, rec));
    EXPECT_EQ(rec.WindowState, 0);
    EXPECT_EQ(rec.Window[2], placed.width());
    EXPECT_EQ(rec.Window[3], placed.height());
    host.reset();
    start();
    EXPECT_EQ(main().frame()->geometry().size(), placed.size());
}

TEST(FamilyWord, NamesTheFamilyOfASelection) {
    const struct {
        int type;
        const char* file;
        const char* word;
    } cases[] = {
        {0, "/d/a.vxf", "VXF"}, {0, "/d/a.JLM", "JLM"}, {5, "/d/a.csv", "CSV"},
        {2, "/d/a.qdf", "QDF"}, {3, "/d/a.dat", "TM"},  {4, "/d/a.p4f", "P4F"},
        {4, "/d/a.n5f", "N5F"}, {1, "/d/a.vxb", "VXB"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(familyWord(c.type, QLatin1String(c.file)), QLatin1String(c.word)) << c.file;
}

} // namespace
