#include "recording/Families.h"

#include "recording/CsvLoader.h"
#include "recording/FileRecognition.h"
#include "recording/JlmLoader.h"
#include "recording/RecordingLoader.h"

namespace {

using F = FamilyInfo;

// In the order of the selection dialog's options.
const FamilyInfo kFamilies[] = {
    {Family::VXF,
     "VXF",
     ".VXF",
     {"VX2", "VX3", "W3N", "W2N"},
     "(0) vxf",
     "*.vxf",
     F::Gs::Never,
     3,
     LoadCoreFiles},
    {Family::VXB, "VXB", ".VXB", {}, "(1) vxb", "*.vxb", F::Gs::Also, 1, nullptr},
    {Family::QDF,
     "QDF",
     ".QDF",
     {"QD30", "QD31", "QD10"},
     "(2) QD3000",
     "*.qdf",
     F::Gs::Never,
     5,
     LoadCoreFiles},
    {Family::TM,
     "TM",
     nullptr,
     {"TM00", "TM01", "TM10", "TM11"},
     "(3) TM",
     "*.***",
     F::Gs::Never,
     4,
     LoadCoreFiles},
    {Family::N5F, "N5F", ".N5F", {"NP5"}, "(4) NP5000", "*.n5f", F::Gs::Never, 6, LoadCoreFiles},
    {Family::CSV, "CSV", ".CSV", {}, "(5) CSV", "*.csv", F::Gs::Never, 2, LoadFileDataCsv},
    {Family::JLM, "JLM", ".JLM", {}, "(6) JLM", "*.jlm", F::Gs::Never, 8, LoadJlm},
    {Family::P4F,
     "P4F",
     ".P4F",
     {"PA4", "PB4", "PC4", "PD4"},
     "(34) p4f",
     "*.p4f",
     F::Gs::Only,
     7,
     LoadCoreFiles},
    // Message files come with a recording; they are never a selection of their own.
    {Family::MSG, "MSG", ".MSG", {"TM0M", "TM1M"}, nullptr, nullptr, F::Gs::Never, 0, nullptr},
};

} // namespace

namespace Families {

std::span<const FamilyInfo> all() {
    return kFamilies;
}

const FamilyInfo* byCode(int code) {
    for (const F& f : kFamilies)
        if (f.code == code) return &f;
    return nullptr;
}

const FamilyInfo* byExtension(const QString& extension) {
    for (const F& f : kFamilies)
        if (f.extension && extension.compare(QLatin1String(f.extension), Qt::CaseInsensitive) == 0)
            return &f;
    return nullptr;
}

bool magicMatches(const FamilyInfo& family, const QByteArray& firstBytes) {
    if (!family.magics[0]) return true;
    for (const char* m : family.magics)
        if (m && firstBytes.startsWith(m)) return true;
    return false;
}

const FamilyInfo* forLoad(int fileType, const QString& firstFile) {
    const FamilyInfo* named = byExtension(FileRecognition::extensionOf(firstFile));
    return named && named->dropPriority > 0 ? named : byCode(fileType);
}

} // namespace Families
