#include "print/widgets/ListExportCommands.h"

#include "analysis/DataList.h"
#include "analysis/widgets/frmItiran.h"
#include "base/AppPaths.h"
#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "base/clsConst.h"
#include "base/clsLibrary.h"
#include "print/ExportKind.h"
#include "print/ListFileWriter.h"
#include "print/ListWorkbookWriter.h"
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

void writeListFile(frmItiran& window) {
    DataList& list = window.list();
    const QString dec = clsConst::shared().DecimalSeparator();
    const QString title = clsLibrary::getFileTitleEx(list.trendView().window().Caption);
    const QString path = QFileDialog::getSaveFileName(&window, QString(), title,
                                                      qtFilter(ExportKind::dialogFilter(dec)));
    if (path.isEmpty()) return;
    const ExportKind::Kind kind = ExportKind::ofName(path);
    bool ok = false;
    if (kind == ExportKind::Txt || ExportKind::csvAllowed(dec)) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        frmProgress progress(&window);
        progress.show();
        ok = WriteListFile(list, kind, path, &progress);
        QApplication::restoreOverrideCursor();
    }
    if (!ok) {
        ShowMsg(kMsgWarning, MsgText(562) + QStringLiteral("\r\n") + path);
        return;
    }
    ShowMsg(kMsgInformation);
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
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

void installListExport() {
    frmItiran::setOutputCommand(8, writeListFile);
    frmItiran::setOutputCommand(9, writeListWorkbook);
}
