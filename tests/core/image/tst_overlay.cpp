#include <kes/core/image/overlay.h>

#include <kestest.h>

#include <QtTest>

using namespace kes::core::image;
using kes::core::Circle;
using kes::core::Color;
using kes::core::ColorPoint;
using kes::core::Line;
using kes::core::Vector;

namespace {

const Color green = Color::fromRgb(0, 255, 0);
const Vector<Line> twoLines{{{0, 0}, {10, 5}, Color::red}, {{1.5, 2}, {3, 4}, green}};
const Vector<ColorPoint> points{{3.25, 4, green}};
const Vector<Circle> circles{{5, 6, 2.5f, Color::red}, {0, 0, 1, green}};
const SegmentList segments{{120, 7, green, 4, 5, twoLines}, {}};

} // namespace

class TestOverlay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settersReplaceOneFieldAndSpareEarlierCopies()
    {
        Image image(ImageInfo(2, 2, 1, 1, Grey));
        QVERIFY(getLines(image).empty());
        setLines(image, twoLines);
        const Image linesOnly = image;
        setPoints(image, points);
        setCircles(image, circles);
        setSegmentList(image, segments);
        QVERIFY(getLines(image) == twoLines);
        QVERIFY(getPoints(image) == points);
        QVERIFY(getCircles(image) == circles);
        QVERIFY(getSegmentList(image) == segments);
        QVERIFY(getCircles(image.clone()) == circles);

        const Image everything = image;
        setLines(image, {});
        QVERIFY(getLines(image).empty());
        QVERIFY(getPoints(image) == points);
        QVERIFY(getCircles(image) == circles);
        QVERIFY(getSegmentList(image) == segments);

        QVERIFY(getLines(everything) == twoLines);
        QVERIFY(getLines(linesOnly) == twoLines);
        QVERIFY(getPoints(linesOnly).empty());
        QVERIFY(getCircles(linesOnly).empty());
        QVERIFY(getSegmentList(linesOnly).empty());
    }

    void circlesFlagTellsWhetherCirclesWereAttached()
    {
        Image image(ImageInfo(2, 2, 1, 1, Grey));
        bool ok = true;
        QVERIFY(getCircles(image, &ok).empty());
        QVERIFY(!ok);
        setLines(image, twoLines);
        getCircles(image, &ok);
        QVERIFY2(!ok, "other shapes only");
        setCircles(image, {});
        QVERIFY(getCircles(image, &ok).empty());
        QVERIFY2(ok, "an empty list of circles is still an answer");
        setCircles(image, circles);
        QCOMPARE(getCircles(image, &ok).size(), std::size_t(2));
        QVERIFY(ok);
    }
};

KES_TEST_MAIN(TestOverlay)
#include "tst_overlay.moc"
