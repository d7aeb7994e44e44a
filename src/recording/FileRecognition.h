#pragma once

#include "recording/FamilyHeads.h"

#include <QString>

// Recognition of recorder files by their first bytes, and the short header scan.
namespace FileRecognition {

// The magic test of a family; families without a test always pass. A file that cannot be
// opened fails a test.
bool CheckMagic(const QString& path, int familyCode);

// Start, milliseconds, interval (and channels and points for the size check) of a
// header-based file; false when the file cannot be read or is too short.
bool ScanFileHeader(const QString& path, HeadInfo& info, bool gsMode);
bool ScanJlmHeader(const QString& path, HeadInfo& info);

// Upper-case extension with its dot (".VXF"), "" when the name has none.
QString extensionOf(const QString& path);

} // namespace FileRecognition

// The word shown for the family of a selection: "VXF", "CSV", "QDF", ...; a JLM or P4F file
// standing under another family code is named by its extension.
QString familyWord(int fileType, const QString& firstFile);
