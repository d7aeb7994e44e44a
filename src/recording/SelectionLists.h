#pragma once

#include <QString>
#include <QVector>

// The files that are to be opened next, checked and of one family. Views copy it when they open.
struct SelectionLists {
    QVector<QString> SelFileName;
    QVector<qint64> SelStart; // seconds since 2000-01-01 00:00:00
    QVector<int> SelStartMsec;
    int SelFileCount = 0;
    qint32 SelInterval = 0; // milliseconds
    int SelFileType = 0;    // family code

    void clear() { *this = SelectionLists(); }
    void append(const QString& path, qint64 start, int msec) {
        SelFileName.append(path);
        SelStart.append(start);
        SelStartMsec.append(msec);
        SelFileCount = int(SelFileName.size());
    }
};

// The one selection of the program.
SelectionLists& selection();
