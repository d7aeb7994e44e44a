#pragma once

#include <QString>
#include <QVector>
#include <QtGlobal>

// Pen colours of each recorder family, as 0x00BBGGRR values (R + 256 G + 65536 B).
// GetColor(index) takes a 0-based colour code and answers the colour at index + 1 of the list;
// an index outside the list is logged as an error and gives 0 (black).
class ColorMap {
public:
    ColorMap(QString name, QVector<quint32> colors, QVector<quint32> hardware = {});
    quint32 GetColor(int index) const;
    quint32 GetColorHW(int index) const;
    int size() const { return int(colors_.size()); }
    const QString& name() const { return name_; }

private:
    quint32 pick(const QVector<quint32>& list, int index, const char* method) const;
    QString name_;
    QVector<quint32> colors_;
    QVector<quint32> hardware_;
};

const ColorMap& ColorMapOfTMSeries();
const ColorMap& ColorMapOfVXSeries();
const ColorMap& ColorMapOfVXNSeries();
const ColorMap& ColorMapOfNPSeries();
const ColorMap& ColorMapOfGSSeries();
const ColorMap& ColorMapOfMOVRA();

// The map of a VX-family file by the first three characters of its magic.
const ColorMap& ColorMapForVxMagic(const QString& magic);

// Last error logged by a colour map ("[Error]" and the method name), for diagnostics and tests.
QString lastColorMapError();
