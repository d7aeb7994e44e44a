#include "analysis/SkipCount.h"
#include "analysis/widgets/frmItiran.h"
#include "analysis/widgets/frmSkipSet.h"
#include "base/LanguageTable.h"
#include "trendwidgets/TrendWindowFixture.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>
#include <QToolBar>

#include <gtest/gtest.h>

namespace {

void click(QTableView* table, const QModelIndex& index) {
    const QPoint at = table->visualRect(index).center();
    for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, table->viewport()->mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(table->viewport(), &event);
    }
}

} // namespace

// The view's command 5 opens its one list; the grid fills only the rows on show, a jump to the
// last row fills that block, and a click there moves the trend's marker and date label.
TEST(frmItiran, OpensJumpsAndMovesTheTrend) {
    installDataList();
    trendwidgets::LoadedWindow w(2, 2, 5000);
    ASSERT_TRUE(w.loaded);
    w.window->toolbar1Command(5);
    w.window->toolbar1Command(5);
    ASSERT_EQ(w.window->findChildren<frmItiran*>().size(), 1);
    frmItiran* list = w.window->findChild<frmItiran*>();
    EXPECT_EQ(views(2).part<DataListState>().ListOpen, -1);
    EXPECT_EQ(list->windowTitle(), MsgText(174));
    QApplication::processEvents();

    QTableView* table = list->vaSpread1();
    ASSERT_EQ(table->model()->rowCount(), 5000);
    EXPECT_EQ(table->model()->headerData(2, Qt::Horizontal).toString(),
              QStringLiteral("T1 [degC]"));
    EXPECT_EQ(list->grid().heldRows(), 500);

    const double xMin = w.xMin();
    const double xMax = w.xMax();
    const QModelIndex last = table->model()->index(4999, 2);
    table->scrollTo(last);
    QApplication::processEvents();
    EXPECT_LE(list->grid().heldRows(), 1000);
    click(table, last);
    const ChartAxis& x = w.trend().chart().axisX();
    EXPECT_FALSE(x.isOriginAuto());
    EXPECT_EQ(x.origin(), 4999);
    EXPECT_EQ(w.xMin(), xMin);
    EXPECT_EQ(w.xMax(), xMax);
    const QString time = list->grid().text(1, 5000);
    EXPECT_FALSE(time.isEmpty());
    EXPECT_EQ(w.window->findChild<QLabel*>(QStringLiteral("lblDateTemp"))->text(), time);

    // The selected cell goes to the clipboard; the hover text follows the pointer.
    list->copySelection();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), list->grid().text(2, 5000) + "\n");
    QWidget* button =
        list->findChild<QToolBar*>(QStringLiteral("Toolbar1"))->widgetForAction(list->button(2));
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(button, &enter);
    EXPECT_EQ(list->Label1()->text(), DataList::toolbarHoverText(2));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(button, &leave);
    EXPECT_TRUE(list->Label1()->text().isEmpty());

    // The circular graph reaches the list by name; outside it the whole recording stays.
    EXPECT_TRUE(QMetaObject::invokeMethod(list, "CircleRechange"));
    EXPECT_EQ(table->model()->rowCount(), 5000);

    list->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(w.window->findChildren<frmItiran*>().isEmpty());
    EXPECT_EQ(views(2).part<DataListState>().ListOpen, 0);
}

// The skip window sets the count of output rows to leave out; every row again with Option1.
TEST(frmSkipSet, SetsTheSkipCount) {
    frmSkipSet dialog;
    EXPECT_TRUE(dialog.Option1()->isChecked());
    EXPECT_EQ(dialog.Label1()->text(), SkipSetLabel(SystemDecimalSep()));
    dialog.Option2()->setChecked(true);
    dialog.Text1()->setText(QStringLiteral("4"));
    dialog.accept();
    EXPECT_EQ(SkipCount(), 4);
    frmSkipSet again;
    EXPECT_TRUE(again.Option2()->isChecked());
    EXPECT_EQ(again.Text1()->text(), QStringLiteral("4"));
    again.Text1()->setText(QStringLiteral("x"));
    again.accept();
    EXPECT_EQ(SkipCount(), 0);
}
