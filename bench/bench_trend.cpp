// The trend view of the 64-channel benchmark recording: the chart fill after a load (series
// over the store and their min/max pyramids) and the repaint at 1920 x 1080 to an image.
// With --csv PATH it writes the recording's values as CSV (time, then one column a channel)
// for the comparison with other plotting tools in bench/scripts/render.sh.
#include "BenchFiles.h"

#include "platform/ChartRenderer.h"
#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "trend/StoreColumnReader.h"
#include "trend/TrendView.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <vector>

namespace {

QStringList gFiles;

bool loadView() {
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine(gFiles), false);
    copySelectionToView(views(1));
    return LoadRecording(views(1), LoadOptions()).ok();
}

void BM_TrendFillAfterLoad(benchmark::State& state) {
    if (!loadView()) state.SkipWithError("load failed");
    for (auto _ : state) {
        TrendView view(1);
        benchmark::DoNotOptimize(view.afterLoad());
    }
    state.counters["points"] = double(views(1).PointCount) * views(1).ChannelCount;
}
BENCHMARK(BM_TrendFillAfterLoad)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

void BM_TrendRender1920x1080(benchmark::State& state) {
    if (!loadView()) state.SkipWithError("load failed");
    TrendView view(1);
    view.afterLoad();
    for (auto _ : state) {
        QImage image(1920, 1080, QImage::Format_RGB32);
        QPainter painter(&image);
        ChartRenderer::render(view.chart(), painter, QSizeF(1920, 1080));
    }
}
BENCHMARK(BM_TrendRender1920x1080)->Unit(benchmark::kMillisecond)->UseRealTime();

// Values as plotted (engineering units, gaps left empty), one row a sample.
int writeCsv(const QString& path) {
    if (!loadView()) return 1;
    const ViewState& v = views(1);
    std::FILE* out = std::fopen(qPrintable(path), "w");
    if (!out) return 1;
    std::vector<StoreColumnReader> readers;
    for (int c = 1; c <= v.ChannelCount; ++c) readers.emplace_back(v.Storage, 2 * c);
    constexpr qsizetype kBlock = 65536;
    std::vector<std::vector<double>> block(readers.size(), std::vector<double>(kBlock));
    for (qint32 first = 1; first <= v.PointCount; first += qint32(kBlock)) {
        const qsizetype n = std::min<qsizetype>(kBlock, v.PointCount - first + 1);
        for (size_t c = 0; c < readers.size(); ++c) readers[c].read(first, n, block[c].data());
        for (qsizetype i = 0; i < n; ++i) {
            std::fprintf(out, "%lld", static_cast<long long>(first + i - 1));
            for (size_t c = 0; c < readers.size(); ++c) {
                const double y = block[c][size_t(i)];
                if (y == Chart::kHoleValue)
                    std::fputs(",", out);
                else
                    std::fprintf(out, ",%.10g", y);
            }
            std::fputc('\n', out);
        }
    }
    return std::fclose(out) == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    gFiles = BenchFiles::ensureRecording(
        qEnvironmentVariable("RECVIEW_BENCH_DIR", BenchFiles::defaultDir()));
    if (argc > 2 && QLatin1String(argv[1]) == QLatin1String("--csv"))
        return writeCsv(QString::fromLocal8Bit(argv[2]));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
