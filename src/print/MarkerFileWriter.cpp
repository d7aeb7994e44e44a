#include "print/MarkerFileWriter.h"

#include "analysis/MarkerView.h"
#include "base/LanguageTable.h"
#include "print/LineFile.h"

bool WriteMarkerFile(MarkerView& marker, ExportKind::Kind kind, const QString& path) {
    LineFile file(path);
    if (!file.open()) return false;
    const QChar sep = QLatin1Char(ExportKind::separator(kind));
    QString header = sep + MsgText(8) + sep + MsgText(9) + sep + QStringLiteral("A-B") + sep;
    for (const auto& [shown, group] :
         {std::pair{marker.state().ShowAll, 230}, std::pair{marker.state().ShowMarker, 231}}) {
        if (!shown) continue;
        for (int m = 71; m <= 75; ++m) header += MsgText(group) + MsgText(m) + sep;
    }
    file.line(header);
    GridModel& grid = marker.grid();
    for (qint32 r = 1; r <= grid.maxRows(); ++r) {
        QStringList cells;
        for (int c = 0; c <= grid.maxCols(); ++c)
            if (!grid.colHidden(c)) cells << grid.text(c, r);
        file.line(cells.join(sep));
    }
    return file.commit();
}
