#pragma once

#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/RowPlacement.h"
#include "recording/SelectionLists.h"
#include "support/RecordingFixture.h"

#include <QStringList>

#include <gtest/gtest.h>

// Opens files as the command line does into view 1 and loads them.
inline LoadOutcome loadFiles(const QStringList& paths, bool gsMode = false,
                             LoadOptions options = {}) {
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine(paths), gsMode);
    ViewState& view = views(1);
    copySelectionToView(view);
    options.gsMode = gsMode;
    return LoadRecording(view, options);
}

inline QString cellText(int col, int row, int view = 1) {
    QString t;
    views(view).Storage.GetText(col, row, t);
    return t;
}

// Reader tests: a scratch folder, view 1, and rows placed by time.
class RecordingTest : public ::testing::Test {
protected:
    FixtureDir dir;
    const ViewState& view = views(1);
};
