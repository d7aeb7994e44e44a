#pragma once

#include <QIcon>

// Small drawn icons of the trend tool bar, by command number of Toolbar2 (1, 2, 11, 12, 13);
// an empty icon for others.
QIcon Toolbar2Icon(int command);
