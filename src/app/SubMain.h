#pragma once

#include <QString>

// What start-up asks of the platform and the windows; the desktop program and tests provide it.
class StartupHost {
public:
    virtual ~StartupHost() = default;
    // Is another instance of the program already running?
    virtual bool anotherInstanceRunning() = 0;
    // The command line: the file arguments, quoted or blank separated; "" for none.
    virtual QString commandLine() = 0;
    // Fills the selection lists from the command line; returns the file count.
    virtual int ParseCommandFiles(const QString& commandLine) = 0;
    // Writes the hand-off file; a failure is the host's to swallow.
    virtual void WriteClickFile() = 0;
    virtual void showTrMdiForm() = 0;
    virtual void setHelpFile(const QString& path) = 0;
    // Page margins 567, header and footer sets empty, font size 10.
    virtual void setPrintDefaults() = 0;
    virtual void showFrmMain() = 0;
};

enum class StartResult {
    SecondInstanceEnded, // the process ends now, showing nothing
    Started,             // the windows carry the program from here
};

// The entry procedure, step by step: shared objects, application paths and work directories,
// the instance test (a second instance hands its files over and ends), TrMdiForm, the operation
// mode, help file, print defaults, group names, removal of a stale hand-off file, the command
// line, frmMain, and AppStarted.
StartResult SubMain(StartupHost& host);

bool AppStarted();
