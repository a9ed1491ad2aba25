// Arrows, open polylines and the click-to-zoom view, judged by the pixels and the view's mapping.
#include <kes/qt/graphics/polylineitem.h>
#include <kes/qt/graphics/simpleview.h>
#include <kes/qt/painter.h>

#include "kestest.h"

#include <QGraphicsScene>
#include <QImage>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>

using kes::qt::Painter;
using kes::qt::graphics::PolylineItem;
using kes::qt::graphics::SimpleView;

using Draw = std::function<void(Painter&)>;
using Lines = QVector<QLineF>;
Q_DECLARE_METATYPE(Draw)
Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

QImage blank()
{
    QImage image(120, 120, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QImage arrow(const Draw& draw, double width)
{
    QImage image = blank();
    Painter painter(&image);
    painter.setPen(QPen(Qt::black, width));
    draw(painter);
    return image;
}

QImage lines(const Lines& lines, double width)
{
    QImage image = blank();
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, width));
    for (const QLineF& l : lines)
        painter.drawLine(l);
    return image;
}

} // namespace

class TstGraphics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawArrow_data()
    {
        QTest::addColumn<Draw>("draw");
        QTest::addColumn<double>("width");
        QTest::addColumn<Lines>("expected");
        // Along x from (10, 50) to (90, 50): the head is 7 (w + 1) long and 8 (w + 1) wide.
        const Lines thin{{10, 50, 90, 50}, {90, 50, 76, 58}, {90, 50, 76, 42}};
        const Lines thick{{10, 50, 90, 50}, {90, 50, 62, 66}, {90, 50, 62, 34}};
        QTest::newRow("QLineF") << Draw([](Painter& p) { p.drawArrow(QLineF(10, 50, 90, 50)); }) << 1.0 << thin;
        QTest::newRow("QPointF pair") << Draw([](Painter& p) { p.drawArrow(QPointF(10, 50), QPointF(90, 50)); })
                                      << 1.0 << thin;
        QTest::newRow("QLine") << Draw([](Painter& p) { p.drawArrow(QLine(10, 50, 90, 50)); }) << 1.0 << thin;
        QTest::newRow("four ints") << Draw([](Painter& p) { p.drawArrow(10, 50, 90, 50); }) << 1.0 << thin;
        QTest::newRow("QPoint pair") << Draw([](Painter& p) { p.drawArrow(QPoint(10, 50), QPoint(90, 50)); })
                                     << 1.0 << thin;
        QTest::newRow("pen width 3") << Draw([](Painter& p) { p.drawArrow(10, 50, 90, 50); }) << 3.0 << thick;
        // Up and left at 3-4-5: u = (-0.6, -0.8) for a cosmetic pen (w = 0), base (44.2, 25.6).
        QTest::newRow("diagonal, cosmetic pen")
            << Draw([](Painter& p) { p.drawArrow(QPointF(100, 100), QPointF(40, 20)); }) << 0.0
            << Lines{{100, 100, 40, 20}, {40, 20, 47.4, 23.2}, {40, 20, 41.0, 28.0}};
        QTest::newRow("zero length") << Draw([](Painter& p) { p.drawArrow(50, 50, 50, 50); }) << 1.0 << Lines{};
        QTest::newRow("NaN end") << Draw([](Painter& p) {
            p.drawArrow(QPointF(10, 10), QPointF(std::numeric_limits<double>::quiet_NaN(), 10));
        }) << 1.0 << Lines{};
    }

    void drawArrow()
    {
        QFETCH(Draw, draw);
        QFETCH(double, width);
        QFETCH(Lines, expected);
        QCOMPARE(arrow(draw, width), lines(expected, width));
    }

    // The polygon's segments are drawn, the closing one is not; the scene constructor adds it.
    void polylineIsOpen()
    {
        QGraphicsScene scene;
        auto* item = new PolylineItem(QPolygonF({QPointF(10, 10), QPointF(110, 10), QPointF(110, 110)}), nullptr, &scene);
        QCOMPARE(item->scene(), &scene);
        item->setPen(QPen(Qt::blue, 3));
        item->setBrush(Qt::red);
        QImage image = blank();
        {
            QPainter painter(&image);
            QStyleOptionGraphicsItem option;
            item->paint(&painter, &option, nullptr);
        }
        QCOMPARE(image.pixelColor(60, 10), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(110, 60), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(60, 60), QColor(Qt::white)); // on the closing diagonal
        QCOMPARE(image.pixelColor(90, 40), QColor(Qt::white)); // inside: not filled
        PolylineItem child(item, &scene);
        QCOMPARE(child.parentItem(), item);
    }

    void simpleViewZoomsOnClick_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QPointF>("centre");
        // Clicked 50 pixels right of the centre, which shows the scene origin; after the scale
        // (about the centre) that pixel shows 50 / scale, and the view centres there.
        QTest::newRow("left") << Qt::LeftButton << 2.0 << QPointF(25, 0);
        QTest::newRow("right") << Qt::RightButton << 0.5 << QPointF(100, 0);
        QTest::newRow("middle") << Qt::MiddleButton << 1.0 << QPointF(0, 0);
    }

    void simpleViewZoomsOnClick()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(double, scale);
        QFETCH(QPointF, centre);
        QGraphicsScene scene(-2000, -2000, 4000, 4000);
        SimpleView view;
        view.setScene(&scene);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setFrameShape(QFrame::NoFrame);
        view.resize(201, 201); // a centre pixel
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.centerOn(0, 0);
        const QPoint middle = view.viewport()->rect().center();
        QTest::mouseClick(view.viewport(), button, {}, middle + QPoint(50, 0));
        QCOMPARE(view.transform().m11(), scale);
        const QPointF shown = view.mapToScene(middle);
        QVERIFY2(QLineF(shown, centre).length() * scale <= 1.5,
                 qPrintable(QStringLiteral("centre (%1, %2)").arg(shown.x()).arg(shown.y())));
    }
};

KES_TEST_MAIN(TstGraphics)
#include "tst_graphics.moc"
