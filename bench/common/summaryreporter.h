// Shared by the benchmarks: the console reporter that also keeps each benchmark's time for the
// ratio summary printed after the run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kes::bench {

class SummaryReporter : public benchmark::ConsoleReporter
{
public:
    explicit SummaryReporter(OutputOptions options);

    void ReportRuns(const std::vector<Run>& runs) override;

    /// CPU time per iteration in nanoseconds: the median over repetitions when there were any,
    /// else the mean of the runs; < 0 if the benchmark did not run.
    double nanoseconds(const std::string& name) const;

    /// Wall-clock time per iteration in nanoseconds, chosen like nanoseconds().
    double realNanoseconds(const std::string& name) const;

    /// A user counter of the benchmark (median over repetitions, else the mean); < 0 if absent.
    double counter(const std::string& name, const std::string& counterName) const;

private:
    std::map<std::string, std::vector<double>> m_runs;
    std::map<std::string, double> m_medians;
    std::map<std::string, std::vector<double>> m_realRuns;
    std::map<std::string, double> m_realMedians;
    std::map<std::string, std::map<std::string, std::vector<double>>> m_counterRuns;
    std::map<std::string, std::map<std::string, double>> m_counterMedians;
};

/// Console options from the two flags that affect them; call before benchmark::Initialize(),
/// which consumes the arguments.
benchmark::ConsoleReporter::OutputOptions consoleOptions(int argc, char** argv);

enum class Goal { None, AtMost, AtLeast };

/// One summary line "label  ratio  (goal <= g: met)"; "n/a" when either side did not run.
void printRatio(const char* label, double numerator, double denominator, Goal goal = Goal::None,
                double target = 0.0);

/// One summary line with a value and its unit.
void printValue(const char* label, double value, const char* unit);

} // namespace kes::bench
