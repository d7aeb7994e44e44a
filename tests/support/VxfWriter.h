#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

// Builds VX-family recorder files byte by byte from a small description, for tests and benchmarks.
namespace fixtures {

struct VxfChannel {
    QByteArray tag;  // cp932 bytes, up to 16
    QByteArray unit; // up to 9
    int colorCode = 0;
    bool expFormat = false;
    int decimals = 0;
    int number = -1; // slot byte of the channel number; -1: position - 1
};

// One sample: value and two alarm bytes; in minimum/maximum mode value is the minimum.
struct VxfSample {
    qint16 value = 0;
    quint8 alarm1 = 0;
    quint8 alarm2 = 0;
    qint16 max = 0;
};

struct VxfMessage {
    quint32 time = 0;
    quint32 tenths = 0;
    QByteArray text;
    quint32 type = 0;
};

struct VxfAlarmRecord {
    quint32 word0 = 0;
    quint32 word1 = 0;
    quint16 channel = 0;
    quint8 state = 0; // low 4 bits level, bits 4-5 kind
    quint8 mask = 0;
    quint16 value = 0; // the record's last two bytes
};

struct VxfDescription {
    QByteArray magic = QByteArray("VX2\0", 4);
    quint32 dataMode = 0;
    quint32 startTime = 0; // seconds since 2000-01-01
    quint8 startTenths = 0;
    quint32 intervalTenths = 10;
    QVector<VxfChannel> channels;
    QVector<QVector<VxfSample>> rows; // rows x channels
    QVector<VxfMessage> messages;
    quint32 messageSize = 44;
    QVector<VxfAlarmRecord> alarms;
    quint16 alarmSize = 14;
    QByteArray batchText;
    QByteArray batchHead;  // the batch block's head, at the layout's batch base (28 bytes)
    QByteArray batchBlock; // bytes after the alarm records: the batch texts
    QByteArray modelText;
    QByteArray versionText;
    quint32 rowPadding = 0; // extra bytes in RowSize beyond the samples
    std::optional<quint32> rowCount, messageCount, channelCount;
    std::optional<quint16> alarmCount;

    bool wide() const { return magic.startsWith("VX3") || magic.startsWith("W3N"); }
};

QByteArray buildVxf(const VxfDescription& d);

// A batch head: name (16 bytes), lot number (9), two flag bytes and the text count; and the
// texts behind the body: the titles, then the contexts, 16 bytes each.
QByteArray batchHead(const QByteArray& name, const QByteArray& lot, int count);
QByteArray batchTexts(const QList<QByteArray>& titles, const QList<QByteArray>& contexts);

// Writes bytes to a file; false on failure.
bool writeFile(const QString& path, const QByteArray& bytes);

// A simple recording: channels with tags "T1".., values from a function of (row, channel).
VxfDescription simpleVxf(int channels, int rows, quint32 startTime, quint32 intervalTenths,
                         qint16 (*value)(int row, int channel));

} // namespace fixtures
