#pragma once

#include <QString>
#include <QStringList>

// The address boxes of frmIpInput without the dialog: four boxes of three characters.
namespace IpInput {

// The address split at "." into at most four trimmed pieces, each at most 3 characters.
QStringList split(const QString& address);
// A box's text after a change: below 0 becomes "0", above 255 "255"; other text stays.
QString clamp(const QString& box);
// The output: each octet padded on the left with blanks to 3 characters (an empty box gives
// three blanks), joined with "." ("   .   .   .   " for no address).
QString join(const QStringList& boxes);

} // namespace IpInput
