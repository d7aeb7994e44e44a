#include "platform/ChartFile.h"

#include "platform/ChartModel.h"

#include <QDataStream>
#include <QIODevice>

namespace ChartFile {

namespace {

constexpr quint32 kMagic = 0x52564331; // "RVC1"
constexpr qint32 kVersion = 1;

void writeAxis(QDataStream& out, const ChartAxis& a) {
    out << a.min() << a.isMinAuto() << a.max() << a.isMaxAuto() << a.labelInterval()
        << a.isLabelIntervalAuto() << a.subGridInterval() << a.isReversed() << a.isLogarithmic()
        << a.isShown() << a.areLabelsShown() << a.isGridShown() << qint32(a.labelMethod())
        << qint32(a.precision()) << a.title() << a.titleFont() << qint32(a.titleRotation())
        << a.font() << a.labelColor();
    out << qint32(a.valueLabels().count());
    for (const ValueLabel& label : a.valueLabels().items())
        out << label.value << label.text << label.color;
}

void readAxis(QDataStream& in, ChartAxis& a) {
    double min, max, interval, subGrid;
    bool minAuto, maxAuto, intervalAuto, reversed, log, shown, labelsShown, gridShown;
    qint32 method, precision, rotation, count;
    QString title;
    QFont titleFont, font;
    QColor labelColor;
    in >> min >> minAuto >> max >> maxAuto >> interval >> intervalAuto >> subGrid >> reversed >>
        log >> shown >> labelsShown >> gridShown >> method >> precision >> title >> titleFont >>
        rotation >> font >> labelColor >> count;
    a.setMin(min);
    a.setMinAuto(minAuto);
    a.setMax(max);
    a.setMaxAuto(maxAuto);
    a.setLabelInterval(interval);
    a.setLabelIntervalAuto(intervalAuto);
    a.setSubGridInterval(subGrid);
    a.setReversed(reversed);
    a.setLogarithmic(log);
    a.setShown(shown);
    a.setLabelsShown(labelsShown);
    a.setGridShown(gridShown);
    a.setLabelMethod(Chart::LabelMethod(method));
    a.setPrecision(precision);
    a.setTitle(title);
    a.setTitleFont(titleFont);
    a.setTitleRotation(rotation);
    a.setFont(font);
    a.setLabelColor(labelColor);
    ValueLabels& labels = a.valueLabels();
    labels.clear();
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        ValueLabel label;
        in >> label.value >> label.text >> label.color;
        labels.add(label.value, label.text, label.color);
    }
}

void writeSeries(QDataStream& out, const ChartSeries& s) {
    const SeriesStyle& st = s.style;
    out << qint32(s.displayState) << s.inAutoRange << s.label << st.color << qint32(st.pattern)
        << qint32(st.width) << qint32(st.symbol) << qint32(st.symbolSize) << st.symbolColor;
    out << qint32(s.pointStyles().size());
    for (const auto& [point, ps] : s.pointStyles())
        out << qint64(point) << qint32(ps.symbol) << qint32(ps.symbolSize) << ps.color;
    const bool stored = !s.isSourced();
    out << stored << qint64(stored ? s.count() : 0) << (stored && s.hasExplicitX());
    for (qsizetype i = 0; stored && i < s.count(); ++i) out << s.y(i);
    for (qsizetype i = 0; stored && s.hasExplicitX() && i < s.count(); ++i) out << s.x(i);
}

void readSeries(QDataStream& in, ChartModel& model, int s) {
    qint32 display, pattern, width, symbol, symbolSize, styleCount;
    SeriesStyle st;
    bool inAutoRange;
    QString label;
    in >> display >> inAutoRange >> label >> st.color >> pattern >> width >> symbol >> symbolSize >>
        st.symbolColor >> styleCount;
    st.pattern = Chart::LinePattern(pattern);
    st.width = width;
    st.symbol = Chart::SymbolShape(symbol);
    st.symbolSize = symbolSize;
    std::vector<std::pair<qint64, PointStyle>> pointStyles;
    for (qint32 i = 0; i < styleCount && in.status() == QDataStream::Ok; ++i) {
        qint64 point;
        qint32 shape, size;
        PointStyle ps;
        in >> point >> shape >> size >> ps.color;
        ps.symbol = Chart::SymbolShape(shape);
        ps.symbolSize = size;
        pointStyles.emplace_back(point, ps);
    }
    bool stored, explicitX;
    qint64 count;
    in >> stored >> count >> explicitX;
    if (count < 0 || count > (in.device()->size() - in.device()->pos()) / 8) {
        in.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    std::vector<double> y(static_cast<size_t>(count));
    for (double& v : y) in >> v;
    model.setSeriesValues(s, std::move(y));
    for (qint64 i = 0; explicitX && i < count; ++i) {
        double x;
        in >> x;
        model.setX(s, i + 1, x);
    }
    model.setDisplayState(s, display);
    model.setSeriesInAutoRange(s, inAutoRange);
    model.setSeriesLabel(s, label);
    model.setSeriesStyle(s, st);
    for (const auto& [point, ps] : pointStyles) model.setPointStyle(s, point + 1, ps);
}

void writeTitle(QDataStream& out, const ChartTitle& t) {
    out << t.IsShown << t.Text << t.Font << t.ForegroundColor << t.BackgroundColor
        << qint32(t.BorderType);
}

void readTitle(QDataStream& in, ChartTitle& t) {
    qint32 border;
    in >> t.IsShown >> t.Text >> t.Font >> t.ForegroundColor >> t.BackgroundColor >> border;
    t.BorderType = Chart::BorderType(border);
}

void writeLabel(QDataStream& out, const ChartLabel& l) {
    out << l.Name << l.IsBatched << l.IsShown << l.Text << qint32(l.Border.Type)
        << qint32(l.Border.Width) << qint32(l.Anchor) << l.Font << qint32(l.AttachMethod)
        << l.AttachCoord << l.AttachDataCoord << qint32(l.AttachDataIndex.Series)
        << qint32(l.AttachDataIndex.Point) << qint32(l.Offset) << qint32(l.Rotation)
        << l.Interior.BackgroundColor << l.Interior.ForegroundColor;
}

void readLabel(QDataStream& in, ChartLabel& l) {
    qint32 borderType, borderWidth, anchor, attach, series, point, offset, rotation;
    in >> l.Name >> l.IsBatched >> l.IsShown >> l.Text >> borderType >> borderWidth >> anchor >>
        l.Font >> attach >> l.AttachCoord >> l.AttachDataCoord >> series >> point >> offset >>
        rotation >> l.Interior.BackgroundColor >> l.Interior.ForegroundColor;
    l.Border = {Chart::BorderType(borderType), borderWidth};
    l.Anchor = Chart::Anchor(anchor);
    l.AttachMethod = Chart::AttachMethod(attach);
    l.AttachDataIndex = {series, point};
    l.Offset = offset;
    l.Rotation = rotation;
}

void writeDecor(QDataStream& out, const ChartModel& model) {
    const ChartLegend& g = model.legend();
    out << g.IsShow << g.Text << g.Font << g.BackColor << g.ForeColor << qint32(g.Anchor)
        << qint32(g.Orientation) << qint32(g.BorderType);
    writeTitle(out, model.header());
    writeTitle(out, model.footer());
    const ChartColors& c = model.colors();
    out << c.ControlBackColor << c.ChartAreaBackColor << c.PlotAreaBackColor << c.AxisColor
        << c.GridColor << c.SubGridColor << model.chartAreaMargins();
}

void readDecor(QDataStream& in, ChartModel& model) {
    ChartLegend& g = model.legend();
    qint32 anchor, orientation, border;
    in >> g.IsShow >> g.Text >> g.Font >> g.BackColor >> g.ForeColor >> anchor >> orientation >>
        border;
    g.Anchor = Chart::Anchor(anchor);
    g.Orientation = Qt::Orientation(orientation);
    g.BorderType = Chart::BorderType(border);
    readTitle(in, model.header());
    readTitle(in, model.footer());
    ChartColors& c = model.colors();
    QMargins margins;
    in >> c.ControlBackColor >> c.ChartAreaBackColor >> c.PlotAreaBackColor >> c.AxisColor >>
        c.GridColor >> c.SubGridColor >> margins;
    model.setChartAreaMargins(margins);
}

void writeChart(const ChartModel& model, QDataStream& out) {
    out << kMagic << kVersion << qint32(model.chartType());
    for (Chart::Axis id : {Chart::Axis::X, Chart::Axis::Y, Chart::Axis::Y2})
        writeAxis(out, model.axis(id));
    out << qint32(model.seriesCount());
    for (int s = 1; s <= model.seriesCount(); ++s) writeSeries(out, model.series(s));
    out << qint32(model.labels().count());
    for (int i = 0; i < model.labels().count(); ++i) writeLabel(out, model.labels().item(i));
    writeDecor(out, model);
}

} // namespace

bool save(const ChartModel& model, QIODevice& device) {
    QDataStream out(&device);
    out.setVersion(QDataStream::Qt_6_0);
    writeChart(model, out);
    return out.status() == QDataStream::Ok;
}

bool load(ChartModel& model, QIODevice& device) {
    QDataStream in(&device);
    in.setVersion(QDataStream::Qt_6_0);
    quint32 magic = 0;
    qint32 version = 0, type = 0, seriesCount = 0, labelCount = 0;
    in >> magic >> version >> type;
    if (magic != kMagic || version != kVersion || in.status() != QDataStream::Ok) return false;
    // Read into a scratch model first, so that a damaged file changes nothing.
    ChartModel scratch;
    scratch.setIsBatched(true);
    scratch.setChartType(type);
    for (Chart::Axis id : {Chart::Axis::X, Chart::Axis::Y, Chart::Axis::Y2})
        readAxis(in, scratch.axis(id));
    in >> seriesCount;
    if (seriesCount < 0 || seriesCount > 100000) return false;
    scratch.setSeriesCount(seriesCount);
    for (int s = 1; s <= seriesCount && in.status() == QDataStream::Ok; ++s)
        readSeries(in, scratch, s);
    in >> labelCount;
    for (qint32 i = 0; i < labelCount && in.status() == QDataStream::Ok; ++i)
        readLabel(in, scratch.labels().add());
    readDecor(in, scratch);
    if (in.status() != QDataStream::Ok) return false;
    model.takeStateOf(scratch);
    return true;
}

} // namespace ChartFile
