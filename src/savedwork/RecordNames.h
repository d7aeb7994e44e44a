#pragma once

#include <QString>

// File names of the records and the directories they are written to and read from.
namespace RecordNames {

inline const QString FileHeader = QStringLiteral("FileHeader.sys");
inline const QString TrndParaSet = QStringLiteral("TrndParaSet.sys");
inline const QString SaveParaData = QStringLiteral("SaveParaData.sys");
inline const QString AlmStyle = QStringLiteral("AlmStyle.sys");
inline const QString PenData = QStringLiteral("PenData.sys");
inline const QString crlData = QStringLiteral("crlData.sys");

// A record as a saved trend collects it (trend settings, AppPaths(1)).
QString writePath(const QString& name);
// A record as an opened saved trend left it (trend archive work, AppPaths(2)).
QString readPath(const QString& name);
// A backup of one view in the work files (AppPaths(3)): "WindBak" 3 ".sys".
QString backupPath(const QString& stem, int viewNumber);

} // namespace RecordNames
