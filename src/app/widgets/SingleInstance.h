#pragma once

#include <QString>

#include <memory>

class QSocketNotifier;

// Tells the first instance of the program from a later one over a per-user local socket: a
// process that can connect to the socket is a later instance; otherwise a stale socket (left
// by a crash) is removed and this process listens. A crashed first instance therefore never
// makes later starts end silently.
class SingleInstance {
public:
    explicit SingleInstance(const QString& socketPath = defaultSocketPath());
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // True when another instance answers; otherwise this process becomes the listening one
    // (for as long as this object lives).
    bool anotherInstanceRunning();
    bool listening() const { return listenFd_ >= 0; }

    // "recview-<user>.sock" in the user's runtime folder (or the temporary folder).
    static QString defaultSocketPath();

private:
    bool connectToRunning() const;
    bool listen();
    void acceptPending();

    QString path_;
    int listenFd_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};
