// Throughput of the log hub under a flood from worker threads, with the log window on screen.
//
// Four worker threads post 100,000 messages in all through Log::postLog while the GUI thread runs
// its event loop with the log window shown. The benchmark times the flood end to end, from the
// start of the workers until the last message is in the document, and records the longest gap
// between the ticks of a 1 ms timer on the GUI thread: the longest time the event loop was kept
// from anything else. The baseline is the bare QTextDocument append in the same run: the same
// messages written one by one with a text cursor into a document with the same 100-line limit,
// shown nowhere. For comparison, a third benchmark posts every message as its own
// MessageReceivedEvent, which the hub writes as it comes.
//
// Before timing, one flood whose posting order is recorded checks that the hub's final document
// is identical to the one writing those messages one by one with Log::log gives.
//
// Run: build-bench/bench/log/bench_log [Google Benchmark flags]. The summary after the run uses
// the medians when --benchmark_repetitions is given.

#include <kes/qt/log/log.h>
#include <kes/qt/log/window.h>

#include "session.h"
#include "summaryreporter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QString>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>
#include <QVector>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using kes::qt::log::Log;

constexpr int workerCount = 4;
constexpr int messageCount = 100000;
constexpr int perWorker = messageCount / workerCount;

const char* const nameHub = "hub: 4 threads, window shown";
const char* const nameBare = "bare QTextDocument append";
const char* const namePerEvent = "one event per message, window shown";

// What a vision cell's threads log: frames, scans, moves, and runs of one waiting message.
QString message(int worker, int i)
{
    switch (i % 8) {
    case 0:
        return QStringLiteral("camera %1: frame %2 grabbed in %3 ms")
            .arg(worker + 1)
            .arg(i)
            .arg(8.0 + (i % 97) / 10.0, 0, 'f', 1);
    case 1:
        return QStringLiteral("scanner %1: %2 points, %3 outside the region")
            .arg(worker + 1)
            .arg(500 + i % 200)
            .arg(i % 13);
    case 2:
        return QStringLiteral("robot: move to pose %1 done").arg(i % 40);
    case 3:
    case 4:
    case 5:
        return QStringLiteral("waiting for trigger");
    case 6:
        return QStringLiteral("part %1 %2").arg(i).arg(i % 29 == 0 ? "rejected" : "accepted");
    default:
        return QStringLiteral("worker %1: queue at %2 %").arg(worker + 1).arg(i % 100);
    }
}

QVector<QVector<QString>> makeMessages()
{
    QVector<QVector<QString>> messages(workerCount);
    for (int w = 0; w < workerCount; ++w) {
        messages[w].reserve(perWorker);
        for (int i = 0; i < perWorker; ++i)
            messages[w].append(message(w, i));
    }
    return messages;
}

struct Flood
{
    double seconds = 0;
    double longestStallMs = 0;
};

// Runs the workers while the GUI thread's event loop delivers, and returns once the document ends
// with a line posted after all of theirs. \a post is called on each worker for each message.
template <typename Post>
Flood runFlood(Log& hub, const QVector<QVector<QString>>& messages, Post post)
{
    static int round = 0;
    const QString sentinel = QStringLiteral("flood %1 delivered").arg(++round);
    std::atomic<int> finished{0};
    bool sentinelPosted = false;

    QEventLoop loop;
    QElapsedTimer clock;
    qint64 lastTick = 0;
    qint64 longestGap = 0;
    QTimer ticker;
    ticker.setTimerType(Qt::PreciseTimer);
    ticker.setInterval(1);
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        longestGap = std::max(longestGap, now - lastTick);
        lastTick = now;
        if (!sentinelPosted && finished.load() == workerCount) {
            sentinelPosted = true;
            hub.postLog(sentinel);
        }
    });
    const auto connection = QObject::connect(&hub, &QTextDocument::contentsChanged, [&] {
        if (sentinelPosted && hub.lastBlock().text() == sentinel)
            loop.quit();
    });

    clock.start();
    ticker.start();
    std::vector<std::thread> workers;
    for (int w = 0; w < workerCount; ++w) {
        workers.emplace_back([&, w] {
            for (const QString& text : messages.at(w))
                post(text);
            ++finished;
        });
    }
    loop.exec();
    const qint64 total = clock.nsecsElapsed();
    ticker.stop();
    QObject::disconnect(connection);
    for (auto& worker : workers)
        worker.join();
    return {double(total) / 1e9, double(longestGap) / 1e6};
}

struct Fixture
{
    QVector<QVector<QString>> messages;
    kes::qt::log::Window* window = nullptr;
};
Fixture* g_fixture = nullptr;

// Floods the hub once per iteration with \a post as the workers' way in.
template <typename Post>
void benchmarkFlood(benchmark::State& state, Post post)
{
    Log& hub = *Log::singleton();
    double stall = 0;
    for (auto _ : state) {
        const Flood flood = runFlood(hub, g_fixture->messages, post);
        state.SetIterationTime(flood.seconds);
        stall = std::max(stall, flood.longestStallMs);
    }
    state.counters["msgs_per_s"] =
        benchmark::Counter(double(messageCount), benchmark::Counter::kIsIterationInvariantRate);
    state.counters["max_stall_ms"] = stall;
}

void BM_Hub(benchmark::State& state)
{
    benchmarkFlood(state, [](const QString& text) { Log::singleton()->postLog(text); });
}

// The straightforward design, through the public event: every message its own posted event and
// its own block, laid out by the shown view one at a time.
void BM_PerEvent(benchmark::State& state)
{
    benchmarkFlood(state, [](const QString& text) {
        QCoreApplication::postEvent(Log::singleton(),
                                    new Log::MessageReceivedEvent(Log::libraryTag, text));
    });
}

void BM_Bare(benchmark::State& state)
{
    QTextDocument document;
    document.setMaximumBlockCount(100);
    for (auto _ : state) {
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        for (int i = 0; i < perWorker; ++i) {
            for (int w = 0; w < workerCount; ++w) {
                cursor.insertBlock();
                cursor.insertText(g_fixture->messages.at(w).at(i));
            }
        }
    }
    state.counters["msgs_per_s"] =
        benchmark::Counter(double(messageCount), benchmark::Counter::kIsIterationInvariantRate);
}

// One flood whose posting order is recorded, against the same messages written one by one.
bool floodMatchesOneByOne(const QVector<QVector<QString>>& messages)
{
    Log& hub = *Log::singleton();
    std::mutex orderMutex;
    QVector<QString> order;
    order.reserve(messageCount + 1);
    runFlood(hub, messages, [&](const QString& text) {
        const std::lock_guard<std::mutex> lock(orderMutex);
        order.append(text);
        hub.postLog(text);
    });
    order.append(hub.lastBlock().text());

    Log oneByOne;
    for (const QString& text : qAsConst(order))
        oneByOne.log(text);
    return oneByOne.toHtml() == hub.toHtml() && oneByOne.blockCount() == hub.blockCount();
}

} // namespace

int main(int argc, char** argv)
{
    kes::bench::Session session(argc, argv);
    if (!session.isReady())
        return 1;

    Log::init();
    Fixture fixture;
    fixture.messages = makeMessages();
    fixture.window = new kes::qt::log::Window(nullptr);
    fixture.window->resize(900, 400);
    fixture.window->show();
    QApplication::processEvents();
    g_fixture = &fixture;

    const bool identical = floodMatchesOneByOne(fixture.messages);

    benchmark::RegisterBenchmark(nameHub, BM_Hub)->UseManualTime()->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(nameBare, BM_Bare)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(namePerEvent, BM_PerEvent)
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);

    kes::bench::SummaryReporter reporter(session.options());
    benchmark::RunSpecifiedBenchmarks(&reporter);

    const double hubRate = reporter.counter(nameHub, "msgs_per_s");
    const double bareRate = reporter.counter(nameBare, "msgs_per_s");
    const double stall = reporter.counter(nameHub, "max_stall_ms");
    const double perEventRate = reporter.counter(namePerEvent, "msgs_per_s");
    const double perEventStall = reporter.counter(namePerEvent, "max_stall_ms");
    using kes::bench::Goal;
    using kes::bench::printRatio;
    using kes::bench::printValue;
    std::printf("\nSummary (100,000 messages, this run)\n");
    printValue("hub end to end, 4 threads, window shown", hubRate, "msg/s");
    printValue("bare QTextDocument append, one by one", bareRate, "msg/s");
    printValue("longest GUI event-loop stall during the flood", stall, "ms");
    printValue("one event per message, window shown", perEventRate, "msg/s");
    printValue("longest stall, one event per message", perEventStall, "ms");
    printRatio("hub end to end / bare append (messages per second)", hubRate, bareRate);
    printRatio("hub end to end / one event per message", hubRate, perEventRate);
    printRatio("hub end to end / 200,000 msg/s", hubRate, 200000.0, Goal::AtLeast, 1.0);
    printRatio("longest stall / 50 ms", stall, 50.0, Goal::AtMost, 1.0);
    std::printf("  %-56s %s\n", "final document identical to one-by-one writing",
                identical ? "yes" : "NO");

    g_fixture = nullptr;
    delete fixture.window;
    Log::done();
    return identical ? 0 : 1;
}
