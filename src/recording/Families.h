#pragma once

#include "recording/FamilyCodes.h"

#include <QByteArray>
#include <QString>

#include <span>

struct LoadOptions;
struct LoadOutcome;
struct ViewState;

// What the program knows of one family of recorder files. Every caller that needs a family
// fact (recognition, drops, the command line, the selection dialog, the loader) asks this table.
struct FamilyInfo {
    int code;              // Family::VXF ...; the option number of the selection dialog
    const char* word;      // shown in the status bar and by `info`
    const char* extension; // upper case with its dot; nullptr: any extension (TM)
    const char* magics[4]; // accepted starts of the first four bytes; none: no magic test
    const char* caption;   // option caption of the selection dialog
    const char* pattern;   // file pattern of the selection dialog
    enum class Gs { Never, Also, Only } gs; // offered when the program runs in GS mode
    int dropPriority; // among dropped files the lowest wins; 0: never a selection
    LoadOutcome (*load)(ViewState&, const LoadOptions&); // nullptr: not a recording

    // Whether the selection dialog and drops offer the family in the program's mode.
    bool offeredIn(bool gsMode) const {
        return caption && (gsMode ? gs != Gs::Never : gs != Gs::Only);
    }
};

namespace Families {

std::span<const FamilyInfo> all();
// The family of a code, nullptr for an unknown code.
const FamilyInfo* byCode(int code);
// The family named by an extension (".VXF"); nullptr when none names it.
const FamilyInfo* byExtension(const QString& extension);
// True when the family has no magic test or the first bytes pass it.
bool magicMatches(const FamilyInfo& family, const QByteArray& firstBytes);
// The family that loads a view's files: the one the first file's extension names (a JLM file
// comes under the VXF code, a P4F under N5F), else the selection's; nullptr for an unknown code.
const FamilyInfo* forLoad(int fileType, const QString& firstFile);

} // namespace Families
