#include <kes/qt/discreteapproximator/schematic/line.h>

#include <QPen>

namespace kes::qt::discreteapproximator::schematic {

struct LinePrivate
{
    Model* scene = nullptr;
};

Line::Line(Model* scene, QGraphicsItem* parent)
    : QGraphicsLineItem(parent)
    , d(std::make_unique<LinePrivate>())
{
    d->scene = scene;
    QPen pen(QColor(0x2a, 0x3b, 0x5c), 1.5);
    pen.setCapStyle(Qt::RoundCap);
    setPen(pen);
}

Line::~Line() = default;

Model* Line::schematic() const
{
    return d->scene;
}

} // namespace kes::qt::discreteapproximator::schematic
