#ifndef KES_QT_PAINTER_H
#define KES_QT_PAINTER_H

#include <kes/qt/kes_qt_export.h>

#include <QLine>
#include <QLineF>
#include <QPainter>
#include <QPoint>
#include <QPointF>

namespace kes::qt {

/// A QPainter that also draws arrows: the line with an open head at its end point, 7 (w + 1) long
/// and 8 (w + 1) wide for a pen of width w, so that the head grows with the pen.
class KES_QT_EXPORT Painter : public QPainter
{
public:
    /// Begins painting on \a device, as QPainter(device) does.
    explicit Painter(QPaintDevice* device);
    ~Painter();

    /// Points from \a line's first point to its second. A line of zero length (or with a
    /// non-finite coordinate) has no direction and draws nothing.
    void drawArrow(const QLineF& line);
    /// An arrow from \a p1 to \a p2.
    void drawArrow(const QPointF& p1, const QPointF& p2);
    /// An arrow along \a line, to its second point.
    void drawArrow(const QLine& line);
    /// An arrow from (\a x1, \a y1) to (\a x2, \a y2).
    void drawArrow(int x1, int y1, int x2, int y2);
    /// An arrow from \a p1 to \a p2.
    void drawArrow(const QPoint& p1, const QPoint& p2);
};

} // namespace kes::qt

#endif
