#pragma once

#include <QString>

// Where message boxes go: a dialog in the desktop program, stderr in a headless verb, a recorder
// in tests. Flags are the box flags of the system (low three bits: button set; 16, 32, 48, 64:
// icon); the result is the pressed button, 1 OK .. 7 No.
class MessageSink {
public:
    virtual ~MessageSink() = default;
    virtual int show(const QString& text, int flags, const QString& title) = 0;
};
