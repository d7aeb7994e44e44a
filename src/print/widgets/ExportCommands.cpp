#include "print/widgets/ExportCommands.h"

#include "analysis/DataList.h"
#include "analysis/widgets/frmItiran.h"
#include "analysis/widgets/frmMarkerView.h"
#include "base/AppPaths.h"
#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "base/clsConst.h"
#include "base/clsLibrary.h"
#include "print/ExportKind.h"
#include "print/ListFileWriter.h"
#include "print/ListWorkbookWriter.h"
#include "print/MarkerFileWriter.h"
#include "recording/widgets/frmProgress.h"
#include "trend/TrendView.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QUrl>

namespace {

// "text(*.csv)|*.csv|..." as a Qt filter: the descriptions, which hold their patterns already.
QString qtFilter(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    QStringList out;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) out << parts[i];
    return out.join(QStringLiteral(";;"));
}

// The save dialog of a text export: CSV and TXT, or TXT alone where the decimal separator is a
// comma; "" when cancelled or when a CSV name is given there.
QString askTextFile(QWidget* parent, const QString& caption, ExportKind::Kind& kind) {
    const QString dec = clsConst::shared().DecimalSeparator();
    const QString path =
        QFileDialog::getSaveFileName(parent, QString(), clsLibrary::getFileTitleEx(caption),
                                     qtFilter(ExportKind::dialogFilter(dec)));
    kind = ExportKind::ofName(path);
    if (!path.isEmpty() && kind == ExportKind::Csv && !ExportKind::csvAllowed(dec)) {
        ShowMsg(kMsgWarning, MsgText(562) + QStringLiteral("\r\n") + path);
        return QString();
    }
    return path;
}

// The end of a text export: message 563 and the file opened, or message 562 and the path.
void reportTextFile(bool ok, const QString& path) {
    if (!ok) {
        ShowMsg(kMsgWarning, MsgText(562) + QStringLiteral("\r\n") + path);
        return;
    }
    ShowMsg(kMsgInformation);
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void writeListFile(frmItiran& window) {
    DataList& list = window.list();
    ExportKind::Kind kind;
    const QString path = askTextFile(&window, list.trendView().window().Caption, kind);
    if (path.isEmpty()) return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    frmProgress progress(&window);
    progress.show();
    const bool ok = WriteListFile(list, kind, path, &progress);
    QApplication::restoreOverrideCursor();
    reportTextFile(ok, path);
}

void writeMarkerFile(frmMarkerView& window) {
    ExportKind::Kind kind;
    const QString path = askTextFile(&window, window.windowTitle(), kind);
    if (path.isEmpty()) return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool ok = WriteMarkerFile(window.marker(), kind, path);
    QApplication::restoreOverrideCursor();
    reportTextFile(ok, path);
}

// The workbook goes to a fresh name in the work folder and opens in the desktop's spreadsheet
// program; with none the file stays there and nothing is said.
void writeListWorkbook(frmItiran& window) {
    DataList& list = window.list();
    const QString base = clsLibrary::getFileTitleEx(list.trendView().window().Caption);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    const QString path = QDir(AppPaths(3))
                             .filePath((base.isEmpty() ? QStringLiteral("list") : base) +
                                       QLatin1Char('-') + stamp + QStringLiteral(".xlsx"));
    QApplication::setOverrideCursor(Qt::WaitCursor);
    frmProgress progress(&window);
    progress.show();
    QString error;
    const bool ok = WriteListExcel(list, path, &progress, error);
    QApplication::restoreOverrideCursor();
    if (!ok) {
        ShowMsg(kMsgWarning, MsgText(562) + QStringLiteral("\r\n") + path);
        return;
    }
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace

void installExportCommands() {
    frmItiran::setOutputCommand(8, writeListFile);
    frmItiran::setOutputCommand(9, writeListWorkbook);
    frmMarkerView::setOutputCommand(13, writeMarkerFile);
}
