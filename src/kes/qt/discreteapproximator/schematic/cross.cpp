#include <kes/qt/discreteapproximator/schematic/cross.h>

#include <kes/qt/discreteapproximator/schematic/posdisplay.h>

#include <QBrush>
#include <QPainterPath>
#include <QPen>

namespace kes::qt::discreteapproximator::schematic {

struct CrossPrivate
{
    kes::core::PointF point;
    QGraphicsSimpleTextItem* label = nullptr; // a child item
};

Cross::Cross(QGraphicsItem* parent)
    : QGraphicsPathItem(parent)
    , d(std::make_unique<CrossPrivate>())
{
    d->label = new QGraphicsSimpleTextItem(this);
    setPen(QPen(QBrush(Qt::red), 3.0, Qt::SolidLine, Qt::SquareCap));
    setZValue(1000.0);
    QPainterPath path;
    path.moveTo(-_crossSize, 0.0);
    path.lineTo(_crossSize, 0.0);
    path.moveTo(0.0, -_crossSize);
    path.lineTo(0.0, _crossSize);
    setPath(path);
    d->label->setPos(0.0, 10.0);
    d->label->setBrush(QColor(0xb0, 0x10, 0x10));
    setCrossPoint(d->point);
}

Cross::~Cross() = default;

kes::core::PointF Cross::crossPoint() const
{
    return d->point;
}

void Cross::setCrossPoint(const kes::core::PointF& p)
{
    d->point = p;
    d->label->setText(PosDisplay::text(p));
}

QString Cross::labelText() const
{
    return d->label->text();
}

} // namespace kes::qt::discreteapproximator::schematic
