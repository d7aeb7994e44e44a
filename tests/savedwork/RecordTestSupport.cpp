#include "RecordTestSupport.h"

#include "recording/ViewSlots.h"

#include <QDir>
#include <QFile>

#include <bit>

namespace {

void emptyView(int view) {
    views(view).clearRecording();
    trendState(view).reset();
    clearViewSlots();
}

} // namespace

void RecordDirs::SetUp() {
    ASSERT_TRUE(root_.isValid());
    const QStringList dirs{QStringLiteral("TrndSet"), QStringLiteral("TrndWork"),
                           QStringLiteral("Work")};
    for (int i = 0; i < dirs.size(); ++i) {
        const QString dir = root_.path() + QLatin1Char('/') + dirs[i] + QLatin1Char('/');
        ASSERT_TRUE(QDir().mkpath(dir));
        setAppPath(i + 1, dir);
    }
    emptyView(kView);
}

void RecordDirs::TearDown() {
    emptyView(kView);
}

void RecordDirs::carryOver(const QString& name) {
    QFile::remove(AppPaths(2) + name);
    ASSERT_TRUE(QFile::copy(AppPaths(1) + name, AppPaths(2) + name));
}

namespace RecordBytesAt {

qint64 le(const QByteArray& bytes, qsizetype offset, int width) {
    quint64 v = 0;
    for (int i = 0; i < width; ++i) v |= quint64(quint8(bytes.at(offset + i))) << (8 * i);
    if (width < 8 && (v >> (8 * width - 1)) & 1) v |= ~quint64(0) << (8 * width); // sign
    return qint64(v);
}

double f64(const QByteArray& bytes, qsizetype offset) {
    return std::bit_cast<double>(le(bytes, offset, 8));
}

void putLe(QByteArray& bytes, qsizetype offset, int width, qint64 value) {
    for (int i = 0; i < width; ++i) bytes[offset + i] = char((quint64(value) >> (8 * i)) & 0xFF);
}

QByteArray readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeAll(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(f.write(bytes), bytes.size());
}

} // namespace RecordBytesAt
