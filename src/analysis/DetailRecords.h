#pragma once

#include <QString>
#include <QVector>

struct clsDataFileProperty;

// A header line of the batch report: a label and its value.
class clsDetailRecord {
public:
    QString Header;
    QString Content;
    void SetProperty(const QString& header, const QString& content) {
        Header = header;
        Content = content;
    }
};

// The header lines in the order they were added.
class clsDetailCollection {
public:
    const clsDetailRecord& Item(int index) const { return items_[index]; }
    int count() const { return int(items_.size()); }
    void AddItem(const clsDetailRecord& record) { items_.append(record); }
    void AddNewItem(const QString& header, const QString& content) {
        clsDetailRecord r;
        r.SetProperty(header, content);
        items_.append(r);
    }
    void RemoveAt(int index) {
        if (index >= 0 && index < items_.size()) items_.removeAt(index);
    }
    void Clear() { items_.clear(); }
    // The value of the first record whose header equals `header`; "" without one.
    QString valueOf(const QString& header) const;

private:
    QVector<clsDetailRecord> items_;
};

// The report's header lines from a file's properties: "Device name", "Recording sycle",
// "Total data count", "Version No." (no file gives a serial number).
clsDetailCollection detailsOf(const clsDataFileProperty& property);
