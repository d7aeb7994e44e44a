#pragma once

#include <QString>
#include <QVector>

// One record of a file's alarm history. Times are texts as the file gives them: the date and
// time of an event, or on a continuing record of a sequence its plain first word.
struct AlarmEvent {
    QString EventTime;
    QString EventMsec;
    QString EventChannel;
    int EventKind = 0; // 0 closes the sequence
    int EventLevel = 0;
    int EventMaskHigh = 0;
    int EventMaskLow = 0;
    QString EventValue;
};
using AlarmSequence = QVector<AlarmEvent>;

// Alarm history of a view: per file, its sequences.
struct ViewAlarmEvents {
    QVector<QVector<AlarmSequence>> files;
    int sequenceCount = 0;
    bool any() const { return sequenceCount > 0; }
    void clear() { *this = ViewAlarmEvents(); }
};

// One row of a view's message list.
struct ViewMessage {
    qint64 time = 0; // seconds since 2000-01-01
    int msec = 0;
    QString text;
    int type = 0;
};

// Text properties of the first VXF file, for the file property dialog.
struct clsDataFileProperty {
    qint64 start = 0;
    qint64 end = 0;
    int intervalTenths = 0; // sampling in 0.1 s; its text is made where it is shown
    qint64 rowCount = 0;
    QString typeText;
    QString modelText;
    QString versionText;
    QString fileName;
    bool filled = false;
};
