#include <kes/qt/laserrangefinder/analysisscene.h>

#include <kes/core/angle.h>

#include <QBrush>
#include <QColor>
#include <QGraphicsEllipseItem>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace kes::qt::laserrangefinder {

namespace {

constexpr float pi = 3.1415927f;

} // namespace

class AnalysisScenePrivate
{
public:
    float angle = 0.0f;
    float openingAngle = 0.0f;
    float distance = 0.0f;
    QGraphicsEllipseItem* sector = nullptr;
};

AnalysisScene::AnalysisScene(QObject* parent)
    : Scene(parent)
    , d(std::make_unique<AnalysisScenePrivate>())
{
    const QColor red(255, 0, 0, 127);
    d->sector = new QGraphicsEllipseItem;
    d->sector->setBrush(red);
    d->sector->setPen(QPen(red));
}

AnalysisScene::~AnalysisScene()
{
    delete d->sector;
}

void AnalysisScene::setAngle(float degrees)
{
    const float v = kes::core::mapToMinus180to180Degrees(degrees);
    if (v == d->angle)
        return;
    d->angle = v;
    updateGraphic();
}

void AnalysisScene::setOpeningAngle(float degrees)
{
    const float v = std::max(kes::core::mapToMinus180to180Degrees(degrees), 0.0f);
    if (v == d->openingAngle)
        return;
    d->openingAngle = v;
    updateGraphic();
}

void AnalysisScene::setDistance(float metres)
{
    // An infinite radius has no rectangle to draw.
    const float v = metres > 0.0f && std::isfinite(metres * 100.0f) ? metres * 100.0f : 0.0f;
    if (v == d->distance)
        return;
    d->distance = v;
    updateGraphic();
}

void AnalysisScene::updateGraphic()
{
    const float minDeg = angleMin() * 180.0f / pi;
    const float maxDeg = angleMax() * 180.0f / pi;
    // A NaN direction or field of view leaves nothing to cut the sector to (and no angle to
    // convert to an integer).
    const bool finite = std::isfinite(d->angle) && std::isfinite(d->openingAngle) && std::isfinite(minDeg)
                        && std::isfinite(maxDeg);
    if (finite && d->distance != 0.0f && d->openingAngle != 0.0f) {
        float start = d->angle - d->openingAngle / 2.0f;
        float span = d->openingAngle;
        const float end = d->angle + d->openingAngle / 2.0f;
        if (minDeg > start) {
            span -= minDeg - start;
            start = minDeg;
        }
        if (end > maxDeg)
            span -= end - maxDeg;
        if (span > 0.0f) {
            if (!d->sector->scene())
                addItem(d->sector);
            const qreal r = d->distance;
            d->sector->setRect(-r, -r, 2.0 * r, 2.0 * r);
            // Sixteenths of a degree; negated because the scene's y axis points the other way
            // than the toolkit's angles turn.
            d->sector->setStartAngle(int(std::trunc(start * -16.0f)));
            d->sector->setSpanAngle(int(std::trunc(span * -16.0f)));
            return;
        }
    }
    if (d->sector->scene() == this)
        removeItem(d->sector);
}

float AnalysisScene::angle() const
{
    return d->angle;
}

float AnalysisScene::openingAngle() const
{
    return d->openingAngle;
}

float AnalysisScene::distance() const
{
    return d->distance;
}

QGraphicsEllipseItem* AnalysisScene::sector() const
{
    return d->sector;
}

} // namespace kes::qt::laserrangefinder
