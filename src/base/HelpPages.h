#pragma once

#include <QString>

// The HTML manual shipped with the program: help/index.html and a page for each group of
// windows, beside the program or in the install's share/recview/.
namespace HelpPages {

// The page of the manual that explains a window, by the window's object name ("dlgSelect",
// "frmScrollTime"); the index for a window the manual has no page for.
QString pageName(const QString& window);

// The page's file, or the index when the page is missing; "" when no manual is installed.
QString pagePath(const QString& window);

} // namespace HelpPages
