#include "app/StartFiles.h"

#include "base/AppPaths.h"
#include "base/PathChecks.h"
#include "base/TextFile.h"
#include "base/VbFormat.h"
#include "recording/RecordingLimits.h"

#include <QFile>

#include <array>
#include <cmath>
#include <limits>

namespace {

std::array<QString, MaxViews>& groupNames() {
    static std::array<QString, MaxViews> names;
    return names;
}

std::array<int, MaxViews>& pointsA() {
    static std::array<int, MaxViews> a{};
    return a;
}

std::array<int, MaxViews>& pointsB() {
    static std::array<int, MaxViews> b{};
    return b;
}

QString workFile(const char* name) {
    return AppPaths(3) + QLatin1String(name);
}

// A field read as a 32-bit integer the way the runtime converts text: trimmed, decimals
// rounded halves to even; false for anything else.
bool toInt32(const QString& text, int& value) {
    bool ok = false;
    const double d = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(d)) return false;
    const qint64 rounded = VbFormat::roundHalfEven(d);
    if (rounded < std::numeric_limits<int>::min() || rounded > std::numeric_limits<int>::max())
        return false;
    value = int(rounded);
    return true;
}

} // namespace

QString GroupNames(int group) {
    return group >= 1 && group <= MaxViews ? groupNames()[group - 1] : QString();
}

QString groupNameOrDefault(int group) {
    const QString name = GroupNames(group);
    return name.isEmpty() ? defaultGroupName(group) : name;
}

void setGroupName(int group, const QString& name) {
    const QString trimmed = name.trimmed();
    if (group >= 1 && group <= MaxViews)
        groupNames()[group - 1] = trimmed.isEmpty() ? defaultGroupName(group) : trimmed;
}

void LoadGroupNames() {
    QStringList lines;
    const QString path = workFile("GName.ini");
    if (FileExists(path) && !TextFile::readLines(path, lines)) return;
    if (lines.isEmpty()) {
        SaveGroupNames(true);
        return;
    }
    for (int i = 0; i < lines.size() && i < MaxViews; ++i) groupNames()[i] = lines[i].trimmed();
}

void SaveGroupNames(bool resetToDefault) {
    if (resetToDefault)
        for (int group = 1; group <= MaxViews; ++group) setGroupName(group, QString());
    const QStringList lines(groupNames().begin(), groupNames().end());
    TextFile::writeLines(workFile("GName.ini"), lines);
}

int ShowPointsA(int index) {
    return index >= 0 && index < MaxViews ? pointsA()[index] : 0;
}

int ShowPointsB(int index) {
    return index >= 0 && index < MaxViews ? pointsB()[index] : 0;
}

void LoadShowPoints() {
    QStringList lines;
    if (!FileExists(workFile("ShowPoints.ini"))) return;
    if (!TextFile::readLines(workFile("ShowPoints.ini"), lines)) return;
    for (int n = 0; n < lines.size() && n < MaxViews; ++n) {
        const QStringList fields = lines[n].split(QLatin1Char(','));
        int a = 0;
        int b = 0;
        if (fields.size() < 2 || !toInt32(fields[0], a) || !toInt32(fields[1], b)) return;
        pointsA()[n] = a;
        pointsB()[n] = b;
    }
}

QString ReadLastDirectory() {
    QStringList lines;
    QString last;
    if (TextFile::readLines(workFile("DPASS.ini"), lines))
        for (const QString& line : lines)
            if (!line.trimmed().isEmpty()) last = line.trimmed();
    return last.isEmpty() ? AppPaths(0) : last;
}

void SaveLastDirectory(const QString& path) {
    TextFile::writeLines(workFile("DPASS.ini"), {path});
}

void removeStaleClickFile() {
    const QString path = AppPaths(4) + QStringLiteral("D_Click.ini");
    if (FileExists(path)) QFile::remove(path);
}
