// Scans built from the input, as a faulty scanner or a corrupted log could send them: NaN and
// infinite angles and ranges, a zero or negative increment, huge ranges and beam counts, and the
// analysis sector set from the input too. Whatever comes in, the scene holds no item at a
// non-finite position and no more grid than its cap allows.
#include "fuzzapp.h"

#include <kes/core/laserscanmessage.h>
#include <kes/qt/laserrangefinder/analysisscene.h>

#include <QCoreApplication>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstring>

using kes::qt::laserrangefinder::AnalysisScene;

namespace {

// Any bit pattern, NaNs and infinities included, which ConsumeFloatingPoint never gives.
float anyFloat(FuzzedDataProvider& input)
{
    const auto bits = input.ConsumeIntegral<std::uint32_t>();
    float value = 0.0f;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

bool finite(const QLineF& line)
{
    return std::isfinite(line.x1()) && std::isfinite(line.y1()) && std::isfinite(line.x2())
           && std::isfinite(line.y2());
}

bool finite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kes::fuzz::ensureApplication();
    static AnalysisScene* scene = new AnalysisScene;
    FuzzedDataProvider input(data, size);
    kes::core::LaserScanMessage scan;
    scan.startAngle = anyFloat(input);
    scan.endAngle = anyFloat(input);
    scan.angleIncrement = anyFloat(input);
    scan.maxRange = anyFloat(input);
    scene->setAngle(anyFloat(input));
    scene->setOpeningAngle(anyFloat(input));
    scene->setDistance(anyFloat(input));
    // Up to 600 beams per input (a 270 degree scanner at half a degree has 541) keeps each run
    // short enough for millions of them; the unit tests take 100,000.
    const int beams = input.ConsumeIntegralInRange<int>(0, 600);
    const int intensities = input.ConsumeIntegralInRange<int>(0, beams);
    for (int i = 0; i < beams; ++i)
        scan.ranges.append(input.remaining_bytes() >= 4 ? anyFloat(input) : float(i % 7));
    for (int i = 0; i < intensities; ++i)
        scan.intensities.append(input.remaining_bytes() >= 4 ? anyFloat(input) : 1.0f);
    scene->setData(scan);
    // Scans arrive through the event loop, which also lets the scene finish with the items it
    // dropped; without it Qt's bookkeeping of new items grows from scan to scan.
    QCoreApplication::processEvents();

    for (const QGraphicsEllipseItem* dot : scene->points()) {
        kes::fuzz::require(!dot->isVisible() || (finite(dot->pos()) && finite(dot->rect().center())),
                           "a shown dot sits at a finite position");
    }
    for (const QGraphicsLineItem* line : scene->gridLines())
        kes::fuzz::require(finite(line->line()), "grid lines are finite");
    kes::fuzz::require(int(scene->gridLines().size()) <= 4 * (AnalysisScene::maxGridMetres + 1),
                       "the grid stays within its cap");
    for (const QGraphicsLineItem* line : {scene->xAxis(), scene->yAxis(), scene->angleMinLine(),
                                          scene->angleMaxLine()}) {
        kes::fuzz::require(!line || !line->scene() || finite(line->line()),
                           "axes and field-of-view lines are finite");
    }
    kes::fuzz::require(finite(scene->itemsBoundingRect().center()), "the scene's extent is finite");
    return 0;
}
