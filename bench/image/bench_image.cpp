// Speed of the core-to-Qt image conversions on a 1920 x 1080 frame, against two baselines measured
// in the same run:
//   - memcpy of the 1080p 32-bit destination (8 MB) between two buffers allocated beforehand,
//     single-threaded: the floor for anything that writes a Format_RGB32 frame;
//   - Qt's own path: a QImage over the same bytes in the matching Qt format, then
//     convertToFormat() or rgbSwapped(), as an application without this library would write it.
// A last benchmark times the whole frame path, ImageView::setImage(frame, true), in a shown
// 960 x 540 view: conversion, scaling and painting.
//
// The goals are for wall-clock time; the CPU time of the whole process, threads included, is
// reported beside it.
// Run: build-bench/bench/image/bench_image [Google Benchmark flags]; see scripts/bench.

#include <kes/qt/convert.h>
#include <kes/qt/gui/widgets/imageview.h>

#include "session.h"
#include "summaryreporter.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QRandomGenerator>
#include <QCoreApplication>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

using kes::core::image::Format;
using kes::core::image::Image;
using kes::core::image::ImageInfo;

constexpr int width = 1920;
constexpr int height = 1080;

// A frame of noise, so that no conversion profits from uniform data.
Image frame(Format format, int channels)
{
    Image image(ImageInfo(width, height, channels, 1, format));
    QRandomGenerator random(42);
    const std::size_t bytes = image.step() * std::size_t(height);
    random.fillRange(reinterpret_cast<quint32*>(image.data()), bytes / sizeof(quint32));
    return image;
}

void copyBaseline(benchmark::State& state)
{
    const std::size_t bytes = std::size_t(width) * height * 4;
    std::vector<std::uint8_t> from(bytes, 1);
    std::vector<std::uint8_t> to(bytes, 2);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}

void toQt(benchmark::State& state, Format format, int channels, bool colorConversion)
{
    const Image image = frame(format, channels);
    for (auto _ : state) {
        QImage result = kes::qt::convert(image, colorConversion);
        benchmark::DoNotOptimize(result.constBits());
    }
}

// Qt's own way from the same bytes to a Format_RGB32 image.
void qtPath(benchmark::State& state, Format format, int channels)
{
    const Image image = frame(format, channels);
    const int step = int(image.step());
    for (auto _ : state) {
        QImage result;
        switch (format) {
        case kes::core::image::Bgr:
            result = QImage(image.constData(), width, height, step, QImage::Format_RGB888)
                         .rgbSwapped()
                         .convertToFormat(QImage::Format_RGB32);
            break;
        case kes::core::image::Bgra:
            result = QImage(image.constData(), width, height, step, QImage::Format_RGB32).copy();
            break;
        case kes::core::image::Grey:
            result = QImage(image.constData(), width, height, step, QImage::Format_Grayscale8)
                         .convertToFormat(QImage::Format_RGB32);
            break;
        default:
            result = QImage(image.constData(), width, height, step, QImage::Format_RGB888)
                         .convertToFormat(QImage::Format_RGB32);
            break;
        }
        benchmark::DoNotOptimize(result.constBits());
    }
}

QImage qtFrame()
{
    const Image bgra = frame(kes::core::image::Bgra, 4);
    return QImage(bgra.constData(), width, height, int(bgra.step()), QImage::Format_RGB32).copy();
}

void toCore(benchmark::State& state)
{
    const QImage image = qtFrame();
    for (auto _ : state) {
        Image result = kes::qt::convert(image);
        benchmark::DoNotOptimize(result.constData());
    }
}

// The same bytes in Qt's own three-byte blue-green-red format.
void toCoreQtPath(benchmark::State& state)
{
    const QImage image = qtFrame();
    for (auto _ : state) {
        QImage result = image.convertToFormat(QImage::Format_BGR888);
        benchmark::DoNotOptimize(result.constBits());
    }
}

void framePath(benchmark::State& state)
{
    kes::qt::gui::widgets::ImageView view;
    view.resize(960, 540);
    view.show();
    QCoreApplication::processEvents();
    if (!view.isVisible()) {
        state.SkipWithError("the view was not shown");
        return;
    }
    const Image image = frame(kes::core::image::Bgr, 3);
    for (auto _ : state)
        view.setImage(image, true);
}

struct Case
{
    const char* name;
    Format format;
    int channels;
    bool colorConversion;
};

const Case cases[] = {
    {"bgr", kes::core::image::Bgr, 3, false},
    {"bgr/colorConversion", kes::core::image::Bgr, 3, true},
    {"bgra", kes::core::image::Bgra, 4, false},
    {"grey", kes::core::image::Grey, 1, false},
    {"rgb", kes::core::image::Rgb, 3, false},
};

const char* const nameCopy = "baseline/memcpy/1080p32";
const char* const nameToCore = "convert/QImage";
const char* const nameToCoreQt = "qt/QImage";
const char* const nameFrame = "ImageView::setImage/960x540";

std::string convertName(const Case& c)
{
    return std::string("convert/") + c.name;
}

std::string qtName(const Case& c)
{
    return std::string("qt/") + c.name;
}

using Time = double (kes::bench::SummaryReporter::*)(const std::string&) const;

// The goals hold for wall-clock time: the conversions may spread a frame over OpenCV's threads,
// which a single-threaded memcpy cannot. The CPU time of the process follows without goals.
void printRatios(const kes::bench::SummaryReporter& reporter, Time time, bool goals)
{
    using kes::bench::Goal;
    const auto of = [&](const std::string& name) { return (reporter.*time)(name); };
    const auto ratio = [&](const std::string& label, double numerator, double denominator, Goal goal,
                           double target) {
        kes::bench::printRatio(label.c_str(), numerator, denominator, goals ? goal : Goal::None, target);
    };
    const double copy = of(nameCopy);
    for (const Case& c : cases) {
        const double own = of(convertName(c));
        // Through kes::cv::convert: within 2x; everything else, format 3 included, within 1x.
        const bool throughCv = c.colorConversion && c.format != kes::core::image::Bgra;
        ratio(convertName(c) + " / memcpy", own, copy, Goal::AtMost, throughCv ? 2.0 : 1.0);
        if (!c.colorConversion) {
            const bool bgr = c.format == kes::core::image::Bgr;
            ratio(qtName(c) + " / " + convertName(c), of(qtName(c)), own, Goal::AtLeast, bgr ? 4.0 : 1.0);
        }
    }
    ratio("convert/QImage / memcpy", of(nameToCore), copy, Goal::AtMost, 1.0);
    ratio("qt/QImage / convert/QImage", of(nameToCoreQt), of(nameToCore), Goal::AtLeast, 1.0);
    ratio("ImageView::setImage, 960 x 540 / memcpy", of(nameFrame), copy, Goal::AtMost, 4.0);
}

void printSummary(const kes::bench::SummaryReporter& reporter)
{
    std::printf("\nSummary per 1920 x 1080 frame, this run\n");
    kes::bench::printValue("memcpy of the 32-bit frame, wall clock (ms)", reporter.realNanoseconds(nameCopy) / 1e6, "ms");
    std::printf("Wall-clock time\n");
    printRatios(reporter, &kes::bench::SummaryReporter::realNanoseconds, true);
    std::printf("CPU time of the process\n");
    printRatios(reporter, &kes::bench::SummaryReporter::nanoseconds, false);
}

} // namespace

int main(int argc, char** argv)
{
    kes::bench::Session session(argc, argv);
    if (!session.isReady())
        return 1;

    benchmark::RegisterBenchmark(nameCopy, copyBaseline)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
    for (const Case& c : cases) {
        benchmark::RegisterBenchmark(convertName(c).c_str(), toQt, c.format, c.channels, c.colorConversion)
            ->Unit(benchmark::kMillisecond)
            ->MeasureProcessCPUTime()
            ->UseRealTime();
        if (!c.colorConversion)
            benchmark::RegisterBenchmark(qtName(c).c_str(), qtPath, c.format, c.channels)
                ->Unit(benchmark::kMillisecond)
                ->MeasureProcessCPUTime()
                ->UseRealTime();
    }
    benchmark::RegisterBenchmark(nameToCore, toCore)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
    benchmark::RegisterBenchmark(nameToCoreQt, toCoreQtPath)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
    benchmark::RegisterBenchmark(nameFrame, framePath)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

    kes::bench::SummaryReporter reporter(session.options());
    benchmark::RunSpecifiedBenchmarks(&reporter);
    printSummary(reporter);
    return 0;
}
