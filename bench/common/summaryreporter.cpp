#include "summaryreporter.h"

#include <cstdio>
#include <cstring>

#include <unistd.h>

namespace kes::bench {

namespace {

double meanOf(const std::vector<double>& values)
{
    if (values.empty())
        return -1.0;
    double sum = 0.0;
    for (const double v : values)
        sum += v;
    return sum / double(values.size());
}

bool endsWith(const char* text, const char* suffix)
{
    const std::size_t n = std::strlen(text);
    const std::size_t m = std::strlen(suffix);
    return n >= m && std::strcmp(text + n - m, suffix) == 0;
}

bool isTrue(const char* value)
{
    return endsWith(value, "=true") || endsWith(value, "=yes") || endsWith(value, "=1");
}

} // namespace

SummaryReporter::SummaryReporter(OutputOptions options)
    : ConsoleReporter(options)
{
}

void SummaryReporter::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.error_occurred)
            continue;
        const double ns = run.GetAdjustedCPUTime()
                          / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
        const double realNs = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
        const std::string& name = run.run_name.function_name;
        if (run.run_type == Run::RT_Iteration) {
            m_runs[name].push_back(ns);
            m_realRuns[name].push_back(realNs);
            for (const auto& c : run.counters)
                m_counterRuns[name][c.first].push_back(c.second.value);
        } else if (run.aggregate_name == "median") {
            m_medians[name] = ns;
            m_realMedians[name] = realNs;
            for (const auto& c : run.counters)
                m_counterMedians[name][c.first] = c.second.value;
        }
    }
}

double SummaryReporter::nanoseconds(const std::string& name) const
{
    const auto median = m_medians.find(name);
    if (median != m_medians.end())
        return median->second;
    const auto runs = m_runs.find(name);
    return runs == m_runs.end() ? -1.0 : meanOf(runs->second);
}

double SummaryReporter::realNanoseconds(const std::string& name) const
{
    const auto median = m_realMedians.find(name);
    if (median != m_realMedians.end())
        return median->second;
    const auto runs = m_realRuns.find(name);
    return runs == m_realRuns.end() ? -1.0 : meanOf(runs->second);
}

double SummaryReporter::counter(const std::string& name, const std::string& counterName) const
{
    const auto medians = m_counterMedians.find(name);
    if (medians != m_counterMedians.end()) {
        const auto it = medians->second.find(counterName);
        if (it != medians->second.end())
            return it->second;
    }
    const auto runs = m_counterRuns.find(name);
    if (runs == m_counterRuns.end())
        return -1.0;
    const auto it = runs->second.find(counterName);
    return it == runs->second.end() ? -1.0 : meanOf(it->second);
}

benchmark::ConsoleReporter::OutputOptions consoleOptions(int argc, char** argv)
{
    bool colour = isatty(fileno(stdout)) != 0;
    bool tabular = false;
    for (int i = 1; i < argc; ++i) {
        const char* arg = argv[i];
        if (std::strncmp(arg, "--benchmark_color=", 18) == 0)
            colour = isTrue(arg) || (endsWith(arg, "=auto") && isatty(fileno(stdout)) != 0);
        else if (std::strncmp(arg, "--benchmark_counters_tabular=", 29) == 0)
            tabular = isTrue(arg);
    }
    int options = benchmark::ConsoleReporter::OO_None;
    if (colour)
        options |= benchmark::ConsoleReporter::OO_Color;
    if (tabular)
        options |= benchmark::ConsoleReporter::OO_Tabular;
    return static_cast<benchmark::ConsoleReporter::OutputOptions>(options);
}

void printRatio(const char* label, double numerator, double denominator, Goal goal, double target)
{
    if (numerator < 0 || denominator <= 0) {
        std::printf("  %-56s n/a (not run)\n", label);
        return;
    }
    const double ratio = numerator / denominator;
    switch (goal) {
    case Goal::None:
        std::printf("  %-56s %7.2f\n", label, ratio);
        break;
    case Goal::AtMost:
        std::printf("  %-56s %7.2f  (goal <= %g: %s)\n", label, ratio, target,
                    ratio <= target ? "met" : "MISSED");
        break;
    case Goal::AtLeast:
        std::printf("  %-56s %7.2f  (goal >= %g: %s)\n", label, ratio, target,
                    ratio >= target ? "met" : "MISSED");
        break;
    }
}

void printValue(const char* label, double value, const char* unit)
{
    if (value < 0)
        std::printf("  %-56s n/a (not run)\n", label);
    else
        std::printf("  %-56s %10.2f %s\n", label, value, unit);
}

} // namespace kes::bench
