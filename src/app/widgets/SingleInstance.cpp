#include "app/widgets/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

bool toAddress(const QString& path, sockaddr_un& address) {
    const QByteArray bytes = QFile::encodeName(path);
    std::memset(&address, 0, sizeof address);
    address.sun_family = AF_UNIX;
    if (size_t(bytes.size()) >= sizeof address.sun_path) return false;
    std::memcpy(address.sun_path, bytes.constData(), size_t(bytes.size()));
    return true;
}

int unixSocket() {
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

} // namespace

SingleInstance::SingleInstance(const QString& socketPath) : path_(socketPath) {}

SingleInstance::~SingleInstance() {
    notifier_.reset();
    if (listenFd_ >= 0) {
        ::close(listenFd_);
        QFile::remove(path_);
    }
}

QString SingleInstance::defaultSocketPath() {
    QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (dir.isEmpty() || !QDir(dir).exists()) dir = QDir::tempPath();
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty()) user = QString::number(::getuid());
    return dir + QStringLiteral("/recview-") + user + QStringLiteral(".sock");
}

bool SingleInstance::anotherInstanceRunning() {
    if (listening()) return false;
    if (connectToRunning()) return true;
    if (listen()) return false;
    // Another process started at the same moment and listens now.
    return connectToRunning();
}

bool SingleInstance::connectToRunning() const {
    sockaddr_un address;
    if (!toAddress(path_, address)) return false;
    const int fd = unixSocket();
    if (fd < 0) return false;
    const bool connected =
        ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(fd);
    return connected;
}

bool SingleInstance::listen() {
    sockaddr_un address;
    if (!toAddress(path_, address)) return false;
    // Nobody answers: whatever stands at the path is left from a process that ended.
    QFile::remove(path_);
    const int fd = unixSocket();
    if (fd < 0) return false;
    if (::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(fd, 16) != 0) {
        ::close(fd);
        return false;
    }
    listenFd_ = fd;
    notifier_ = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { acceptPending(); });
    return true;
}

void SingleInstance::acceptPending() {
    // A later instance only asks whether someone listens; its connection is closed at once.
    const int fd = ::accept4(listenFd_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (fd >= 0) ::close(fd);
}
