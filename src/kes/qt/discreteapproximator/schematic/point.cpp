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

Point::Point(Model* scene, QGraphicsItem* parent)
    : QGraphicsItem(parent)
    , m_scene(scene)
    , m_rect(-radius, -radius, 2.0 * radius, 2.0 * radius)
    , m_posDisplay(new PosDisplay(this))
{
    setAcceptHoverEvents(true);
    setZValue(unselectedZ);
    setCursor(Qt::SizeAllCursor);
}

Point::~Point() = default;

QRectF Point::boundingRect() const
{
    const double half = m_outlineWidth / 2.0;
    return m_rect.adjusted(-half, -half, half, half);
}

void Point::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const QColor colour = m_selected ? QColor(0x18, 0x9a, 0x3a) : QColor(0x1f, 0x5a, 0xd6);
    painter->setPen(QPen(colour, m_outlineWidth));
    painter->setBrush(colour);
    painter->drawEllipse(m_rect);
}

void Point::setSelected(bool selected)
{
    m_selected = selected;
    setZValue(restingZ());
    update();
}

double Point::restingZ() const
{
    return m_selected ? selectedZ : unselectedZ;
}

void Point::updatePosText()
{
    const auto& data = m_scene->dataModel()->points();
    const bool valid = m_row >= 0 && std::size_t(m_row) < data.size();
    m_posDisplay->setText(PosDisplay::text(valid ? data[std::size_t(m_row)] : kes::core::PointF()));
}

void Point::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    m_scene->setSelectedPoint(this);
    if (event->button() != Qt::LeftButton) {
        // Not grabbed: the view's own right-click menu follows.
        event->ignore();
        return;
    }
    m_grabOffset = event->pos();
    m_moving = true;
}

void Point::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    // Dragged by the spot where it was taken, so that it does not jump under the cursor.
    if (m_moving)
        m_scene->movePoint(this, event->scenePos() - m_grabOffset);
    updatePosText();
}

void Point::mouseReleaseEvent(QGraphicsSceneMouseEvent*)
{
    m_moving = false;
    m_scene->movementFinished();
}

void Point::hoverEnterEvent(QGraphicsSceneHoverEvent*)
{
    setZValue(hoveredZ);
    if (m_row >= 0 && m_row < m_scene->dataModel()->rowCount()) {
        updatePosText();
        m_posDisplay->show();
    }
}

void Point::hoverLeaveEvent(QGraphicsSceneHoverEvent*)
{
    setZValue(restingZ());
    m_posDisplay->hide();
}

} // namespace kes::qt::discreteapproximator::schematic
