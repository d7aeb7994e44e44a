#include "BenchFiles.h"

#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "support/VxfWriter.h"
#include "trend/TrendView.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <vector>

namespace BenchFiles {

namespace {

// A smooth process value with slow drifts, some noise, a burn-out on one channel and alarms.
void writeFile(const QString& path, int fileIndex, int rowCount) {
    fixtures::VxfDescription d = fixtures::simpleVxf(kChannelsPerFile, 0, 757382400, 10, nullptr);
    d.magic = QByteArray("VX3\0", 4);
    d.rowCount = quint32(rowCount);
    d.batchText = "BENCH-" + QByteArray::number(fileIndex + 1);
    QFile f(path + QStringLiteral(".part"));
    if (!f.open(QIODevice::WriteOnly)) return;
    f.write(fixtures::buildVxf(d));
    std::vector<uchar> block;
    const int blockRows = 4096;
    quint32 noise = 12345u + quint32(fileIndex);
    for (int r0 = 0; r0 < rowCount; r0 += blockRows) {
        const int rows = std::min(blockRows, rowCount - r0);
        block.assign(size_t(rows) * kChannelsPerFile * 4, 0);
        uchar* p = block.data();
        for (int r = r0; r < r0 + rows; ++r) {
            for (int c = 0; c < kChannelsPerFile; ++c, p += 4) {
                noise = noise * 1664525u + 1013904223u;
                const double phase = (r + 977.0 * c) / (3000.0 + 150.0 * c);
                double v = 5000 + 3000 * std::sin(phase) + 800 * std::sin(phase * 7.3) +
                           double(int(noise >> 24) - 128);
                qint16 raw = qint16(std::lround(v));
                if (c == 5 && r % 200000 > 199000) raw = 32766; // a burn-out episode
                p[0] = uchar(raw), p[1] = uchar(quint16(raw) >> 8);
                p[2] = v > 8300 ? 0x03 : 0x00; // level 1 active, kind 1
            }
        }
        f.write(reinterpret_cast<const char*>(block.data()), qint64(block.size()));
    }
    f.close();
    QFile::remove(path);
    QFile::rename(path + QStringLiteral(".part"), path);
}

} // namespace

QString defaultDir() {
    return QDir::tempPath() + QStringLiteral("/recview-bench");
}

QStringList ensureRecording(const QString& dir, int rows) {
    QDir().mkpath(dir);
    QStringList paths;
    for (int i = 0; i < 2; ++i) {
        const QString length = rows == kRows ? QString() : QStringLiteral("-%1").arg(rows);
        const QString path = dir + QStringLiteral("/bench%1%2.vxf").arg(i + 1).arg(length);
        const qint64 expected = 2640 + qint64(rows) * kChannelsPerFile * 4;
        if (QFileInfo(path).size() != expected) writeFile(path, i, rows);
        paths << path;
    }
    return paths;
}

std::unique_ptr<TrendView> openView(const QStringList& files) {
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine(files), false);
    copySelectionToView(views(1));
    if (!LoadRecording(views(1), LoadOptions()).ok()) return nullptr;
    auto view = std::make_unique<TrendView>(1);
    if (!view->afterLoad()) return nullptr;
    return view;
}

} // namespace BenchFiles
