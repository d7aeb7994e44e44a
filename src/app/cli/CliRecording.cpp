#include "app/cli/CliRecording.h"

#include "base/LanguageTable.h"
#include "recording/CommandFiles.h"
#include "recording/CsvLoader.h"
#include "recording/Families.h"
#include "recording/FileRecognition.h"
#include "recording/SelectionLists.h"

#include <QTextStream>

namespace Cli {

QString messageText(int number) {
    return MsgText(number);
}

RecordingArgs splitRecordingArgs(const QStringList& args) {
    RecordingArgs out;
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        if (a == QLatin1String("--gs"))
            out.gsMode = true;
        else if (a.startsWith(QLatin1String("--"))) {
            out.rest << a;
            if (i + 1 < args.size() && !args[i + 1].startsWith(QLatin1String("--")) &&
                a != QLatin1String("--json"))
                out.rest << args[++i];
        } else
            out.files << a;
    }
    return out;
}

ViewState* openRecording(const RecordingArgs& args) {
    QTextStream err(stderr);
    SelectionLists& sel = selection();
    sel.clear();
    ViewState& view = views(1);
    NoProgress progress;
    LoadOptions options;
    options.gsMode = args.gsMode;
    options.progress = &progress;
    LoadOutcome outcome;
    // One CSV file opens as a drop opens it; the command line itself refuses CSV files.
    const FamilyInfo* first =
        Families::byExtension(FileRecognition::extensionOf(args.files.value(0)));
    if (args.files.size() == 1 && first && first->code == Family::CSV) {
        outcome = openSingleCsv(args.files[0], view, options);
    } else {
        CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine(args.files), args.gsMode);
        if (sel.SelFileCount == 0) {
            err << messageText(561) << "\n";
            return nullptr;
        }
        copySelectionToView(view);
        outcome = LoadRecording(view, options);
    }
    if (outcome.status == LoadOutcome::Status::NotHandled) {
        err << "recview: " << args.files.value(0) << ": a saved trend archive, not a recording\n";
        return nullptr;
    }
    // A failure, or a warning of a load that went on.
    if (outcome.message != 0) err << outcome.text() << "\n";
    if (!outcome.ok()) return nullptr;
    return &view;
}

} // namespace Cli
