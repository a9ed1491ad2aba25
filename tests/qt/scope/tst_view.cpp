// Geometry, value mapping, drawing and mouse interaction of the scope view.
#include <kes/qt/scope/view.h>

#include "kestest.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QRandomGenerator>
#include <QSet>
#include <QPushButton>
#include <QtTest>

#include <cmath>
#include <limits>

using kes::qt::scope::Trigger_t;
using kes::qt::scope::TriggerOff;
using kes::qt::scope::TriggerRisingEdge;
using kes::qt::scope::View;

namespace {

// A view of the smallest size, shown so that it receives mouse events.
void showSmall(View& view)
{
    view.resize(320, 240);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.size(), QSize(320, 240));
}

void moveMouse(View& view, const QPoint& pos)
{
    QMouseEvent move(QEvent::MouseMove, pos, view.mapToGlobal(pos), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&view, &move);
}

// What the view is to show: the grid, the markers and every segment of every curve drawn one at a
// time inside the plot, from the view's own mapping.
QImage everySegment(View& view)
{
    const QRect plot = view.plotRect();
    QPixmap pixmap(view.size());
    pixmap.fill(view.palette().color(view.backgroundRole()));
    QPainter painter(&pixmap);
    view.drawGrid(&painter);
    view.drawArrows(&painter);
    painter.setClipRect(plot);
    for (int i = 0; i < view.numChannels(); ++i) {
        const auto& c = view.channel(i);
        if (!c.enabled || c.points.isEmpty())
            continue;
        painter.setPen(QPen(c.color, 1));
        const bool reverse = !c.triggered;
        const double origin = reverse ? c.points.constLast().x() : c.points.constFirst().x();
        QVector<QPointF> path;
        for (int k = 0; k < c.points.size(); ++k) {
            const QPointF& p = c.points.at(reverse ? c.points.size() - 1 - k : k);
            const double px = reverse ? plot.right() - (origin - p.x()) * c.xPixelsPerUnit
                                      : plot.left() + (p.x() - origin) * c.xPixelsPerUnit;
            if (px > plot.right() || px < plot.left() - int(reverse))
                break;
            path.append(QPointF(px, view.yValue2pixel(c, p.y())));
        }
        if (path.size() == c.points.size()) {
            const double zero = view.yValue2pixel(c, 0.0);
            path.append(QPointF(path.constLast().x(), zero));
            path.append(QPointF(reverse ? plot.left() : plot.right(), zero));
        }
        for (int k = 1; k < path.size(); ++k)
            painter.drawLine(QLineF(path.at(k - 1), path.at(k)));
    }
    return pixmap.toImage();
}

} // namespace

class tst_View : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapsValuesToRows_data();
    void mapsValuesToRows();
    void setNumChannels_data();
    void setNumChannels();
    void buttonsSelectTheCurrentChannel();
    void dragsMarkers_data();
    void dragsMarkers();
    void drawsTheCurveAndTheZeroLine_data();
    void drawsTheCurveAndTheZeroLine();
    void drawsCurvesLikeQtLines_data();
    void drawsCurvesLikeQtLines();
    void keepsCurvesInsideThePlot_data();
    void keepsCurvesInsideThePlot();
    void survivesBadInput_data();
    void survivesBadInput();
};

void tst_View::mapsValuesToRows_data()
{
    QTest::addColumn<double>("yScale");
    QTest::addColumn<double>("offset");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("row");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    QTest::newRow("zero") << 1.0 << 0.0 << 0.0 << 114;
    QTest::newRow("one, truncated") << 1.0 << 0.0 << 1.0 << 91;
    QTest::newRow("minus one, truncated") << 1.0 << 0.0 << -1.0 << 136;
    QTest::newRow("offset moves up") << 1.0 << 0.5 << 0.5 << 91;
    QTest::newRow("scale 2") << 2.0 << 0.0 << 2.0 << 91;
    QTest::newRow("far above") << 1.0 << 0.0 << 1e9 << 2;
    QTest::newRow("far below") << 1.0 << 0.0 << -1e9 << 227;
    QTest::newRow("beyond int") << 1.0 << 0.0 << -1e300 << 227;
    QTest::newRow("infinity") << 1.0 << 0.0 << inf << 2;
    QTest::newRow("NaN") << 1.0 << 0.0 << nan << 2;
}

void tst_View::mapsValuesToRows()
{
    QFETCH(double, yScale);
    QFETCH(double, offset);
    QFETCH(double, value);

    View view;
    showSmall(view);
    QCOMPARE(view.minimumSize(), QSize(320, 240));
    QCOMPARE(view.pixmap().size(), QSize(320, 240));
    QCOMPARE(view.plotRect(), QRect(QPoint(27, 2), QPoint(308, 227)));
    QCOMPARE(view.yCentre(), 114);
    view.setYScale(0, yScale);
    view.setYOffset(0, offset);
    QCOMPARE(view.channel(0).xPixelsPerUnit, 282 * (1.0 / 1000.0));
    QCOMPARE(view.channel(0).yPixelsPerUnit, 226 * (1.0 / (yScale * 10.0)));
    QTEST(view.yValue2pixel(view.channel(0), value), "row");
}

void tst_View::setNumChannels_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("n");
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("currentAfter");

    QTest::newRow("20 shows all") << 0 << 20 << 16 << 0;
    QTest::newRow("2 while 3 is current") << 3 << 2 << 2 << -1;
    QTest::newRow("2 while 1 is current") << 1 << 2 << 2 << 1;
    QTest::newRow("negative") << 0 << -3 << 0 << -1;
}

void tst_View::setNumChannels()
{
    QFETCH(int, current);
    QFETCH(int, n);
    QFETCH(int, shown);

    View view;
    view.setNumChannels(16);
    for (int i = 0; i < 16; ++i)
        view.addPoint(i, 0, 1.0);
    view.setCurrentChannel(current);

    view.setNumChannels(n);
    QCOMPARE(view.numChannels(), shown);
    QTEST(view.currentChannel(), "currentAfter");
    // Hidden channels take no samples, nor does a channel index out of range.
    for (int i = -1; i <= 16; ++i)
        view.addPoint(i, 1, -1.0);
    for (int i = 0; i < 16; ++i) {
        const auto* button = view.findChild<QPushButton*>(QStringLiteral("channelButton%1").arg(i));
        QVERIFY(button);
        QCOMPARE(button->isVisibleTo(&view), i < shown);
        QCOMPARE(view.channel(i).points.size(), i < shown ? 2 : 0);
        QCOMPARE(view.channel(i).lastY, i < shown ? -1.0 : 1.0);
        QCOMPARE(button->isChecked(), i == view.currentChannel());
    }
}

void tst_View::buttonsSelectTheCurrentChannel()
{
    View view;
    showSmall(view);
    auto* button = view.findChild<QPushButton*>(QStringLiteral("channelButton2"));
    QVERIFY(button);
    QCOMPARE(button->toolTip(), QStringLiteral("Channel 3 100/XDiv  1/YDiv"));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(view.currentChannel(), 2);
    QVERIFY(button->isChecked());

    view.setXScale(2, 0.5);
    QCOMPARE(button->toolTip(), QStringLiteral("Channel 3 0.5/XDiv  1/YDiv"));

    // Disabling the current channel selects none, and a setter emits nothing.
    QSignalSpy enabled(&view, SIGNAL(channelEnabled(int, bool)));
    view.setChannelEnabled(2, false);
    QCOMPARE(view.currentChannel(), -1);
    QVERIFY(!button->isEnabled());
    QVERIFY(!button->isChecked());
    QVERIFY(!view.findChild<QPushButton*>(QStringLiteral("channelButton0"))->isChecked());
    QVERIFY(enabled.isEmpty());
}

void tst_View::dragsMarkers_data()
{
    QTest::addColumn<bool>("triggerMarker");
    QTest::addColumn<int>("toRow");
    QTest::addColumn<bool>("moved");

    // The zero-line marker's tip is at (27, 114), the trigger marker's at (308, 114 - 0.4 * 22.6).
    QTest::newRow("offset up 20") << false << 94 << true;
    QTest::newRow("offset down 30") << false << 144 << true;
    QTest::newRow("offset to the last free row") << false << 11 << true;
    QTest::newRow("offset into the top band") << false << 10 << false;
    QTest::newRow("offset into the bottom band") << false << 219 << false;
    QTest::newRow("trigger up 20") << true << 84 << true;
    QTest::newRow("trigger to the lowest free row") << true << 218 << true;
    QTest::newRow("trigger into the top band") << true << 3 << false;
}

void tst_View::dragsMarkers()
{
    QFETCH(bool, triggerMarker);
    QFETCH(int, toRow);
    QFETCH(bool, moved);

    View view;
    showSmall(view);
    view.setCurrentChannel(1);
    view.setTrigger(1, TriggerRisingEdge);
    view.setTriggerPosition(1, 0.4);
    QSignalSpy offsets(&view, SIGNAL(yOffsetChanged(int, double)));
    QSignalSpy levels(&view, SIGNAL(triggerPositionChanged(int, double)));

    const double perUnit = view.channel(1).yPixelsPerUnit;
    const int fromRow = triggerMarker ? view.yValue2pixel(view.channel(1), 0.4) : 114;
    const QPoint from = triggerMarker ? QPoint(312, fromRow) : QPoint(22, fromRow);
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, from);
    moveMouse(view, QPoint(from.x(), toRow));
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, QPoint(from.x(), toRow));
    // After the release, moves drag nothing.
    moveMouse(view, QPoint(from.x(), 50));

    QSignalSpy& spy = triggerMarker ? levels : offsets;
    QVERIFY((triggerMarker ? offsets : levels).isEmpty());
    const double start = triggerMarker ? 0.4 : 0.0;
    const double expected = moved ? start + (fromRow - toRow) / perUnit : start;
    QCOMPARE(triggerMarker ? view.channel(1).triggerPosition : view.channel(1).yOffset, expected);
    QCOMPARE(spy.size(), int(moved));
    if (moved)
        QCOMPARE(spy.at(0), (QVariantList{1, expected}));
    // The marker follows the pointer.
    const auto& c = view.channel(1);
    const QPolygonF& arrow = triggerMarker ? c.triggerArrow : c.offsetArrow;
    QVERIFY(std::abs(arrow.boundingRect().center().y() - (moved ? toRow : fromRow)) <= 1.0);
}

void tst_View::drawsTheCurveAndTheZeroLine_data()
{
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<double>("span");
    QTest::addColumn<double>("drawn");   // the part of the span the curve shows
    QTest::addColumn<bool>("zeroLine");

    QTest::newRow("sweep within the plot") << true << 500.0 << 500.0 << true;
    QTest::newRow("sweep wider than the plot") << true << 1500.0 << 750.0 << false;
    QTest::newRow("free running, trimmed") << false << 1500.0 << 750.0 << true;
}

// A sweep runs from the left edge and closes along the zero row to the right edge, unless it
// overran the plot; a free-running curve one screen wide ends at the right edge and closes to the
// left.
void tst_View::drawsTheCurveAndTheZeroLine()
{
    QFETCH(bool, triggered);
    QFETCH(double, span);
    QFETCH(double, drawn);
    QFETCH(bool, zeroLine);

    View view;
    showSmall(view);
    view.setCurrentChannel(-1);
    view.setTrigger(0, triggered ? TriggerRisingEdge : TriggerOff);
    view.setTriggerPosition(0, 1.5);
    view.setYOffset(0, 1.0);
    for (double x : {0.0, span / 2, span})
        view.addPoint(0, x, 2.0);
    view.redraw();
    const QImage image = view.pixmap().toImage();
    const auto red = [&](int x, int y) { return image.pixelColor(x, y) == QColor(Qt::red); };
    const auto& c = view.channel(0);
    const int zero = view.yValue2pixel(c, 0.0);
    const int row = view.yValue2pixel(c, 2.0);
    QCOMPARE(zero, 91);
    QCOMPARE(row, 46);
    // Only free-running channels lose what scrolled out, and for good.
    QCOMPARE(c.points.size(), triggered ? 3 : 2);

    const int end = int(triggered ? 27 + drawn * c.xPixelsPerUnit : 308 - drawn * c.xPixelsPerUnit);
    const int outside = triggered ? 5 : -5;
    QVERIFY(red(end - outside, row));
    QVERIFY(!red(end + outside, row));
    QCOMPARE(red(end - 1, (row + zero) / 2) || red(end, (row + zero) / 2), zeroLine);
    for (int x : {end + outside, triggered ? 300 : 35})
        QCOMPARE(red(x, zero), zeroLine);
}

// The view rasterises curves itself instead of drawing each segment with Qt's line drawing. Its
// picture may differ from Qt's by where a line steps from one row or column to the next, but no
// more: every pixel it draws lies within one pixel of a pixel Qt draws, and the other way round,
// and a curve never has a gap.
void tst_View::drawsCurvesLikeQtLines_data()
{
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QSize>("size");

    const QColor opaque(Qt::darkBlue);
    const QColor translucent(0, 0, 255, 128);
    QTest::newRow("sweep, noisy, 30 per column") << true << 10000 << "noisy" << opaque << QSize(400, 300);
    QTest::newRow("sweep, noisy, 8 per column") << true << 10000 << "noisy" << opaque << QSize(1280, 720);
    QTest::newRow("sweep, noisy, 2 per column") << true << 2000 << "noisy" << opaque << QSize(1000, 500);
    QTest::newRow("sweep, smooth") << true << 10000 << "smooth" << opaque << QSize(800, 400);
    QTest::newRow("sweep, smooth and sparse") << true << 150 << "smooth" << opaque << QSize(800, 400);
    QTest::newRow("sweep, steep") << true << 3000 << "steep" << opaque << QSize(640, 480);
    QTest::newRow("sweep, flat") << true << 400 << "flat" << opaque << QSize(640, 480);
    QTest::newRow("sweep, clipped") << true << 10000 << "clipped" << opaque << QSize(640, 480);
    QTest::newRow("free running, noisy") << false << 12000 << "noisy" << opaque << QSize(900, 600);
    QTest::newRow("free running, sparse") << false << 300 << "smooth" << opaque << QSize(900, 600);
    QTest::newRow("translucent") << true << 10000 << "noisy" << translucent << QSize(500, 300);
}

void tst_View::drawsCurvesLikeQtLines()
{
    QFETCH(bool, triggered);
    QFETCH(int, count);
    QFETCH(QString, shape);
    QFETCH(QColor, color);
    QFETCH(QSize, size);

    View view;
    view.resize(size);
    view.setCurrentChannel(-1);
    view.setNumChannels(1);
    view.setColor(0, color);
    view.setYScale(0, 0.5);
    QRandomGenerator random(uint(count + size.width()));
    // Samples at uneven times, some repeated, over one screen (1000 units).
    double x = 0.0;
    for (int i = 0; i < count; ++i) {
        x += (i % 97 == 0) ? 0.0 : random.bounded(2.0 * 1000.0 / count);
        double y = 0.0;
        if (shape == QLatin1String("noisy"))
            y = std::sin(x * 0.02) + 2.0 * (random.generateDouble() - 0.5);
        else if (shape == QLatin1String("smooth"))
            y = 3.0 * std::sin(x * 0.013);
        else if (shape == QLatin1String("steep"))
            y = std::fmod(x, 40.0) < 20.0 ? 4.0 : -4.0 + std::fmod(x, 7.0);
        else if (shape == QLatin1String("flat"))
            y = 0.3 + x * 0.0007;
        else
            y = 30.0 * (random.generateDouble() - 0.5);
        view.addPoint(0, x * (triggered ? 1.0 : 1.2), y);
    }
    if (triggered)
        view.setTrigger(0, TriggerRisingEdge);
    // Free-running channels are trimmed and drawn from the right only by the refresh that finds
    // them wider than the plot: this one.
    view.redraw();

    View empty;
    empty.resize(size);
    empty.setCurrentChannel(-1);
    const QImage background = empty.pixmap().toImage();
    const QImage drawn = view.pixmap().toImage();
    const QImage reference = everySegment(view);
    const auto curve = [&](const QImage& image, int px, int py) {
        return image.rect().contains(px, py) && image.pixel(px, py) != background.pixel(px, py);
    };
    const auto near = [&](const QImage& image, int px, int py) {
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                if (curve(image, px + dx, py + dy))
                    return true;
            }
        }
        return false;
    };
    QVector<QPoint> pixels;
    for (int py = 0; py < size.height(); ++py) {
        for (int px = 0; px < size.width(); ++px) {
            if (curve(drawn, px, py)) {
                pixels.append(QPoint(px, py));
                if (!near(reference, px, py))
                    QFAIL(qPrintable(QStringLiteral("(%1, %2) is far from Qt's line").arg(px).arg(py)));
                if (color.alpha() == 255 && drawn.pixelColor(px, py) != color)
                    QFAIL(qPrintable(QStringLiteral("(%1, %2) has another colour").arg(px).arg(py)));
            } else if (curve(reference, px, py) && !near(drawn, px, py)) {
                QFAIL(qPrintable(QStringLiteral("(%1, %2) of Qt's line is missing").arg(px).arg(py)));
            }
        }
    }
    // One curve, one piece: a flood fill from its first pixel reaches all of them.
    QVERIFY(!pixels.isEmpty());
    QSet<quint64> unvisited;
    const auto key = [](const QPoint& p) { return quint64(quint32(p.x())) << 32 | quint32(p.y()); };
    for (const QPoint& p : pixels)
        unvisited.insert(key(p));
    QVector<QPoint> front{pixels.constFirst()};
    unvisited.remove(key(pixels.constFirst()));
    while (!front.isEmpty()) {
        const QPoint p = front.takeLast();
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                const QPoint q(p.x() + dx, p.y() + dy);
                if (unvisited.remove(key(q)))
                    front.append(q);
            }
        }
    }
    QVERIFY2(unvisited.isEmpty(), qPrintable(QStringLiteral("%1 pixels cut off").arg(unvisited.size())));
}

void tst_View::keepsCurvesInsideThePlot_data()
{
    QTest::addColumn<bool>("triggered"); // channel 0 sweeps and channel 1 follows; else both run free
    QTest::addColumn<double>("jump");    // x added to every sample after the first run, in sweeps
    QTest::addColumn<double>("xScale");

    for (const bool triggered : {true, false}) {
        const char* mode = triggered ? "sweep and follower" : "free running";
        const auto row = [&](const char* what, double jump, double xScale) {
            QTest::addRow("%s, %s", mode, what) << triggered << jump << xScale;
        };
        row("no jump", 0.0, 100.0);
        row("jump forward by 100 widths", 100.0, 100.0);
        row("jump back to the start", -1.0, 100.0);
        row("jump forward, tiny time base", 1e6, 1e-9);
        row("jump back, huge time base", -1.0, 1e12);
    }
}

// Whatever the time does between two batches of samples, the curves stay inside the plot and
// leave the margins with the channel buttons and markers alone.
void tst_View::keepsCurvesInsideThePlot()
{
    QFETCH(bool, triggered);
    QFETCH(double, jump);
    QFETCH(double, xScale);

    View view;
    view.resize(400, 300);
    view.setCurrentChannel(-1);
    view.setNumChannels(2);
    view.setTrigger(0, triggered ? TriggerRisingEdge : TriggerOff);
    view.setTrigger(1, triggered ? Trigger_t(0) : TriggerOff);
    // Channel 0's last rising edge at 930; free-running curves fill the width exactly.
    for (int i = 0; i < 1100; ++i) {
        view.addPoint(0, i, std::sin(i / 37.0) * 3.0);
        view.addPoint(1, i, std::cos(i / 23.0) * 3.0);
    }
    view.redraw();
    view.setXScale(0, xScale);
    view.setXScale(1, xScale);
    // The first frame after the jump, before the next trigger: below the level, nothing fires.
    const double sweep = 10.0 * 100.0;
    for (int i = 0; i < 20; ++i) {
        const double x = jump * sweep + 1100.0 * (jump >= 0) + i;
        view.addPoint(0, x, -3.0 - i / 10.0);
        view.addPoint(1, x, 3.0 + i / 10.0);
    }
    view.redraw();

    const QImage image = view.pixmap().toImage();
    const QRect plot = view.plotRect();
    View empty;
    empty.resize(view.size());
    empty.setCurrentChannel(-1);
    const QImage frame = empty.pixmap().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!plot.contains(x, y) && image.pixel(x, y) != frame.pixel(x, y))
                QFAIL(qPrintable(QStringLiteral("pixel (%1, %2) outside the plot").arg(x).arg(y)));
        }
    }
    if (xScale != 100.0)
        return; // a sample or two per screen width draw no curve
    // Still drawn, though.
    const QRgb red = QColor(Qt::red).rgb();
    bool curve = false;
    for (int y = plot.top() + 1; y < plot.bottom() && !curve; ++y) {
        for (int x = plot.left() + 1; x < plot.right() && !curve; ++x)
            curve = image.pixel(x, y) == red;
    }
    QVERIFY(curve);
}

void tst_View::survivesBadInput_data()
{
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<double>("xScale");
    QTest::addColumn<double>("yScale");

    QTest::newRow("sweep") << true << 100.0 << 1.0;
    QTest::newRow("free running") << false << 100.0 << 1.0;
    QTest::newRow("zero scales, sweep") << true << 0.0 << 0.0;
    QTest::newRow("zero scales, free running") << false << 0.0 << 0.0;
    QTest::newRow("tiny x scale") << true << 1e-300 << 1e300;
    QTest::newRow("NaN scales") << false << std::nan("") << std::nan("");
}

void tst_View::survivesBadInput()
{
    QFETCH(bool, triggered);
    QFETCH(double, xScale);
    QFETCH(double, yScale);

    const double inf = std::numeric_limits<double>::infinity();
    View view;
    view.setCurrentChannel(0);
    view.setTrigger(0, triggered ? TriggerRisingEdge : TriggerOff);
    view.setTriggerPosition(0, std::nan(""));
    view.setXScale(0, xScale);
    view.setYScale(0, yScale);
    view.setYOffset(0, -inf);
    const QVector<QPointF> samples{{0, 1},      {1e300, -1e300}, {-1e300, inf}, {inf, 0},
                                   {5, std::nan("")}, {-inf, 2},     {6, -inf},     {7, 1}};
    for (const QPointF& p : samples)
        view.addPoint(0, p.x(), p.y());
    view.redraw();
    view.drawGrid(nullptr);
    view.drawArrows(nullptr);
    view.drawCurves(nullptr);
    view.drawData(view.channel(0), nullptr);
    view.drawDataReverse(view.channel(0), nullptr);
    view.setMinimumSize(0, 0);
    for (const QSize& size : {QSize(10, 5), QSize(0, 0)}) {
        view.resize(size);
        view.redraw();
        QMetaObject::invokeMethod(&view, "on_copy_image");
    }
    QVERIFY(view.channel(0).points.size() <= samples.size());
    // Time neither infinite nor NaN: every stored sample has a finite x.
    for (const QPointF& p : view.channel(0).points)
        QVERIFY(std::isfinite(p.x()));
}

KES_TEST_MAIN(tst_View)
#include "tst_view.moc"
