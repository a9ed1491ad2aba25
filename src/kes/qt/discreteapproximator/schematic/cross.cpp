#include <kes/qt/discreteapproximator/schematic/cross.h>

#include <kes/qt/discreteapproximator/schematic/posdisplay.h>

#include <QBrush>
#include <QPainterPath>
#include <QPen>

namespace kes::qt::discreteapproximator::schematic {

Cross::Cross(QGraphicsItem* parent)
    : QGraphicsPathItem(parent)
    , m_label(new QGraphicsSimpleTextItem(this))
{
    setPen(QPen(QBrush(Qt::red), 3.0, Qt::SolidLine, Qt::SquareCap));
    setZValue(1000.0);
    QPainterPath path;
    path.moveTo(-_crossSize, 0.0);
    path.lineTo(_crossSize, 0.0);
    path.moveTo(0.0, -_crossSize);
    path.lineTo(0.0, _crossSize);
    setPath(path);
    m_label->setPos(0.0, 10.0);
    m_label->setBrush(QColor(0xb0, 0x10, 0x10));
    setCrossPoint(m_point);
}

Cross::~Cross() = default;

void Cross::setCrossPoint(const kes::core::PointF& p)
{
    m_point = p;
    m_label->setText(PosDisplay::text(p));
}

QString Cross::labelText() const
{
    return m_label->text();
}

} // namespace kes::qt::discreteapproximator::schematic
