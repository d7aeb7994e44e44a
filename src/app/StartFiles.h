#pragma once

#include <QString>

// The small files that start-up and the windows read from AppPaths(3): "GName.ini" (the ten
// group names), "ShowPoints.ini" (two numbers a line), "DPASS.ini" (the last directory), and
// the hand-off file "D_Click.ini" left in AppPaths(4).

// Group i, 1..10 ("" outside).
QString GroupNames(int group);
// The name of group i, or its default (message 204 and the number) while it has none.
QString groupNameOrDefault(int group);
// Sets the trimmed name; an empty name sets the default.
void setGroupName(int group, const QString& name);

// Reads "GName.ini": each line trimmed, in order, lines past the tenth ignored. A missing or
// empty file is written with the defaults (message 204 and the number). Failures keep the names.
void LoadGroupNames();
// Writes the ten names one per line; with resetToDefault the defaults first.
void SaveGroupNames(bool resetToDefault);

// Entry 0..9 (0 outside).
int ShowPointsA(int index);
int ShowPointsB(int index);
// Reads "ShowPoints.ini" when it exists: line n holds "a,b" for entry n - 1. A line that is not
// two 32-bit numbers, or an eleventh line, stops the reading; the entries read stay.
void LoadShowPoints();

// The last non-empty trimmed line of "DPASS.ini"; AppPaths(0) for an empty or missing file.
QString ReadLastDirectory();
// Rewrites "DPASS.ini" with that one line.
void SaveLastDirectory(const QString& path);

// Deletes a hand-off file left from an earlier run, ignoring any failure.
void removeStaleClickFile();
