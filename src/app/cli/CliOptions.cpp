#include "app/cli/CliOptions.h"

#include "app/cli/CliRecording.h"
#include "base/Progress.h"
#include "trend/TrendView.h"

#include <QTextStream>

namespace Cli {

bool takeOptions(QStringList& args, std::initializer_list<ValueOption> values,
                 std::initializer_list<FlagOption> flags, QString& error) {
    QStringList rest;
    for (int i = 0; i < args.size(); ++i) {
        bool taken = false;
        for (const FlagOption& f : flags)
            if (args[i] == QLatin1String(f.name)) *f.on = taken = true;
        if (taken) continue;
        QString* target = nullptr;
        for (const ValueOption& v : values)
            if (args[i] == QLatin1String(v.name)) target = v.value;
        if (!target) {
            rest << args[i];
            continue;
        }
        if (i + 1 >= args.size()) {
            error = args[i] + QStringLiteral(" needs a value");
            return false;
        }
        *target = args[++i];
    }
    args = rest;
    return true;
}

std::unique_ptr<TrendView> openTrendView(const QString& verb, const QStringList& args,
                                         int& status) {
    QTextStream err(stderr);
    const RecordingArgs parsed = splitRecordingArgs(args);
    status = 2;
    if (parsed.files.isEmpty()) {
        err << "recview " << verb << ": no file given\n";
        return nullptr;
    }
    if (!parsed.rest.isEmpty()) {
        err << "recview " << verb << ": unknown option " << parsed.rest[0] << "\n";
        return nullptr;
    }
    status = 1;
    if (!openRecording(parsed)) return nullptr;
    auto view = std::make_unique<TrendView>(1);
    NoProgress progress;
    if (!view->afterLoad(&progress)) {
        err << "recview " << verb << ": the recording cannot be shown\n";
        return nullptr;
    }
    status = 0;
    return view;
}

} // namespace Cli
