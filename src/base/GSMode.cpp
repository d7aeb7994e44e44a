#include "base/GSMode.h"

#include "base/AppPaths.h"
#include "base/PathChecks.h"
#include "base/clsCommon.h"
#include "base/clsLibrary.h"

GSModeState& GSMode() {
    static GSModeState state;
    return state;
}

int selectOperationMode() {
    GSModeState& gs = GSMode();
    gs.GSModePath = AppPaths(0);
    clsCommon::shared().setOperationMode(clsCommon::kStandardMode);
    if (FileExists(AppPaths(0) + gs.GSModeFileName))
        clsCommon::shared().setOperationMode(clsCommon::kGsMode);
    if (clsCommon::shared().isGsMode()) {
        gs.GSTitleSuffix = QStringLiteral(" MOVRA for GS");
        QString title;
        bool found = false;
        clsLibrary::getFileParam(QStringLiteral("frmMain"), QStringLiteral("Title"), title, found);
        gs.GSMainTitle = title;
    } else {
        gs.GSTitleSuffix.clear();
    }
    return clsCommon::shared().OperationMode();
}

QString mainWindowTitle(const QString& normalTitle) {
    const GSModeState& gs = GSMode();
    if (clsCommon::shared().isGsMode() && !gs.GSMainTitle.isEmpty()) return gs.GSMainTitle;
    return normalTitle;
}
