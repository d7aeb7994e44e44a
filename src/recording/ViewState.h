#pragma once

#include "recording/ChannelTable.h"
#include "recording/RecordingLimits.h"
#include "recording/ViewRecords.h"
#include "recording/clsStorage.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <typeindex>
#include <unordered_map>

// Everything the program keeps about one view (1..MaxViews): its files and recording here, and
// what the layers above keep per view (trend state, alarm table, lists ...) as parts, so that one
// reset() starts a view afresh wherever its state lives.
struct ViewState {
    // The files of the view, copied from the selection; readers overwrite what files say.
    int FileCount = 0;
    QVector<QString> FileName;
    QVector<qint64> FileStart;
    QVector<int> FileStartMsec;
    int FileInterval = 0;
    int FileType = 0;         // family code of the selection
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
    // A fresh view about to load its file list: the recording emptied and every part back to
    // its defaults. Parts keep their addresses.
    void reset();
    // A fresh view with no files: what a closed view's slot, or a new window in it, starts from.
    void clear();

    // The part of type T of this view, made with its defaults on first use.
    template <typename T> T& part() {
        auto it = parts_.find(std::type_index(typeid(T)));
        if (it == parts_.end())
            it = parts_.emplace(std::type_index(typeid(T)), std::make_unique<Part<T>>()).first;
        return static_cast<Part<T>&>(*it->second).value;
    }

private:
    struct PartBase {
        virtual ~PartBase() = default;
        virtual void reset() = 0;
    };
    template <typename T> struct Part final : PartBase {
        T value;
        void reset() override { value = T(); }
    };
    std::unordered_map<std::type_index, std::unique_ptr<PartBase>> parts_;
};

// The state of views 1..MaxViews; a number outside that range reaches the nearest view.
ViewState& views(int viewNumber);
