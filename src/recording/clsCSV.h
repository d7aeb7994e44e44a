#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// A CSV file of samples: line 1 the column titles ("tag [unit]" for each channel, then the alarm
// columns, whose titles end in "AL"), then one line for each row: date and time in one field
// (divided by a blank) or in two, the value texts, the alarm fields. The file is taken whole: as
// UTF-8 when it is valid UTF-8, otherwise as cp932. The rows end at the first empty line.
class clsCSV {
public:
    void SetFileName(const QString& path) { path_ = path; }
    // False when the file cannot be read.
    bool FileOpenCSV();
    void FileCloseCSV();
    // Back to line 1 of the open file, without reading it again.
    void RewindCSV() { next_ = 0; }

    // Reads line 1 (tags, units, channel count) and the first data line's time. False when
    // there is no data line or its date and time cannot be read.
    bool GetSTimeCSV(qint64& time, int& msec);
    // Reads the next data line: its time minus the first one, in milliseconds; 0 when there is
    // none. False when that line's date and time cannot be read.
    bool GetIntervalCSV(qint32& interval);

    QString GetTagName(int i) const { return tags_.value(i - 1); }
    QString GetUnitName(int i) const { return units_.value(i - 1); }
    void SetDataCount(int n) { dataCount_ = n; }
    int GetDataCount() const { return dataCount_; }
    int GetChCount() const { return channelCount_; }

    // Moves to the next data line; false at the end of the rows.
    bool GetDataCSV();
    // Fields of the current line.
    const QStringList& fields() const { return fields_; }
    // Field index of the value of channel i (1-based), and of its alarm field (-1: none).
    int valueField(int i) const { return lead_ + i - 1; }
    int alarmField(int i) const;

    // An alarm field ("H/L", "H L r") to its four alarm digits; each part is matched against the
    // level words of the language table, anything else and an empty field give "0".
    static QString AlmDataCnv(const QString& text);

private:
    bool nextLine();
    bool lineTime(qint64& time, int& msec) const;
    void readTitles(const QStringList& titles, int dataFields);

    QString path_;
    QStringList lines_;
    qsizetype next_ = 0; // index of the next line to read
    QStringList fields_;
    QStringList tags_, units_;
    int channelCount_ = 0;
    int dataCount_ = 0;
    int lead_ = 1;        // fields before the values: 1 (date and time together) or 2
    int firstAlarm_ = -1; // field index of the first alarm column
    int titleFields_ = 0; // line 1's fields, counted as the data lines count theirs
    qint64 firstTime_ = 0;
    int firstMsec_ = 0;
};
