#pragma once

#include <QIcon>

// The pictures of the main tool bar, drawn in code so that they look the same on every desktop.
namespace ToolIcons {

// The picture of Toolbar1 button `index` (1 new view, 2 tile side by side, 3 tile one above
// the other, 4 FTP transfer, 5 scheduled collection, 7 version, 8 help).
QIcon mainButton(int index);

} // namespace ToolIcons
