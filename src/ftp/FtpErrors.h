#pragma once

#include <QString>

// The error numbers of the FTP layer. 18 and the 120xx numbers are those the callers know; the
// small local numbers cover what happens on this side of the connection.
namespace FtpErrors {
constexpr int kNotConnected = 6;          // no session is open
constexpr int kNoMoreFiles = 18;          // the end of a listing, never a failure
constexpr int kFileExists = 80;           // the local file exists and may not be replaced
constexpr int kInvalidName = 123;         // an empty directory name, a name that is no file name
constexpr int kLocalWrite = 29;           // the local file could not be written
constexpr int kLocalRead = 30;            // the local file could not be read
constexpr int kTimeout = 12002;           // no answer within the waits of FtpSettings
constexpr int kInternal = 12004;          // anything libcurl reports that has no closer number
constexpr int kServerRefused = 12003;     // the server refused with a text (its last reply)
constexpr int kNameNotResolved = 12007;   // the host could not be resolved
constexpr int kCancelled = 12017;         // the transfer was cancelled
constexpr int kCannotConnect = 12029;     // nobody listens at the address
constexpr int kConnectionAborted = 12030; // the connection dropped during a transfer

// The number for a libcurl result code (CURLcode). libcurl's 18, a partial file, is a dropped
// connection here: 18 of ours is only ever the end of a listing.
int numberForCurlCode(int curlCode);

// The text of a failure: the server's last reply for kServerRefused, a fixed text for
// kNameNotResolved, else the library's text, or a general text when that is empty.
QString troubleText(int number, const QString& lastReply, const QString& libraryText);
} // namespace FtpErrors
