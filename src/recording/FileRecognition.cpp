#include "recording/FileRecognition.h"

#include "recording/FamilyCodes.h"

#include <QFile>
#include <QFileInfo>

namespace {

// The magic test of a family on the first four bytes of a file.
bool magicMatches(const QByteArray& m, int family) {
    switch (family) {
    case Family::VXF:
        return magicStartsWith(m, {"VX2", "VX3", "W3N", "W2N"});
    case Family::QDF:
        return magicStartsWith(m, {"QD30", "QD31", "QD10"});
    case Family::TM:
        return magicStartsWith(m, {"TM00", "TM01", "TM10", "TM11"});
    case Family::N5F:
        return magicStartsWith(m, {"NP5"});
    case Family::P4F:
        return magicStartsWith(m, {"PA4", "PB4", "PC4", "PD4"});
    case Family::MSG:
        return magicStartsWith(m, {"TM0M", "TM1M"});
    default:
        return true;
    }
}

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
    if (familyCode == Family::VXB || familyCode == Family::CSV || familyCode == Family::JLM)
        return true;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray magic = file.read(4);
    return magic.size() == 4 && magicMatches(magic, familyCode);
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
    const QString ext = FileRecognition::extensionOf(firstFile);
    if (ext == QLatin1String(".JLM")) return QStringLiteral("JLM");
    if (ext == QLatin1String(".P4F")) return QStringLiteral("P4F");
    static const struct {
        int code;
        const char* word;
    } kWords[] = {{Family::VXF, "VXF"}, {Family::VXB, "VXB"}, {Family::QDF, "QDF"},
                  {Family::TM, "TM"},   {Family::N5F, "N5F"}, {Family::CSV, "CSV"},
                  {Family::JLM, "JLM"}, {Family::P4F, "P4F"}};
    for (const auto& w : kWords)
        if (w.code == fileType) return QLatin1String(w.word);
    return QString();
}
