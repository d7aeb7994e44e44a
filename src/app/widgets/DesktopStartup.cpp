#include "app/widgets/DesktopStartup.h"

#include "app/ClickFile.h"
#include "app/widgets/TrMdiForm.h"
#include "app/widgets/frmMain.h"
#include "app/widgets/frmVersion.h"
#include "base/clsCommon.h"
#include "recording/CommandFiles.h"
#include "recording/SelectionLists.h"

DesktopStartup::DesktopStartup(const QStringList& files, const QString& socketPath)
    : files_(files), instance_(socketPath) {}

DesktopStartup::~DesktopStartup() = default;

bool DesktopStartup::anotherInstanceRunning() {
    return instance_.anotherInstanceRunning();
}

QString DesktopStartup::commandLine() {
    return files_.isEmpty() ? QString() : CommandFiles::quotedCommandLine(files_);
}

int DesktopStartup::ParseCommandFiles(const QString& commandLine) {
    CommandFiles::ParseCommandFiles(commandLine, clsCommon::shared().isGsMode());
    return selection().SelFileCount;
}

void DesktopStartup::WriteClickFile() {
    // A failure is not reported: the second instance ends all the same.
    ::WriteClickFile(selection());
}

void DesktopStartup::showTrMdiForm() {
    frame_ = std::make_unique<TrMdiForm>();
    frame_->show();
}

void DesktopStartup::setHelpFile(const QString& path) {
    ::setHelpFile(path);
}

void DesktopStartup::setPrintDefaults() {
    // The print settings take their defaults here once printing is part of the program.
}

void DesktopStartup::showFrmMain() {
    main_ = new frmMain(frame_.get());
    main_->Form_Load();
}
