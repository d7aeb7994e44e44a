#pragma once

#include <QString>
#include <QtGlobal>

// The texts of a channel's value as the grids beside and around the trend show it: cursor
// readout, data list, marker view. Values are those of the chart's series.

// A plotted value in engineering units: percent data are turned back through the channel's
// scale and rounded to its decimals; the hole stays the hole.
double ScaleToEngineering(double y, int viewNumber, int channel);

// A value as text by a channel's value format code: 0 keeps the decimals of the value's own
// text, 1..4 give exponent forms with 0..3 decimals, other codes the value's default text.
// Texts are made with the separators of the user's locale.
QString ChannelValueText(double value, int formatCode);

// The status word of a channel's store cell at a row ("BURN", "OVER" ...); empty when the cell
// holds a number.
QString SampleStatusText(int viewNumber, int channel, qint32 row);

// The name of an alarm kind; empty for 0.
QString AlarmKindText(qint32 kind);

namespace ChannelTexts {

// The channel's value format code (0 plain, else exponent decimals + 1).
int formatCode(int viewNumber, int channel);

// What a hole shows: the status text of the cell, else message 179 trimmed.
QString holeText(int viewNumber, int channel, qint32 row);

// The value of a grid text made with the locale's separators; false for status words.
bool displayNumber(const QString& text, double& value);

// Digits behind the last decimal separator of a grid text.
int displayDecimals(const QString& text);

// The text of a number with a pattern and the locale's separators.
QString displayFormat(double value, const QString& pattern);

// The text of statistic `order` (1 maximum, 2 minimum, 3 mean, 4 standard deviation, 5 the
// fifth) of a channel: the hole shows message 179; all but the deviation are turned into
// engineering units (the deviation of percent data stays in percent); maximum and minimum take
// the channel's format, the others the plain one.
QString statisticText(int viewNumber, int channel, int order, double value);

} // namespace ChannelTexts
