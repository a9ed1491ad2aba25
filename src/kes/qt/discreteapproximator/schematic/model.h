#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_MODEL_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_MODEL_H

#include <kes/qt/kes_qt_export.h>

#include <kes/core/pointf.h>

#include <QGraphicsScene>
#include <QVector>

#include <memory>

namespace kes::qt::discreteapproximator {
class Model;
}

namespace kes::qt::discreteapproximator::schematic {

class Coordsystem;
class Cross;
class Line;
class Point;
struct ModelPrivate;

/// The graph of a point table model: one item per point, a line between neighbours and a
/// horizontal run beyond each end, axes labelled with the data range and an optional cross at an
/// operating point.
///
/// Holds no point data of its own: drags and insertions are asked of the table model, and the
/// items follow its signals. The data's bounding box fills the plotting area inside the margins;
/// the axes stay put while a point is dragged and adapt when it is released.
class KES_QT_EXPORT Model : public QGraphicsScene
{
    Q_OBJECT

public:
    /// Room left of the plotting area for the y range texts.
    static constexpr double _leftMargin = 50.0;
    /// Room right of the plotting area for the x axis text.
    static constexpr double _rightMargin = 50.0;
    /// Room above the plotting area for the y axis text.
    static constexpr double _topMargin = 40.0;
    /// Room below the plotting area for the x range texts.
    static constexpr double _bottomMargin = 30.0;
    /// Scene pixels per data unit at most, and for a zero range.
    static constexpr double maximumScale = 500.0;

    /// \a dataModel is not owned and must outlive the scene.
    explicit Model(discreteapproximator::Model* dataModel, QObject* parent = nullptr);
    ~Model() override;

    /// The table model the graph shows.
    discreteapproximator::Model* dataModel() const;

    /// The scene position of data point \a p under the current scales.
    QPointF toSceneCoords(const kes::core::PointF& p) const;
    /// The data point at scene position \a q under the current scales.
    kes::core::PointF toDataCoords(const QPointF& q) const;

    /// The size of the viewing widget; the scene covers exactly that area.
    void setViewSize(const QSize& s);
    /// Recomputes the scales from the view size and the data range and re-places every item when
    /// the mapping changed.
    void updateScale();
    /// Takes the data's bounding box for the axes and the scales; does nothing during a drag.
    void calcMinMaxCoords();
    /// Re-places every point item and the cross after a change of the scales.
    void updatePoints();
    /// Tells every point item its row again after an insertion or removal.
    void updatePointRow();

    /// Puts the item of \a row at its data position and re-lays the lines that meet it.
    void movePoint_i(int row);
    /// movePoint_i() followed by calcMinMaxCoords().
    void movePoint(int row);
    /// Asks the table model to move the point of \a item to \a scenePos.
    void movePoint(Point* item, const QPointF& scenePos);
    /// Ends a drag, after which the axes adapt to the data again.
    void movementFinished();
    /// Selects \a item's row in the table model.
    void setSelectedPoint(Point* item);
    /// Asks the table model for a new point at \a scenePos.
    void insertPoint(const QPointF& scenePos);
    /// Adds the items for a new row of the table model.
    void insertPoint(int row);
    /// Removes the items of a row the table model removed.
    void removePoint(int row);

    /// The operating point marked by the cross.
    void setPoint(const kes::core::PointF& p);
    /// Shows or hides the cross.
    void setShowPointEnabled(bool enabled);
    /// The text at the arrow end of the x axis.
    void setXAxisText(const QString& text);
    /// The text at the arrow end of the y axis.
    void setYAxisText(const QString& text);

    /// The point items in row order.
    const QVector<Point*>& points() const;
    /// The lines: the run left of the first point, the segments, the run right of the last point.
    const QVector<Line*>& lines() const;
    /// The x range the axes show, from the data's bounding box.
    double xMinimum() const;
    /// The upper end of the x range the axes show.
    double xMaximum() const;
    /// The y range the axes show, from the data's bounding box.
    double yMinimum() const;
    /// The upper end of the y range the axes show.
    double yMaximum() const;
    /// Scene pixels per data unit along x.
    double xScale() const;
    /// Scene pixels per data unit along y.
    double yScale() const;
    /// The width of the viewing widget, as set by setViewSize().
    double viewWidth() const;
    /// The height of the viewing widget, as set by setViewSize().
    double viewHeight() const;
    /// Whether a point is being dragged.
    bool isMoving() const;
    /// The axes.
    Coordsystem* coordsystem() const;
    /// The operating point's cross.
    Cross* cross() const;

public Q_SLOTS:
    /// Builds the items again for the table model's whole list.
    void on_modelReset();
    /// Re-places the point of \a topLeft's row and adapts the axes.
    void on_dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    /// Removes the items of rows \a start to \a end.
    void on_rowsRemoved(const QModelIndex& parent, int start, int end);
    /// Adds items for rows \a start to \a end.
    void on_rowsInserted(const QModelIndex& parent, int start, int end);
    /// Shows the point of \a index's row as selected, the others not.
    void on_selectedPointChanged(const QModelIndex& index);

private Q_SLOTS:
    void deleteRetired();

private:
    void addItems(int row);
    void layLine(int line);
    void clearItems();
    void retire(Point* point);

    std::unique_ptr<ModelPrivate> const d;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
