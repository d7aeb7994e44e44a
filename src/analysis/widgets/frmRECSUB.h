#pragma once

#include "analysis/ChannelSettings.h"

#include <QDialog>

class QTableWidget;
class TrendView;

// The channel settings table of a view (vaSpread1): per line its on flag, sources A and B with
// the sign, the constant, the scale, tag and unit; Command3 chooses the scale type. OK applies
// what changed; Cancel closes.
class frmRECSUB : public QDialog {
    Q_OBJECT
public:
    frmRECSUB(TrendView& view, QWidget* parent = nullptr);

    QTableWidget* vaSpread1() const { return table_; }
    ChannelSettings& settings() { return settings_; }
    // Reads the table into the settings and applies them; true when the view was replotted.
    bool Command1();

private:
    void fillRow(int row);
    void readRow(int row);

    ChannelSettings settings_;
    QTableWidget* table_;
};

// Connects command 4 of the trend views to this dialog.
void installChannelSettings();
