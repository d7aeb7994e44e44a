#include "app/WindowRules.h"

#include "app/ClickFile.h"

#include <QFile>

namespace WindowRules {

std::optional<QRect> restoredGeometry(const QRect& saved, const QRect& screen) {
    if (saved.width() < 320 || saved.height() < 240 || !screen.intersects(saved))
        return std::nullopt;
    return saved.intersected(screen);
}

int tilingMode(int button, int openViews) {
    return openViews == 1 ? 1 : button - 2;
}

QVector<QRect> tiles(int mode, int count, const QRect& area) {
    QVector<QRect> out;
    for (int i = 0; i < count; ++i) {
        if (mode == 0) {
            const int left = area.width() * i / count;
            out << QRect(area.left() + left, area.top(), area.width() * (i + 1) / count - left,
                         area.height());
        } else {
            const int top = area.height() * i / count;
            out << QRect(area.left(), area.top() + top, area.width(),
                         area.height() * (i + 1) / count - top);
        }
    }
    return out;
}

HandOff handOffStep(const HandOffPoll& poll) {
    if (!poll.started || poll.anyViewLoading) return HandOff::Later;
    if (!poll.fileWaiting) return HandOff::Nothing;
    if (poll.settingsOpen || poll.freeView == 0) return HandOff::Discard;
    return HandOff::Open;
}

bool takeClickFile(SelectionLists& sel, const QString& path) {
    const bool read = ReadClickFile(sel, path);
    QFile::remove(path);
    return read;
}

} // namespace WindowRules
