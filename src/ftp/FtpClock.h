#pragma once

#include <QtGlobal>

// The local time now as seconds since 2000, the clock that listing years are inferred against.
qint64 ftpNow();
