#include "ftp/FtpErrors.h"

#include <curl/curl.h>

namespace FtpErrors {

int numberForCurlCode(int curlCode) {
    switch (static_cast<CURLcode>(curlCode)) {
    case CURLE_OK:
        return 0;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return kNameNotResolved;
    case CURLE_COULDNT_CONNECT:
        return kCannotConnect;
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_FTP_ACCEPT_TIMEOUT:
        return kTimeout;
    case CURLE_ABORTED_BY_CALLBACK:
        return kCancelled;
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
    case CURLE_GOT_NOTHING:
        return kConnectionAborted;
    case CURLE_WRITE_ERROR:
        return kLocalWrite;
    case CURLE_READ_ERROR:
        return kLocalRead;
    case CURLE_LOGIN_DENIED:
    case CURLE_REMOTE_ACCESS_DENIED:
    case CURLE_QUOTE_ERROR:
    case CURLE_FTP_COULDNT_RETR_FILE:
    case CURLE_REMOTE_FILE_NOT_FOUND:
    case CURLE_UPLOAD_FAILED:
    case CURLE_FTP_COULDNT_SET_TYPE:
    case CURLE_FTP_PORT_FAILED:
    case CURLE_FTP_ACCEPT_FAILED:
    case CURLE_FTP_WEIRD_PASV_REPLY:
    case CURLE_FTP_WEIRD_227_FORMAT:
    case CURLE_FTP_COULDNT_USE_REST:
    case CURLE_REMOTE_DISK_FULL:
    case CURLE_REMOTE_FILE_EXISTS:
    case CURLE_WEIRD_SERVER_REPLY:
        return kServerRefused;
    default:
        return kInternal;
    }
}

QString troubleText(int number, const QString& lastReply, const QString& libraryText) {
    QString text;
    if (number == kServerRefused)
        text = lastReply;
    else if (number == kNameNotResolved)
        text = QStringLiteral("サーバー名を解決できませんでした。");
    else
        text = libraryText;
    if (text.isEmpty()) text = QStringLiteral("エラーが発生しています。");
    return text;
}

} // namespace FtpErrors
