#pragma once

#include <QString>

#include <memory>

class QLocalServer;

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
    bool listening() const;

    // "recview-<user>.sock" in the user's runtime folder (or the temporary folder).
    static QString defaultSocketPath();

private:
    bool connectToRunning() const;
    bool listen();

    QString path_;
    std::unique_ptr<QLocalServer> server_;
};
