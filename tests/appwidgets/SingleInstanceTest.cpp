// Telling the first instance from later ones over the per-user socket.
#include "app/widgets/SingleInstance.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// Leaves a socket file behind as a crashed instance would: bound, then closed without removal.
void leaveStaleSocket(const QString& path) {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray bytes = QFile::encodeName(path);
    std::memcpy(address.sun_path, bytes.constData(), size_t(bytes.size()));
    ASSERT_EQ(::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(fd);
    ASSERT_TRUE(QFile::exists(path));
}

TEST(SingleInstance, FirstListensLaterOnesSeeIt) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("s.sock"));
    {
        SingleInstance first(path);
        EXPECT_FALSE(first.anotherInstanceRunning());
        EXPECT_TRUE(first.listening());
        // Asking again does not make the first one a later one.
        EXPECT_FALSE(first.anotherInstanceRunning());
        for (int i = 0; i < 3; ++i) {
            SingleInstance later(path);
            EXPECT_TRUE(later.anotherInstanceRunning());
            EXPECT_FALSE(later.listening());
        }
    }
    // The first one ended: the next start is a first instance again.
    SingleInstance next(path);
    EXPECT_FALSE(next.anotherInstanceRunning());
}

TEST(SingleInstance, LeftoversOfACrashDoNotCount) {
    QTemporaryDir dir;
    const QString socketPath = dir.filePath(QStringLiteral("stale.sock"));
    leaveStaleSocket(socketPath);
    const QString filePath = dir.filePath(QStringLiteral("plain.sock"));
    QFile plain(filePath);
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    plain.close();
    for (const QString& path : {socketPath, filePath}) {
        SingleInstance start(path);
        EXPECT_FALSE(start.anotherInstanceRunning()) << path.toStdString();
        EXPECT_TRUE(start.listening()) << path.toStdString();
        SingleInstance later(path);
        EXPECT_TRUE(later.anotherInstanceRunning()) << path.toStdString();
    }
}

TEST(SingleInstance, DefaultPathIsPerUserInTheRuntimeFolder) {
    const QString path = SingleInstance::defaultSocketPath();
    EXPECT_TRUE(path.startsWith(qEnvironmentVariable("XDG_RUNTIME_DIR")));
    EXPECT_TRUE(path.endsWith(QStringLiteral(".sock")));
}

} // namespace
