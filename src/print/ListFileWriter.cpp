#include "print/ListFileWriter.h"

#include "analysis/DataList.h"
#include "analysis/DataListState.h"
#include "analysis/ListRows.h"
#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"
#include "base/Progress.h"
#include "print/LineFile.h"
#include "print/ListComments.h"
#include "trend/TrendTimeAxis.h"

namespace {

QString headerLine(GridModel& grid, QChar sep) {
    QString line;
    for (int c = 1; c <= grid.maxCols(); ++c) line += sep + grid.headerText(c);
    return line;
}

void writeCommentBlock(LineFile& file, const DataList& list, QChar sep) {
    if (!hasCommentBlock(list.trendView())) return;
    file.line(QString());
    file.line(MsgText(292));
    file.line(MsgText(220) + sep + MsgText(77) + sep + MsgText(293));
    for (const ListComment& c : listComments(list.trendView()))
        file.line(c.date + sep + c.time + sep + c.text);
}

} // namespace

bool WriteListFile(DataList& list, ExportKind::Kind kind, const QString& path, Progress* progress) {
    LineFile file(path);
    if (!file.open()) return false;
    const QChar sep = QLatin1Char(ExportKind::separator(kind));
    GridModel& grid = list.grid();
    if (progress) progress->setValue(0);
    file.line(headerLine(grid, sep));

    const ListRows rows(list.trendView());
    const qint64 offset = list.state().ListRowOffset;
    const qint32 total = grid.maxRows();
    const qint32 step = SkipStep();
    const int channels = list.channelColumns();
    const int vn = list.viewNumber();
    QString line;
    qint64 written = 0;
    for (qint64 r = 1; r <= total; r += step) {
        qsizetype p;
        qint32 sample;
        if (list.locate(rows, r + offset, p, sample)) {
            const SampleTime t = SampleTimeText(sample - 1, vn);
            line = t.date + sep + t.time;
            for (int i = 1; i <= channels; ++i)
                if (!grid.colHidden(i + 1)) line += sep + list.channelText(p, sample, i);
            file.line(line);
        }
        if (progress && ++written % 100 == 0) {
            if (progress->poll()) return false;
            progress->setValue(int(100 * r / total));
        }
    }
    writeCommentBlock(file, list, sep);
    if (!file.commit()) return false;
    if (progress) progress->setValue(100);
    return true;
}
