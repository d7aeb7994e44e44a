// Writes the bundled sample recordings: a heat-treatment furnace with 8 channels over two days at
// a 10 s interval, as two VXF files of one batch that the reader joins by time. Day 1 holds an
// over-temperature alarm episode and operator messages; day 2 a thermocouple burn-out.
#include "base/TimeBase.h"
#include "support/VxfWriter.h"

#include <QDir>
#include <QString>

#include <cmath>
#include <cstdio>

namespace {

using namespace fixtures;

constexpr int kRowsPerDay = 8640; // 10 s interval
constexpr int kChannels = 8;

struct ChannelSpec {
    const char* tag;
    const char* unit;
    int decimals;
    double base, swing;
};
const ChannelSpec kSpecs[kChannels] = {
    {"Zone1-T", "degC", 1, 850, 30}, {"Zone2-T", "degC", 1, 845, 28},
    {"Zone3-T", "degC", 1, 840, 26}, {"Load-T", "degC", 1, 800, 60},
    {"O2", "%", 2, 2.1, 0.6},        {"Press", "kPa", 2, 101.3, 0.8},
    {"Gas", "m3/h", 1, 42, 9},       {"Fan", "rpm", 0, 1450, 40},
};

qint16 sampleAt(int day, int row, int ch) {
    const double t = (day * kRowsPerDay + row) / double(kRowsPerDay); // days
    const ChannelSpec& s = kSpecs[ch];
    const double cycle = std::sin(2 * M_PI * t * 3 + ch * 0.7);
    const double ripple = std::sin(2 * M_PI * t * 97 + ch) * 0.08;
    double v = s.base + s.swing * (cycle + ripple);
    if (day == 0 && ch == 0 && row > 3000 && row < 3400)
        v += 60 * std::sin(M_PI * (row - 3000) / 400.0);
    return qint16(std::lround(v * std::pow(10.0, s.decimals)));
}

VxfDescription furnaceDay(int day) {
    VxfDescription d;
    d.magic = QByteArray("VX3\0", 4);
    d.startTime = quint32(TimeBase::toSeconds({2026, 3, 9 + day, 0, 0, 0}));
    d.intervalTenths = 100;
    d.batchText = "HT-2026-0309";
    d.modelText = "VX-3000";
    d.versionText = "R2.04";
    for (int c = 0; c < kChannels; ++c)
        d.channels.append({kSpecs[c].tag, kSpecs[c].unit, c, false, kSpecs[c].decimals, c});
    d.rows.resize(kRowsPerDay);
    for (int r = 0; r < kRowsPerDay; ++r) {
        for (int c = 0; c < kChannels; ++c) {
            VxfSample s{sampleAt(day, r, c), 0, 0, 0};
            if (day == 0 && c == 0 && r > 3150 && r < 3300) s.alarm1 = 0x03; // level 1 high alarm
            if (day == 1 && c == 3 && r > 5000 && r < 5090) s.value = 32766; // burn-out
            d.rows[r].append(s);
        }
    }
    if (day == 0) {
        d.messages = {{d.startTime + 600, 0, "Batch HT-0309 loaded", 1},
                      {d.startTime + 31500, 0, "Zone 1 over temperature", 2},
                      {d.startTime + 33000, 0, "Zone 1 back to normal", 2}};
        d.alarms = {{d.startTime + 31510, 0, 1, 0x11, 0x01, 8800}, {0, 0, 1, 0x01, 0, 8850}};
    } else {
        d.messages = {{d.startTime + 50000, 0, "Load thermocouple check", 1}};
    }
    return d;
}

} // namespace

int main(int argc, char** argv) {
    const QString dir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("samples");
    QDir().mkpath(dir);
    for (int day = 0; day < 2; ++day) {
        const QString path = dir + QStringLiteral("/furnace-day%1.vxf").arg(day + 1);
        if (!writeFile(path, buildVxf(furnaceDay(day)))) {
            std::fprintf(stderr, "make_samples: cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
