#include <kes/qt/painter.h>

#include <QPen>

#include <cmath>

namespace kes::qt {

Painter::Painter(QPaintDevice* device)
    : QPainter(device)
{
}

Painter::~Painter() = default;

void Painter::drawArrow(const QLineF& line)
{
    const QPointF p1 = line.p1();
    const QPointF p2 = line.p2();
    const QPointF d = p2 - p1;
    const double length = std::hypot(d.x(), d.y());
    // Zero, NaN and infinity alike: there is no direction to put a head on.
    if (!(length > 0.0) || !std::isfinite(length))
        return;
    const double w = pen().widthF();
    const QPointF u = d * ((w + 1.0) / length);
    const QPointF base = p2 - 7.0 * u;
    const QPointF h1 = base + QPointF(-4.0 * u.y(), 4.0 * u.x());
    const QPointF h2 = base + QPointF(4.0 * u.y(), -4.0 * u.x());
    drawLine(QLineF(p1, p2));
    drawLine(QLineF(p2, h1));
    drawLine(QLineF(p2, h2));
}

void Painter::drawArrow(const QPointF& p1, const QPointF& p2)
{
    drawArrow(QLineF(p1, p2));
}

void Painter::drawArrow(const QLine& line)
{
    drawArrow(QLineF(line));
}

void Painter::drawArrow(int x1, int y1, int x2, int y2)
{
    drawArrow(QLineF(x1, y1, x2, y2));
}

void Painter::drawArrow(const QPoint& p1, const QPoint& p2)
{
    drawArrow(QLineF(p1, p2));
}

} // namespace kes::qt
