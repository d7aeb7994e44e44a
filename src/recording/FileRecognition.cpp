#include "recording/FileRecognition.h"

#include "recording/FamilyCodes.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool magicMatches(const QByteArray& m, int family) {
    const auto any3 = [&](std::initializer_list<const char*> heads) {
        for (const char* h : heads)
            if (m.startsWith(h)) return true;
        return false;
    };
    const auto any4 = [&](std::initializer_list<const char*> all) {
        for (const char* a : all)
            if (m == a) return true;
        return false;
    };
    switch (family) {
    case Family::VXF: return any3({"VX2", "VX3", "W3N", "W2N"});
    case Family::QDF: return any4({"QD30", "QD31", "QD10"});
    case Family::TM: return any4({"TM00", "TM01", "TM10", "TM11"});
    case Family::N5F: return any3({"NP5"});
    case Family::P4F: return any3({"PA4", "PB4", "PC4", "PD4"});
    case Family::MSG: return any4({"TM0M", "TM1M"});
    default: return true;
    }
}

// Maps a file for the scan: only the pages that the fields touch are read.
template <typename Scan>
bool withMappedFile(const QString& path, Scan scan) {
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
