#include <kes/cv/convert.h>

#include "guardcase.h"
#include "kestest.h"

#include <kes/core/image/overlay.h>

#include <QtTest>

#include <cstdint>
#include <memory>
#include <vector>

using namespace kes::core::image;
using kes::core::Roi;

namespace {

using Pixel = QVector<int>;

Pixel pixelAt(const Image& image, int x, int y)
{
    const int channels = image.info().numChannels;
    const std::uint8_t* p = image.constData() + std::size_t(y) * image.step() + std::size_t(x * channels);
    return Pixel(p, p + channels);
}

} // namespace

Q_DECLARE_METATYPE(Format)

class TstConvert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsEveryPixel_data()
    {
        QTest::addColumn<Format>("from");
        QTest::addColumn<Pixel>("source");
        QTest::addColumn<Format>("to");
        QTest::addColumn<Pixel>("expected");
        QTest::newRow("red bgr to hsv") << Bgr << Pixel{0, 0, 255} << Hsv << Pixel{0, 255, 255};
        QTest::newRow("red bgra to hsv") << Bgra << Pixel{0, 0, 255, 17} << Hsv << Pixel{0, 255, 255};
        QTest::newRow("red rgb to hsv") << Rgb << Pixel{255, 0, 0} << Hsv << Pixel{0, 255, 255};
        QTest::newRow("red unlisted format read as rgb to hsv") << Format(9) << Pixel{255, 0, 0} << Hsv << Pixel{0, 255, 255};
        QTest::newRow("green bgr to hsv") << Bgr << Pixel{0, 255, 0} << Hsv << Pixel{85, 255, 255};
        QTest::newRow("blue bgr to hsv") << Bgr << Pixel{255, 0, 0} << Hsv << Pixel{170, 255, 255};
        QTest::newRow("ochre rgb to hsv") << Rgb << Pixel{200, 150, 50} << Hsv << Pixel{28, 191, 200};
        QTest::newRow("grey to hsv") << Grey << Pixel{77} << Hsv << Pixel{0, 0, 77};
        QTest::newRow("hsv to hsv") << Hsv << Pixel{12, 34, 56} << Hsv << Pixel{12, 34, 56};
        QTest::newRow("grey to bgr") << Grey << Pixel{77} << Bgr << Pixel{77, 77, 77};
        QTest::newRow("rgb to bgr") << Rgb << Pixel{10, 20, 30} << Bgr << Pixel{30, 20, 10};
        QTest::newRow("bgra to bgr drops the fourth byte") << Bgra << Pixel{10, 20, 30, 40} << Bgr << Pixel{10, 20, 30};
        QTest::newRow("bgr to bgr") << Bgr << Pixel{10, 20, 30} << Bgr << Pixel{10, 20, 30};
        QTest::newRow("hsv blue to bgr") << Hsv << Pixel{170, 255, 255} << Bgr << Pixel{255, 0, 0};
        QTest::newRow("hsv dark green to bgr") << Hsv << Pixel{85, 255, 100} << Bgr << Pixel{0, 100, 0};
        // An empty expected pixel marks a target format that convert refuses.
        QTest::newRow("to rgb refused") << Bgr << Pixel{0, 0, 255} << Rgb << Pixel{};
        QTest::newRow("to grey refused") << Bgr << Pixel{0, 0, 255} << Grey << Pixel{};
        QTest::newRow("to unlisted format refused") << Bgr << Pixel{0, 0, 255} << Format(5) << Pixel{};
    }

    void convertsEveryPixel()
    {
        QFETCH(Format, from);
        QFETCH(Pixel, source);
        QFETCH(Format, to);
        QFETCH(Pixel, expected);
        // A region of an image with padded rows; the pixels around it and the padding would
        // convert to something else, so reading past the region or ignoring the stride shows.
        const int channels = source.size();
        const std::size_t step = std::size_t(7 * channels + 3);
        std::vector<std::uint8_t> memory(step * 5, 0xee);
        for (int y = 0; y < 5; ++y) {
            for (int i = 0; i < 7 * channels; ++i) {
                const bool inside = y >= 1 && y < 3 && i >= 2 * channels && i < 5 * channels;
                const int value = source[i % channels];
                memory[std::size_t(y) * step + std::size_t(i)] = std::uint8_t(inside ? value : 255 - value);
            }
        }
        const std::vector<std::uint8_t> before = memory;
        Image image(ImageInfo(7, 5, channels, 1, from), memory.data(), step);
        setRoi(image, Roi(2, 1, 3, 2));
        image.setOverlay(std::make_shared<const Overlay>());

        const Image result = kes::cv::convert(image, to);

        QCOMPARE(result.isNull(), expected.isEmpty());
        if (expected.isEmpty())
            return;
        QCOMPARE(result.info(), ImageInfo(3, 2, 3, 1, to));
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x)
                QCOMPARE(pixelAt(result, x, y), expected);
        QVERIFY(result.overlay() == image.overlay());
        QVERIFY(memory == before);
    }

    void rejectsInconsistentImage_data()
    {
        kes::test::addGuardRows(ImageInfo(4, 4, 3, 1, Bgr));
        QTest::newRow("bgr with four channels") << ImageInfo(4, 4, 4, 1, Bgr) << 16 << true << Roi();
        QTest::newRow("bgra with three channels") << ImageInfo(4, 4, 3, 1, Bgra) << 12 << true << Roi();
        QTest::newRow("grey with three channels") << ImageInfo(4, 4, 3, 1, Grey) << 12 << true << Roi();
        QTest::newRow("bgr with two bytes a channel") << ImageInfo(4, 4, 3, 2, Bgr) << 24 << true << Roi();
    }

    void rejectsInconsistentImage()
    {
        const kes::test::GuardCase guard;
        QVERIFY(kes::cv::convert(guard.image, Bgr).isNull());
        QVERIFY(kes::cv::convert(guard.image, Hsv).isNull());
    }
};

KES_TEST_MAIN(TstConvert)
#include "tst_convert.moc"
