#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_POINT_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_POINT_H

#include <kes/qt/kes_qt_export.h>

#include <QGraphicsItem>

#include <memory>

namespace kes::qt::discreteapproximator::schematic {

class Model;
class PosDisplay;
struct PointPrivate;

/// One point of the characteristic, a filled circle: blue, or green while selected. It can be
/// dragged with the left button and shows its coordinates while the cursor is over it. Where it
/// stands is decided by the table model, never by the drag itself.
class KES_QT_EXPORT Point : public QGraphicsItem
{
public:
    /// The item type, so that qgraphicsitem_cast tells points from other items.
    enum { Type = UserType + 0x4b01 };
    /// In scene pixels.
    static constexpr double radius = 6.0;

    /// A point of \a scene, which is not owned; placed by the scene.
    explicit Point(Model* scene, QGraphicsItem* parent = nullptr);
    ~Point() override;

    /// Type.
    int type() const override { return Type; }
    /// The circle with its outline.
    QRectF boundingRect() const override;
    /// A filled circle, green while selected, blue otherwise.
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
               QWidget* widget) override;

    /// Draws the point as selected and raises it above the others.
    void setSelected(bool selected);
    /// Whether the point is drawn as selected.
    bool selected() const;
    /// The row of the table model the point stands for.
    void setRow(int row);
    /// The row of the table model the point stands for.
    int row() const;
    /// The coordinates shown while the cursor is over the point.
    PosDisplay* posDisplay() const;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;

private:
    double restingZ() const;
    void updatePosText();

    std::unique_ptr<PointPrivate> const d;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
