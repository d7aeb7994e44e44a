#pragma once

#include "recording/SelectionLists.h"

#include <QList>
#include <QString>
#include <QStringList>

// The rules of the selection dialog: taking files into the chosen list and registering them as
// the selection. Refusals are shown as boxes of kind 2 with caption message 217.
class SelectionChooser {
public:
    struct Entry {
        QString path;
        int family = 0; // the option's family; 99 for a message file
        qint64 start = 0;
        int msec = 0;
        qint32 interval = 0;
    };

    explicit SelectionChooser(bool gsMode) : gsMode_(gsMode) {}

    // Takes one file with the family of the option that is on; returns the message number of
    // the refusal (0 when taken or silently passed over).
    int take(const QString& path, int family);
    void unselect(int index);
    const QList<Entry>& chosen() const { return chosen_; }
    // Off once a CSV file is chosen: a CSV view has one file.
    bool selectEnabled() const { return selectEnabled_; }

    // Closes the dialog with the chosen files in start order as the selection; false when the
    // dialog stays (empty list, or "No" to the size warning, which empties the selection).
    bool registerSelection(const QString& directory, SelectionLists& sel = selection());
    const QString& directory() const { return directory_; }
    const QString& viewTitle() const { return viewTitle_; }
    QStringList messageFiles() const;

    // Channels x points of a file as its head tells, for the size warning.
    static qint64 dataSize(const QString& path, int family, bool gsMode);

private:
    int refuse(int message);

    bool gsMode_;
    bool selectEnabled_ = true;
    QList<Entry> chosen_;
    QString directory_;
    QString viewTitle_;
};
