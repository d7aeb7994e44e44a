#include "base/HelpPages.h"

#include "base/AppPaths.h"

namespace HelpPages {

namespace {

struct Entry {
    const char* window;
    const char* page;
};

const Entry kPages[] = {
    {"frmMain", "index.html"},
    {"dlgSelect", "opening.html"},
    {"frmGroupNameDialog", "opening.html"},
    {"TrMdiForm", "trend.html"},
    {"frmScrollTime", "trend.html"},
    {"frmTimeAxisSetting", "trend.html"},
    {"frmMultiScaleSet", "trend.html"},
    {"frmYAxesStyle", "trend.html"},
    {"frmXlblSet", "trend.html"},
    {"frmAlarmSymbolSetting", "trend.html"},
    {"frmItiran", "lists.html"},
    {"frmMarkerView", "lists.html"},
    {"frmMarkerViewSetting", "lists.html"},
    {"frmSearch", "lists.html"},
    {"frmCalcLineSet", "lists.html"},
    {"frmBatchInfo", "lists.html"},
    {"frmPrintSet", "lists.html"},
    {"ftpForm", "recorders.html"},
    {"ftpSetForm", "recorders.html"},
    {"ftpDataForm", "recorders.html"},
    {"ftpDir", "recorders.html"},
    {"frmEthernet", "recorders.html"},
    {"frmIpInput", "recorders.html"},
};

} // namespace

QString pageName(const QString& window) {
    for (const Entry& e : kPages)
        if (window == QLatin1String(e.window)) return QString::fromLatin1(e.page);
    return QStringLiteral("index.html");
}

QString pagePath(const QString& window) {
    const QString page = shippedFile(QStringLiteral("help/") + pageName(window));
    return page.isEmpty() ? shippedFile(QStringLiteral("help/index.html")) : page;
}

} // namespace HelpPages
