#include <kes/core/image/image.h>

#include <kestest.h>

#include <QtTest>

#include <algorithm>
#include <cstdint>

using namespace kes::core::image;
using kes::core::Roi;

namespace {

// 10 x 8 RGB: rows of 30 bytes padded to 32. Every byte holds its own offset, so that a wrong
// pointer shows in the pixel values too.
Image patterned()
{
    Image image(ImageInfo(10, 8, 3, 1, Rgb));
    for (std::size_t i = 0; i < image.step() * 8; ++i)
        image.data()[i] = std::uint8_t(i);
    return image;
}

} // namespace

Q_DECLARE_METATYPE(ImageInfo)
Q_DECLARE_METATYPE(Roi)

class TestImage : public QObject
{
    Q_OBJECT

private slots:
    void rowsArePaddedToWholeWords_data()
    {
        QTest::addColumn<ImageInfo>("info");
        QTest::addColumn<int>("step");
        QTest::newRow("3x2 rgb") << ImageInfo(3, 2, 3, 1, Rgb) << 12;
        QTest::newRow("4x1 rgb, no padding") << ImageInfo(4, 1, 3, 1, Rgb) << 12;
        QTest::newRow("1x1 grey") << ImageInfo(1, 1, 1, 1, Grey) << 4;
        QTest::newRow("5x3 grey") << ImageInfo(5, 3, 1, 1, Grey) << 8;
        QTest::newRow("2x2 bgra") << ImageInfo(2, 2, 4, 1, Bgra) << 8;
        QTest::newRow("3x1 16-bit grey") << ImageInfo(3, 1, 1, 2, Grey) << 8;
    }

    void rowsArePaddedToWholeWords()
    {
        QFETCH(ImageInfo, info);
        QFETCH(int, step);
        const Image image(info);
        QVERIFY(!image.isNull());
        QCOMPARE(int(image.step()), step);
        QVERIFY(image.info() == info);
        const std::uint8_t* bytes = image.constData();
        QVERIFY(std::all_of(bytes, bytes + image.step() * std::size_t(info.height), [](int b) { return b == 0; }));
    }

    void impossibleLayoutGivesNullImage_data()
    {
        QTest::addColumn<ImageInfo>("info");
        QTest::newRow("zero width") << ImageInfo(0, 2, 3, 1, Rgb);
        QTest::newRow("negative height") << ImageInfo(2, -1, 3, 1, Rgb);
        QTest::newRow("no channels") << ImageInfo(2, 2, 0, 1, Rgb);
        QTest::newRow("negative bytes per channel") << ImageInfo(2, 2, 1, -1, Grey);
    }

    void impossibleLayoutGivesNullImage()
    {
        QFETCH(ImageInfo, info);
        Image image(info);
        QVERIFY(image.isNull());
        QVERIFY(image.constData() == nullptr);
        QVERIFY(image.clone().isNull());
        setRoi(image, Roi(0, 0, 1, 1));
        QVERIFY(image.isNull());
    }

    void regionIsClampedToImage_data()
    {
        QTest::addColumn<Roi>("region");
        QTest::addColumn<Roi>("expected");
        QTest::newRow("inside") << Roi(2, 1, 4, 3) << Roi(2, 1, 4, 3);
        QTest::newRow("whole") << Roi(0, 0, 10, 8) << Roi(0, 0, 10, 8);
        QTest::newRow("negative x") << Roi(-3, 2, 5, 2) << Roi(0, 2, 2, 2);
        QTest::newRow("negative y") << Roi(1, -5, 2, 7) << Roi(1, 0, 2, 2);
        QTest::newRow("past right edge") << Roi(8, 0, 5, 3) << Roi(8, 0, 2, 3);
        QTest::newRow("past bottom edge") << Roi(0, 6, 2, 10) << Roi(0, 6, 2, 2);
        QTest::newRow("around the image") << Roi(-5, -5, 100, 100) << Roi(0, 0, 10, 8);
        QTest::newRow("most negative start, widest") << Roi(INT32_MIN, INT32_MIN, UINT32_MAX, UINT32_MAX) << Roi(0, 0, 10, 8);
        QTest::newRow("right of image") << Roi(10, 0, 3, 3) << Roi(10, 0, 0, 3);
        QTest::newRow("left of image") << Roi(-20, 0, 5, 3) << Roi(0, 0, 0, 3);
        QTest::newRow("below image") << Roi(0, 100, 3, 3) << Roi(0, 8, 3, 0);
        QTest::newRow("zero width") << Roi(2, 2, 0, 3) << Roi(2, 2, 0, 3);
        QTest::newRow("largest start and size") << Roi(INT32_MAX, INT32_MAX, UINT32_MAX, UINT32_MAX) << Roi(10, 8, 0, 0);
    }

    void regionIsClampedToImage()
    {
        QFETCH(Roi, region);
        QFETCH(Roi, expected);
        Image image = patterned();
        const std::uint8_t* base = image.constData();
        setRoi(image, region);
        QVERIFY(image.roi() == expected);
        QCOMPARE(image.info().width, std::int32_t(expected.width));
        QCOMPARE(image.info().height, std::int32_t(expected.height));
        QVERIFY(image.fullInfo() == ImageInfo(10, 8, 3, 1, Rgb));
        QCOMPARE(image.step(), std::size_t(32));
        QCOMPARE(image.isNull(), expected.isEmpty());
        if (!expected.isEmpty()) {
            const std::size_t offset = std::size_t(expected.y) * 32 + std::size_t(expected.x) * 3;
            QCOMPARE(image.constData() - base, std::ptrdiff_t(offset));
            QCOMPARE(int(image.constData()[0]), int(std::uint8_t(offset)));
        }
    }

    void laterRegionReplacesEarlierOne()
    {
        Image image = patterned();
        const std::uint8_t* base = image.constData();
        setRoi(image, Roi(2, 2, 6, 5));
        setRoi(image, Roi(1, 1, 3, 3));
        QVERIFY(image.roi() == Roi(1, 1, 3, 3));
        QCOMPARE(image.constData() - base, std::ptrdiff_t(32 + 3));
    }

    void copiesSharePixelsAndKeepTheirOwnRegion()
    {
        Image image = patterned();
        Image copy = image;
        copy.data()[0] = 200;
        QCOMPARE(int(image.constData()[0]), 200);
        setRoi(copy, Roi(1, 1, 2, 2));
        QVERIFY(image.roi() == Roi(0, 0, 10, 8));
    }

    void cloneHoldsOnlyTheRegionAndOwnsIt()
    {
        Image image = patterned();
        setRoi(image, Roi(3, 2, 4, 3));
        Image clone = image.clone();
        QVERIFY(clone.info() == ImageInfo(4, 3, 3, 1, Rgb));
        QVERIFY(clone.fullInfo() == clone.info());
        QVERIFY(clone.roi() == Roi(0, 0, 4, 3));
        QCOMPARE(clone.step(), std::size_t(12));
        for (std::size_t y = 0; y < 3; ++y) {
            const std::uint8_t* source = image.constData() + y * image.step();
            QVERIFY(std::equal(source, source + 12, clone.constData() + y * clone.step()));
        }
        clone.data()[0] = 0;
        QCOMPARE(int(image.constData()[0]), 2 * 32 + 3 * 3);
    }

};

KES_TEST_MAIN(TestImage)
#include "tst_image.moc"
