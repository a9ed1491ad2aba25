// Shared by the benchmarks: what every main() does before registering its benchmarks.
#pragma once

#include <benchmark/benchmark.h>

#include <QString>

#include <memory>

class QApplication;
class QTemporaryDir;

namespace kes::bench {

/// A headless QApplication that sees only the program name, private settings folders (so that
/// nothing reaches the user's real configuration), and Google Benchmark initialised with the
/// remaining arguments. The reporter's console options are read first, since Initialize()
/// consumes the flags they come from.
class Session
{
public:
    Session(int& argc, char** argv);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// False, with the reason printed, when the arguments were not understood or the private
    /// folders could not be made; main() then returns 1.
    bool isReady() const { return m_ready; }
    benchmark::ConsoleReporter::OutputOptions options() const { return m_options; }
    /// A folder of its own for the benchmark's files, removed at the end of the run.
    QString scratchPath() const;

private:
    std::unique_ptr<QTemporaryDir> m_home;
    int m_qtArgc = 1;
    char* m_qtArgv[2] = {nullptr, nullptr};
    std::unique_ptr<QApplication> m_app;
    benchmark::ConsoleReporter::OutputOptions m_options = benchmark::ConsoleReporter::OO_None;
    bool m_ready = false;
};

} // namespace kes::bench
