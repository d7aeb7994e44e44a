// Writes one small, valid recording of every file family into a folder: the files that the
// install test hands to the desktop's file-type lookup and to the installed program.
#include "support/CsvWriter.h"
#include "support/JlmWriter.h"
#include "support/NpWriter.h"
#include "support/QdfWriter.h"
#include "support/TmWriter.h"
#include "support/VxfWriter.h"

#include <QDir>
#include <QString>

#include <cstdio>
#include <utility>
#include <vector>

namespace {

using namespace fixtures;

constexpr quint32 kStartUnix = 1714989600; // 2024-05-06 10:00:00 UTC

QByteArray vxf() {
    VxfDescription d = simpleVxf(3, 6, 1000, 10, [](int r, int c) { return qint16(r * 10 + c); });
    d.magic = QByteArray("VX3\0", 4);
    d.batchText = "LOT-1";
    return buildVxf(d);
}

QByteArray qdf() {
    QdfDescription d;
    d.groupMask[0] = 0x0007;
    d.values = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    return buildQdf(d);
}

QByteArray tmFile(const char* magic) {
    TmDescription d;
    d.magic = magic;
    d.channels = {{1, '0', "0", "100.0", "C", "Temp", '1', {}, {}}};
    d.rows = {{100}, {200}, {300}};
    return buildTm(d);
}

QByteArray np(const char* magic) {
    NpDescription d;
    d.magic = QByteArray(magic, 4);
    d.gsStride = magic[0] == 'P';
    d.startUnix = kStartUnix;
    d.channels = {{"Flow", "m3/h", 1, 1}, {"Press", "kPa", 2, 2}};
    d.rows = QVector<QVector<NpSample>>(3, QVector<NpSample>(2, {7, 0, 0}));
    return buildNp(d);
}

QByteArray jlm() {
    JlmDescription d;
    d.channels = {{"Temp", "degC", 1}, {"Level", "m", 2}};
    d.keys = jlmKeys(2024, 5, 6, 10, 0, 0, 3, 60);
    d.rows = {{20.5f, 1.25f}, {21.0f, 1.5f}, {21.5f, 1.75f}};
    return buildJlm(d);
}

QByteArray csv() {
    return buildCsv({",Time,A [V],B [V],A AL,B AL", "2024/05/06,10:00:00.000,1,2,,",
                     "2024/05/06,10:00:01.000,3,4,H,", "2024/05/06,10:00:02.000,5,6,,L"});
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: family_samples DIR\n");
        return 2;
    }
    const QString dir = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(dir);
    const std::vector<std::pair<const char*, QByteArray>> files = {
        {"line1.vxf", vxf()},         {"line1.qdf", qdf()},
        {"line1-tm", tmFile("TM00")}, {"line1.msg", buildMsg({{"240506100000", "Batch started"}})},
        {"line1.n5f", np("NP5\0")},   {"line1.p4f", np("PC4\0")},
        {"line1.jlm", jlm()},         {"line1.csv", csv()},
    };
    for (const auto& [name, bytes] : files) {
        const QString path = dir + QLatin1Char('/') + QString::fromLatin1(name);
        if (!writeFile(path, bytes)) {
            std::fprintf(stderr, "family_samples: cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
