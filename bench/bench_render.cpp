// Repaint and pyramid build of a trend chart of 64 channels x 1,000,000 points at 1920 x 1080.
// Channels are 16-bit raw values read through a per-file lookup, as the store keeps them.
#include "platform/ChartModel.h"
#include "platform/ChartRenderer.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <vector>

namespace {

constexpr int kChannels = 64;
constexpr qsizetype kPoints = 1'000'000;
const QSize kImageSize(1920, 1080);

// One file's lookup: raw 0 is a hole, others a scaled value.
struct Lookup {
    std::array<double, 65536> table;
    Lookup() {
        table[0] = Chart::kHoleValue;
        for (size_t i = 1; i < table.size(); ++i) table[i] = (double(i) - 32768) * 0.01;
    }
};

class RawSource final : public SeriesSource {
public:
    RawSource(std::vector<quint16> raw, const Lookup& lookup)
        : raw_(std::move(raw)), lookup_(lookup) {}
    qsizetype count() const override { return qsizetype(raw_.size()); }
    void values(qsizetype first, qsizetype n, double* out) const override {
        const quint16* raw = raw_.data() + first;
        const double* table = lookup_.table.data();
        for (qsizetype i = 0; i < n; ++i) out[i] = table[raw[i]];
    }

private:
    std::vector<quint16> raw_;
    const Lookup& lookup_;
};

// A random walk per channel around its own level, with a few gaps of holes.
std::vector<quint16> channelData(int channel) {
    std::vector<quint16> raw(static_cast<size_t>(kPoints));
    quint32 state = 2463534242u + quint32(channel) * 7919u;
    int level = 20000 + channel * 400;
    for (size_t i = 0; i < raw.size(); ++i) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        level += int(state % 41) - 20;
        level = std::clamp(level, 1000, 64000);
        raw[i] = quint16(level);
    }
    for (size_t gap = 100000 + size_t(channel) * 1000; gap < raw.size(); gap += 250000)
        std::fill_n(raw.begin() + qsizetype(gap), 5000, quint16(0));
    return raw;
}

ChartModel& fullModel() {
    static Lookup lookup;
    static ChartModel* model = [] {
        auto* m = new ChartModel;
        m->setIsBatched(true);
        m->setSeriesCount(kChannels);
        for (int s = 1; s <= kChannels; ++s)
            m->setSeriesSource(s, std::make_unique<RawSource>(channelData(s), lookup));
        m->setIsBatched(false);
        return m;
    }();
    return *model;
}

void buildPyramids(ChartModel& model) {
    for (int s = 1; s <= model.seriesCount(); ++s) {
        model.refreshSeries(s);
        benchmark::DoNotOptimize(model.series(s).pyramid().levelCount());
    }
}

void BM_PyramidBuild64x1M(benchmark::State& state) {
    ChartModel& model = fullModel();
    for (auto _ : state) buildPyramids(model);
    state.SetItemsProcessed(state.iterations() * kChannels * kPoints);
}

// Repaint of points first .. first + span - 1 of every channel into a 1920 x 1080 image.
void repaint(benchmark::State& state, qsizetype first, qsizetype span) {
    ChartModel& model = fullModel();
    model.axisX().setMin(double(first));
    model.axisX().setMax(double(first + span - 1));
    model.axisY().min(); // automatic range and pyramids outside the timing
    QImage image(kImageSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        ChartRenderer::render(model, painter, QSizeF(kImageSize));
    }
    model.axisX().setMinAuto(true);
    model.axisX().setMaxAuto(true);
}

void BM_RepaintFullRange(benchmark::State& state) {
    repaint(state, 0, kPoints);
}

// The plan alone, without painting: what the pyramid walk costs.
void BM_PrepareFullRange(benchmark::State& state) {
    ChartModel& model = fullModel();
    model.axisY().min();
    for (auto _ : state)
        benchmark::DoNotOptimize(ChartRenderer::prepare(model, QSizeF(kImageSize)).series.size());
}
void BM_RepaintZoom100k(benchmark::State& state) {
    repaint(state, 400000, 100000);
}
void BM_RepaintZoom10k(benchmark::State& state) {
    repaint(state, 400000, 10000);
}
void BM_RepaintZoom2k(benchmark::State& state) {
    repaint(state, 400000, 2000);
}

} // namespace

BENCHMARK(BM_PyramidBuild64x1M)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_RepaintFullRange)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_PrepareFullRange)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_RepaintZoom100k)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_RepaintZoom10k)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_RepaintZoom2k)->Unit(benchmark::kMillisecond)->Repetitions(5);

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
