#include "app/TimeBase.h"
#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"

#include <QTextStream>

namespace Cli {

namespace {

const char* familyName(int code) {
    switch (code) {
    case 0:
        return "VXF";
    case 1:
        return "VXB";
    case 2:
        return "QDF";
    case 3:
        return "TM";
    case 4:
        return "N5F/P4F";
    case 5:
        return "CSV";
    case 6:
        return "JLM";
    case 34:
        return "P4F";
    default:
        return "?";
    }
}

int runInfo(const QStringList& args) {
    const RecordingArgs parsed = splitRecordingArgs(args);
    if (parsed.files.isEmpty()) {
        QTextStream(stderr) << "recview info: no file given\n";
        return 2;
    }
    const ViewTables* view = openRecording(parsed);
    if (!view) return 1;
    QTextStream out(stdout);
    // A JLM selection stands as family 0; its files tell it apart.
    const bool jlm = view->FileName.value(0).endsWith(QLatin1String(".jlm"), Qt::CaseInsensitive);
    out << "family:   " << (jlm ? "JLM" : familyName(view->FileType)) << " (" << view->FileType
        << ")\n"
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
