#pragma once

#include <QString>

// False for an empty text, a text with "*" or "?" and a directory; a trailing "/" is cut first.
bool FileExists(const QString& path);

// False for an empty text; "/" (the one drive root) exists; any other text exists when it names
// a directory.
bool DirExists(const QString& path);
