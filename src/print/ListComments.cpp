#include "print/ListComments.h"

#include "platform/ChartModel.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"

#include <algorithm>

std::vector<ListComment> listComments(const TrendView& view) {
    const ChartModel& chart = view.chart();
    const ChartLabels& labels = chart.labels();
    struct Placed {
        double x;
        ListComment comment;
    };
    std::vector<Placed> placed;
    for (int i = 0; i < labels.count(); ++i) {
        const ChartLabel& label = labels.item(i);
        if (label.Name != QLatin1String("Dropped")) continue;
        const ChartLabel::DataIndex at = label.AttachDataIndex;
        if (at.Series < 1 || at.Series > chart.seriesCount() || at.Point < 1) continue;
        const double x = chart.X(at.Series, at.Point);
        const SampleTime t = SampleTimeText(qRound64(x), view.GetGroup());
        placed.push_back({x, {t.date, t.time, label.Text}});
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const Placed& a, const Placed& b) { return a.x < b.x; });
    std::vector<ListComment> out;
    out.reserve(placed.size());
    for (Placed& p : placed) out.push_back(std::move(p.comment));
    return out;
}

bool hasCommentBlock(const TrendView& view) {
    return view.chart().labels().count() > 1;
}
