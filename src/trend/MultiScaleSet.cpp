#include "trend/MultiScaleSet.h"

#include "base/LanguageTable.h"
#include "base/NumberText.h"
#include "base/ShowMsg.h"
#include "base/VbFormat.h"
#include "trend/PlotValue.h"
#include "trend/TrendView.h"

#include <algorithm>

namespace {

constexpr size_t kRows = 128;

QString cellText(double value) {
    if (value == Chart::kHoleValue) return QString();
    QString text = NumberText::doubleText(value);
    return text.replace(QLatin1Char('.'), VbFormat::Separators::system().decimal);
}

double cellValue(const QString& text) {
    QString t = text.trimmed();
    t.replace(VbFormat::Separators::system().decimal, QStringLiteral("."));
    return TrendValues::scaleNumber(t);
}

} // namespace

MultiScaleSet::MultiScaleSet(TrendView& view) : v_(view) {
    const TrendViewState& st = view.state();
    const ChannelTable& ch = view.tables().Channels;
    const size_t count = std::min(kRows, size_t(std::max<int>(view.tables().ChannelCount, 0)));
    for (size_t r = 0; r < count; ++r)
        rows.push_back({st.MultiScaleShown[r], ch.ChTag[r + 1].trimmed(),
                        cellText(st.MultiScale[r][0]), cellText(st.MultiScale[r][1])});
    Check1 = st.MultiScaleFlag != 0;
}

bool MultiScaleSet::acceptsCell(const QString& text, int decimals) {
    const QString t = text.trimmed();
    if (t.isEmpty()) return true;
    const QString sep = VbFormat::Separators::system().decimal;
    const qsizetype at = t.indexOf(sep);
    if (at >= 0 && t.size() - at - sep.size() > decimals) return false;
    const double value = cellValue(t);
    return value != Chart::kHoleValue && value >= -300000 && value <= 300000;
}

int MultiScaleSet::ok() {
    if (std::none_of(rows.begin(), rows.end(), [](const Row& r) { return r.shown; })) {
        ShowMsg(kMsgInformation, MsgText(582));
        return 582;
    }
    TrendViewState& st = v_.state();
    st.ScaleType = ScaleType::MultiScale;
    st.MultiScaleFlag = Check1 ? 1 : 0;
    st.MultiScaleShown.fill(false);
    for (size_t r = 0; r < rows.size(); ++r) {
        st.MultiScaleShown[r] = rows[r].shown;
        st.MultiScale[r] = {cellValue(rows[r].low), cellValue(rows[r].high)};
    }
    v_.scales().ScaleTypeInit();
    return 0;
}
