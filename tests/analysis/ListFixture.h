#pragma once

#include "analysis/DataList.h"
#include "analysis/GridModel.h"
#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "support/QdfWriter.h"
#include "support/RecordingFixture.h"
#include "support/RecordingMessageSink.h"
#include "support/VxfWriter.h"
#include "trend/AlarmMarks.h"
#include "trend/TrendView.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace listtest {

// Alarm bytes of the VX form: level 1 (or 3) in the low half, level 2 (or 4) in the high half.
constexpr quint8 alarmByte(int lowKind, int highKind = 0) {
    return quint8((lowKind ? 1 | lowKind << 1 : 0) | (highKind ? 0x10 | highKind << 5 : 0));
}

// A recorder file opened into a view as the trend window does it (selection, store, trend
// fill, alarm table), and the data list of that view over a grid, loaded as its window loads.
struct ListView {
    ListView(const QString& name, const QByteArray& bytes, int number = 1)
        : ListView(std::vector<std::pair<QString, QByteArray>>{{name, bytes}}, number) {}
    // Several files opened together (joined side by side when their batch texts differ).
    explicit ListView(const std::vector<std::pair<QString, QByteArray>>& files, int number = 1) {
        QStringList paths;
        for (const auto& [name, bytes] : files) paths << dir.write(name, bytes);
        selection().clear();
        CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine(paths), false);
        copySelectionToView(views(number));
        trendState(number).reset();
        LoadRecording(views(number), LoadOptions());
        view = std::make_unique<TrendView>(number);
        shown = view->afterLoad();
        AlarmMarks(*view).afterLoad();
        list = std::make_unique<DataList>(*view, grid);
        list->load();
    }
    explicit ListView(const fixtures::VxfDescription& d, int number = 1)
        : ListView(QStringLiteral("list.vxf"), fixtures::buildVxf(d), number) {}

    QString cell(int col, qint32 row) { return grid.text(col, row); }
    DataListState& state() { return list->state(); }
    ChartModel& chart() { return view->chart(); }

    RecordingMessageSink sink;
    FixtureDir dir;
    std::unique_ptr<TrendView> view;
    GridModel grid;
    std::unique_ptr<DataList> list;
    bool shown = false;
};

// Channel values of a recording: the row number on channel 1, ten times it on channel 2.
inline qint16 rowValue(int row, int channel) {
    return qint16(channel == 1 ? row : 10 * row);
}

// A VXF recording of `rows` samples at 1 s over two channels (one decimal) of rowValue.
inline fixtures::VxfDescription twoChannels(int rows) {
    return fixtures::simpleVxf(2, rows, 86400 * 40, 10, rowValue);
}

} // namespace listtest
