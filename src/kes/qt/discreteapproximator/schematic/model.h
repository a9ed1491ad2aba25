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
    static constexpr double _leftMargin = 50.0;
    static constexpr double _rightMargin = 50.0;
    static constexpr double _topMargin = 40.0;
    static constexpr double _bottomMargin = 30.0;
    /// Scene pixels per data unit at most, and for a zero range.
    static constexpr double maximumScale = 500.0;

    /// \a dataModel is not owned and must outlive the scene.
    explicit Model(discreteapproximator::Model* dataModel, QObject* parent = nullptr);
    ~Model() override;

    discreteapproximator::Model* dataModel() const;

    QPointF toSceneCoords(const kes::core::PointF& p) const;
    kes::core::PointF toDataCoords(const QPointF& q) const;

    /// The size of the viewing widget; the scene covers exactly that area.
    void setViewSize(const QSize& s);
    /// Recomputes the scales from the view size and the data range and re-places every item when
    /// the mapping changed.
    void updateScale();
    /// Takes the data's bounding box for the axes and the scales; does nothing during a drag.
    void calcMinMaxCoords();
    void updatePoints();
    void updatePointRow();

    /// Puts the item of \a row at its data position and re-lays the lines that meet it.
    void movePoint_i(int row);
    void movePoint(int row);
    /// Asks the table model to move the point of \a item to \a scenePos.
    void movePoint(Point* item, const QPointF& scenePos);
    void movementFinished();
    void setSelectedPoint(Point* item);
    /// Asks the table model for a new point at \a scenePos.
    void insertPoint(const QPointF& scenePos);
    /// Adds the items for a new row of the table model.
    void insertPoint(int row);
    void removePoint(int row);

    /// The operating point marked by the cross.
    void setPoint(const kes::core::PointF& p);
    void setShowPointEnabled(bool enabled);
    void setXAxisText(const QString& text);
    void setYAxisText(const QString& text);

    const QVector<Point*>& points() const;
    const QVector<Line*>& lines() const;
    double xMinimum() const;
    double xMaximum() const;
    double yMinimum() const;
    double yMaximum() const;
    double xScale() const;
    double yScale() const;
    double viewWidth() const;
    double viewHeight() const;
    bool isMoving() const;
    Coordsystem* coordsystem() const;
    Cross* cross() const;

public Q_SLOTS:
    void on_modelReset();
    void on_dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    void on_rowsRemoved(const QModelIndex& parent, int start, int end);
    void on_rowsInserted(const QModelIndex& parent, int start, int end);
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
