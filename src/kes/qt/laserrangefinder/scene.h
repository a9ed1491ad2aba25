#ifndef KES_QT_LASERRANGEFINDER_SCENE_H
#define KES_QT_LASERRANGEFINDER_SCENE_H

#include <kes/core/laserscanmessage.h>
#include <kes/qt/kes_qt_export.h>

#include <QGraphicsScene>

#include <memory>
#include <vector>

class QGraphicsEllipseItem;
class QGraphicsLineItem;

namespace kes::qt::laserrangefinder {

class ScenePrivate;

/// One scan of a planar laser range finder as a top view, in centimetres with the scanner at the
/// origin: a dot per beam at (100 r cos a, 100 r sin a), a square metre grid reaching to the
/// maximum range, the two axes and the two lines that bound the field of view.
///
/// The field-of-view lines are drawn with the toolkit's line angle, which runs the other way round
/// than the beams: they are the mirror images of the first and last beam across the x axis. That
/// is how this view has always drawn them.
///
/// Scans of the same size reuse their dots, so a scanner's steady stream only moves them. A beam
/// whose range is NaN or infinite keeps its dot, hidden; a scan whose start angle, end angle or
/// increment is not finite shows neither dots nor field-of-view lines. GUI thread only.
class KES_QT_EXPORT Scene : public QGraphicsScene
{
    Q_OBJECT

public:
    /// The largest grid, in metres from the scanner. See resetGrid().
    static constexpr int maxGridMetres = 500;

    /// An empty scene; setData() brings the first scan.
    explicit Scene(QObject* parent = nullptr);
    ~Scene() override;

    /// Shows \a scan. An empty scan removes dots and grid (cleanup()) but its angles and range
    /// are kept, so a following scan with the same range does not bring the grid back.
    void setData(const kes::core::LaserScanMessage& scan);
    /// Deletes the dots and the grid and takes the axes and field-of-view lines off the scene.
    void cleanup();
    /// Builds the metre grid and the axes for the stored maximum range.
    void resetGrid();
    /// Sets the field-of-view lines for the stored angles and maximum range.
    void resetAngleLines();

    /// One dot per beam of the last non-empty scan, in beam order; owned by the scene.
    const std::vector<QGraphicsEllipseItem*>& points() const;
    /// The grid lines, owned by the scene.
    const std::vector<QGraphicsLineItem*>& gridLines() const;
    /// The scanner's forward axis, on the scene while a grid is shown; owned by the scene.
    QGraphicsLineItem* xAxis() const;
    /// The scanner's left axis, on the scene while a grid is shown; owned by the scene.
    QGraphicsLineItem* yAxis() const;
    /// The field-of-view line of the first beam, on the scene while a scan with finite angles is shown.
    QGraphicsLineItem* angleMinLine() const;
    /// The field-of-view line of the last beam, on the scene while a scan with finite angles is shown.
    QGraphicsLineItem* angleMaxLine() const;
    /// Of the last scan: metres and radians.
    float rangeMax() const;
    /// The start angle of the last scan, in radians.
    float angleMin() const;
    /// The end angle of the last scan, in radians.
    float angleMax() const;

private:
    std::unique_ptr<ScenePrivate> const d;
};

} // namespace kes::qt::laserrangefinder

#endif
