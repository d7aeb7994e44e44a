#pragma once

#include <QByteArray>
#include <QVector>

#include <optional>

// Builds JLM files (a table of rows of equal width, little-endian) for tests.
namespace fixtures {

struct JlmChannel {
    QByteArray tag;  // up to 8 bytes
    QByteArray unit; // up to 6 bytes
    float decimals = 0;
};

// A row key in its byte order: year - 2000, day, month, hour, minute, second.
struct JlmKey {
    quint8 year = 24, day = 1, month = 1, hour = 0, minute = 0, second = 0;
};

struct JlmDescription {
    QVector<JlmChannel> channels;
    std::optional<float> channelCount; // the float at the start; default the channel count
    QVector<JlmKey> keys;              // one for each data row
    QVector<QVector<float>> rows;      // data rows x channels
};

QByteArray buildJlm(const JlmDescription& d);

// Keys of `rows` rows from a start, `stepSeconds` apart.
QVector<JlmKey> jlmKeys(int year, int month, int day, int hour, int minute, int second, int rows,
                        int stepSeconds);

} // namespace fixtures
