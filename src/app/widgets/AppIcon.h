#pragma once

#include <QIcon>

// The program's icon, from the PNG sizes of the hicolor theme beside the program (a build) or in
// the install's share/icons/; the desktop theme's "recview" icon when neither is there.
QIcon recviewIcon();
