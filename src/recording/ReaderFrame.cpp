#include "recording/ReaderFrame.h"

#include "base/LanguageTable.h"

#include <QFile>

#include <algorithm>

void ReaderFrame::poll(int fileIndex, qint64 row, qint64 rows) const {
    if (options_.progress) {
        const double done = fileIndex + double(row) / double(std::max<qint64>(rows, 1));
        options_.progress->setValue(int(done * 50 / std::max(view_.FileCount, 1)));
        if (options_.progress->poll()) view_.ViewCancel = true;
    }
    if (view_.ViewCancel) {
        view_.ViewCancel = false;
        if (options_.confirmCancel()) throw LoadCancelled();
    }
}

void ReaderFrame::begin() const {
    // Nothing of an earlier load of this view carries over: recording and per-view parts alike.
    view_.reset();
    view_.Loading = true;
    view_.ViewCancel = false;
}

LoadOutcome ReaderFrame::finish(bool firstIsVxf) const {
    finishLoad(view_, firstIsVxf);
    view_.Loading = false;
    if (view_.PointCount == 0) return fail(LoadOutcome::Status::Empty, MsgId(578));
    view_.Loaded = true;
    return {};
}

LoadOutcome ReaderFrame::fail(LoadOutcome::Status status, int message,
                              const QString& detail) const {
    view_.clearRecording();
    view_.Loading = false;
    return {status, message, detail};
}

bool readWholeFile(const QString& path, QByteArray& out) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    out.resize(file.size());
    return file.read(out.data(), out.size()) == out.size();
}
