#ifndef KES_GALLERY_LASERPAGE_H
#define KES_GALLERY_LASERPAGE_H

#include "page.h"

#include <kes/core/laserscanmessage.h>

#include <QElapsedTimer>
#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QRandomGenerator>
#include <QVector>

class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QTimer;

namespace kes::qt::laserrangefinder {
class AnalysisScene;
class View;
} // namespace kes::qt::laserrangefinder

namespace kes::gallery {

/// A planar laser scanner in a room: 270 degrees at 0.5 degree steps (541 beams), eight metres
/// of range. The walls have an open door, through which beams find nothing (an infinite range),
/// three retro-reflector strips that return a high intensity, and a person walks about the room.
/// Now and then a beam is lost (NaN), as dust or a glossy surface makes real scanners do.
class SimulatedScanner
{
public:
    SimulatedScanner();

    /// The scan at \a seconds after the start.
    kes::core::LaserScanMessage scan(double seconds);

    /// The room in scene units, to show it filling the view.
    static QRectF room();

    static constexpr int beams = 541;
    static constexpr float maxRange = 8.0f;

private:
    struct Wall
    {
        QLineF line;
        bool reflector;
    };
    QVector<Wall> m_walls;
    QRandomGenerator m_random;
};

/// The laser range finder view on the simulated scanner at 25 scans a second, with an analysis
/// sector the user places, zoom by mouse, "Fit" and "Save as image…".
class LaserPage : public Page
{
    Q_OBJECT

public:
    explicit LaserPage(QWidget* parent = nullptr);
    ~LaserPage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;
    void activated() override;
    void deactivated() override;
    std::chrono::milliseconds settleTime() const override;

private Q_SLOTS:
    void nextScan();
    void showRoom();
    void on_direction_valueChanged(double degrees);
    void on_opening_valueChanged(double degrees);
    void on_distance_valueChanged(double metres);
    void on_fit_clicked();
    void on_save_clicked();

private:
    void showStatus();

    kes::qt::laserrangefinder::AnalysisScene* m_scene = nullptr;
    kes::qt::laserrangefinder::View* m_view = nullptr;
    QLabel* m_heading = nullptr;
    QLabel* m_description = nullptr;
    QLabel* m_sectorHeading = nullptr;
    QLabel* m_directionLabel = nullptr;
    QDoubleSpinBox* m_direction = nullptr;
    QLabel* m_openingLabel = nullptr;
    QDoubleSpinBox* m_opening = nullptr;
    QLabel* m_distanceLabel = nullptr;
    QDoubleSpinBox* m_distance = nullptr;
    QLabel* m_inSector = nullptr;
    QPushButton* m_fit = nullptr;
    QPushButton* m_save = nullptr;
    QLabel* m_status = nullptr;
    QLabel* m_saved = nullptr;
    QTimer* m_timer = nullptr;
    QElapsedTimer m_clock;
    SimulatedScanner m_scanner;
    kes::core::LaserScanMessage m_last;
    int m_pointsInSector = 0;
    int m_invalid = 0;
    // Scans per second, counted over the last whole second.
    QElapsedTimer m_rateClock;
    int m_scansThisSecond = 0;
    int m_rate = 0;
};

} // namespace kes::gallery

#endif
