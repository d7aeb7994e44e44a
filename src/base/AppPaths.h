#pragma once

#include <QString>

// The five application paths, each with one trailing "/":
// 0 program directory, 1 trend settings, 2 trend archive work, 3 work files, 4 analysis root.
QString AppPaths(int index); // "" for an index outside 0..4
void setAppPath(int index, const QString& path);

// The text with exactly one "/" added unless it already ends in one ("/" stays "/").
QString withTrailingSlash(const QString& dir);

// The executable's directory with one trailing "/".
QString programDirectory();

// A read-only file shipped with the program ("langVX.txt", "help/index.html"): the one beside
// the executable, else the one in the install's share/recview/ beside bin/. "" when neither
// exists. Nothing is ever written there.
QString shippedFile(const QString& name);

// The executable's name without directory and extension ("recview").
QString exeTitle();

// The per-user application data folder ($XDG_DATA_HOME/recview or ~/.local/share/recview),
// without a trailing "/".
QString userDataFolder();

// Sets AppPaths(1..4) below `dataFolder` for an operation mode; mode 4 (the ZUW edition) puts
// them below "ZUW/" and makes that folder first. The data folder itself is made when missing.
void setWorkPaths(const QString& dataFolder, int operationMode);

// Makes AppPaths(4), (3), (2), (1), in that order, where DirExists says they are missing.
// False when one of them could not be made.
bool createWorkDirectories();

// Start-up steps 2 to 5: the program directory, the work paths and their directories.
bool initAppPaths(int operationMode);

// Message 204 of the table followed by the number: the default name of a group.
// (Kept here so that every place that fills in a missing group name agrees.)
QString defaultGroupName(int group);
