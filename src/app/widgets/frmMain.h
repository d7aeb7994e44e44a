#pragma once

#include <memory>

#include "recording/FileRecognition.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class QLabel;
class QMenu;
class QStatusBar;
class QTimer;
class FTPFile;
class ftpDataForm;
class QToolBar;
class TrMdiForm;
class ViewForms;
class frmScrollTime;

// The always-present part of the program, placed on the frame: the tool bar Toolbar1, the
// status bars, Label2 (the family opened last), the window menu PopMenu1, and the timers
// timDoubleClick (the hand-off of a second instance), timWindow (brings a new view forward) and
// timFTP (scheduled collection). It opens views from the selection, from drops and from the
// hand-off file.
class frmMain final : public QObject {
    Q_OBJECT
public:
    static constexpr int kDoubleClickPollMs = 500;

    explicit frmMain(TrMdiForm* frame);
    ~frmMain() override;

    // The load of the window: its stored position, title and texts, ShowPoints.ini, the timers,
    // and the selection that waits from the command line.
    void Form_Load();
    // The end of the program: the window's position and the collection settings are kept.
    void Form_Unload();

    // Makes view `number` show the selection; false when nothing could be shown.
    bool OpenView(int number);
    // The Toolbar1 commands by button index (1 new view, 2 and 3 tiling, 4 FTP, 5 scheduled
    // collection, 7 version, 8 help).
    void Toolbar1_ButtonClick(int index);
    // New view: with no view open view 1; otherwise the row chosen in frmGroupNameDialog.
    // Returns the view shown, 0 for none.
    int NewView();

    // Files dropped on the frame open in a new view; dropped on a view, in that view.
    void dropOnMain(const QStringList& paths);
    void dropOnView(int viewNumber, const QStringList& paths);

    void timDoubleClick_Timer();
    void timWindow_Timer();
    void timFTP_Timer();

    frmScrollTime* ViewForm(int n) const;
    int openViewCount() const;
    TrMdiForm* frame() const { return frame_; }
    QString Label2Text() const;

private:
    void buildToolbar();
    void buildMenu();
    void setTexts();
    void restoreWindow();
    void saveWindow();
    void writeFtpSettings();
    bool settingsWindowOpen() const;
    bool anyViewLoading() const;
    bool openFilesInto(int viewNumber);

    TrMdiForm* frame_;
    ViewForms* forms_;
    QToolBar* Toolbar1_ = nullptr;
    QStatusBar* StatusBar1_ = nullptr;
    QLabel* StatusBar2_ = nullptr;
    QLabel* Label2_ = nullptr;
    QMenu* PopMenu1_ = nullptr;
    QTimer* timDoubleClick_;
    QTimer* timWindow_;
    QTimer* timFTP_;
    // The collection: the table read at start, and its window, made on first use and hidden.
    std::unique_ptr<FTPFile> ftpFile_;
    QPointer<ftpDataForm> dataForm_;
    ftpDataForm& dataForm();
    int pendingView_ = 0;
    bool unloaded_ = false;
};

// familyWord (the word shown for the family of a selection) is in recording/FileRecognition.h.
