#include "laserpage.h"

#include "imagesaving.h"
#include "style.h"

#include <kes/core/angle.h>
#include <kes/qt/laserrangefinder/analysisscene.h>
#include <kes/qt/laserrangefinder/view.h>

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace kes::gallery {

namespace {

using namespace style;

constexpr int textMaxWidth = 820;
constexpr int scanInterval = 40; // ms: 25 scans a second
constexpr float pi = 3.1415927f;
constexpr double personRadius = 0.25;

// Where a ray from the origin along \a direction meets \a wall, as a distance; infinity if not.
double hit(const QPointF& direction, const QLineF& wall)
{
    const QPointF a = wall.p1();
    const QPointF e = wall.p2() - wall.p1();
    const double det = direction.x() * (-e.y()) + direction.y() * e.x();
    if (std::abs(det) < 1e-12)
        return std::numeric_limits<double>::infinity();
    // Solve t * direction = a + u * e.
    const double t = (a.x() * (-e.y()) + a.y() * e.x()) / det;
    const double u = (direction.x() * a.y() - direction.y() * a.x()) / det;
    return t > 0 && u >= 0 && u <= 1 ? t : std::numeric_limits<double>::infinity();
}

} // namespace

SimulatedScanner::SimulatedScanner()
    : m_random(1081)
{
    // The room, scanner at the origin facing +x: from 2.5 m behind to 6.5 m ahead, 3.5 m to the
    // right and 4 m to the left. The left wall has a door from 1.5 to 2.5 m ahead.
    const auto wall = [this](double x1, double y1, double x2, double y2, bool reflector = false) {
        m_walls.append({QLineF(x1, y1, x2, y2), reflector});
    };
    wall(-2.5, -3.5, 6.5, -3.5);
    wall(6.5, -3.5, 6.5, 4.0);
    wall(6.5, 4.0, 2.5, 4.0);
    wall(1.5, 4.0, -2.5, 4.0);
    wall(-2.5, 4.0, -2.5, -3.5);
    // A cabinet against the right wall and a pillar ahead on the left.
    wall(3.0, -3.5, 3.0, -2.9);
    wall(3.0, -2.9, 4.6, -2.9);
    wall(4.6, -2.9, 4.6, -3.5);
    wall(4.0, 1.8, 4.4, 1.8);
    wall(4.4, 1.8, 4.4, 2.2);
    wall(4.4, 2.2, 4.0, 2.2);
    wall(4.0, 2.2, 4.0, 1.8);
    // Retro-reflector strips on the walls, where a robot would take its bearings.
    wall(6.49, -1.0, 6.49, -0.6, true);
    wall(5.0, 3.99, 4.6, 3.99, true);
    wall(0.6, -3.49, 1.0, -3.49, true);
}

QRectF SimulatedScanner::room()
{
    // In centimetres, with half a metre around the walls.
    return QRectF(QPointF(-300.0, -400.0), QPointF(700.0, 450.0));
}

kes::core::LaserScanMessage SimulatedScanner::scan(double seconds)
{
    kes::core::LaserScanMessage scan;
    scan.angleIncrement = 0.5f * pi / 180.0f;
    scan.startAngle = -135.0f * pi / 180.0f;
    scan.endAngle = scan.startAngle + scan.angleIncrement * float(beams - 1);
    scan.maxRange = maxRange;
    // A person walking a figure of eight between the scanner and the far wall.
    const QPointF person(3.0 + 2.2 * std::sin(0.45 * seconds), 1.6 * std::sin(0.9 * seconds));
    for (int i = 0; i < beams; ++i) {
        const double a = scan.startAngle + scan.angleIncrement * i;
        const QPointF direction(std::cos(a), std::sin(a));
        double range = std::numeric_limits<double>::infinity();
        bool reflector = false;
        // The reflector strips stand a centimetre in front of their walls, so they are met first.
        for (const Wall& w : m_walls) {
            const double t = hit(direction, w.line);
            if (t < range) {
                range = t;
                reflector = w.reflector;
            }
        }
        const double along = person.x() * direction.x() + person.y() * direction.y();
        const double off2 = person.x() * person.x() + person.y() * person.y() - along * along;
        if (along > 0 && off2 < personRadius * personRadius) {
            const double t = along - std::sqrt(personRadius * personRadius - off2);
            if (t < range) {
                range = t;
                reflector = false;
            }
        }
        if (range > maxRange)
            range = std::numeric_limits<double>::infinity(); // no echo: through the door
        else if (m_random.bounded(200) == 0)
            range = std::numeric_limits<double>::quiet_NaN(); // a lost beam
        else
            range += (m_random.generateDouble() - 0.5) * 0.02; // +-1 cm of noise
        scan.ranges.append(float(range));
        // Matt walls return weak echoes (below 1, drawn black); reflectors thousands.
        scan.intensities.append(reflector ? 2500.0f + float(m_random.bounded(500))
                                          : float(0.3 + 0.5 * m_random.generateDouble()));
    }
    return scan;
}

LaserPage::LaserPage(QWidget* parent)
    : Page(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);
    m_heading = sectionHeading(this);
    m_description = paragraph(textMaxWidth, this);
    layout->addWidget(m_heading);
    layout->addSpacing(6);
    layout->addWidget(m_description);
    layout->addSpacing(10);

    //! [laser-setup]
    m_scene = new kes::qt::laserrangefinder::AnalysisScene(this);
    m_view = new kes::qt::laserrangefinder::View(this);
    m_view->setObjectName(QStringLiteral("view"));
    m_view->setScene(m_scene);
    //! [laser-setup]

    const auto spinBox = [this](const char* name, double min, double max, double step, int decimals, double value,
                                const QString& suffix) {
        auto* box = new QDoubleSpinBox(this);
        box->setObjectName(QLatin1String(name));
        box->setRange(min, max);
        box->setSingleStep(step);
        box->setDecimals(decimals);
        box->setValue(value);
        box->setSuffix(suffix);
        return box;
    };
    m_sectorHeading = new QLabel(this);
    scaleFont(m_sectorHeading, 1.0, true);
    m_directionLabel = new QLabel(this);
    m_direction = spinBox("direction", -180.0, 180.0, 5.0, 0, 25.0, QStringLiteral(" \u00b0"));
    m_direction->setWrapping(true);
    m_openingLabel = new QLabel(this);
    m_opening = spinBox("opening", 0.0, 180.0, 5.0, 0, 40.0, QStringLiteral(" \u00b0"));
    m_distanceLabel = new QLabel(this);
    m_distance = spinBox("distance", 0.0, 8.0, 0.25, 2, 5.0, QStringLiteral(" m"));
    m_directionLabel->setBuddy(m_direction);
    m_openingLabel->setBuddy(m_opening);
    m_distanceLabel->setBuddy(m_distance);
    m_inSector = new QLabel(this);
    m_fit = new QPushButton(this);
    m_fit->setObjectName(QStringLiteral("fit"));
    m_save = new QPushButton(this);
    m_save->setObjectName(QStringLiteral("save"));
    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    muteText(m_status);
    m_saved = new QLabel(this);
    m_saved->setWordWrap(true);

    auto* sector = new QGridLayout;
    sector->setHorizontalSpacing(8);
    sector->addWidget(m_directionLabel, 0, 0);
    sector->addWidget(m_direction, 0, 1);
    sector->addWidget(m_openingLabel, 1, 0);
    sector->addWidget(m_opening, 1, 1);
    sector->addWidget(m_distanceLabel, 2, 0);
    sector->addWidget(m_distance, 2, 1);
    auto* side = new QVBoxLayout;
    side->setSpacing(6);
    side->addWidget(m_sectorHeading);
    side->addLayout(sector);
    side->addWidget(m_inSector);
    side->addSpacing(12);
    side->addWidget(m_fit);
    side->addWidget(m_save);
    side->addSpacing(12);
    side->addWidget(m_status);
    side->addWidget(m_saved);
    side->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_view, 1);
    row->addLayout(side);
    layout->addLayout(row, 1);

    m_scene->setDistance(float(m_distance->value()));
    m_scene->setOpeningAngle(float(m_opening->value()));
    m_scene->setAngle(float(m_direction->value()));

    m_timer = new QTimer(this);
    m_timer->setInterval(scanInterval);
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer, SIGNAL(timeout()), this, SLOT(nextScan()));
    QMetaObject::connectSlotsByName(this);
    retranslate();
    nextScan();
}

LaserPage::~LaserPage() = default;

QString LaserPage::id() const
{
    return QStringLiteral("laser-scanner");
}

QString LaserPage::title() const
{
    return tr("Laser scanner");
}

void LaserPage::retranslate()
{
    m_heading->setText(tr("A laser scanner in a room"));
    m_description->setText(
        tr("A simulated scanner sweeps 270\u00b0 in half-degree steps 25 times a second, forward "
           "pointing up. A person walks about; reflector strips on the walls answer with a strong "
           "echo (yellow), beams through the open door find nothing, and now and then a beam is "
           "lost. Click to zoom in (left) or out (right) where you click, or use the wheel; the "
           "middle button fits the view. The red sector marks an analysis window."));
    m_sectorHeading->setText(tr("Analysis sector"));
    m_directionLabel->setText(tr("&Direction:"));
    m_openingLabel->setText(tr("&Opening:"));
    m_distanceLabel->setText(tr("Di&stance:"));
    m_fit->setText(tr("&Fit"));
    m_save->setText(tr("Save as &image\u2026"));
    showStatus();
}

void LaserPage::activated()
{
    if (!m_clock.isValid())
        m_clock.start();
    m_rateClock.start();
    m_scansThisSecond = 0;
    m_timer->start();
    // Once the layout has given the view its size: the room, forward up.
    QTimer::singleShot(0, this, SLOT(showRoom()));
}

void LaserPage::showRoom()
{
    m_view->resetMatrix();
    m_view->fitInView(SimulatedScanner::room(), Qt::KeepAspectRatio);
}

void LaserPage::deactivated()
{
    m_timer->stop();
}

std::chrono::milliseconds LaserPage::settleTime() const
{
    return std::chrono::milliseconds(400);
}

void LaserPage::nextScan()
{
    const double seconds = m_clock.isValid() ? m_clock.elapsed() / 1000.0 : 0.0;
    m_last = m_scanner.scan(seconds + 3.0);
    //! [laser-scan]
    m_scene->setData(m_last);
    // The sector is cut to the field of view, which only the application knows to have changed.
    m_scene->updateGraphic();
    //! [laser-scan]

    // What an application would do with the sector: count the echoes inside it.
    const double direction = m_direction->value();
    const double halfOpening = m_opening->value() / 2.0;
    const double distance = m_distance->value();
    m_pointsInSector = 0;
    m_invalid = 0;
    for (std::size_t i = 0; i < m_last.ranges.size(); ++i) {
        const float r = m_last.ranges[i];
        if (!std::isfinite(r)) {
            ++m_invalid;
            continue;
        }
        const double degrees = (m_last.startAngle + m_last.angleIncrement * float(i)) * 180.0 / pi;
        if (std::abs(kes::core::mapToMinus180to180Degrees(float(degrees - direction))) <= halfOpening && r <= distance)
            ++m_pointsInSector;
    }
    // Scans a second, over the last second or so.
    ++m_scansThisSecond;
    const qint64 elapsed = m_rateClock.isValid() ? m_rateClock.elapsed() : 0;
    if (elapsed >= 200 && m_scansThisSecond > 1)
        m_rate = int(std::lround((m_scansThisSecond - 1) * 1000.0 / double(elapsed)));
    if (elapsed >= 1000) {
        m_rateClock.restart();
        m_scansThisSecond = 1;
    }
    showStatus();
}

void LaserPage::on_direction_valueChanged(double degrees)
{
    m_scene->setAngle(float(degrees));
}

void LaserPage::on_opening_valueChanged(double degrees)
{
    m_scene->setOpeningAngle(float(degrees));
}

void LaserPage::on_distance_valueChanged(double metres)
{
    m_scene->setDistance(float(metres));
}

void LaserPage::on_fit_clicked()
{
    m_view->fit();
}

void LaserPage::on_save_clicked()
{
    // The picture as it is on screen, with the zoom the user chose.
    const QImage picture = m_view->viewport()->grab().toImage();
    const QString result = saveImage(this, picture, QStringLiteral("laser-scan"));
    if (!result.isEmpty())
        m_saved->setText(result);
}

void LaserPage::showStatus()
{
    m_inSector->setText(tr("Echoes in the sector: %1").arg(m_pointsInSector));
    const QString rate = m_rate > 0 ? QString::number(m_rate) : QStringLiteral("\u2013");
    m_status->setText(tr("%1 beams per scan, %2 scans a second; %3 beams without a range in the last scan")
                          .arg(SimulatedScanner::beams)
                          .arg(rate)
                          .arg(m_invalid));
}

} // namespace kes::gallery
