// The longest time one keystroke's validation takes in ScienceSpinBox, over texts chosen to be
// hard, beside QDoubleSpinBox::validate on the same texts.
//
// Each text is what the line edit holds after a keystroke: long digit strings, leading zeros, long
// fractions, and texts that are too small for the range but whose digits fit no candidate near
// its top, so that the could-still-become-valid search walks its full 500,000 candidates. They are
// validated on three ranges: the whole double range, a narrow one high up ([1e12, 1e12 + 1e6]),
// and the top decade of the doubles ([1e308, 1.8e308]), whose candidates have 309 digits. Before
// each timed call a different text is validated, so that the process-wide cache never answers.
//
// Goal: no single validation slower than one frame (16 ms), so that typing never stutters.
//
// Run: build-bench/bench/sciencespinbox/bench_sciencespinbox [Google Benchmark flags]. The
// summary uses the medians when --benchmark_repetitions is given.

#include <kes/qt/gui/widgets/sciencespinbox.h>

#include "session.h"
#include "summaryreporter.h"

#include <benchmark/benchmark.h>

#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLocale>
#include <QString>
#include <QVector>

#include <algorithm>
#include <cfloat>
#include <cstdio>
#include <map>
#include <string>

namespace {

using kes::qt::gui::widgets::ScienceSpinBox;

struct Range
{
    const char* name;
    double min;
    double max;
};

const Range ranges[] = {
    {"full double range", -DBL_MAX, DBL_MAX},
    {"narrow [1e12, 1e12+1e6]", 1e12, 1e12 + 1e6},
    {"top decade [1e308, max]", 1e308, DBL_MAX},
};

struct HardText
{
    QString name;
    QString text;
};

QVector<HardText> hardTexts()
{
    QVector<HardText> texts;
    auto add = [&](const char* name, const QString& text) { texts.append({QString::fromLatin1(name), text}); };
    add("seven sevens (no candidate near 1e12 holds them)", QStringLiteral("7777777"));
    add("minus seven sevens", QStringLiteral("-7777777"));
    add("fourteen nines", QString(14, QLatin1Char('9')));
    add("307 nines (below 1e308, fit no top candidate)", QString(307, QLatin1Char('9')));
    add("1 and 308 zeros", QStringLiteral("1") + QString(308, QLatin1Char('0')));
    add("1,000 digits", QString(1000, QLatin1Char('3')));
    add("100,000 digits", QString(100000, QLatin1Char('3')));
    add("10,000 zeros then 7", QString(10000, QLatin1Char('0')) + QLatin1Char('7'));
    add("long fraction", QStringLiteral("0.") + QString(300, QLatin1Char('3')));
    add("100,000 decimals", QStringLiteral("0.") + QString(100000, QLatin1Char('3')));
    add("groups everywhere", QStringLiteral("1,234,567,890,123,456"));
    add("exponent form, too small", QStringLiteral("7.777e5"));
    return texts;
}

// The longest call per benchmark and text, for the table after the run.
std::map<std::string, std::map<QString, double>> g_longestPerText;

// Validates every text once per iteration and keeps the longest single call.
template <typename Box>
void benchmarkValidation(benchmark::State& state, Box& box, const Range& range, const std::string& name)
{
    std::map<QString, double>& longestPerText = g_longestPerText[name];
    const QVector<HardText> texts = hardTexts();
    box.setRange(range.min, range.max);
    double longest = 0;
    QString worst;
    QElapsedTimer clock;
    for (auto _ : state) {
        qint64 total = 0;
        for (const HardText& hard : texts) {
            // Any other text first, so that the cache of the last verdict does not answer.
            QString other = QStringLiteral("#");
            int pos = 0;
            box.validate(other, pos);
            QString text = hard.text;
            pos = text.size();
            clock.start();
            const QValidator::State verdict = box.validate(text, pos);
            const qint64 elapsed = clock.nsecsElapsed();
            benchmark::DoNotOptimize(verdict);
            total += elapsed;
            double& perText = longestPerText[hard.name];
            perText = std::max(perText, elapsed / 1e6);
            if (elapsed / 1e6 > longest) {
                longest = elapsed / 1e6;
                worst = hard.name;
            }
        }
        state.SetIterationTime(total / 1e9);
    }
    state.counters["longest_ms"] = longest;
    state.SetLabel(worst.toStdString());
}

std::string benchName(const char* widget, const Range& range)
{
    return std::string(widget) + ", " + range.name;
}

} // namespace

int main(int argc, char** argv)
{
    kes::bench::Session session(argc, argv);
    if (!session.isReady())
        return 1;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));

    ScienceSpinBox science;
    QDoubleSpinBox plain;
    // The base's own rules with as many decimals as it keeps, as the science box sets them.
    plain.setDecimals(1000);

    for (const Range& range : ranges) {
        benchmark::RegisterBenchmark(benchName("ScienceSpinBox", range).c_str(),
                                     [&science, &range](benchmark::State& state) {
                                         benchmarkValidation(state, science, range, benchName("ScienceSpinBox", range));
                                     })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(benchName("QDoubleSpinBox", range).c_str(),
                                     [&plain, &range](benchmark::State& state) {
                                         benchmarkValidation(state, plain, range, benchName("QDoubleSpinBox", range));
                                     })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }

    kes::bench::SummaryReporter reporter(session.options());
    benchmark::RunSpecifiedBenchmarks(&reporter);

    using kes::bench::Goal;
    std::printf("\nSummary (%d hard texts, longest single validate() call)\n", int(hardTexts().size()));
    for (const Range& range : ranges) {
        const double science = reporter.counter(benchName("ScienceSpinBox", range), "longest_ms");
        const double plainMs = reporter.counter(benchName("QDoubleSpinBox", range), "longest_ms");
        const std::string scienceLabel = "ScienceSpinBox, " + std::string(range.name);
        const std::string plainLabel = "QDoubleSpinBox, " + std::string(range.name);
        kes::bench::printValue(scienceLabel.c_str(), science, "ms");
        kes::bench::printValue(plainLabel.c_str(), plainMs, "ms");
        const std::string goal = "ScienceSpinBox longest / 16 ms, " + std::string(range.name);
        kes::bench::printRatio(goal.c_str(), science, 16.0, Goal::AtMost, 1.0);
    }

    std::printf("\nLongest ScienceSpinBox::validate() per text, ms (QDoubleSpinBox in brackets)\n");
    std::printf("  %-50s", "");
    for (const Range& range : ranges)
        std::printf(" %26s", range.name);
    std::printf("\n");
    for (const HardText& hard : hardTexts()) {
        std::printf("  %-50s", qPrintable(hard.name));
        for (const Range& range : ranges) {
            const auto science = g_longestPerText.find(benchName("ScienceSpinBox", range));
            const auto plainRun = g_longestPerText.find(benchName("QDoubleSpinBox", range));
            if (science == g_longestPerText.end() || plainRun == g_longestPerText.end()) {
                std::printf(" %26s", "n/a");
                continue;
            }
            std::printf("      %9.3f (%9.3f)", science->second[hard.name], plainRun->second[hard.name]);
        }
        std::printf("\n");
    }
    return 0;
}
