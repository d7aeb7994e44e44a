#pragma once

#include "savedwork/RecordBytes.h"
#include "savedwork/RecordNames.h"

#include <QString>

// What the four archive record classes share: an old and a new layout of one record file in
// the archive work directory, told apart by length alone.
template <typename OldT, typename NewT> class RecordPair {
public:
    OldT OldRecord;
    NewT NewRecord;

    // Whether the file has the old (new) length; the answer is also returned.
    bool CheckOldFileSize(bool& result) const {
        result = RecordFile::hasLength(path(), OldT::kLength);
        return result;
    }
    bool CheckNewFileSize(bool& result) const {
        result = RecordFile::hasLength(path(), NewT::kLength);
        return result;
    }
    // Reads the old record; what the file lacks reads as zero. False when it cannot be read.
    bool ReadFile() {
        QByteArray bytes;
        if (!RecordFile::read(path(), bytes)) return false;
        OldRecord.fromBytes(bytes);
        return true;
    }
    // Writes the new record.
    bool WriteFile() const { return RecordFile::write(path(), NewRecord.toBytes()); }

protected:
    explicit RecordPair(QString fileName) : fileName_(std::move(fileName)) {}

private:
    QString path() const { return RecordNames::readPath(fileName_); }

    QString fileName_;
};
