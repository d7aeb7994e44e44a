#pragma once

#include <QString>

// The host of a URL from the table's address form: "192.168.  1.  1" becomes "192.168.1.1".
// Blanks and leading zeros go (a URL reads "010" as octal); a name that is not a dotted number
// is only trimmed. "" when nothing is left (the empty form "   .   .   .   ").
QString plainHostAddress(const QString& address);
