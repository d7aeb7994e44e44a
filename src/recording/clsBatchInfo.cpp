#include "recording/clsBatchInfo.h"

#include "base/LanguageTable.h"
#include "recording/RecorderText.h"

#include <QDataStream>
#include <QFile>
#include <QSaveFile>

namespace {

constexpr quint32 kMagic = 0x48544142; // "BATH"
constexpr quint32 kVersion = 1;

QString text(const FileBytes& b, qint64 offset, qint64 length) {
    b.require(offset, length);
    return RecorderText::decode(b.data(), b.size(), offset, length, ActiveLanguage() == kJapanese);
}

} // namespace

bool clsBatchInfo::ReadBatchInfo(qint64 headOffset, qint64 textOffset, const FileBytes& b) {
    clear();
    try {
        clsBatchInfo read;
        read.name_ = text(b, headOffset, 16);
        read.lot_ = text(b, headOffset + 16, 9);
        read.flag0_ = b.ReadByte(headOffset + 25);
        read.flag1_ = b.ReadByte(headOffset + 26);
        const int count = b.ReadByte(headOffset + 27);
        for (int i = 0; i < count; ++i) {
            read.titles_.append(text(b, textOffset + qint64(kTextBytes) * i, kTextBytes));
            read.contexts_.append(
                text(b, textOffset + qint64(kTextBytes) * (count + i), kTextBytes));
        }
        *this = read;
        return true;
    } catch (const ReadPastEnd&) {
        return false;
    }
}

bool clsBatchInfo::Save(const QString& path) const {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.setVersion(QDataStream::Qt_6_0);
    out << kMagic << kVersion << name_ << lot_ << flag0_ << flag1_ << quint32(titles_.size());
    for (int i = 0; i < titles_.size(); ++i) out << titles_[i] << contexts_[i];
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

bool clsBatchInfo::Load(const QString& path) {
    clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray bytes = file.readAll();
    QDataStream in(bytes);
    in.setByteOrder(QDataStream::LittleEndian);
    in.setVersion(QDataStream::Qt_6_0);
    quint32 magic = 0, version = 0, count = 0;
    clsBatchInfo read;
    in >> magic >> version >> read.name_ >> read.lot_ >> read.flag0_ >> read.flag1_ >> count;
    // A count beyond what the file could hold is a damaged file, not an allocation.
    if (in.status() != QDataStream::Ok || magic != kMagic || version != kVersion || count > 255 ||
        qint64(count) * 8 > bytes.size())
        return false;
    for (quint32 i = 0; i < count; ++i) {
        QString title, context;
        in >> title >> context;
        read.titles_.append(title);
        read.contexts_.append(context);
    }
    if (in.status() != QDataStream::Ok || !in.atEnd()) return false;
    *this = read;
    return true;
}
