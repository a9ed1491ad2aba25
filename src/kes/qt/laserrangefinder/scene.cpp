#include <kes/qt/laserrangefinder/scene.h>

#include <QBrush>
#include <QColor>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QLineF>
#include <QPen>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace kes::qt::laserrangefinder {

namespace {

// Single precision, as the angles arrive.
constexpr float pi = 3.1415927f;

// Drawing order from the back: grid, then axes and field of view, then the dots on top.
constexpr qreal gridZ = -2.0;
constexpr qreal lineZ = -1.0;

enum DotColour : std::uint8_t { Unset, Black, Yellow };

// Metres of grid for a maximum range: the range rounded up, 0 for a range that is not finite or
// not positive, and at most maxGridMetres. Each metre costs four line items that every frame
// draws, and a scanner reporting an absurd range (1e30, say) must not build millions of them or
// overflow the conversion to int. Long-range scanners reach about 300 m; 500 m keeps the grid
// below 2,000 lines, which a view still draws within a frame.
int gridMetres(float rangeMax)
{
    if (!std::isfinite(rangeMax) || rangeMax <= 0.0f)
        return 0;
    return int(std::min(std::ceil(rangeMax), float(Scene::maxGridMetres)));
}

} // namespace

class ScenePrivate
{
public:
    std::vector<QGraphicsEllipseItem*> points;
    std::vector<DotColour> colours; ///< what each dot was last painted, to skip unchanged ones
    std::vector<QGraphicsLineItem*> gridLines;
    QGraphicsLineItem* xAxis = nullptr;
    QGraphicsLineItem* yAxis = nullptr;
    QGraphicsLineItem* angleMinLine = nullptr;
    QGraphicsLineItem* angleMaxLine = nullptr;
    float rangeMax = 0.0f;
    float angleMin = 0.0f;
    float angleMax = 0.0f;
    bool angleMinValid = false; ///< whether the line has a finite geometry
    bool angleMaxValid = false;
    /// cos and sin of each beam's angle, for this start angle and increment.
    std::vector<std::pair<float, float>> directions;
    float directionsStart = 0.0f;
    float directionsIncrement = 0.0f;

    std::array<QGraphicsLineItem*, 4> lines() const { return {xAxis, yAxis, angleMinLine, angleMaxLine}; }
};

Scene::Scene(QObject* parent)
    : QGraphicsScene(parent)
    , d(std::make_unique<ScenePrivate>())
{
    // Every dot moves with every scan; keeping a spatial index up to date for that costs more than
    // the index saves when drawing.
    setItemIndexMethod(QGraphicsScene::NoIndex);
    setBackgroundBrush(QColor(0xd7d7d7));
    d->xAxis = new QGraphicsLineItem;
    d->yAxis = new QGraphicsLineItem;
    d->angleMinLine = new QGraphicsLineItem;
    d->angleMaxLine = new QGraphicsLineItem;
    d->xAxis->setPen(QPen(Qt::black, 5.0));
    d->yAxis->setPen(QPen(Qt::black, 5.0));
    d->angleMinLine->setPen(QPen(Qt::blue, 5.0));
    d->angleMaxLine->setPen(QPen(Qt::blue, 5.0));
    for (QGraphicsLineItem* line : d->lines())
        line->setZValue(lineZ);
}

Scene::~Scene()
{
    // Deleting an item takes it off the scene; the dots and the grid go with the scene.
    for (QGraphicsLineItem* line : d->lines())
        delete line;
}

void Scene::setData(const kes::core::LaserScanMessage& scan)
{
    if (scan.ranges.empty()) {
        cleanup();
        d->angleMin = scan.startAngle;
        d->angleMax = scan.endAngle;
        d->rangeMax = scan.maxRange;
        return;
    }
    for (QGraphicsLineItem* line : d->lines()) {
        if (line->scene() != this)
            addItem(line);
    }

    // Written so that NaN counts as a change.
    const bool anglesChanged = !(scan.startAngle == d->angleMin) || !(scan.endAngle == d->angleMax);
    const bool rangeChanged = !(scan.maxRange == d->rangeMax);
    d->angleMin = scan.startAngle;
    d->angleMax = scan.endAngle;
    d->rangeMax = scan.maxRange;
    if (anglesChanged)
        resetAngleLines();
    if (rangeChanged)
        resetGrid();

    // Without finite angles no beam has a direction: no dots and no field of view.
    const bool anglesFinite =
        std::isfinite(scan.startAngle) && std::isfinite(scan.endAngle) && std::isfinite(scan.angleIncrement);
    d->angleMinLine->setVisible(anglesFinite && d->angleMinValid);
    d->angleMaxLine->setVisible(anglesFinite && d->angleMaxValid);

    const std::size_t count = scan.ranges.size();
    d->points.reserve(count);
    while (d->points.size() < count) {
        d->points.push_back(addEllipse(QRectF(-1.0, -1.0, 2.0, 2.0)));
        d->colours.push_back(Unset);
    }
    while (d->points.size() > count) {
        delete d->points.back();
        d->points.pop_back();
        d->colours.pop_back();
    }

    // A scanner sends the same angles scan after scan: the beams' directions are worked out once.
    if (anglesFinite
        && (d->directions.size() != count || !(d->directionsStart == scan.startAngle)
            || !(d->directionsIncrement == scan.angleIncrement))) {
        d->directions.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            const float a = float(i) * scan.angleIncrement + scan.startAngle;
            d->directions[i] = {std::cos(a), std::sin(a)};
        }
        d->directionsStart = scan.startAngle;
        d->directionsIncrement = scan.angleIncrement;
    }

    const std::size_t intensities = scan.intensities.size();
    for (std::size_t i = 0; i < count; ++i) {
        QGraphicsEllipseItem* dot = d->points[i];
        const float r = 100.0f * scan.ranges[i];
        const float x = anglesFinite ? d->directions[i].first * r : 0.0f;
        const float y = anglesFinite ? d->directions[i].second * r : 0.0f;
        // A NaN or infinite range (or angle) has no place on the grid: the dot waits, hidden.
        if (!anglesFinite || !std::isfinite(x) || !std::isfinite(y)) {
            if (dot->isVisible())
                dot->setVisible(false);
            continue;
        }
        dot->setPos(x, y);
        if (!dot->isVisible())
            dot->setVisible(true);
        // A retro-reflector's echo: an intensity whose integer part is not 0. NaN is no echo.
        const DotColour colour =
            i < intensities && std::fabs(scan.intensities[i]) >= 1.0f ? Yellow : Black;
        if (colour != d->colours[i]) {
            const QColor c = colour == Yellow ? QColor(Qt::yellow) : QColor(Qt::black);
            dot->setBrush(c);
            dot->setPen(QPen(c));
            d->colours[i] = colour;
        }
    }
}

void Scene::cleanup()
{
    for (QGraphicsEllipseItem* dot : d->points)
        delete dot;
    d->points.clear();
    d->colours.clear();
    for (QGraphicsLineItem* line : d->gridLines)
        delete line;
    d->gridLines.clear();
    for (QGraphicsLineItem* line : d->lines()) {
        if (line->scene() == this)
            removeItem(line);
    }
}

void Scene::resetGrid()
{
    const int n = gridMetres(d->rangeMax);
    const std::size_t wanted = std::size_t(4 * n);
    // The items already there are moved rather than deleted and made anew: a scanner whose
    // reported range wobbles by a few centimetres keeps its grid, and Qt's removal of an item
    // from a scene costs time in proportion to the items left in it.
    while (d->gridLines.size() > wanted) {
        delete d->gridLines.back();
        d->gridLines.pop_back();
    }
    const qreal extent = 100.0 * n;
    const QPen pen(Qt::gray);
    d->gridLines.reserve(wanted);
    std::size_t i = 0;
    for (int k = 1; k <= n; ++k) {
        const qreal m = 100.0 * k;
        for (const QLineF& line : {QLineF(-extent, m, extent, m), QLineF(-extent, -m, extent, -m),
                                   QLineF(m, -extent, m, extent), QLineF(-m, -extent, -m, extent)}) {
            if (i < d->gridLines.size()) {
                d->gridLines[i]->setLine(line);
            } else {
                QGraphicsLineItem* item = addLine(line, pen);
                item->setZValue(gridZ);
                d->gridLines.push_back(item);
            }
            ++i;
        }
    }
    const qreal axis = 100.0 * (n + 1);
    d->xAxis->setLine(-axis, 0.0, axis, 0.0);
    d->yAxis->setLine(0.0, -axis, 0.0, axis);
}

void Scene::resetAngleLines()
{
    const qreal r = 100.0 * gridMetres(d->rangeMax);
    const std::array<QLineF, 4> edges = {QLineF(-r, -r, r, -r), QLineF(r, -r, r, r), QLineF(r, r, -r, r),
                                         QLineF(-r, r, -r, -r)};
    // A line from the origin at the toolkit's angle, ending where it leaves the grid's square.
    const auto boundedLine = [&](float angle, QGraphicsLineItem* item) {
        const float degrees = 180.0f * angle / pi;
        if (!std::isfinite(degrees) || r <= 0.0) {
            item->setLine(QLineF());
            return false;
        }
        QLineF line(0.0, 0.0, 1.0, 0.0);
        line.setAngle(degrees);
        line.setLength(2.0 * r);
        for (const QLineF& edge : edges) {
            QPointF crossing;
            if (line.intersects(edge, &crossing) == QLineF::BoundedIntersection) {
                line.setP2(crossing);
                break;
            }
        }
        item->setLine(line);
        return true;
    };
    d->angleMinValid = boundedLine(d->angleMin, d->angleMinLine);
    d->angleMaxValid = boundedLine(d->angleMax, d->angleMaxLine);
}

const std::vector<QGraphicsEllipseItem*>& Scene::points() const
{
    return d->points;
}

const std::vector<QGraphicsLineItem*>& Scene::gridLines() const
{
    return d->gridLines;
}

QGraphicsLineItem* Scene::xAxis() const
{
    return d->xAxis;
}

QGraphicsLineItem* Scene::yAxis() const
{
    return d->yAxis;
}

QGraphicsLineItem* Scene::angleMinLine() const
{
    return d->angleMinLine;
}

QGraphicsLineItem* Scene::angleMaxLine() const
{
    return d->angleMaxLine;
}

float Scene::rangeMax() const
{
    return d->rangeMax;
}

float Scene::angleMin() const
{
    return d->angleMin;
}

float Scene::angleMax() const
{
    return d->angleMax;
}

} // namespace kes::qt::laserrangefinder
