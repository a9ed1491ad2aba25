// Speed of the scope view's full refresh, measured against two baselines in the same run.
//
// 16 channels of 10,000 (and 1,000) samples each, sine, square, sawtooth and noisy signals of
// several amplitudes, fill one screen of a 1280 x 720 view. View::refreshPixmap() redraws them in
// the sweep mode (every channel triggered) and free running (each refresh after one new sample,
// so that the oldest scrolls out, as it does in use). The baselines draw the same picture:
//   - per segment: the same grid and curves with one QPainter::drawLine call per segment;
//   - QCustomPlot: 16 graphs of the same data with the default settings, rendered into a pixmap
//     of the same size.
// A last benchmark times View::addPoint with rising-edge triggers.
//
// Run: build-bench/bench/scope/bench_scope [Google Benchmark flags]; see scripts/bench, which also
// runs it with QT_NO_CPU_FEATURE=avx2: on some CPUs Qt's AVX2 span functions make one-pixel lines
// into 32-bit images fifteen times slower, and the goals hold with and without them.

#include <kes/qt/scope/view.h>

#include "session.h"
#include "summaryreporter.h"

#include <benchmark/benchmark.h>

#include <qcustomplot.h>

#include <QApplication>
#include <QByteArray>
#include <QLineF>
#include <QPainter>
#include <QPixmap>
#include <QRandomGenerator>
#include <QVector>

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

using kes::qt::scope::Channel;
using kes::qt::scope::Trigger_t;
using kes::qt::scope::TriggerOff;
using kes::qt::scope::TriggerRisingEdge;
using kes::qt::scope::View;

constexpr int channels = 16;
constexpr int width = 1280;
constexpr int height = 720;
constexpr double screenUnits = 1000.0;   // ten divisions of the default 100 units

struct Curves
{
    QVector<QVector<double>> x;
    QVector<QVector<double>> y;
};

// Channel i: a sine, square, sawtooth or noisy sine by i mod 4, amplitudes from 1 to 4.
double sample(int channel, int index, int count, QRandomGenerator& random)
{
    const double t = double(index) / count;
    const double amplitude = 1.0 + (channel / 4);
    const double cycles = 5.0 + channel;
    const double phase = t * cycles;
    switch (channel % 4) {
    case 0:
        return amplitude * std::sin(2 * M_PI * phase);
    case 1:
        return std::fmod(phase, 1.0) < 0.5 ? amplitude : -amplitude;
    case 2:
        return amplitude * (2.0 * std::fmod(phase, 1.0) - 1.0);
    default:
        return amplitude * (0.6 * std::sin(2 * M_PI * phase) + 0.8 * (random.generateDouble() - 0.5));
    }
}

Curves makeCurves(int count)
{
    QRandomGenerator random(4711);
    Curves curves;
    for (int c = 0; c < channels; ++c) {
        QVector<double> x(count);
        QVector<double> y(count);
        for (int i = 0; i < count; ++i) {
            // Just inside one screen, so that the sweep reaches the right edge.
            x[i] = i * (screenUnits * 0.999 / count);
            y[i] = sample(c, i, count, random);
        }
        curves.x.append(x);
        curves.y.append(y);
    }
    return curves;
}

std::unique_ptr<View> makeView(const Curves& curves, bool triggered)
{
    auto view = std::make_unique<View>();
    view->resize(width, height);
    view->setNumChannels(channels);
    for (int c = 0; c < channels; ++c) {
        view->setYScale(c, 1.0 + c / 4);
        view->setYOffset(c, 2.0 - (c % 4) * 1.5);
        for (int i = 0; i < curves.x.at(c).size(); ++i)
            view->addPoint(c, curves.x.at(c).at(i), curves.y.at(c).at(i));
        // Set after the samples, which then stay as they are: setting a mode clears nothing.
        if (triggered)
            view->setTrigger(c, TriggerRisingEdge);
    }
    view->redraw();
    return view;
}

void refreshSweep(benchmark::State& state, int count)
{
    const auto view = makeView(makeCurves(count), true);
    for (auto _ : state)
        view->refreshPixmap();
}

void refreshFreeRunning(benchmark::State& state, int count)
{
    const auto view = makeView(makeCurves(count), false);
    const double step = screenUnits * 0.999 / count;
    double x = (count - 1) * step;
    int index = count;
    QRandomGenerator random(7);
    for (auto _ : state) {
        state.PauseTiming();
        x += step;
        for (int c = 0; c < channels; ++c)
            view->addPoint(c, x, sample(c, index, count, random));
        ++index;
        state.ResumeTiming();
        view->refreshPixmap();
    }
}

// The same picture as the sweep, one drawLine call per segment.
void perSegment(benchmark::State& state, int count)
{
    const auto view = makeView(makeCurves(count), true);
    const QRect plot = view->plotRect();
    QPixmap pixmap(width, height);
    for (auto _ : state) {
        pixmap.fill(view->palette().color(view->backgroundRole()));
        QPainter painter(&pixmap);
        view->drawGrid(&painter);
        view->drawArrows(&painter);
        for (int c = 0; c < channels; ++c) {
            const Channel& channel = view->channel(c);
            painter.setPen(QPen(channel.color, 1));
            const double x0 = channel.points.constFirst().x();
            QPointF previous(plot.left(), view->yValue2pixel(channel, channel.points.constFirst().y()));
            for (int i = 1; i < channel.points.size(); ++i) {
                const QPointF& p = channel.points.at(i);
                const QPointF next((p.x() - x0) * channel.xPixelsPerUnit + plot.left(),
                                   view->yValue2pixel(channel, p.y()));
                painter.drawLine(QLineF(previous, next));
                previous = next;
            }
            const double zero = view->yValue2pixel(channel, 0.0);
            painter.drawLine(QLineF(previous, QPointF(previous.x(), zero)));
            painter.drawLine(QLineF(QPointF(previous.x(), zero), QPointF(plot.right(), zero)));
        }
        painter.end();
        benchmark::DoNotOptimize(pixmap);
    }
}

void customPlot(benchmark::State& state, int count)
{
    const Curves curves = makeCurves(count);
    QCustomPlot plot;
    plot.resize(width, height);
    for (int c = 0; c < channels; ++c) {
        QCPGraph* graph = plot.addGraph();
        graph->setPen(QPen(QColor::fromHsv(c * 22, 255, 200)));
        graph->setData(curves.x.at(c), curves.y.at(c), true);
    }
    plot.xAxis->setRange(0, screenUnits);
    plot.yAxis->setRange(-5, 5);
    for (auto _ : state) {
        QPixmap pixmap = plot.toPixmap(width, height);
        benchmark::DoNotOptimize(pixmap);
    }
}

void addPoints(benchmark::State& state)
{
    const Curves curves = makeCurves(10000);
    View view;
    view.setNumChannels(channels);
    for (int c = 0; c < channels; ++c)
        view.setTrigger(c, TriggerRisingEdge);
    for (auto _ : state) {
        for (int i = 0; i < 10000; ++i) {
            for (int c = 0; c < channels; ++c)
                view.addPoint(c, curves.x.at(c).at(i), curves.y.at(c).at(i));
        }
    }
    state.SetItemsProcessed(state.iterations() * 10000 * channels);
}

const char* const nameSweep = "refreshPixmap/sweep";
const char* const nameFree = "refreshPixmap/freeRunning";
const char* const namePerSegment = "baseline/perSegmentDrawLine";
const char* const nameCustomPlot = "baseline/QCustomPlot";
const char* const nameAddPoint = "addPoint/16x10000/rising";

std::string named(const char* name, int count)
{
    return std::string(name) + "/" + std::to_string(count);
}

void printSummary(const kes::bench::SummaryReporter& reporter)
{
    using kes::bench::Goal;
    using kes::bench::printRatio;
    const QByteArray features = qgetenv("QT_NO_CPU_FEATURE");
    std::printf("\nSummary (CPU time per full refresh, 16 channels at 1280 x 720, this run, %s)\n",
                features.isEmpty() ? "all CPU features"
                                   : ("QT_NO_CPU_FEATURE=" + features).constData());
    for (int count : {10000, 1000}) {
        const double sweep = reporter.nanoseconds(named(nameSweep, count));
        const double free = reporter.nanoseconds(named(nameFree, count));
        const double segments = reporter.nanoseconds(named(namePerSegment, count));
        const double qcp = reporter.nanoseconds(named(nameCustomPlot, count));
        const std::string n = std::to_string(count);
        const bool goal = count == 10000;
        kes::bench::printValue(("refresh, sweep, " + n + " points (ms)").c_str(), sweep / 1e6, "ms");
        kes::bench::printValue(("refresh, free running, " + n + " points (ms)").c_str(), free / 1e6, "ms");
        printRatio(("sweep / QCustomPlot replot, " + n).c_str(), sweep, qcp, Goal::AtMost, 0.5);
        printRatio(("free running / QCustomPlot replot, " + n).c_str(), free, qcp, Goal::AtMost,
                   0.5);
        printRatio(("per-segment drawLine / sweep, " + n).c_str(), segments, sweep,
                   goal ? Goal::AtLeast : Goal::None, 5.0);
    }
    const double add = reporter.nanoseconds(nameAddPoint);
    kes::bench::printValue("addPoint, ns per sample", add < 0 ? add : add / (10000.0 * channels), "ns");
}

} // namespace

int main(int argc, char** argv)
{
    kes::bench::Session session(argc, argv);
    if (!session.isReady())
        return 1;

    for (int count : {10000, 1000}) {
        benchmark::RegisterBenchmark(named(nameSweep, count).c_str(), refreshSweep, count)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(named(nameFree, count).c_str(), refreshFreeRunning, count)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(named(namePerSegment, count).c_str(), perSegment, count)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(named(nameCustomPlot, count).c_str(), customPlot, count)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark(nameAddPoint, addPoints)->Unit(benchmark::kMillisecond);

    kes::bench::SummaryReporter reporter(session.options());
    benchmark::RunSpecifiedBenchmarks(&reporter);
    printSummary(reporter);
    return 0;
}
