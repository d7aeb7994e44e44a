#include "print/widgets/PrintCommands.h"

#include "analysis/widgets/frmBatchInfo.h"
#include "analysis/widgets/frmItiran.h"
#include "analysis/widgets/frmMarkerView.h"
#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "platform/PrintOutput.h"
#include "print/ListPrint.h"
#include "print/PrintSetting.h"
#include "print/clsBatchUtil.h"
#include "print/widgets/SPRDprint.h"
#include "recording/ViewState.h"
#include "recording/clsBatchInfo.h"
#include "recording/widgets/frmProgress.h"
#include "trend/widgets/frmScrollTime.h"

#include <QFile>
#include <QFileDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include <functional>

namespace {

using SheetPrint = std::function<bool(PrintOutput&, Progress*)>;

void settings(QWidget* window, int pages = 1) {
    if (!IsPrinterInstalled()) return;
    SPRDprint dialog(pages, window);
    dialog.exec();
}

// Prints to the chosen printer, or to a PDF file under a temporary name renamed when complete;
// the window is disabled meanwhile.
void print(QWidget* window, const SheetPrint& sheet) {
    if (!IsPrinterInstalled()) return;
    const PrintSetting& s = PrintSetting::shared();
    window->setEnabled(false);
    frmProgress progress(window);
    bool ok = false;
    QString target;
    if (s.Printer.isEmpty()) {
        target = QFileDialog::getSaveFileName(window, QString(), QString(),
                                              QStringLiteral("PDF (*.pdf)"));
        if (!target.isEmpty())
            ok = printToPdfFile(target, [&](PrintOutput& out) { return sheet(out, &progress); });
    } else {
        QPrinter printer;
        printer.setPrinterName(s.Printer);
        PainterOutput out(printer);
        ok = sheet(out, &progress);
        target = s.Printer;
    }
    window->setEnabled(true);
    if (!ok && !target.isEmpty())
        ShowMsg(kMsgWarning, MsgText(562) + QStringLiteral("\r\n") + target);
}

void preview(QWidget* window, const SheetPrint& sheet) {
    if (!IsPrinterInstalled()) return;
    QPrinter printer;
    QPrintPreviewDialog dialog(&printer, window);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, window, [&](QPrinter* p) {
        PainterOutput out(*p);
        sheet(out, nullptr);
    });
    dialog.exec();
}

void installBatchCommands() {
    const auto table = [](frmBatchInfo& w) {
        return SheetPrint([&w](PrintOutput& out, Progress* p) {
            return PrintBatchTable(w.viewNumber(), PrintSetting::shared().sheetSettings(), out, p);
        });
    };
    const auto report = [](frmBatchInfo& w) {
        return SheetPrint([&w](PrintOutput& out, Progress*) {
            auto* view = qobject_cast<frmScrollTime*>(w.parentWidget());
            if (!view) return false;
            ViewState& t = views(w.viewNumber());
            return clsBatchUtil::print(out, t.part<clsBatchInfo>(), view->trend(),
                                       t.FileName.value(0));
        });
    };
    frmBatchInfo::setCommand(0, [](frmBatchInfo& w) { settings(&w); });
    frmBatchInfo::setCommand(1, [table](frmBatchInfo& w) { print(&w, table(w)); });
    frmBatchInfo::setCommand(2, [report](frmBatchInfo& w) { preview(&w, report(w)); });
    frmBatchInfo::setCommand(3, [report](frmBatchInfo& w) { print(&w, report(w)); });
}

} // namespace

void installPrintCommands() {
    const auto list = [](frmItiran& w) {
        return SheetPrint([&w](PrintOutput& out, Progress* p) {
            return PrintList(w.list(), PrintSetting::shared().sheetSettings(), out, p);
        });
    };
    const auto marker = [](frmMarkerView& w) {
        return SheetPrint([&w](PrintOutput& out, Progress* p) {
            return PrintMarkerView(w.marker(), PrintSetting::shared().sheetSettings(), out, p);
        });
    };
    frmItiran::setOutputCommand(5, [](frmItiran& w) {
        settings(&w, ListPageCount(w.list(), PrintSetting::shared().sheetSettings()));
    });
    frmItiran::setOutputCommand(7, [list](frmItiran& w) { print(&w, list(w)); });
    frmMarkerView::setOutputCommand(10, [](frmMarkerView& w) { settings(&w); });
    frmMarkerView::setOutputCommand(11, [marker](frmMarkerView& w) { preview(&w, marker(w)); });
    frmMarkerView::setOutputCommand(12, [marker](frmMarkerView& w) { print(&w, marker(w)); });
    installBatchCommands();
}
