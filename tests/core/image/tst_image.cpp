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

private Q_SLOTS:
    void rowsArePaddedToWholeWords_data()
    {
        QTest::addColumn<ImageInfo>("info");
        QTest::addColumn<int>("step");
        QTest::newRow("3x2 rgb") << ImageInfo(3, 2, 3, 1, Rgb) << 12;
        QTest::newRow("4x1 rgb, no padding") << ImageInfo(4, 1, 3, 1, Rgb) << 12;
        QTest::newRow("1x1 grey") << ImageInfo(1, 1, 1, 1, Grey) << 4;
        QTest::newRow("3x1 16-bit grey") << ImageInfo(3, 1, 1, 2, Grey) << 8;
        // A step of 0 marks a layout that cannot be allocated.
        QTest::newRow("zero width is null") << ImageInfo(0, 2, 3, 1, Rgb) << 0;
        QTest::newRow("negative bytes per channel is null") << ImageInfo(2, 2, 1, -1, Grey) << 0;
    }

    void rowsArePaddedToWholeWords()
    {
        QFETCH(ImageInfo, info);
        QFETCH(int, step);
        Image image(info);
        QCOMPARE(int(image.step()), step);
        if (step == 0) {
            QVERIFY(image.isNull() && image.constData() == nullptr && image.clone().isNull());
            setRoi(image, Roi(0, 0, 1, 1));
            QVERIFY(image.isNull());
            return;
        }
        QVERIFY(image.info() == info);
        const std::uint8_t* bytes = image.constData();
        QVERIFY(std::all_of(bytes, bytes + image.step() * std::size_t(info.height), [](int b) { return b == 0; }));

        // Left unset, only the pixels are: same layout, padding zeroed.
        const Image unset(info, Image::Uninitialized{});
        QCOMPARE(unset.step(), image.step());
        QVERIFY(unset.info() == info);
        const std::size_t row = std::size_t(info.width) * info.numChannels * info.bytesPerChannel;
        for (int y = 0; y < info.height; ++y) {
            const std::uint8_t* end = unset.constData() + std::size_t(y + 1) * unset.step();
            QVERIFY(std::all_of(end - (unset.step() - row), end, [](int b) { return b == 0; }));
        }
    }

    void regionIsClampedToImage_data()
    {
        QTest::addColumn<Roi>("region");
        QTest::addColumn<Roi>("expected");
        QTest::newRow("inside") << Roi(2, 1, 4, 3) << Roi(2, 1, 4, 3);
        QTest::newRow("negative origin") << Roi(-3, -5, 5, 7) << Roi(0, 0, 2, 2);
        QTest::newRow("past the far corner") << Roi(8, 6, 5, 10) << Roi(8, 6, 2, 2);
        QTest::newRow("most negative start, widest") << Roi(INT32_MIN, INT32_MIN, UINT32_MAX, UINT32_MAX) << Roi(0, 0, 10, 8);
        QTest::newRow("right of image") << Roi(10, 0, 3, 3) << Roi(10, 0, 0, 3);
        QTest::newRow("left of image") << Roi(-20, 0, 5, 3) << Roi(0, 0, 0, 3);
        QTest::newRow("largest start and size") << Roi(INT32_MAX, INT32_MAX, UINT32_MAX, UINT32_MAX) << Roi(10, 8, 0, 0);
    }

    void regionIsClampedToImage()
    {
        QFETCH(Roi, region);
        QFETCH(Roi, expected);
        Image image = patterned();
        const std::uint8_t* base = image.constData();
        // Regions are taken from the full image: the earlier one must not matter.
        setRoi(image, Roi(1, 2, 6, 5));
        setRoi(image, region);
        QVERIFY(image.roi() == expected);
        QVERIFY(image.fullInfo() == ImageInfo(10, 8, 3, 1, Rgb));
        QCOMPARE(image.isNull(), expected.isEmpty());
        if (!expected.isEmpty()) {
            const std::size_t offset = std::size_t(expected.y) * 32 + std::size_t(expected.x) * 3;
            QCOMPARE(image.constData() - base, std::ptrdiff_t(offset));
        }
    }

    void copiesSharePixelsClonesOwnTheirs()
    {
        Image image = patterned();
        Image copy = image;
        copy.data()[0] = 200;
        QCOMPARE(int(image.constData()[0]), 200);
        setRoi(copy, Roi(1, 1, 2, 2));
        QVERIFY(image.roi() == Roi(0, 0, 10, 8));

        setRoi(image, Roi(3, 2, 4, 3));
        Image clone = image.clone();
        QVERIFY(clone.info() == ImageInfo(4, 3, 3, 1, Rgb));
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
