#include "ftp/McWinFTP.h"

#include "base/LogObject.h"
#include "ftp/FtpAddress.h"
#include "ftp/FtpClock.h"
#include "ftp/FtpErrors.h"
#include "ftp/FtpListing.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>
#include <QThread>

#include <curl/curl.h>

#include <algorithm>
#include <cctype>
#include <mutex>

// What one call asks of libcurl.
struct McWinFTP::Request {
    static Request to(const QByteArray& url) {
        Request r;
        r.url = url;
        return r;
    }
    Request& noBody() {
        nobody = true;
        return *this;
    }
    Request& asText(bool text) {
        ascii = text;
        return *this;
    }

    QByteArray url;
    bool nobody = false;
    bool ascii = false;
    QList<QByteArray> quote;
    QIODevice* sink = nullptr;    // a download goes here
    QByteArray* buffer = nullptr; // or here (listings)
    QIODevice* source = nullptr;  // an upload comes from here
};

struct McWinFTPCallbacks {
    McWinFTP* self;
    const McWinFTP::Request* request;

    static size_t write(char* data, size_t size, size_t count, void* user) {
        auto* c = static_cast<McWinFTPCallbacks*>(user);
        const qint64 n = qint64(size * count);
        if (c->request->buffer) {
            c->request->buffer->append(data, n);
            return size_t(n);
        }
        if (!c->request->sink) return 0;
        return c->request->sink->write(data, n) == n ? size_t(n) : 0;
    }
    static size_t read(char* data, size_t size, size_t count, void* user) {
        auto* c = static_cast<McWinFTPCallbacks*>(user);
        const qint64 n = c->request->source->read(data, qint64(size * count));
        return n < 0 ? CURL_READFUNC_ABORT : size_t(n);
    }
    // Server replies come here; the last one is kept for the texts of refusals.
    static size_t header(char* data, size_t size, size_t count, void* user) {
        auto* c = static_cast<McWinFTPCallbacks*>(user);
        const QByteArray line = QByteArray(data, qsizetype(size * count)).trimmed();
        if (line.size() >= 3 && std::isdigit(static_cast<unsigned char>(line[0])) &&
            std::isdigit(static_cast<unsigned char>(line[1])) &&
            std::isdigit(static_cast<unsigned char>(line[2])))
            c->self->lastReply_ = QString::fromUtf8(line);
        return size * count;
    }
    static int progress(void* user, curl_off_t dlTotal, curl_off_t dlNow, curl_off_t ulTotal,
                        curl_off_t ulNow) {
        auto* c = static_cast<McWinFTPCallbacks*>(user);
        if (c->self->cancel_) return 1;
        McWinFTP& self = *c->self;
        const qint64 moved = qint64(dlNow + ulNow);
        if (moved != self.lastMoved_) {
            self.lastMoved_ = moved;
            self.sinceMoved_.restart();
        } else if (self.sinceMoved_.hasExpired(self.settings.stallMs)) {
            self.stalled_ = true;
            return 1;
        }
        if (c->self->progress) c->self->progress(qint64(dlNow + ulNow), qint64(dlTotal + ulTotal));
        return 0;
    }
};

namespace {

void initCurlOnce() {
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

QByteArray encoded(const QByteArray& raw) {
    return raw.toPercentEncoding();
}

QStringList pathSegments(const QString& path) {
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

} // namespace

McWinFTP::McWinFTP() {
    initCurlOnce();
    curl_ = curl_easy_init();
}

McWinFTP::~McWinFTP() {
    CloseSession();
    curl_easy_cleanup(static_cast<CURL*>(curl_));
}

void McWinFTP::resetHandle() {
    curl_easy_cleanup(static_cast<CURL*>(curl_));
    curl_ = curl_easy_init();
}

QByteArray McWinFTP::baseUrl() const {
    return "ftp://" + host_.toUtf8() + ':' + QByteArray::number(RemotePort);
}

QByteArray McWinFTP::directoryUrl(const QString& absoluteDir) const {
    QByteArray url = baseUrl() + "/%2F";
    for (const QString& segment : pathSegments(absoluteDir)) url += encoded(segment.toUtf8()) + '/';
    return pathSegments(absoluteDir).isEmpty() ? url + '/' : url;
}

QByteArray McWinFTP::absolutePath(const QByteArray& name) const {
    if (name.startsWith('/')) return name;
    return (curDir_ == QLatin1String("/") ? QByteArray() : curDir_.toUtf8()) + '/' + name;
}

int McWinFTP::perform(const Request& request) {
    CURL* curl = static_cast<CURL*>(curl_);
    curl_easy_reset(curl);
    McWinFTPCallbacks callbacks{this, &request};
    curl_easy_setopt(curl, CURLOPT_URL, request.url.constData());
    curl_easy_setopt(curl, CURLOPT_USERNAME, User.toUtf8().constData());
    curl_easy_setopt(curl, CURLOPT_PASSWORD, Password.toUtf8().constData());
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_FTP_FILEMETHOD, long(CURLFTPMETHOD_SINGLECWD));
    curl_easy_setopt(curl, CURLOPT_FTPPORT, PassiveFlag() ? nullptr : "-");
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, long(settings.connectTimeoutMs));
    curl_easy_setopt(curl, CURLOPT_SERVER_RESPONSE_TIMEOUT,
                     long(std::max(1, (settings.replyTimeoutMs + 999) / 1000)));
    curl_easy_setopt(curl, CURLOPT_ACCEPTTIMEOUT_MS, long(settings.acceptTimeoutMs));
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &McWinFTPCallbacks::header);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &callbacks);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &McWinFTPCallbacks::write);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &callbacks);
    curl_easy_setopt(curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(curl, CURLOPT_XFERINFOFUNCTION, &McWinFTPCallbacks::progress);
    curl_easy_setopt(curl, CURLOPT_XFERINFODATA, &callbacks);
    curl_easy_setopt(curl, CURLOPT_TRANSFERTEXT, request.ascii ? 1L : 0L);
    if (request.nobody) curl_easy_setopt(curl, CURLOPT_NOBODY, 1L);
    if (request.source) {
        curl_easy_setopt(curl, CURLOPT_UPLOAD, 1L);
        curl_easy_setopt(curl, CURLOPT_READFUNCTION, &McWinFTPCallbacks::read);
        curl_easy_setopt(curl, CURLOPT_READDATA, &callbacks);
        curl_easy_setopt(curl, CURLOPT_INFILESIZE_LARGE, curl_off_t(request.source->size()));
    }
    curl_slist* quote = nullptr;
    for (const QByteArray& command : request.quote)
        quote = curl_slist_append(quote, command.constData());
    if (quote) curl_easy_setopt(curl, CURLOPT_QUOTE, quote);
    lastMoved_ = 0;
    stalled_ = false;
    sinceMoved_.start();
    CURLcode code = curl_easy_perform(curl);
    curl_slist_free_all(quote);
    if (code == CURLE_ABORTED_BY_CALLBACK && stalled_) code = CURLE_OPERATION_TIMEDOUT;
    cancel_ = false;
    return int(code);
}

void McWinFTP::report(int number, const QString& libraryText) {
    if (number == FtpErrors::kNoMoreFiles) {
        file_.Eof = true;
        return;
    }
    lastError_ = number;
    lastErrorText_ = FtpErrors::troubleText(number, lastReply_, libraryText);
    LogWrite(QStringLiteral("FTPTrouble %1: %2").arg(number).arg(lastErrorText_));
    if (FTPTrouble) FTPTrouble(lastErrorText_, number);
}

void McWinFTP::reportCurl(int curlCode) {
    // libcurl's error buffer also collects notes of steps that did not fail: its text for the
    // result is the dependable one.
    report(FtpErrors::numberForCurlCode(curlCode),
           QString::fromUtf8(curl_easy_strerror(CURLcode(curlCode))));
}

bool McWinFTP::ensureConnected() {
    if (connected_) return true;
    report(FtpErrors::kNotConnected, QStringLiteral("The session is not open."));
    return false;
}

void McWinFTP::OpenSession() {
    CloseSession();
    lastReply_.clear();
    host_ = plainHostAddress(RemoteHost);
    if (host_.isEmpty()) {
        report(FtpErrors::kNameNotResolved);
        return;
    }
    const int code = perform(Request::to(baseUrl() + '/').noBody());
    if (code != CURLE_OK) {
        reportCurl(code);
        resetHandle();
        return;
    }
    char* entry = nullptr;
    curl_easy_getinfo(static_cast<CURL*>(curl_), CURLINFO_FTP_ENTRY_PATH, &entry);
    curDir_ = entry && *entry == '/' ? QString::fromUtf8(entry) : QStringLiteral("/");
    connected_ = true;
}

void McWinFTP::CloseSession() {
    listing_.clear();
    cursor_ = 0;
    if (connected_) resetHandle();
    connected_ = false;
    curDir_ = QStringLiteral("/");
}

bool McWinFTP::quote(const QList<QByteArray>& commands) {
    if (!ensureConnected()) return false;
    const int code = perform([&] {
        Request r = Request::to(baseUrl() + '/').noBody();
        r.quote = commands;
        return r;
    }());
    if (code != CURLE_OK) reportCurl(code);
    return code == CURLE_OK;
}

void McWinFTP::RenameFile(const QString& oldName, const QString& newName, int& result) {
    result =
        quote({"RNFR " + absolutePath(oldName.toUtf8()), "RNTO " + absolutePath(newName.toUtf8())});
}

void McWinFTP::DeleteFile(const QString& name, int& result) {
    result = quote({"DELE " + absolutePath(name.toUtf8())});
}

void McWinFTP::CreateDir(const QString& name, int& result) {
    result = quote({"MKD " + absolutePath(name.toUtf8())});
}

void McWinFTP::RemoveDir(const QString& name, int& result) {
    result = quote({"RMD " + absolutePath(name.toUtf8())});
}

void McWinFTP::setCurDir(const QString& dir) {
    QString relative = dir;
    if (relative.startsWith(QLatin1Char('/')) || relative.startsWith(QLatin1Char('\\')))
        relative.remove(0, 1);
    if (relative.isEmpty()) {
        report(FtpErrors::kInvalidName, QStringLiteral("The directory name is empty."));
        return;
    }
    if (!ensureConnected()) return;
    QStringList segments = pathSegments(curDir_);
    for (const QString& piece : relative.split(QLatin1Char('/'))) {
        if (piece == QLatin1String("..")) {
            if (!segments.isEmpty()) segments.removeLast();
        } else if (!piece.isEmpty() && piece != QLatin1String(".")) {
            segments.append(piece);
        }
    }
    const QString candidate = QLatin1Char('/') + segments.join(QLatin1Char('/'));
    const int code = perform(Request::to(directoryUrl(candidate)).noBody());
    if (code != CURLE_OK) {
        reportCurl(code);
        return;
    }
    curDir_ = candidate;
}

void McWinFTP::FindFile(const QString& pattern) {
    listing_.clear();
    cursor_ = 0;
    file_ = FtpEntry{};
    if (!ensureConnected()) {
        file_.Eof = true;
        return;
    }
    QByteArray text;
    const int code = perform([&] {
        Request r = Request::to(directoryUrl(curDir_));
        r.buffer = &text;
        return r;
    }());
    if (code != CURLE_OK) {
        reportCurl(code);
        file_.Eof = true;
        return;
    }
    for (const FtpEntry& entry : parseListing(text, ftpNow()))
        if (matchesFindPattern(entry.Name, pattern)) listing_.append(entry);
    if (listing_.isEmpty())
        report(FtpErrors::kNoMoreFiles);
    else
        file_ = listing_.first();
}

void McWinFTP::NextFile() {
    if (file_.Eof) return;
    if (++cursor_ >= listing_.size())
        report(FtpErrors::kNoMoreFiles);
    else
        file_ = listing_[cursor_];
}

void McWinFTP::PutFile(const QString& local, const QString& remote, int transferType, int& result) {
    result = 0;
    if (!ensureConnected()) return;
    QFile source(local);
    if (!source.open(QIODevice::ReadOnly)) {
        report(FtpErrors::kLocalRead, source.errorString());
        return;
    }
    const int code = perform([&] {
        Request r =
            Request::to(directoryUrl(curDir_) + encoded(remote.toUtf8())).asText(transferType == 1);
        r.source = &source;
        return r;
    }());
    if (code != CURLE_OK) reportCurl(code);
    result = code == CURLE_OK;
}

bool McWinFTP::retrieve(const QByteArray& remote, const QString& local, int transferType,
                        int& curlCode) {
    curlCode = -1;
    QSaveFile target(local);
    target.setDirectWriteFallback(false);
    if (!target.open(QIODevice::WriteOnly)) {
        report(FtpErrors::kLocalWrite, target.errorString());
        return false;
    }
    curlCode = perform([&] {
        Request r = Request::to(directoryUrl(curDir_) + encoded(remote)).asText(transferType == 1);
        r.sink = &target;
        return r;
    }());
    if (curlCode != CURLE_OK) {
        target.cancelWriting();
        return false;
    }
    if (!target.commit()) {
        curlCode = -1;
        report(FtpErrors::kLocalWrite, target.errorString());
        return false;
    }
    return true;
}

void McWinFTP::GetFile(const QString& remote, const QString& local, bool failIfExists,
                       int transferType, int& result) {
    GetFile(remote.toUtf8(), local, failIfExists, transferType, result);
}

void McWinFTP::GetFile(const QByteArray& rawRemote, const QString& local, bool failIfExists,
                       int transferType, int& result) {
    result = 0;
    QThread::msleep(quint32(std::max(0, settings.fetchPauseMs)));
    if (!ensureConnected()) return;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        if (failIfExists && QFileInfo::exists(local)) {
            report(FtpErrors::kFileExists, QStringLiteral("The file exists."));
            return;
        }
        int code = 0;
        if (retrieve(rawRemote, local, transferType, code)) {
            result = 1;
            return;
        }
        if (code < 0) return; // a local failure, reported where it happened
        if (FtpErrors::numberForCurlCode(code) != FtpErrors::kServerRefused) {
            reportCurl(code);
            return;
        }
    }
    report(FtpErrors::kServerRefused);
}
