#include "base/LogObject.h"

#include <QDateTime>
#include <QFile>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(lcLog, "recview.log", QtWarningMsg)

std::function<void(const QString&)>& logWriteHandler() {
    static std::function<void(const QString&)> handler;
    return handler;
}

} // namespace

bool FileLog::LogWrite(const QString& text) {
    QFile file(path_);
    if (!file.open(QIODevice::Append | QIODevice::Text)) return false;
    const QString line =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy/MM/dd HH:mm:ss.zzz ")) + text +
        QLatin1Char('\n');
    return file.write(line.toUtf8()) >= 0;
}

bool FileLog::putLog(const void* sender, int level, const QString& text) {
    (void)sender;
    return LogWrite(QStringLiteral("[%1] ").arg(level) + text);
}

void LogWrite(const QString& text) {
    if (logWriteHandler()) {
        logWriteHandler()(text);
        return;
    }
    qCInfo(lcLog).noquote() << text;
}

void setLogWriteHandler(std::function<void(const QString&)> handler) {
    logWriteHandler() = std::move(handler);
}
