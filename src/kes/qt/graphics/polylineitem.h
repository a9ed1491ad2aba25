#ifndef KES_QT_GRAPHICS_POLYLINEITEM_H
#define KES_QT_GRAPHICS_POLYLINEITEM_H

#include <kes/qt/kes_qt_export.h>

#include <QGraphicsPolygonItem>
#include <QPolygonF>

class QGraphicsScene;

namespace kes::qt::graphics {

/// A polygon item drawn open: the segments between consecutive points, without the one that
/// would close the polygon. With its pen and brush, like the polygon item.
class KES_QT_EXPORT PolylineItem : public QGraphicsPolygonItem
{
public:
    /// Added to \a scene when it is given and \a parent is not (a child follows its parent).
    explicit PolylineItem(QGraphicsItem* parent = nullptr, QGraphicsScene* scene = nullptr);
    /// An open line through the points of \a polygon; added to \a scene as by the other constructor.
    explicit PolylineItem(const QPolygonF& polygon, QGraphicsItem* parent = nullptr,
                          QGraphicsScene* scene = nullptr);
    ~PolylineItem() override;

    /// The segments between consecutive points, with the item's pen.
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
};

} // namespace kes::qt::graphics

#endif
