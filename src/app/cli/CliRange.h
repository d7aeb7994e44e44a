#pragma once

#include <QString>

class TrendView;

namespace Cli {

// The span of --from and --to ("YYYY-MM-DD hh:mm:ss") as a zoom level, as the time axis dialog
// pushes one; an end left out is the recording's. Nothing to do when both are empty. False with
// the reason in error for a bad time or an empty span.
bool applyTimeRange(TrendView& view, const QString& from, const QString& to, QString& error);

} // namespace Cli
