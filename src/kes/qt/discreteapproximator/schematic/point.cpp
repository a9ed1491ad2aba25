#include <kes/qt/discreteapproximator/schematic/point.h>

#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/model.h>
#include <kes/qt/discreteapproximator/schematic/posdisplay.h>

#include <QCursor>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>

namespace kes::qt::discreteapproximator::schematic {

namespace {

constexpr double selectedZ = 100.0;
constexpr double unselectedZ = 50.0;
constexpr double hoveredZ = 1000.0;

} // namespace

struct PointPrivate
{
    Model* scene = nullptr;
    QRectF rect{-Point::radius, -Point::radius, 2.0 * Point::radius, 2.0 * Point::radius};
    double outlineWidth = 1.0;
    // Where the point was taken, relative to its centre.
    QPointF grabOffset;
    bool moving = false;
    bool selected = false;
    PosDisplay* posDisplay = nullptr; // a child item
    int row = -1;
};

Point::Point(Model* scene, QGraphicsItem* parent)
    : QGraphicsItem(parent)
    , d(std::make_unique<PointPrivate>())
{
    d->scene = scene;
    d->posDisplay = new PosDisplay(this);
    setAcceptHoverEvents(true);
    setZValue(unselectedZ);
    setCursor(Qt::SizeAllCursor);
}

Point::~Point() = default;

bool Point::selected() const
{
    return d->selected;
}

void Point::setRow(int row)
{
    d->row = row;
}

int Point::row() const
{
    return d->row;
}

PosDisplay* Point::posDisplay() const
{
    return d->posDisplay;
}

QRectF Point::boundingRect() const
{
    const double half = d->outlineWidth / 2.0;
    return d->rect.adjusted(-half, -half, half, half);
}

void Point::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const QColor colour = d->selected ? QColor(0x18, 0x9a, 0x3a) : QColor(0x1f, 0x5a, 0xd6);
    painter->setPen(QPen(colour, d->outlineWidth));
    painter->setBrush(colour);
    painter->drawEllipse(d->rect);
}

void Point::setSelected(bool selected)
{
    d->selected = selected;
    setZValue(restingZ());
    update();
}

double Point::restingZ() const
{
    return d->selected ? selectedZ : unselectedZ;
}

void Point::updatePosText()
{
    const auto& data = d->scene->dataModel()->points();
    const bool valid = d->row >= 0 && std::size_t(d->row) < data.size();
    d->posDisplay->setText(PosDisplay::text(valid ? data[std::size_t(d->row)] : kes::core::PointF()));
}

void Point::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    d->scene->setSelectedPoint(this);
    if (event->button() != Qt::LeftButton) {
        // Not grabbed: the view's own right-click menu follows.
        event->ignore();
        return;
    }
    d->grabOffset = event->pos();
    d->moving = true;
}

void Point::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    // Dragged by the spot where it was taken, so that it does not jump under the cursor.
    if (d->moving)
        d->scene->movePoint(this, event->scenePos() - d->grabOffset);
    updatePosText();
}

void Point::mouseReleaseEvent(QGraphicsSceneMouseEvent*)
{
    d->moving = false;
    d->scene->movementFinished();
}

void Point::hoverEnterEvent(QGraphicsSceneHoverEvent*)
{
    setZValue(hoveredZ);
    if (d->row >= 0 && d->row < d->scene->dataModel()->rowCount()) {
        updatePosText();
        d->posDisplay->show();
    }
}

void Point::hoverLeaveEvent(QGraphicsSceneHoverEvent*)
{
    setZValue(restingZ());
    d->posDisplay->hide();
}

} // namespace kes::qt::discreteapproximator::schematic
