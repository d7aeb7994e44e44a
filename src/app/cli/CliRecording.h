#pragma once

#include "recording/RecordingLoader.h"

#include <QStringList>

namespace Cli {

// Files and options common to the verbs that open a recording.
struct RecordingArgs {
    QStringList files;
    bool gsMode = false;
    QStringList rest; // arguments the verb reads itself
};
RecordingArgs splitRecordingArgs(const QStringList& args);

// Opens the files as the program's command line does (one CSV file opens as a drop opens it)
// into view 1. On failure prints the message to stderr and returns nullptr.
ViewState* openRecording(const RecordingArgs& args);

// Text of a message number for the terminal.
QString messageText(int number);

} // namespace Cli
