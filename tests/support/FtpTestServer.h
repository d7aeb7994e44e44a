#pragma once

#include <QProcess>
#include <QString>

// The FTP server of the tests (tests/support/ftp_server.py, pyftpdlib) on 127.0.0.1 and a free
// port, serving `root` to "anonymous" with `password`. Killed when the object goes.
class FtpTestServer {
public:
    enum class Fault { None, NeverGreet, Drop, Stall, StallList };

    FtpTestServer(const QString& root, const QString& password, Fault fault = Fault::None);
    ~FtpTestServer();
    FtpTestServer(const FtpTestServer&) = delete;
    FtpTestServer& operator=(const FtpTestServer&) = delete;

    // 0 when the server did not start within a few seconds.
    int port() const { return port_; }

    // A port on 127.0.0.1 that nobody listens on (it was free a moment ago).
    static int closedPort();

private:
    QProcess process_;
    int port_ = 0;
};
