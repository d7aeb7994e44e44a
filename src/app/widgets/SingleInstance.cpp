#include "app/widgets/SingleInstance.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>

#include <unistd.h>

SingleInstance::SingleInstance(const QString& socketPath) : path_(socketPath) {}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::defaultSocketPath() {
    QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (dir.isEmpty() || !QDir(dir).exists()) dir = QDir::tempPath();
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty()) user = QString::number(::getuid());
    return dir + QStringLiteral("/recview-") + user + QStringLiteral(".sock");
}

bool SingleInstance::listening() const {
    return server_ && server_->isListening();
}

bool SingleInstance::anotherInstanceRunning() {
    if (listening()) return false;
    if (connectToRunning()) return true;
    if (listen()) return false;
    // Another process started at the same moment and listens now.
    return connectToRunning();
}

bool SingleInstance::connectToRunning() const {
    QLocalSocket socket;
    socket.connectToServer(path_);
    const bool connected = socket.waitForConnected(500);
    socket.abort();
    return connected;
}

bool SingleInstance::listen() {
    // Nobody answers: whatever stands at the path is left from a process that ended.
    QLocalServer::removeServer(path_);
    auto server = std::make_unique<QLocalServer>();
    server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!server->listen(path_)) return false;
    // A later instance only asks whether someone listens; its connection is closed at once.
    QObject::connect(server.get(), &QLocalServer::newConnection, server.get(), [s = server.get()] {
        while (QLocalSocket* c = s->nextPendingConnection()) {
            c->abort();
            c->deleteLater();
        }
    });
    server_ = std::move(server);
    return true;
}
