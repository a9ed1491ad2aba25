#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_COORDSYSTEM_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_COORDSYSTEM_H

#include <kes/qt/kes_qt_export.h>

#include <QGraphicsItem>
#include <QRectF>

#include <memory>

namespace kes::qt::discreteapproximator::schematic {

class Model;
struct CoordsystemPrivate;

/// The axes of the graph along the scene's margins, with arrow heads, a tick at the end of each
/// range, the data range written under the ends of the x range and left of the ends of the y
/// range, and the axis texts at the arrow ends. Draws nothing itself; its children do.
class KES_QT_EXPORT Coordsystem : public QGraphicsItem
{
public:
    /// The four range texts, one at each end of the two axes.
    enum RangeLabel { XMinimum, XMaximum, YMinimum, YMaximum };

    /// A child of \a parent in \a scene, which is not owned; empty until setSceneRect() and setMinMax().
    explicit Coordsystem(Model* scene, QGraphicsItem* parent = nullptr);
    ~Coordsystem() override;

    /// Writes the range with 4 significant digits.
    void setMinMax(double xMin, double xMax, double yMin, double yMax);
    /// Lays the axes out for a scene of the size of \a rect.
    void setSceneRect(const QRectF& rect);
    /// The text at the arrow end of the x axis.
    void setXAxisText(const QString& text);
    /// The text at the arrow end of the y axis.
    void setYAxisText(const QString& text);

    /// The scene the axes belong to.
    Model* schematic() const;
    /// The range value written at \a label's end of its axis.
    QString rangeText(RangeLabel label) const;
    /// The text at the arrow end of the x axis.
    QString xAxisText() const;
    /// The text at the arrow end of the y axis.
    QString yAxisText() const;

    /// The area of the axes and texts, its children.
    QRectF boundingRect() const override;
    /// Nothing: the child items draw the axes.
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
               QWidget* widget) override;

private:
    void updateLabelPos();
    void updateBoundingRect();

    std::unique_ptr<CoordsystemPrivate> const d;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
