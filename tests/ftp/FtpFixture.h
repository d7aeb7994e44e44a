#pragma once

#include "ftp/FtpSettings.h"
#include "ftp/McWinFTP.h"
#include "support/FtpTestServer.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

// A remote tree served on 127.0.0.1, a local folder, and waits short enough for tests.
class FtpFixture : public ::testing::Test {
protected:
    static constexpr const char* kPassword = "secret-1";

    static FtpSettings shortWaits(int port) {
        FtpSettings s;
        s.port = port;
        s.connectTimeoutMs = 2000;
        s.replyTimeoutMs = 2000;
        s.acceptTimeoutMs = 2000;
        // Above the 1 s after which a dropped SYN to a busy local data port is sent again.
        s.stallMs = 2500;
        return s;
    }

    void startServer(FtpTestServer::Fault fault = FtpTestServer::Fault::None) {
        server =
            std::make_unique<FtpTestServer>(remote.path(), QString::fromLatin1(kPassword), fault);
        ASSERT_NE(server->port(), 0) << "the FTP test server did not start";
    }
    int port() const { return server ? server->port() : FtpTestServer::closedPort(); }

    // A client set up for the test server, not yet connected.
    void prepare(McWinFTP& ftp, const char* password = kPassword) const {
        ftp.RemoteHost = QStringLiteral("127.0.0.1");
        ftp.RemotePort = port();
        ftp.settings = shortWaits(port());
        ftp.User = QStringLiteral("anonymous");
        ftp.Password = QString::fromLatin1(password);
    }

    static void writeFile(const QString& path, const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
    static QByteArray readFile(const QString& path) {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
    }
    QString remotePath(const QString& name) const { return remote.filePath(name); }
    QString localPath(const QString& name) const { return local.filePath(name); }
    QStringList localFiles(const QString& sub = QString()) const {
        return QDir(local.filePath(sub)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QTemporaryDir remote;
    QTemporaryDir local;
    std::unique_ptr<FtpTestServer> server;
};

// Every byte value, CR LF pairs and lone LFs: what a text-mode transfer would change.
inline QByteArray binaryPattern() {
    QByteArray bytes;
    for (int round = 0; round < 4; ++round)
        for (int b = 0; b < 256; ++b) bytes.append(char(b));
    bytes += "line\r\nline\nline\r\n";
    return bytes;
}
