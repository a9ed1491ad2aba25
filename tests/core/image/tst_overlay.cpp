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

enum class Attached { Nothing, LinesOnly, EmptyCircleList, Circles };

} // namespace

Q_DECLARE_METATYPE(Attached)

class TestOverlay : public QObject
{
    Q_OBJECT

private slots:
    void imageWithoutOverlayGivesEmptyLists()
    {
        const Image image(ImageInfo(2, 2, 1, 1, Grey));
        QVERIFY(getLines(image).empty());
        QVERIFY(getPoints(image).empty());
        QVERIFY(getCircles(image).empty());
        QVERIFY(getSegmentList(image).empty());
    }

    void gettersReturnWhatSettersAttached()
    {
        Image image(ImageInfo(2, 2, 1, 1, Grey));
        setLines(image, twoLines);
        setPoints(image, points);
        setCircles(image, circles);
        setSegmentList(image, segments);
        QVERIFY(getLines(image) == twoLines);
        QVERIFY(getPoints(image) == points);
        QVERIFY(getCircles(image) == circles);
        QVERIFY(getSegmentList(image) == segments);
        QVERIFY(getSegmentList(image)[1].isNull());

        setLines(image, {});
        QVERIFY(getLines(image).empty());
        QVERIFY(getPoints(image) == points);
        QVERIFY(getCircles(image) == circles);
    }

    void earlierCopyKeepsItsOverlay()
    {
        Image image(ImageInfo(2, 2, 1, 1, Grey));
        setLines(image, twoLines);
        const Image before = image;
        const auto* overlayBefore = before.overlay().get();
        setLines(image, {twoLines[0]});
        setPoints(image, points);
        setSegmentList(image, segments);
        QVERIFY(getLines(before) == twoLines);
        QVERIFY(getPoints(before).empty());
        QVERIFY(getSegmentList(before).empty());
        QCOMPARE(before.overlay().get(), overlayBefore);
        QVERIFY(getLines(image) == Vector<Line>{twoLines[0]});
    }

    void copiesAndClonesShareOverlay()
    {
        Image image(ImageInfo(2, 2, 1, 1, Grey));
        setCircles(image, circles);
        QCOMPARE(Image(image).overlay().get(), image.overlay().get());
        QVERIFY(getCircles(image.clone()) == circles);
    }

    void circlesFlagTellsWhetherCirclesWereAttached_data()
    {
        QTest::addColumn<Attached>("attached");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<int>("count");
        QTest::newRow("nothing") << Attached::Nothing << false << 0;
        QTest::newRow("other shapes only") << Attached::LinesOnly << false << 0;
        QTest::newRow("empty circle list") << Attached::EmptyCircleList << true << 0;
        QTest::newRow("circles") << Attached::Circles << true << 2;
    }

    void circlesFlagTellsWhetherCirclesWereAttached()
    {
        QFETCH(Attached, attached);
        QFETCH(bool, ok);
        QFETCH(int, count);
        Image image(ImageInfo(2, 2, 1, 1, Grey));
        if (attached == Attached::LinesOnly)
            setLines(image, twoLines);
        else if (attached == Attached::EmptyCircleList)
            setCircles(image, {});
        else if (attached == Attached::Circles)
            setCircles(image, circles);
        bool attachedFlag = !ok;
        QCOMPARE(int(getCircles(image, &attachedFlag).size()), count);
        QCOMPARE(attachedFlag, ok);
    }
};

KES_TEST_MAIN(TestOverlay)
#include "tst_overlay.moc"
