#pragma once

#include "recording/SelectionChooser.h"

#include <QDialog>

class QButtonGroup;
class QFileSystemModel;
class QLabel;
class QPushButton;
class QTreeView;
class QTreeWidget;

// The selection dialog: a folder tree, the files of the folder that match the family option
// (name, size in KB, date), and the list of the files chosen so far. btnSelect (or a double
// click) takes the marked files, btnUnSelect gives them back, btnRegister makes the chosen
// files the selection and closes. The rules and their messages are SelectionChooser's. The
// dialog starts in the folder of DPASS.ini and writes the folder back when it closes.
class dlgSelect final : public QDialog {
    Q_OBJECT
public:
    explicit dlgSelect(int viewNumber, QWidget* parent = nullptr);

    // The family option that is on (0..6, or 1 and 34 in GS mode).
    void setDispType(int family);
    int DispType() const;
    void setDirectory(const QString& dir);
    QString directory() const { return directory_; }

    // The file name pattern of a family option ("*.vxf", ..., "*.***" for TM).
    static QString pattern(int family);
    // The names of the files in `dir` that match the option's pattern, sorted by name.
    static QStringList matchingFiles(const QString& dir, int family);

    // The actions of the buttons, for the keyboard and for tests.
    void btnSelect_Click();
    void btnUnSelect_Click();
    void btnRegister_Click();
    void selectFiles(const QStringList& names);
    const SelectionChooser& chooser() const { return chooser_; }

    void done(int result) override;

private:
    void buildFolderTree();
    QWidget* buildOptions();
    void fillFiles();
    void fillChosen();

    int viewNumber_;
    bool gsMode_;
    SelectionChooser chooser_;
    QString directory_;
    QFileSystemModel* folders_;
    QTreeView* dirTree_;
    QLabel* lblPath_;
    QTreeWidget* lstFiles_;
    QTreeWidget* lstChosen_;
    QButtonGroup* options_;
    QPushButton* btnSelect_;
    QPushButton* btnUnSelect_;
    QPushButton* btnRegister_;
};
