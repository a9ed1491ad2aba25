#include <kes/qt/graphics/polylineitem.h>

#include <QGraphicsScene>
#include <QPainter>

namespace kes::qt::graphics {

PolylineItem::PolylineItem(QGraphicsItem* parent, QGraphicsScene* scene)
    : PolylineItem(QPolygonF(), parent, scene)
{
}

PolylineItem::PolylineItem(const QPolygonF& polygon, QGraphicsItem* parent, QGraphicsScene* scene)
    : QGraphicsPolygonItem(polygon, parent)
{
    if (scene && !parent)
        scene->addItem(this);
}

PolylineItem::~PolylineItem() = default;

void PolylineItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/)
{
    painter->setPen(pen());
    painter->setBrush(brush());
    painter->drawPolyline(polygon());
}

} // namespace kes::qt::graphics
