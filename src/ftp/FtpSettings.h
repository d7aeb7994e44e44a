#pragma once

// The waits and the port of every FTP session, in one record. The defaults suit recorders on a
// plant network; tests and `recview collect --port` set their own.
struct FtpSettings {
    int port = 21;                // the table holds no port: every host is reached on this one
    int connectTimeoutMs = 15000; // connection, greeting and login
    int replyTimeoutMs = 30000;   // each reply of the server once logged in
    int acceptTimeoutMs = 15000;  // the server's data connection in active mode
    int fetchPauseMs = 50;        // the pause before each fetch
    int stallMs = 30000;          // a transfer that moves no byte for this long ends
};
