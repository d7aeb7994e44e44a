#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <memory>

class TrendView;

namespace Cli {

struct ValueOption {
    const char* name;
    QString* value;
};
struct FlagOption {
    const char* name;
    bool* on;
};

// Takes the named options out of the arguments (a value option takes the next argument); the
// rest stay in order. False, with the reason in error, when a value is missing.
bool takeOptions(QStringList& args, std::initializer_list<ValueOption> values,
                 std::initializer_list<FlagOption> flags, QString& error);

// Opens the files of the arguments into view 1 as the program's command line does and builds
// its trend as the window does. On failure it prints "recview VERB: " and the reason and sets
// status: 2 for bad usage (no file, an unknown option), 1 when the recording cannot be opened.
std::unique_ptr<TrendView> openTrendView(const QString& verb, const QStringList& args, int& status);

} // namespace Cli
