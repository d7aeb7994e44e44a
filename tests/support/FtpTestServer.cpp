#include "support/FtpTestServer.h"

#include <QFileInfo>
#include <QTcpServer>

namespace {

const char* faultName(FtpTestServer::Fault fault) {
    switch (fault) {
    case FtpTestServer::Fault::NeverGreet:
        return "never-greet";
    case FtpTestServer::Fault::Drop:
        return "drop";
    case FtpTestServer::Fault::Stall:
        return "stall";
    case FtpTestServer::Fault::StallList:
        return "stall-list";
    default:
        return "none";
    }
}

// The system's python carries pyftpdlib; a python of the user's own may not.
QString python() {
    const QString system = QStringLiteral("/usr/bin/python3");
    return QFileInfo::exists(system) ? system : QStringLiteral("python3");
}

} // namespace

FtpTestServer::FtpTestServer(const QString& root, const QString& password, Fault fault) {
    process_.setProcessChannelMode(QProcess::SeparateChannels);
    process_.start(python(),
                   {QStringLiteral(RECVIEW_SOURCE_DIR "/tests/support/ftp_server.py"), root,
                    password, QStringLiteral("--fault"), QString::fromLatin1(faultName(fault))});
    if (!process_.waitForStarted(5000)) return;
    QByteArray out;
    while (!out.contains('\n') && process_.waitForReadyRead(10000))
        out += process_.readAllStandardOutput();
    if (out.startsWith("PORT ")) port_ = out.mid(5).trimmed().toInt();
}

FtpTestServer::~FtpTestServer() {
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished(5000);
    }
}

int FtpTestServer::closedPort() {
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}
