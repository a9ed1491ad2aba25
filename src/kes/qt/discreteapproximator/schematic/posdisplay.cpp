#include <kes/qt/discreteapproximator/schematic/posdisplay.h>

#include <QPainter>

namespace kes::qt::discreteapproximator::schematic {

namespace {

constexpr double platePadding = 2.0;

} // namespace

PosDisplay::PosDisplay(QGraphicsItem* parent)
    : QGraphicsSimpleTextItem(parent)
{
    setPos(0.0, -22.0);
    hide();
}

PosDisplay::~PosDisplay() = default;

QString PosDisplay::text(const kes::core::PointF& p)
{
    return QStringLiteral("(%1,%2)").arg(p.x).arg(p.y);
}

QRectF PosDisplay::boundingRect() const
{
    return QGraphicsSimpleTextItem::boundingRect().adjusted(-platePadding, -platePadding,
                                                            platePadding, platePadding);
}

QPainterPath PosDisplay::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

void PosDisplay::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    // The line of the characteristic often runs right through the text.
    painter->setPen(QColor(0xb0, 0xb0, 0xb0));
    painter->setBrush(QColor(0xff, 0xff, 0xf0, 0xe8));
    painter->drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), 2.0, 2.0);
    QGraphicsSimpleTextItem::paint(painter, option, widget);
}

} // namespace kes::qt::discreteapproximator::schematic
