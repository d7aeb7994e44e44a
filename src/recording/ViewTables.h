#pragma once

#include "recording/ChannelTable.h"
#include "recording/RecordingLimits.h"
#include "recording/ViewRecords.h"
#include "recording/clsStorage.h"

#include <QString>
#include <QStringList>
#include <QVector>

// Everything the program keeps about the recording of one view (1..MaxViews).
struct ViewTables {
    // The files of the view, copied from the selection; readers overwrite what files say.
    int FileCount = 0;
    QVector<QString> FileName;
    QVector<qint64> FileStart;
    QVector<int> FileStartMsec;
    int FileInterval = 0;
    int FileType = 0; // family code of the selection
    QStringList MessageFiles; // MSG files dropped on the view

    clsStorage Storage;
    clsDataFileProperty DataProperty;
    QString FileMagic;
    QString ColorMapMagic; // first three magic characters of the first file
    QVector<QString> BatchTexts;
    bool Loading = false;
    bool Loaded = false;
    bool NoDataFlag = false;
    bool IrregularTime = false;
    bool BatchInfoFound = false; // enables the view's batch button

    qint32 PointCount = 0;
    qint32 ViewShownPoints = 0;
    qint16 ViewRowCount = 0;
    qint16 ChannelCount = 0;
    qint16 ChannelCountOrig = 0;
    qint32 SampleInterval = 0;
    qint64 ViewStart = 0;
    int ViewStartMsec = 0;
    QString ViewTitle;
    bool ViewCancel = false;
    ViewAlarmEvents AlarmEvents;
    QVector<ViewMessage> ViewMessages;
    ChannelTable Channels;

    // Empties the recording (store, tables, channel table); the file list stays.
    void clearRecording();
};

// The per-view tables of views 1..MaxViews.
ViewTables& views(int viewNumber);
