#include <kes/qt/discreteapproximator/schematic/line.h>

#include <QPen>

namespace kes::qt::discreteapproximator::schematic {

Line::Line(Model* scene, QGraphicsItem* parent)
    : QGraphicsLineItem(parent)
    , m_scene(scene)
{
    QPen pen(QColor(0x2a, 0x3b, 0x5c), 1.5);
    pen.setCapStyle(Qt::RoundCap);
    setPen(pen);
}

Line::~Line() = default;

} // namespace kes::qt::discreteapproximator::schematic
