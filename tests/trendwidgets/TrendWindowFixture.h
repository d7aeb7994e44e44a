#pragma once

#include "platform/widgets/ChartWidget.h"
#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "support/RecordingFixture.h"
#include "support/RecordingMessageSink.h"
#include "support/VxfWriter.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"
#include "trend/widgets/frmScrollTime.h"

#include <QApplication>
#include <QMouseEvent>

#include <memory>

namespace trendwidgets {

// A recording of `channels` channels over `rows` points at 1 s, loaded into a shown view the
// way the main window does it: command line selection, copy to the view, LoadRecording.
struct LoadedWindow {
    explicit LoadedWindow(int viewNumber, int channels = 2, int rows = 600,
                          qint16 (*value)(int row, int channel) = ramp)
        : LoadedWindow(viewNumber, fixtures::simpleVxf(channels, rows, 86400 * 30, 10, value)) {}
    LoadedWindow(int viewNumber, const fixtures::VxfDescription& recording) {
        trendState(viewNumber).reset();
        const QString path =
            dir.write(QStringLiteral("trend%1.vxf").arg(viewNumber), fixtures::buildVxf(recording));
        selection().clear();
        CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({path}), false);
        copySelectionToView(views(viewNumber));
        window = std::make_unique<frmScrollTime>(viewNumber);
        window->resize(900, 560);
        window->show();
        loaded = window->LoadRecording();
        QApplication::processEvents();
    }
    ~LoadedWindow() {
        // Closing would delete the window on its own; the test owns it.
        window->setAttribute(Qt::WA_DeleteOnClose, false);
    }

    static qint16 ramp(int row, int channel) { return qint16(channel == 1 ? row % 100 : 50); }

    TrendView& trend() { return window->trend(); }
    ChartWidget& chart() { return *window->chartWidget(); }
    double xMin() { return trend().chart().axisX().min(); }
    double xMax() { return trend().chart().axisX().max(); }
    QRectF plot() { return chart().chartGeometry().plotArea(); }

    // A mouse event on the chart widget at a pixel.
    void mouse(QEvent::Type type, Qt::MouseButton button, const QPointF& at) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton
                                      : type == QEvent::MouseMove        ? pressed
                                                                         : button;
        pressed = held;
        QMouseEvent event(type, at, chart().mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(&chart(), &event);
    }
    void drag(Qt::MouseButton button, const QPointF& from, const QPointF& to) {
        mouse(QEvent::MouseButtonPress, button, from);
        mouse(QEvent::MouseMove, Qt::NoButton, (from + to) / 2);
        mouse(QEvent::MouseMove, Qt::NoButton, to);
        mouse(QEvent::MouseButtonRelease, button, to);
    }
    // A left drag along the plot's middle row between fractions of its width.
    void band(double from, double to) {
        const QRectF p = plot();
        drag(Qt::LeftButton, QPointF(p.left() + p.width() * from, p.center().y()),
             QPointF(p.left() + p.width() * to, p.center().y()));
    }

    RecordingMessageSink sink;
    FixtureDir dir;
    std::unique_ptr<frmScrollTime> window;
    bool loaded = false;
    Qt::MouseButtons pressed = Qt::NoButton;
};

} // namespace trendwidgets
