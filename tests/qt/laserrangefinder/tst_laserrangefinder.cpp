// Scan scenes (dots, grid, field of view, analysis sector), bad scans, and the view's mouse zoom.
#include <kes/qt/laserrangefinder/analysisscene.h>
#include <kes/qt/laserrangefinder/scene.h>
#include <kes/qt/laserrangefinder/view.h>

#include "kestest.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QSet>
#include <QtTest>

#include <cmath>
#include <limits>
#include <vector>

using kes::core::LaserScanMessage;
using kes::core::Vector;
using kes::qt::laserrangefinder::AnalysisScene;
using kes::qt::laserrangefinder::Scene;
using kes::qt::laserrangefinder::View;

Q_DECLARE_METATYPE(LaserScanMessage)

namespace {

constexpr float pi = 3.1415927f;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

float radians(float degrees)
{
    return degrees * pi / 180.0f;
}

Vector<float> values(const std::vector<float>& list)
{
    Vector<float> v; // appended: GCC 12 misjudges Vector's initializer-list constructor at -O2
    for (float f : list)
        v.append(f);
    return v;
}

// A scan from \a startDegrees to \a endDegrees with \a ranges spread evenly over it.
LaserScanMessage scan(float startDegrees, float endDegrees, float maxRange, const std::vector<float>& ranges,
                      const std::vector<float>& intensities = {})
{
    LaserScanMessage s;
    s.startAngle = radians(startDegrees);
    s.endAngle = radians(endDegrees);
    s.angleIncrement = ranges.size() > 1 ? (s.endAngle - s.startAngle) / float(ranges.size() - 1) : 0.0f;
    s.maxRange = maxRange;
    s.ranges = values(ranges);
    s.intensities = values(intensities);
    return s;
}

bool finite(const QRectF& r)
{
    return std::isfinite(r.x()) && std::isfinite(r.y()) && std::isfinite(r.width()) && std::isfinite(r.height());
}

int visibleDots(const Scene& scene)
{
    int n = 0;
    for (const auto* dot : scene.points())
        n += dot->isVisible() ? 1 : 0;
    return n;
}

// Horizontal grid lines by their y, vertical ones by their x, each with the span it covers.
QSet<QString> gridSet(const Scene& scene)
{
    QSet<QString> set;
    for (const auto* item : scene.gridLines()) {
        const QLineF l = item->line();
        if (l.y1() == l.y2())
            set << QStringLiteral("y=%1 x %2..%3").arg(l.y1()).arg(l.x1()).arg(l.x2());
        else
            set << QStringLiteral("x=%1 y %2..%3").arg(l.x1()).arg(l.y1()).arg(l.y2());
    }
    return set;
}

double scaleOf(const QTransform& t)
{
    return std::hypot(t.m11(), t.m12());
}

} // namespace

class TstLaserRangeFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void grid_data()
    {
        QTest::addColumn<float>("maxRange");
        QTest::addColumn<int>("lines");
        QTest::addColumn<double>("axis");
        QTest::newRow("3.2 m") << 3.2f << 16 << 500.0;
        QTest::newRow("exactly 2 m") << 2.0f << 8 << 300.0;
        QTest::newRow("negative") << -4.0f << 0 << 100.0;
        QTest::newRow("NaN") << kNaN << 0 << 100.0;
        QTest::newRow("infinite") << kInf << 0 << 100.0;
        QTest::newRow("absurd, capped") << 1e30f << 4 * Scene::maxGridMetres << 100.0 * (Scene::maxGridMetres + 1);
    }

    void grid()
    {
        QFETCH(float, maxRange);
        QFETCH(int, lines);
        QFETCH(double, axis);
        // A fresh scene, and scenes whose grid shrinks or grows to this range.
        for (float before : {0.0f, 7.5f, 1.0f}) {
            Scene scene;
            if (before > 0.0f)
                scene.setData(scan(-135, 135, before, {1.0f}));
            scene.setData(scan(-135, 135, maxRange, {1.0f, 2.0f}));
            QCOMPARE(int(scene.gridLines().size()), lines);
            QCOMPARE(scene.xAxis()->line(), QLineF(-axis, 0, axis, 0));
            QCOMPARE(scene.yAxis()->line(), QLineF(0, -axis, 0, axis));
            const int e = 100 * (lines / 4);
            QSet<QString> expected;
            for (int m = 100; m <= e; m += 100) {
                for (int s : {m, -m})
                    expected << QStringLiteral("y=%1 x %2..%3").arg(s).arg(-e).arg(e)
                             << QStringLiteral("x=%1 y %2..%3").arg(s).arg(-e).arg(e);
            }
            QCOMPARE(gridSet(scene), expected);
            for (const auto* item : scene.items())
                QVERIFY(finite(item->sceneBoundingRect()));
            QCOMPARE(scene.items().size(), 4 + lines + 2); // no line left over from before
        }
    }

    void dots_data()
    {
        QTest::addColumn<int>("beam");
        QTest::addColumn<QPointF>("pos");
        QTest::addColumn<QColor>("colour");
        // Beams at 0°, 90°, 180° and 270°: ranges 1.5, 0, 2, 1; intensities 0.7, 1, 250 (the
        // last beam has none).
        QTest::newRow("ahead, 1.5 m, intensity 0.7") << 0 << QPointF(150, 0) << QColor(Qt::black);
        QTest::newRow("left, 0 m, intensity 1") << 1 << QPointF(0, 0) << QColor(Qt::yellow);
        QTest::newRow("behind, 2 m, intensity 250") << 2 << QPointF(-200, 0) << QColor(Qt::yellow);
        QTest::newRow("right, 1 m, no intensity") << 3 << QPointF(0, -100) << QColor(Qt::black);
    }

    void dots()
    {
        QFETCH(int, beam);
        QFETCH(QPointF, pos);
        QFETCH(QColor, colour);
        Scene scene;
        scene.setData(scan(0, 270, 3.0f, {1.5f, 0.0f, 2.0f, 1.0f}, {0.7f, 1.0f, 250.0f}));
        QCOMPARE(int(scene.points().size()), 4);
        const QGraphicsEllipseItem* dot = scene.points()[std::size_t(beam)];
        QCOMPARE(dot->rect(), QRectF(-1, -1, 2, 2));
        QVERIFY(QLineF(dot->pos(), pos).length() < 1e-3);
        QCOMPARE(dot->brush(), QBrush(colour));
        QCOMPARE(dot->pen().color(), colour);
        QCOMPARE(dot->scene(), &scene);
    }

    void dotsAreReused()
    {
        Scene scene;
        scene.setData(scan(-90, 90, 5.0f, {1, 1, 1}, {0, 5, 0}));
        const auto first = scene.points();
        scene.setData(scan(-90, 90, 5.0f, {2, 2, 2}, {0, 0, 0}));
        QCOMPARE(scene.points(), first);
        QCOMPARE(scene.points()[1]->brush().color(), QColor(Qt::black)); // no longer a reflector
        QVERIFY(QLineF(scene.points()[1]->pos(), QPointF(200, 0)).length() < 1e-3);
        scene.setData(scan(-90, 90, 5.0f, {2, 2}));
        QCOMPARE(int(scene.points().size()), 2);
        QCOMPARE(scene.points()[0], first[0]);
        scene.setData(scan(-90, 90, 5.0f, {2, 2, 2, 2, 2}));
        QCOMPARE(int(scene.points().size()), 5);
        // dots, grid (4 x 5) and the four lines, nothing left behind
        QCOMPARE(scene.items().size(), 5 + 20 + 4);
        // New angles for as many beams move the dots accordingly.
        QVERIFY(QLineF(scene.points()[0]->pos(), QPointF(0, -200)).length() < 1e-3);
        scene.setData(scan(0, 180, 5.0f, {2, 2, 2, 2, 2}));
        QVERIFY(QLineF(scene.points()[0]->pos(), QPointF(200, 0)).length() < 1e-3);
        QVERIFY(QLineF(scene.points()[4]->pos(), QPointF(-200, 0)).length() < 1e-3);
    }

    void emptyScanKeepsAnglesAndRange()
    {
        Scene scene;
        scene.setData(scan(-90, 90, 3.2f, {1, 2, 3}));
        scene.setData(scan(-45, 45, 3.2f, {}));
        QVERIFY(scene.items().isEmpty());
        QVERIFY(scene.points().empty());
        QVERIFY(scene.gridLines().empty());
        QCOMPARE(scene.angleMin(), radians(-45));
        QCOMPARE(scene.angleMax(), radians(45));
        QCOMPARE(scene.rangeMax(), 3.2f);
        // The same range again: the grid stays away until the range changes.
        scene.setData(scan(-45, 45, 3.2f, {1, 2}));
        QCOMPARE(int(scene.points().size()), 2);
        QVERIFY(scene.gridLines().empty());
        QCOMPARE(scene.xAxis()->scene(), &scene);
        QCOMPARE(scene.angleMinLine()->scene(), &scene);
        scene.setData(scan(-45, 45, 1.5f, {1, 2}));
        QCOMPARE(int(scene.gridLines().size()), 8);
    }

    void fieldOfView_data()
    {
        QTest::addColumn<float>("startDegrees");
        QTest::addColumn<float>("endDegrees");
        QTest::addColumn<QPointF>("minEnd");
        QTest::addColumn<QPointF>("maxEnd");
        // 2 m: the lines end on the square of +-200. The toolkit's angle turns the other way
        // than the beams, so each line is its beam mirrored across the x axis.
        QTest::newRow("-90 to 45") << -90.0f << 45.0f << QPointF(0, 200) << QPointF(200, -200);
        QTest::newRow("-30 to 135") << -30.0f << 135.0f << QPointF(200, 115.47) << QPointF(-200, -200);
        QTest::newRow("-135 to 135, symmetric") << -135.0f << 135.0f << QPointF(-200, 200) << QPointF(-200, -200);
        QTest::newRow("0 to 180") << 0.0f << 180.0f << QPointF(200, 0) << QPointF(-200, 0);
    }

    void fieldOfView()
    {
        QFETCH(float, startDegrees);
        QFETCH(float, endDegrees);
        QFETCH(QPointF, minEnd);
        QFETCH(QPointF, maxEnd);
        Scene scene;
        scene.setData(scan(startDegrees, endDegrees, 2.0f, {1, 1, 1}));
        for (const auto& [item, end] : {std::pair(scene.angleMinLine(), minEnd), std::pair(scene.angleMaxLine(), maxEnd)}) {
            QVERIFY(item->isVisible());
            QCOMPARE(item->line().p1(), QPointF(0, 0));
            QVERIFY(QLineF(item->line().p2(), end).length() < 0.01);
        }
    }

    void badScans_data()
    {
        QTest::addColumn<LaserScanMessage>("bad");
        QTest::addColumn<int>("visible");
        QTest::addColumn<bool>("fieldOfView");
        QTest::addColumn<int>("gridLines");
        const LaserScanMessage good = scan(-135, 135, 4.0f, {1, 2, 3, 2, 1});
        QTest::newRow("good") << good << 5 << true << 16;
        QTest::newRow("NaN and infinite ranges") << scan(-135, 135, 4.0f, {1, kNaN, kInf, -kInf, 1}) << 2 << true << 16;
        QTest::newRow("range overflowing centimetres") << scan(-135, 135, 4.0f, {1, 1, 3e38f, 1, 1}) << 4 << true << 16;
        LaserScanMessage s = good;
        s.startAngle = kNaN;
        QTest::newRow("NaN start angle") << s << 0 << false << 16;
        s = good;
        s.endAngle = -kInf;
        QTest::newRow("infinite end angle") << s << 0 << false << 16;
        s = good;
        s.angleIncrement = kNaN;
        QTest::newRow("NaN increment") << s << 0 << false << 16;
        s = good;
        s.angleIncrement = 3e38f;
        QTest::newRow("increment overflowing") << s << 2 << true << 16;
        s = good;
        s.maxRange = kNaN;
        // The field-of-view lines follow the angles, which have not changed.
        QTest::newRow("NaN maximum range") << s << 5 << true << 0;
        s.maxRange = kInf;
        QTest::newRow("infinite maximum range") << s << 5 << true << 0;
        s = good;
        s.intensities = values({kNaN, kInf, -kInf, 3e38f, -0.5f});
        QTest::newRow("odd intensities") << s << 5 << true << 16;
    }

    // Each bad scan after a good one and before another: no warning (the harness fails on any),
    // no item with a non-finite coordinate, and the good scan afterwards is whole again.
    void badScans()
    {
        QFETCH(LaserScanMessage, bad);
        QFETCH(int, visible);
        QFETCH(bool, fieldOfView);
        QFETCH(int, gridLines);
        AnalysisScene scene;
        View view;
        view.setScene(&scene);
        view.resize(300, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const LaserScanMessage good = scan(-135, 135, 4.0f, {1, 2, 3, 2, 1});
        scene.setData(good);
        scene.setDistance(3.0f);
        scene.setOpeningAngle(60.0f);
        scene.setData(bad);
        scene.updateGraphic();
        QCOMPARE(visibleDots(scene), visible);
        QCOMPARE(scene.angleMinLine()->isVisible(), fieldOfView);
        QCOMPARE(scene.angleMaxLine()->isVisible(), fieldOfView);
        QCOMPARE(int(scene.gridLines().size()), gridLines);
        for (const auto* item : scene.items()) {
            QVERIFY(std::isfinite(item->pos().x()) && std::isfinite(item->pos().y()));
            QVERIFY(finite(item->sceneBoundingRect()));
        }
        QVERIFY(finite(scene.sceneRect()));
        view.fit();
        QCoreApplication::processEvents(); // paints the bad scan
        scene.setData(good);
        QCOMPARE(visibleDots(scene), 5);
        QVERIFY(scene.angleMinLine()->isVisible() && scene.angleMaxLine()->isVisible());
        QCOMPARE(int(scene.gridLines().size()), 16);
    }

    void hundredThousandBeams()
    {
        Scene scene;
        std::vector<float> ranges;
        for (int i = 0; i < 100000; ++i)
            ranges.push_back(i % 97 == 0 ? kNaN : 1.0f + float(i % 50) / 10.0f);
        scene.setData(scan(-135, 135, 6.0f, ranges));
        QCoreApplication::processEvents(); // as between two scans; the scene polishes new items
        scene.setData(scan(-135, 135, 6.0f, ranges));
        QCOMPARE(int(scene.points().size()), 100000);
        QCOMPARE(visibleDots(scene), 100000 - (100000 + 96) / 97);
        QCOMPARE(int(scene.gridLines().size()), 24);
    }

    void sector_data()
    {
        QTest::addColumn<float>("fovEnd");   // the field of view runs from -135 degrees to this
        QTest::addColumn<float>("angle");
        QTest::addColumn<float>("opening");
        QTest::addColumn<float>("distance"); // metres
        QTest::addColumn<bool>("shown");
        QTest::addColumn<int>("start");      // sixteenths of a degree, as the item counts
        QTest::addColumn<int>("span");
        QTest::newRow("inside") << 135.0f << 0.0f << 90.0f << 2.0f << true << 720 << -1440;
        QTest::newRow("cut at 180") << 180.0f << 170.0f << 40.0f << 2.0f << true << -2400 << -480;
        QTest::newRow("wrapped angle, cut at 180") << 180.0f << 530.0f << 40.0f << 2.0f << true << -2400 << -480;
        QTest::newRow("cut at the start") << 135.0f << -120.0f << 60.0f << 1.0f << true << 2160 << -720;
        QTest::newRow("outside") << 135.0f << 170.0f << 20.0f << 2.0f << false << 0 << 0;
        QTest::newRow("distance 0") << 135.0f << 0.0f << 90.0f << 0.0f << false << 0 << 0;
        QTest::newRow("negative distance") << 135.0f << 0.0f << 90.0f << -1.0f << false << 0 << 0;
        QTest::newRow("infinite distance") << 135.0f << 0.0f << 90.0f << kInf << false << 0 << 0;
        QTest::newRow("opening 0") << 135.0f << 0.0f << 0.0f << 2.0f << false << 0 << 0;
        QTest::newRow("negative opening") << 135.0f << 0.0f << -30.0f << 2.0f << false << 0 << 0;
        QTest::newRow("NaN angle") << 135.0f << kNaN << 30.0f << 2.0f << false << 0 << 0;
        QTest::newRow("NaN field of view") << kNaN << 0.0f << 30.0f << 2.0f << false << 0 << 0;
    }

    // Each row starts from a sector that is shown, so that the rows without one prove it removed.
    void sector()
    {
        QFETCH(float, fovEnd);
        QFETCH(float, angle);
        QFETCH(float, opening);
        QFETCH(float, distance);
        QFETCH(bool, shown);
        QFETCH(int, start);
        QFETCH(int, span);
        AnalysisScene scene;
        scene.setData(scan(-135, 135, 4.0f, {1, 1}));
        scene.setDistance(1.0f);
        scene.setOpeningAngle(10.0f);
        scene.setAngle(5.0f);
        QCOMPARE(scene.sector()->scene(), &scene);

        LaserScanMessage s = scan(-135, 135, 4.0f, {1, 1});
        s.endAngle = fovEnd == 180.0f ? pi : radians(fovEnd);
        scene.setData(s);
        QCOMPARE(scene.sector()->spanAngle(), -160); // a scan alone leaves the sector alone
        scene.setDistance(distance);
        scene.setOpeningAngle(opening);
        scene.setAngle(angle);
        scene.updateGraphic();
        QCOMPARE(scene.sector()->scene() == &scene, shown);
        if (shown) {
            QCOMPARE(scene.sector()->rect(), QRectF(-100 * distance, -100 * distance, 200 * distance, 200 * distance));
            QCOMPARE(scene.sector()->startAngle(), start);
            QCOMPARE(scene.sector()->spanAngle(), span);
            QCOMPARE(scene.sector()->brush().color(), QColor(255, 0, 0, 127));
        }
    }

    void viewShowsForwardUp()
    {
        View view;
        const QPoint origin = view.mapFromScene(0, 0);
        const QPoint ahead = view.mapFromScene(150, 0);
        const QPoint left = view.mapFromScene(0, 150);
        QCOMPARE(ahead.x(), origin.x());
        QCOMPARE(ahead.y(), origin.y() - 150);
        QCOMPARE(left, origin - QPoint(150, 0));
    }

    void zoom_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QPoint>("pos");
        QTest::addColumn<double>("factor");
        QTest::newRow("left click") << "left" << QPoint(300, 120) << 1.25;
        QTest::newRow("right click") << "right" << QPoint(100, 250) << 0.8;
        QTest::newRow("left press, released elsewhere") << "left drag" << QPoint(150, 300) << 1.25;
        QTest::newRow("wheel forward") << "wheel +" << QPoint(80, 90) << 1.25;
        QTest::newRow("wheel back") << "wheel -" << QPoint(320, 330) << 0.8;
        QTest::newRow("horizontal wheel") << "wheel sideways" << QPoint(200, 200) << 1.0;
    }

    // The scene point under the mouse stays there; the scale changes by the factor.
    void zoom()
    {
        QFETCH(QString, input);
        QFETCH(QPoint, pos);
        QFETCH(double, factor);
        Scene scene;
        scene.setData(scan(-135, 135, 10.0f, {5, 6, 7}));
        View view;
        view.setScene(&scene);
        view.resize(400, 400);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.fit();
        view.zoomAt(view.viewport()->rect().center(), 3.0); // room to move either way
        const QPointF before = view.mapToScene(pos);
        const double scale = scaleOf(view.transform());
        QWidget* viewport = view.viewport();
        if (input == QLatin1String("left") || input == QLatin1String("right")) {
            const Qt::MouseButton button = input == QLatin1String("left") ? Qt::LeftButton : Qt::RightButton;
            QTest::mouseClick(viewport, button, {}, pos);
        } else if (input == QLatin1String("left drag")) {
            QTest::mousePress(viewport, Qt::LeftButton, {}, pos);
            QTest::mouseRelease(viewport, Qt::LeftButton, {}, pos + QPoint(40, -30));
        } else {
            const QPoint delta = input == QLatin1String("wheel +") ? QPoint(0, 120)
                                 : input == QLatin1String("wheel -") ? QPoint(0, -120) : QPoint(120, 0);
            QWheelEvent wheel(pos, viewport->mapToGlobal(pos), QPoint(), delta, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QVERIFY(QApplication::sendEvent(viewport, &wheel));
        }
        QVERIFY(std::abs(scaleOf(view.transform()) / scale - factor) < 1e-9);
        const QPointF after = view.mapToScene(pos);
        QVERIFY(QLineF(before, after).length() * scaleOf(view.transform()) < 1.0);
    }

    // The axes reach 11 m each way: the whole square in view, filling the shorter side less the
    // scroll bars' room (they were there when the view fitted).
    void middleClickFits()
    {
        Scene scene;
        scene.setData(scan(-135, 135, 10.0f, {5, 6, 7}));
        View view;
        view.setScene(&scene);
        view.resize(400, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.zoomAt(QPoint(10, 10), 5.0);
        QTest::mouseClick(view.viewport(), Qt::MiddleButton, {}, QPoint(50, 60));
        const auto visible = [&] { return view.mapFromScene(scene.sceneRect()).boundingRect(); };
        QTRY_VERIFY(view.viewport()->rect().contains(visible()));
        QVERIFY(visible().height() >= view.height() - 25);
    }
};

KES_TEST_MAIN(TstLaserRangeFinder)
#include "tst_laserrangefinder.moc"
