#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/TimeBase.h"
#include "recording/FileRecognition.h"

#include <QTextStream>

namespace Cli {

namespace {

int runInfo(const QStringList& args) {
    const RecordingArgs parsed = splitRecordingArgs(args);
    if (parsed.files.isEmpty()) {
        QTextStream(stderr) << "recview info: no file given\n";
        return 2;
    }
    const ViewState* view = openRecording(parsed);
    if (!view) return 1;
    QTextStream out(stdout);
    out << "family:   " << familyWord(view->FileType, view->FileName.value(0)) << " ("
        << view->FileType << ")\n"
        << "files:    " << view->FileCount << "\n"
        << "start:    " << TimeBase::isoText(view->ViewStart)
        << QStringLiteral(".%1").arg(view->ViewStartMsec, 3, 10, QLatin1Char('0')) << "\n"
        << "interval: " << view->SampleInterval << " ms\n"
        << "rows:     " << view->PointCount << "\n"
        << "channels: " << view->ChannelCount << "\n";
    for (int c = 1; c <= view->ChannelCount; ++c) {
        const QString unit = view->Channels.ChUnit[size_t(c)];
        out << QStringLiteral("  %1  %2").arg(c, 3).arg(view->Channels.ChTag[size_t(c)], -16)
            << (unit.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(unit)) << "\n";
    }
    return 0;
}

} // namespace

extern const Verb kInfoVerb{"info", runInfo};

} // namespace Cli
