#include "print/widgets/ListExportCommands.h"

#include "analysis/DataList.h"
#include "analysis/widgets/frmItiran.h"
#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "base/clsConst.h"
#include "base/clsLibrary.h"
#include "print/ExportKind.h"
#include "print/ListFileWriter.h"
#include "recording/widgets/frmProgress.h"
#include "trend/TrendView.h"

#include <QApplication>
#include <QDesktopServices>
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

} // namespace

void installListExport() {
    frmItiran::setOutputCommand(8, writeListFile);
}
