#include "recording/ColorMaps.h"

#include <QDebug>

namespace {

constexpr quint32 rgb(int r, int g, int b) {
    return quint32(r) | quint32(g) << 8 | quint32(b) << 16;
}

QString gLastError;

const QVector<quint32> kHardware = {
    rgb(0, 0, 0),       rgb(255, 51, 0),    rgb(0, 191, 0),   rgb(160, 105, 45),
    rgb(0, 0, 191),     rgb(191, 0, 191),   rgb(0, 191, 191), rgb(192, 192, 192),
    rgb(225, 145, 80),  rgb(217, 255, 255), rgb(0, 255, 0),   rgb(255, 255, 0),
    rgb(105, 135, 140), rgb(255, 210, 0),   rgb(0, 255, 255), rgb(255, 255, 255)};

QVector<quint32> vxColors() {
    return {rgb(205, 50, 75),   rgb(100, 65, 205),  rgb(50, 150, 105),  rgb(160, 105, 45),
            rgb(155, 0, 205),   rgb(225, 145, 80),  rgb(130, 130, 165), rgb(45, 175, 170),
            rgb(135, 170, 80),  rgb(220, 185, 110), rgb(215, 130, 140), rgb(65, 85, 155),
            rgb(195, 195, 195), rgb(130, 130, 130), rgb(88, 88, 88),    rgb(44, 76, 40),
            rgb(0, 230, 125),   rgb(105, 135, 140), rgb(185, 200, 200), rgb(100, 100, 100),
            rgb(255, 210, 0),   rgb(255, 50, 0),    rgb(102, 153, 102), rgb(217, 255, 255),
            rgb(0, 102, 43),    rgb(51, 66, 23),    rgb(102, 102, 254), rgb(153, 102, 111),
            rgb(204, 56, 215),  rgb(255, 102, 23),  rgb(0, 153, 185),   rgb(51, 233, 75),
            rgb(102, 66, 99),   rgb(153, 153, 234), rgb(204, 153, 204), rgb(255, 90, 122),
            rgb(0, 204, 170),   rgb(51, 204, 3),    rgb(102, 65, 21),   rgb(153, 204, 55),
            rgb(204, 204, 51),  rgb(255, 76, 204),  rgb(0, 255, 243),   rgb(51, 255, 197),
            rgb(102, 111, 28),  rgb(153, 180, 94),  rgb(204, 54, 67),   rgb(255, 28, 204)};
}

QVector<quint32> vxnColors() {
    QVector<quint32> colors = vxColors();
    const quint32 reordered[] = {rgb(65, 85, 155),  rgb(225, 145, 80),  rgb(130, 130, 165),
                                 rgb(135, 170, 80), rgb(215, 130, 140), rgb(45, 175, 170),
                                 rgb(220, 185, 110)};
    for (int i = 0; i < 7; ++i) colors[5 + i] = reordered[i]; // entries 6..12
    return colors;
}

} // namespace

ColorMap::ColorMap(QString name, QVector<quint32> colors, QVector<quint32> hardware)
    : name_(std::move(name)), colors_(std::move(colors)), hardware_(std::move(hardware)) {}

quint32 ColorMap::pick(const QVector<quint32>& list, int index, const char* method) const {
    if (index >= 0 && index < list.size()) return list[index];
    gLastError = QStringLiteral("[Error] %1.%2").arg(name_, QLatin1String(method));
    qWarning().noquote() << gLastError;
    return 0;
}

quint32 ColorMap::GetColor(int index) const {
    return pick(colors_, index, "GetColor");
}
quint32 ColorMap::GetColorHW(int index) const {
    return pick(hardware_, index, "GetColorHW");
}

const ColorMap& ColorMapOfTMSeries() {
    static const ColorMap map(QStringLiteral("ColorMapOfTMSeries"),
                              {rgb(255, 0, 0), rgb(0, 0, 255), rgb(0, 191, 0), rgb(153, 102, 0),
                               rgb(153, 0, 204), rgb(255, 153, 51), rgb(192, 192, 192),
                               rgb(0, 255, 255), rgb(153, 255, 0), rgb(255, 255, 0),
                               rgb(255, 153, 204), rgb(0, 0, 204)});
    return map;
}

const ColorMap& ColorMapOfVXSeries() {
    static const ColorMap map(QStringLiteral("ColorMapOfVXSeries"), vxColors(), kHardware);
    return map;
}

const ColorMap& ColorMapOfVXNSeries() {
    static const ColorMap map(QStringLiteral("ColorMapOfVXNSeries"), vxnColors(), kHardware);
    return map;
}

const ColorMap& ColorMapOfNPSeries() {
    static const ColorMap map(QStringLiteral("ColorMapOfNPSeries"),
                              {rgb(0, 128, 0), rgb(0, 255, 0), rgb(255, 128, 0), rgb(255, 0, 0),
                               rgb(180, 16, 77), rgb(165, 79, 18), rgb(58, 159, 175),
                               rgb(59, 52, 146), rgb(50, 96, 178)});
    return map;
}

const ColorMap& ColorMapOfGSSeries() {
    static const ColorMap map(QStringLiteral("ColorMapOfGSSeries"),
                              {rgb(255, 0, 0), rgb(0, 0, 0), rgb(0, 0, 255), rgb(0, 128, 0),
                               rgb(165, 79, 18), rgb(59, 52, 146), rgb(255, 0, 0)});
    return map;
}

const ColorMap& ColorMapOfMOVRA() {
    static const ColorMap map(QStringLiteral("ColorMapOfMOVRA"),
                              {rgb(255, 0, 0), rgb(0, 0, 255), rgb(0, 191, 0), rgb(153, 102, 0),
                               rgb(153, 0, 204), rgb(255, 153, 51), rgb(192, 192, 192),
                               rgb(0, 255, 255), rgb(153, 255, 0), rgb(191, 191, 0),
                               rgb(255, 153, 204), rgb(0, 0, 204)},
                              kHardware);
    return map;
}

const ColorMap& ColorMapForVxMagic(const QString& magic) {
    const QString head = magic.left(3);
    return head == QLatin1String("W3N") || head == QLatin1String("W2N") ? ColorMapOfVXNSeries()
                                                                        : ColorMapOfVXSeries();
}

QString lastColorMapError() {
    return gLastError;
}
