#include "analysis/DetailRecords.h"

#include "recording/ViewRecords.h"

QString clsDetailCollection::valueOf(const QString& header) const {
    for (const clsDetailRecord& r : items_)
        if (r.Header == header) return r.Content;
    return QString();
}

clsDetailCollection detailsOf(const clsDataFileProperty& p) {
    clsDetailCollection details;
    details.AddNewItem(QStringLiteral("Device name"), p.modelText.trimmed());
    const int tenths = p.intervalTenths;
    const QString sampling = tenths % 10 == 0
                                 ? QString::number(tenths / 10) + QStringLiteral(" s")
                                 : QString::number(tenths / 10.0) + QStringLiteral(" s");
    details.AddNewItem(QStringLiteral("Recording sycle"), sampling);
    details.AddNewItem(QStringLiteral("Total data count"), QString::number(p.rowCount));
    details.AddNewItem(QStringLiteral("Version No."), p.versionText.trimmed());
    return details;
}
