// Speed of the laser scan view: Scene::setData followed by the repaint of a shown 800 x 800 View,
// against a naive baseline in the same run.
//
// A scanner sends scans of one size: 1,081 beams (270 degrees at 0.25) and 10,000 beams. Sixteen
// scans of a room with a moving obstacle and a few reflectors are prepared and fed in turn, so
// that every scan moves the dots. Each iteration hands one scan to the scene and runs the event
// loop until the view has painted it, as an application's would. The baselines draw the same
// picture in the same view from a plain QGraphicsScene that deletes every dot and creates it
// again per scan: one with the scene's default (BSP tree) index, as a straightforward
// implementation has it, and one without an index, to show what reusing the dots alone saves.
// For 100,000 beams, setData alone is timed as well (the view paints between scans, untimed),
// beside setData with the paint: every range changes, nothing else does.
//
// Run: build-bench/bench/laserrangefinder/bench_laserrangefinder [Google Benchmark flags].

#include <kes/qt/laserrangefinder/scene.h>
#include <kes/qt/laserrangefinder/view.h>

#include "session.h"
#include "summaryreporter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QGraphicsScene>
#include <QPen>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

using kes::core::LaserScanMessage;
using kes::qt::laserrangefinder::Scene;
using kes::qt::laserrangefinder::View;

constexpr int viewSize = 800;
constexpr int scanCount = 16;
constexpr float maxRange = 20.0f;

// A 12 x 8 m room around the scanner, a round obstacle 0.4 m across passing in front of it, and
// reflectors on the walls; scan k has the obstacle at its k-th position.
std::vector<LaserScanMessage> makeScans(int beams)
{
    std::vector<LaserScanMessage> scans;
    const float start = -135.0f * 3.1415927f / 180.0f;
    const float increment = 270.0f * 3.1415927f / 180.0f / float(beams - 1);
    for (int k = 0; k < scanCount; ++k) {
        LaserScanMessage scan;
        scan.startAngle = start;
        scan.endAngle = start + increment * float(beams - 1);
        scan.angleIncrement = increment;
        scan.maxRange = maxRange;
        const double ox = 2.0 + 0.2 * k;
        const double oy = -1.5 + 0.2 * k;
        for (int i = 0; i < beams; ++i) {
            const double a = start + increment * i;
            const double c = std::cos(a), s = std::sin(a);
            // The nearest wall of the room x in [-4, 8], y in [-4, 4].
            double r = 1e9;
            if (c > 1e-9)
                r = std::min(r, 8.0 / c);
            if (c < -1e-9)
                r = std::min(r, -4.0 / c);
            if (s > 1e-9)
                r = std::min(r, 4.0 / s);
            if (s < -1e-9)
                r = std::min(r, -4.0 / s);
            // The obstacle: a circle of radius 0.2 m.
            const double along = ox * c + oy * s;
            const double off2 = ox * ox + oy * oy - along * along;
            if (along > 0 && off2 < 0.04)
                r = std::min(r, along - std::sqrt(0.04 - off2));
            r += 0.01 * std::sin(i * 12.9898 + k * 78.233); // noise
            scan.ranges.append(float(r));
            scan.intensities.append(i % 97 < 3 ? 2000.0f : 300.0f / 1000.0f);
        }
        scans.push_back(scan);
    }
    return scans;
}

// Counts the viewport's paint events.
class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};

struct ShownView
{
    explicit ShownView(QGraphicsScene* scene)
    {
        view.setScene(scene);
        view.resize(viewSize, viewSize);
        view.show();
        view.viewport()->installEventFilter(&counter);
    }
    // Runs the event loop until the view has painted once more.
    void paint()
    {
        const int before = counter.paints;
        for (int i = 0; i < 1000 && counter.paints == before; ++i)
            QApplication::processEvents();
    }
    View view;
    PaintCounter counter;
};

// The baseline: every scan deletes the dots and makes them again.
class NaiveScene : public QGraphicsScene
{
public:
    explicit NaiveScene(bool index)
    {
        if (!index)
            setItemIndexMethod(QGraphicsScene::NoIndex);
        setBackgroundBrush(QColor(0xd7d7d7));
        const int n = int(std::ceil(maxRange));
        for (int k = 1; k <= n; ++k) {
            const qreal m = 100.0 * k, e = 100.0 * n;
            for (const QLineF& l : {QLineF(-e, m, e, m), QLineF(-e, -m, e, -m), QLineF(m, -e, m, e), QLineF(-m, -e, -m, e)})
                addLine(l, QPen(Qt::gray));
        }
        addLine(-100.0 * (n + 1), 0, 100.0 * (n + 1), 0, QPen(Qt::black, 5.0));
        addLine(0, -100.0 * (n + 1), 0, 100.0 * (n + 1), QPen(Qt::black, 5.0));
    }
    void setData(const LaserScanMessage& scan)
    {
        for (QGraphicsEllipseItem* dot : m_dots)
            delete dot;
        m_dots.clear();
        for (std::size_t i = 0; i < scan.ranges.size(); ++i) {
            const float a = float(i) * scan.angleIncrement + scan.startAngle;
            const float r = 100.0f * scan.ranges[i];
            const QColor c = i < scan.intensities.size() && std::fabs(scan.intensities[i]) >= 1.0f ? Qt::yellow : Qt::black;
            QGraphicsEllipseItem* dot = addEllipse(QRectF(-1, -1, 2, 2), QPen(c), QBrush(c));
            dot->setPos(std::cos(a) * r, std::sin(a) * r);
            m_dots.push_back(dot);
        }
    }

private:
    std::vector<QGraphicsEllipseItem*> m_dots;
};

template <typename SceneType>
void run(benchmark::State& state, SceneType& scene, int beams)
{
    const std::vector<LaserScanMessage> scans = makeScans(beams);
    ShownView shown(&scene);
    scene.setData(scans[0]);
    shown.view.fit();
    shown.paint();
    std::size_t k = 1;
    for (auto _ : state) {
        scene.setData(scans[k++ % scans.size()]);
        shown.paint();
    }
    state.counters["scans/s"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}

void reused(benchmark::State& state, int beams)
{
    Scene scene;
    run(state, scene, beams);
}

void naive(benchmark::State& state, int beams, bool index)
{
    NaiveScene scene(index);
    run(state, scene, beams);
}

// setData alone, timed; the view attached to the scene paints between two scans, untimed.
void setDataOnly(benchmark::State& state, int beams)
{
    const std::vector<LaserScanMessage> scans = makeScans(beams);
    Scene scene;
    ShownView shown(&scene);
    scene.setData(scans[0]);
    shown.view.fit();
    shown.paint();
    std::size_t k = 1;
    for (auto _ : state) {
        scene.setData(scans[k++ % scans.size()]);
        state.PauseTiming();
        shown.paint();
        state.ResumeTiming();
    }
}

const char* const nameReused = "setData+paint/reused";
const char* const nameNaive = "setData+paint/naive BSP index";
const char* const nameNaiveNoIndex = "setData+paint/naive no index";
const char* const nameSetData = "setData only/reused";

std::string named(const char* name, int beams)
{
    return std::string(name) + "/" + std::to_string(beams);
}

void printSummary(const kes::bench::SummaryReporter& reporter)
{
    using kes::bench::Goal;
    std::printf("\nSummary (wall-clock time per scan, setData and the repaint of a shown 800 x 800 view, this run)\n");
    for (int beams : {1081, 10000}) {
        const double reusedTime = reporter.realNanoseconds(named(nameReused, beams));
        const double naiveTime = reporter.realNanoseconds(named(nameNaive, beams));
        const double naiveNoIndex = reporter.realNanoseconds(named(nameNaiveNoIndex, beams));
        const std::string n = std::to_string(beams);
        const bool goal = beams == 10000;
        kes::bench::printValue(("scans per second, " + n + " beams").c_str(), reusedTime > 0 ? 1e9 / reusedTime : -1.0,
                               "scans/s");
        kes::bench::printRatio(("naive (BSP index) / reused, " + n).c_str(), naiveTime, reusedTime,
                               goal ? Goal::AtLeast : Goal::None, 3.0);
        kes::bench::printRatio(("naive (no index) / reused, " + n).c_str(), naiveNoIndex, reusedTime);
    }
    const double big = reporter.realNanoseconds(named(nameSetData, 100000));
    const double bigPainted = reporter.realNanoseconds(named(nameReused, 100000));
    kes::bench::printValue("setData alone, 100,000 beams (ms)", big < 0 ? big : big / 1e6, "ms");
    kes::bench::printValue("setData and paint, 100,000 beams (ms)", bigPainted < 0 ? bigPainted : bigPainted / 1e6, "ms");
}

} // namespace

int main(int argc, char** argv)
{
    kes::bench::Session session(argc, argv);
    if (!session.isReady())
        return 1;

    for (int beams : {1081, 10000}) {
        benchmark::RegisterBenchmark(named(nameReused, beams).c_str(), reused, beams)
            ->Unit(benchmark::kMillisecond)->UseRealTime();
        benchmark::RegisterBenchmark(named(nameNaive, beams).c_str(), naive, beams, true)
            ->Unit(benchmark::kMillisecond)->UseRealTime();
        benchmark::RegisterBenchmark(named(nameNaiveNoIndex, beams).c_str(), naive, beams, false)
            ->Unit(benchmark::kMillisecond)->UseRealTime();
    }
    benchmark::RegisterBenchmark(named(nameSetData, 100000).c_str(), setDataOnly, 100000)
        ->Unit(benchmark::kMillisecond)->UseRealTime();
    benchmark::RegisterBenchmark(named(nameReused, 100000).c_str(), reused, 100000)
        ->Unit(benchmark::kMillisecond)->UseRealTime();

    kes::bench::SummaryReporter reporter(session.options());
    benchmark::RunSpecifiedBenchmarks(&reporter);
    printSummary(reporter);
    return 0;
}
