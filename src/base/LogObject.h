#pragma once

#include <QString>

#include <functional>

// A log object: anything that takes a line of text. clsINI reports through putLog, clsLibrary
// through LogWrite.
class LogObject {
public:
    virtual ~LogObject() = default;
    // False when the text could not be written.
    virtual bool LogWrite(const QString& text) = 0;
    // A report from `sender` (the reporting object) at a level (3 = exception). The plain
    // object has no such method: false tells the caller to use its fallback.
    virtual bool putLog(const void* sender, int level, const QString& text) {
        (void)sender;
        (void)level;
        (void)text;
        return false;
    }
};

// A log object that appends each text as one line to a file ("Error.log", "Trace.log").
class FileLog final : public LogObject {
public:
    explicit FileLog(QString path) : path_(std::move(path)) {}
    bool LogWrite(const QString& text) override;
    bool putLog(const void* sender, int level, const QString& text) override;
    const QString& path() const { return path_; }

private:
    QString path_;
};

// The program's last resort for reports that have no log object. Nothing is shown by default:
// the texts go to the logging category "recview.log" at info level, which is off unless
// QT_LOGGING_RULES turns it on.
void LogWrite(const QString& text);

// Replaces where LogWrite goes (tests); an empty function restores the default.
void setLogWriteHandler(std::function<void(const QString&)> handler);
