#include "recording/MsgFiles.h"

#include "base/TimeBase.h"
#include "recording/Cp932.h"
#include "recording/ReaderFrame.h"

namespace {

constexpr qsizetype kRecordSize = 44;
constexpr int kMaxRecords = 200;
constexpr int kMessageType = 7;

// The leading digits of a field as a number; a field without any counts as 0.
int fieldValue(const QByteArray& record, int at, int length) {
    int value = 0;
    for (int i = at; i < at + length && record[i] >= '0' && record[i] <= '9'; ++i)
        value = value * 10 + (record[i] - '0');
    return value;
}

// Two-digit years 00..29 are 2000..2029, the others 1930..1999.
int fullYear(int yy) {
    return yy < 30 ? 2000 + yy : 1900 + yy;
}

void readMsgFile(ViewState& view, const QByteArray& bytes) {
    // The 4-byte magic is passed over; the rest is records of 44 characters.
    for (int i = 0; i < kMaxRecords; ++i) {
        const qsizetype at = 4 + kRecordSize * i;
        if (at >= bytes.size()) break;
        QByteArray record = bytes.mid(at, kRecordSize);
        record.append(QByteArray(kRecordSize - record.size(), ' '));
        if (record.replace('\0', ' ').trimmed().isEmpty()) continue;
        ViewMessage m;
        m.time = TimeBase::serialSeconds(
            fullYear(fieldValue(record, 0, 2)), fieldValue(record, 2, 2), fieldValue(record, 4, 2),
            fieldValue(record, 6, 2), fieldValue(record, 8, 2), fieldValue(record, 10, 2));
        m.msec = 0;
        m.text = Cp932::decode(record.mid(12, 30)).trimmed();
        m.type = kMessageType;
        view.ViewMessages.append(m);
    }
}

} // namespace

void ReadMsgFiles(ViewState& view) {
    for (const QString& path : view.MessageFiles) {
        QByteArray bytes;
        // A message file that cannot be read adds nothing.
        if (readWholeFile(path, bytes)) readMsgFile(view, bytes);
    }
}
