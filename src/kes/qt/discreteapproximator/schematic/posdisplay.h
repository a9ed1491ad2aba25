#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_POSDISPLAY_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_POSDISPLAY_H

#include <kes/qt/kes_qt_export.h>

#include <kes/core/pointf.h>

#include <QGraphicsSimpleTextItem>

namespace kes::qt::discreteapproximator::schematic {

/// The coordinates of a point, shown above it on a light plate while the cursor is over it.
class KES_QT_EXPORT PosDisplay : public QGraphicsSimpleTextItem
{
public:
    /// Created hidden, as a child of \a parent.
    explicit PosDisplay(QGraphicsItem* parent);
    ~PosDisplay() override;

    /// "(x,y)", each coordinate with 6 significant digits.
    static QString text(const kes::core::PointF& p);
    using QGraphicsSimpleTextItem::text;

    /// The text with the plate around it.
    QRectF boundingRect() const override;
    /// The whole plate, so that it catches the cursor like the point under it.
    QPainterPath shape() const override;
    /// A light plate, so that the text stays readable over the curve, and the text on it.
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
               QWidget* widget) override;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
