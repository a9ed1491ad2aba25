#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_MODEL_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_MODEL_H

#include <kes/qt/kes_qt_export.h>

#include <kes/core/pointf.h>

#include <QGraphicsScene>
#include <QVector>

namespace kes::qt::discreteapproximator {
class Model;
}

namespace kes::qt::discreteapproximator::schematic {

class Coordsystem;
class Cross;
class Line;
class Point;

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

    discreteapproximator::Model* dataModel() const { return m_dataModel; }

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

    const QVector<Point*>& points() const { return m_points; }
    const QVector<Line*>& lines() const { return m_lines; }
    double xMinimum() const { return m_xMin; }
    double xMaximum() const { return m_xMax; }
    double yMinimum() const { return m_yMin; }
    double yMaximum() const { return m_yMax; }
    double xScale() const { return m_xScale; }
    double yScale() const { return m_yScale; }
    double viewWidth() const { return m_viewWidth; }
    double viewHeight() const { return m_viewHeight; }
    bool isMoving() const { return m_moving; }
    Coordsystem* coordsystem() const { return m_coordsystem; }
    Cross* cross() const { return m_cross; }

public Q_SLOTS:
    void on_modelReset();
    void on_dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    void on_rowsRemoved(const QModelIndex& parent, int start, int end);
    void on_rowsInserted(const QModelIndex& parent, int start, int end);
    void on_selectedPointChanged(const QModelIndex& index);

private Q_SLOTS:
    void deleteRetired();

private:
    // What the item positions were computed from; nothing needs re-placing while it holds.
    struct Mapping
    {
        double xScale = 0.0;
        double yScale = 0.0;
        double xMin = 0.0;
        double yMin = 0.0;
        double viewWidth = -1.0;
        double viewHeight = -1.0;
        bool operator==(const Mapping& other) const;
    };

    void addItems(int row);
    void layLine(int line);
    void clearItems();
    void retire(Point* point);

    discreteapproximator::Model* m_dataModel;
    QVector<Point*> m_points;
    QVector<Line*> m_lines;
    double m_xMin = 0.0;
    double m_xMax = 0.0;
    double m_yMin = 0.0;
    double m_yMax = 0.0;
    double m_xScale = 0.0;
    double m_yScale = 0.0;
    double m_viewWidth = -1.0;
    double m_viewHeight = -1.0;
    bool m_moving = false;
    Coordsystem* m_coordsystem;
    Cross* m_cross;
    // Out of the scene, deleted once control is back in the event loop.
    QVector<Point*> m_retired;
    Mapping m_mapping;
    bool m_mapped = false;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
