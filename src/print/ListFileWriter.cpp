#include "print/ListFileWriter.h"

#include "analysis/DataList.h"
#include "analysis/DataListState.h"
#include "analysis/ListRows.h"
#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"
#include "base/Progress.h"
#include "print/LineFile.h"
#include "print/ListComments.h"
#include "print/ListRowTexts.h"
#include "trend/TrendTimeAxis.h"

#include <algorithm>
#include <vector>

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
    const int vn = list.viewNumber();
    ListRowTexts texts(list);
    // Rows go in blocks: the channel values of a block are read and formatted column by column.
    constexpr int kBlock = 16384;
    std::vector<qsizetype> points;
    std::vector<qint32> samples;
    std::vector<std::string> lines(kBlock);
    for (qint64 r0 = 1; r0 <= total;) {
        points.clear();
        samples.clear();
        qint64 r = r0;
        for (; r <= total && points.size() < size_t(kBlock); r += step) {
            qsizetype p;
            qint32 sample;
            if (!list.locate(rows, r + offset, p, sample)) continue;
            const SampleTime t = SampleTimeText(sample - 1, vn);
            std::string& line = lines[points.size()];
            line.assign((t.date + sep + t.time).toStdString()); // into the line's capacity
            points.push_back(p);
            samples.push_back(sample);
        }
        texts.append(points, samples, char(sep.unicode()), lines);
        for (size_t k = 0; k < points.size(); ++k) file.line(lines[k].data(), lines[k].size());
        r0 = r;
        if (progress) {
            if (progress->poll()) return false;
            progress->setValue(int(100 * std::min<qint64>(r0, total) / total));
        }
    }
    writeCommentBlock(file, list, sep);
    if (!file.commit()) return false;
    if (progress) progress->setValue(100);
    return true;
}
