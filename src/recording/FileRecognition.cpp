#include "recording/FileRecognition.h"

#include "recording/Families.h"

#include <QFile>
#include <QFileInfo>

namespace {

// Maps a file for the scan: only the pages that the fields touch are read.
template <typename Scan> bool withMappedFile(const QString& path, Scan scan) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() == 0) return false;
    const uchar* data = file.map(0, file.size());
    QByteArray fallback;
    if (!data) {
        fallback = file.readAll();
        data = reinterpret_cast<const uchar*>(fallback.constData());
    }
    const FileBytes bytes(data, file.size());
    try {
        return scan(bytes);
    } catch (const ReadPastEnd&) {
        return false;
    }
}

} // namespace

namespace FileRecognition {

bool CheckMagic(const QString& path, int familyCode) {
    const FamilyInfo* family = Families::byCode(familyCode);
    if (!family || !family->magics[0]) return true;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray magic = file.read(4);
    return magic.size() == 4 && Families::magicMatches(*family, magic);
}

bool ScanFileHeader(const QString& path, HeadInfo& info, bool gsMode) {
    return withMappedFile(path, [&](const FileBytes& bytes) {
        info = scanHead(formatOfMagic(bytes.magic(), gsMode), bytes);
        return true;
    });
}

bool ScanJlmHeader(const QString& path, HeadInfo& info) {
    return withMappedFile(path, [&](const FileBytes& bytes) {
        info = scanJlmHead(bytes);
        return true;
    });
}

QString extensionOf(const QString& path) {
    const QString suffix = QFileInfo(path).suffix();
    return suffix.isEmpty() ? QString() : QLatin1Char('.') + suffix.toUpper();
}

} // namespace FileRecognition

QString familyWord(int fileType, const QString& firstFile) {
    const FamilyInfo* family = Families::forLoad(fileType, firstFile);
    return family ? QLatin1String(family->word) : QString();
}
