#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

class IniDocument;
class LogObject;

// One settings file of the INI kind. A caller makes one, sets the directory and the name, then
// reads and writes; no file stays open between calls. No failure reaches the caller: it is
// reported to ErrorLogObj and the value or the file stays as it was.
class clsINI {
public:
    static constexpr int kBadFileName = 52;

    clsINI(); // the application directory and the executable's title & ".ini"

    QString IniPath() const { return iniPath_; }
    // Trailing "/" are removed; an empty result keeps the old path, and so does a path that
    // names a plain file (false). Any other path, existing or not, is taken with one "/".
    bool setIniPath(const QString& path);

    QString IniFileName() const { return iniFileName_; }
    // An empty name is ignored; a name with \ / : * ? " < > | gives kBadFileName and the old
    // name stays. 0 otherwise.
    int setIniFileName(const QString& name);

    int BufferSize() const { return bufferSize_; }
    void setBufferSize(int size) { bufferSize_ = size; }

    LogObject* ErrorLogObj() const { return errorLog_; }
    void setErrorLogObj(LogObject* log) { errorLog_ = log; }

    // Reads a value: at most BufferSize - 1 characters; a key that is absent or empty gives the
    // default; "vbBlank" gives the empty text. A value equal to the default is written back
    // unless noWriteBack. On a failure `result` stays as it was.
    void getIniData(const QString& section, const QString& key, const QString& defaultValue,
                    bool noWriteBack, QString& result);
    QString getIniData(const QString& section, const QString& key, const QString& defaultValue,
                       bool noWriteBack = false);

    // Writes a value as text; an invalid QVariant or an empty file name writes nothing.
    void putIniData(const QString& section, const QString& key, const QVariant& value);

    // The key lines of a section, 0-based; returns their number, or -1 for an empty or absent
    // section.
    int enumSectionString(const QString& section, QStringList& lines);

    // Empties every non-empty value of a section, keeping the keys; returns how many changed.
    int clearSection(const QString& section);

    QString getWindowsPath();
    QString getSystemPath();
    QString getWinTempPath();

    // The last section, key and value read or written, for the error report.
    QString lastSection() const { return lastSection_; }
    QString lastKey() const { return lastKey_; }
    QString lastValue() const { return lastValue_; }

    QString filePath() const { return iniPath_ + iniFileName_; }

private:
    void report(const QString& mark, const QString& description);
    // Reads the file into `doc`; a failure is reported under `mark`.
    bool load(IniDocument& doc, const QString& mark);

    QString iniPath_;
    QString iniFileName_;
    int bufferSize_ = 512;
    LogObject* errorLog_ = nullptr;
    QString lastSection_;
    QString lastKey_;
    QString lastValue_;
};

// The text a value is written as: True/False, numbers with "." and their shortest text.
QString iniValueText(const QVariant& value);
