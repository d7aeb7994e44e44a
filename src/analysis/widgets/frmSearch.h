#pragma once

#include "analysis/Search.h"

#include <QWidget>

class QButtonGroup;
class QComboBox;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QProgressBar;
class QTableView;
class SearchResultModel;
class frmScrollTime;

// The search window of one view: the condition (kind, channel, option, values, times, Combo1),
// cmdSearch, and the result grid vaSpread1; a click on a hit brings the trend to it.
class frmSearch : public QWidget {
    Q_OBJECT
public:
    explicit frmSearch(frmScrollTime& view);
    ~frmSearch() override;

    static frmSearch* open(frmScrollTime& view);

    // The condition as the controls hold it.
    Search::Input input() const;
    void setKind(int kind);
    void cmdSearch();
    void hitClicked(int row);

    QComboBox* kindCombo() const { return kind_; }
    QComboBox* channelCombo() const { return channel_; }
    QLineEdit* Text1() const { return text1_; }
    QLineEdit* Text2() const { return text2_; }
    QTableView* vaSpread1() const { return results_; }
    const Search::Result& result() const { return result_; }

private:
    void applyKind();

    frmScrollTime& view_;
    Search::Result result_;
    Search::Input shownInput_;
    QComboBox* kind_;
    QComboBox* channel_;
    QButtonGroup* options_;
    QLineEdit* text1_;
    QLineEdit* text2_;
    QLabel* label1_;
    QLabel* label2_;
    QDateTimeEdit* from_;
    QDateTimeEdit* to_;
    QComboBox* combo1_;
    QLabel* label3_;
    QProgressBar* Pbar1_;
    QTableView* results_;
    SearchResultModel* model_;
};

// Connects command 7 of the trend views to this window.
void installSearch();
