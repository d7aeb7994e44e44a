#pragma once

#include "app/SubMain.h"
#include "app/widgets/SingleInstance.h"

#include <QStringList>

#include <memory>

class TrMdiForm;
class frmMain;

// Start-up of the desktop program over Qt: the instance test on the per-user socket, the
// command line of the process, the hand-off file, and the two windows.
class DesktopStartup final : public StartupHost {
public:
    explicit DesktopStartup(const QStringList& files,
                            const QString& socketPath = SingleInstance::defaultSocketPath());
    ~DesktopStartup() override;

    bool anotherInstanceRunning() override;
    QString commandLine() override;
    int ParseCommandFiles(const QString& commandLine) override;
    void WriteClickFile() override;
    void showTrMdiForm() override;
    void setHelpFile(const QString& path) override;
    void setPrintDefaults() override;
    void showFrmMain() override;

    TrMdiForm* frame() const { return frame_.get(); }
    frmMain* main() const { return main_; }

private:
    QStringList files_;
    SingleInstance instance_;
    std::unique_ptr<TrMdiForm> frame_;
    frmMain* main_ = nullptr; // lives on the frame
};
