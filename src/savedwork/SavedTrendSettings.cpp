#include "savedwork/SavedTrendSettings.h"

#include "savedwork/BackupRecords.h"
#include "trend/TrendView.h"

void installSavedTrendSettings() {
    TrendView::setSavedSettingsReader([](int viewNumber) {
        if (!ReadMultiScaleBak(viewNumber)) return;
        TrendViewState& st = trendState(viewNumber);
        st.SavedScaleTable = st.MultiScaleFlag != 0;
    });
}
