#include "app/SubMain.h"

#include "app/StartFiles.h"
#include "base/AppPaths.h"
#include "base/GSMode.h"
#include "base/clsCommon.h"
#include "base/clsConst.h"
#include "base/clsLibrary.h"
#include "recording/ViewSlots.h"

namespace {

bool& appStarted() {
    static bool started = false;
    return started;
}

} // namespace

bool AppStarted() {
    return appStarted();
}

StartResult SubMain(StartupHost& host) {
    clsConst::shared();
    clsCommon& common = clsCommon::shared();
    setAppPath(0, programDirectory());
    const QString dataFolder = clsLibrary::getSPFolder(26);
    setWorkPaths(dataFolder, common.OperationMode());
    createWorkDirectories();

    if (host.anotherInstanceRunning()) {
        const QString commandLine = host.commandLine();
        if (!commandLine.trimmed().isEmpty() && FirstFreeView() > 0 &&
            host.ParseCommandFiles(commandLine) > 0)
            host.WriteClickFile();
        return StartResult::SecondInstanceEnded;
    }

    host.showTrMdiForm();
    selectOperationMode();
    host.setHelpFile(AppPaths(0) + QStringLiteral("DataAnalysis.chm"));
    host.setPrintDefaults();
    LoadGroupNames();
    removeStaleClickFile();
    const QString commandLine = host.commandLine();
    if (!commandLine.trimmed().isEmpty()) host.ParseCommandFiles(commandLine);
    host.showFrmMain();
    appStarted() = true;
    return StartResult::Started;
}
