#include <kes/cv/convert.h>

#include "guardcase.h"
#include "kestest.h"

#include <kes/core/image/image.h>
#include <kes/core/roi.h>

#include <QtTest>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

using kes::core::Roi;
using kes::core::image::Format;
using kes::core::image::Image;
using kes::core::image::ImageInfo;


namespace {

using Pixel = QVector<int>;

Image filledImage(int width, int height, Format format, const Pixel& pixel)
{
    Image image(ImageInfo(width, height, pixel.size(), 1, format));
    for (int y = 0; y < height; ++y) {
        std::uint8_t* row = image.data() + std::size_t(y) * image.step();
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < pixel.size(); ++c)
                row[x * pixel.size() + c] = std::uint8_t(pixel[c]);
    }
    return image;
}

Pixel pixelAt(const Image& image, int x, int y)
{
    const int channels = image.info().numChannels;
    const std::uint8_t* p = image.constData() + std::size_t(y) * image.step() + std::size_t(x * channels);
    return Pixel(p, p + channels);
}

// Every byte of the allocation, padding included, for checking that nothing was written.
QByteArray allBytes(const Image& image)
{
    return QByteArray(reinterpret_cast<const char*>(image.constData()),
                      int(image.step() * std::size_t(image.info().height)));
}

// A byte that differs for every position and channel of an image up to 8 x 6 pixels of 4 channels.
std::uint8_t marker(int x, int y, int c)
{
    return std::uint8_t(1 + (y * 8 + x) * 4 + c);
}

} // namespace

class TstConvert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsEveryPixel_data()
    {
        QTest::addColumn<int>("sourceFormat");
        QTest::addColumn<Pixel>("source");
        QTest::addColumn<int>("targetFormat");
        QTest::addColumn<Pixel>("expected");

        const int bgr = kes::core::image::Bgr;
        const int hsv = kes::core::image::Hsv;
        QTest::newRow("red bgr to hsv") << bgr << Pixel{0, 0, 255} << hsv << Pixel{0, 255, 255};
        QTest::newRow("red bgra to hsv") << int(kes::core::image::Bgra) << Pixel{0, 0, 255, 17} << hsv
                                         << Pixel{0, 255, 255};
        QTest::newRow("red rgb to hsv") << int(kes::core::image::Rgb) << Pixel{255, 0, 0} << hsv
                                        << Pixel{0, 255, 255};
        QTest::newRow("red unknown format read as rgb to hsv")
            << int(kes::core::image::Unknown) << Pixel{255, 0, 0} << hsv << Pixel{0, 255, 255};
        QTest::newRow("red unlisted format read as rgb to hsv") << 9 << Pixel{255, 0, 0} << hsv
                                                                << Pixel{0, 255, 255};
        QTest::newRow("green bgr to hsv") << bgr << Pixel{0, 255, 0} << hsv << Pixel{85, 255, 255};
        QTest::newRow("blue bgr to hsv") << bgr << Pixel{255, 0, 0} << hsv << Pixel{170, 255, 255};
        QTest::newRow("green rgb to hsv") << int(kes::core::image::Rgb) << Pixel{0, 255, 0} << hsv
                                          << Pixel{85, 255, 255};
        QTest::newRow("half-dark red bgr to hsv") << bgr << Pixel{0, 0, 128} << hsv << Pixel{0, 255, 128};
        QTest::newRow("orange bgr to hsv") << bgr << Pixel{0, 128, 255} << hsv << Pixel{21, 255, 255};
        QTest::newRow("ochre rgb to hsv") << int(kes::core::image::Rgb) << Pixel{200, 150, 50} << hsv
                                          << Pixel{28, 191, 200};
        QTest::newRow("violet bgr to hsv") << bgr << Pixel{200, 50, 100} << hsv << Pixel{184, 191, 200};
        QTest::newRow("grey to hsv") << int(kes::core::image::Grey) << Pixel{77} << hsv << Pixel{0, 0, 77};
        QTest::newRow("grey to bgr") << int(kes::core::image::Grey) << Pixel{77} << bgr << Pixel{77, 77, 77};
        QTest::newRow("rgb to bgr") << int(kes::core::image::Rgb) << Pixel{10, 20, 30} << bgr
                                    << Pixel{30, 20, 10};
        QTest::newRow("bgra to bgr drops the fourth byte")
            << int(kes::core::image::Bgra) << Pixel{10, 20, 30, 40} << bgr << Pixel{10, 20, 30};
        QTest::newRow("bgr to bgr") << bgr << Pixel{10, 20, 30} << bgr << Pixel{10, 20, 30};
        QTest::newRow("hsv red to bgr") << hsv << Pixel{0, 255, 255} << bgr << Pixel{0, 0, 255};
        QTest::newRow("hsv blue to bgr") << hsv << Pixel{170, 255, 255} << bgr << Pixel{255, 0, 0};
        QTest::newRow("hsv dark green to bgr") << hsv << Pixel{85, 255, 100} << bgr << Pixel{0, 100, 0};
        QTest::newRow("hsv with no saturation to bgr") << hsv << Pixel{170, 0, 60} << bgr << Pixel{60, 60, 60};
        QTest::newRow("hsv to hsv") << hsv << Pixel{12, 34, 56} << hsv << Pixel{12, 34, 56};
    }

    void convertsEveryPixel()
    {
        QFETCH(int, sourceFormat);
        QFETCH(Pixel, source);
        QFETCH(int, targetFormat);
        QFETCH(Pixel, expected);

        // Odd width: rows of the source and of the result are padded.
        const Image image = filledImage(5, 3, Format(sourceFormat), source);
        const QByteArray before = allBytes(image);

        const Image result = kes::cv::convert(image, Format(targetFormat));

        QVERIFY(!result.isNull());
        QCOMPARE(result.info(), ImageInfo(5, 3, 3, 1, Format(targetFormat)));
        QVERIFY(result.constData() != image.constData());
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 5; ++x)
                QCOMPARE(pixelAt(result, x, y), expected);
        QCOMPARE(allBytes(image), before);
    }

    void takesPixelsFromTheirPlace_data()
    {
        QTest::addColumn<int>("sourceFormat");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("extraStride");
        QTest::addColumn<Roi>("roi");
        QTest::addColumn<QSize>("expectedSize");

        const int rgb = kes::core::image::Rgb;
        const int grey = kes::core::image::Grey;
        const int bgra = kes::core::image::Bgra;
        QTest::newRow("rgb with padded rows") << rgb << 7 << 3 << Roi() << QSize(7, 5);
        QTest::newRow("grey with padded rows") << grey << 7 << 1 << Roi() << QSize(7, 5);
        QTest::newRow("rgb with a wide stride") << rgb << 6 << 13 << Roi() << QSize(6, 5);
        QTest::newRow("bgra with a wide stride") << bgra << 6 << 13 << Roi() << QSize(6, 5);
        QTest::newRow("rgb region inside") << rgb << 7 << 3 << Roi(2, 1, 3, 2) << QSize(3, 2);
        QTest::newRow("grey region inside") << grey << 7 << 1 << Roi(1, 2, 5, 3) << QSize(5, 3);
        QTest::newRow("bgra region of tight rows") << bgra << 7 << 0 << Roi(3, 0, 1, 4) << QSize(1, 4);
        QTest::newRow("region clamped at the corner") << rgb << 7 << 3 << Roi(5, 3, 10, 10) << QSize(2, 2);
        QTest::newRow("region of a wide stride") << rgb << 6 << 13 << Roi(1, 1, 4, 3) << QSize(4, 3);
        QTest::newRow("single pixel region") << grey << 7 << 1 << Roi(6, 4, 1, 1) << QSize(1, 1);
    }

    void takesPixelsFromTheirPlace()
    {
        QFETCH(int, sourceFormat);
        QFETCH(int, width);
        QFETCH(int, extraStride);
        QFETCH(Roi, roi);
        QFETCH(QSize, expectedSize);

        const Format format = Format(sourceFormat);
        const int channels = format == kes::core::image::Grey ? 1 : format == kes::core::image::Bgra ? 4 : 3;
        const int height = 5;
        const std::size_t step = std::size_t(width * channels + extraStride);
        std::vector<std::uint8_t> memory(step * height, 0xee);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (int c = 0; c < channels; ++c)
                    memory[y * step + std::size_t(x * channels + c)] = marker(x, y, c);
        const std::vector<std::uint8_t> before = memory;

        Image image(ImageInfo(width, height, channels, 1, format), memory.data(), step);
        if (!roi.isEmpty())
            setRoi(image, roi);
        const Image result = kes::cv::convert(image, kes::core::image::Bgr);

        QCOMPARE(QSize(result.info().width, result.info().height), expectedSize);
        for (int y = 0; y < expectedSize.height(); ++y) {
            for (int x = 0; x < expectedSize.width(); ++x) {
                const int sx = x + roi.x;
                const int sy = y + roi.y;
                Pixel expected;
                if (format == kes::core::image::Grey)
                    expected = Pixel(3, marker(sx, sy, 0));
                else if (format == kes::core::image::Bgra)
                    expected = Pixel{marker(sx, sy, 0), marker(sx, sy, 1), marker(sx, sy, 2)};
                else
                    expected = Pixel{marker(sx, sy, 2), marker(sx, sy, 1), marker(sx, sy, 0)};
                QCOMPARE(pixelAt(result, x, y), expected);
            }
        }
        QVERIFY(memory == before);
    }

    void keepsTheOverlay_data()
    {
        QTest::addColumn<int>("targetFormat");
        QTest::newRow("to bgr") << int(kes::core::image::Bgr);
        QTest::newRow("to hsv") << int(kes::core::image::Hsv);
    }

    void keepsTheOverlay()
    {
        QFETCH(int, targetFormat);
        Image image = filledImage(4, 4, kes::core::image::Rgb, Pixel{1, 2, 3});
        // Any shared owner stands in for overlay data: only the sharing is under test.
        const auto owner = std::make_shared<int>(0);
        image.setOverlay(std::shared_ptr<const kes::core::image::Overlay>(owner, nullptr));

        const Image result = kes::cv::convert(image, Format(targetFormat));

        QVERIFY(!result.isNull());
        QVERIFY(!result.overlay().owner_before(image.overlay()) && !image.overlay().owner_before(result.overlay()));
        QCOMPARE(owner.use_count(), 3L);
    }

    void rejectsUnsupportedTargetFormat_data()
    {
        QTest::addColumn<int>("targetFormat");
        QTest::newRow("unknown") << int(kes::core::image::Unknown);
        QTest::newRow("rgb") << int(kes::core::image::Rgb);
        QTest::newRow("bgra") << int(kes::core::image::Bgra);
        QTest::newRow("grey") << int(kes::core::image::Grey);
        QTest::newRow("unlisted") << 5;
        QTest::newRow("negative") << -2;
    }

    void rejectsUnsupportedTargetFormat()
    {
        QFETCH(int, targetFormat);
        const Image image = filledImage(3, 2, kes::core::image::Bgr, Pixel{0, 0, 255});
        QVERIFY(kes::cv::convert(image, Format(targetFormat)).isNull());
    }

    void rejectsInconsistentImage_data()
    {
        kes::test::addGuardColumns();

        const auto bgr = kes::core::image::Bgr;
        const auto rgb = kes::core::image::Rgb;
        const Roi whole;
        QTest::newRow("zero width") << ImageInfo(0, 4, 3, 1, bgr) << 12 << true << whole;
        QTest::newRow("zero height") << ImageInfo(4, 0, 3, 1, bgr) << 12 << true << whole;
        QTest::newRow("negative width") << ImageInfo(-4, 4, 3, 1, bgr) << 12 << true << whole;
        QTest::newRow("negative height") << ImageInfo(4, -4, 3, 1, bgr) << 12 << true << whole;
        QTest::newRow("bgr with four channels") << ImageInfo(4, 4, 4, 1, bgr) << 16 << true << whole;
        QTest::newRow("bgr with one channel") << ImageInfo(4, 4, 1, 1, bgr) << 16 << true << whole;
        QTest::newRow("bgr with two bytes a channel") << ImageInfo(4, 4, 3, 2, bgr) << 24 << true << whole;
        QTest::newRow("bgr with zero bytes a channel") << ImageInfo(4, 4, 3, 0, bgr) << 12 << true << whole;
        QTest::newRow("bgra with three channels")
            << ImageInfo(4, 4, 3, 1, kes::core::image::Bgra) << 16 << true << whole;
        QTest::newRow("grey with three channels")
            << ImageInfo(4, 4, 3, 1, kes::core::image::Grey) << 12 << true << whole;
        QTest::newRow("grey with two bytes a channel")
            << ImageInfo(4, 4, 1, 2, kes::core::image::Grey) << 8 << true << whole;
        QTest::newRow("hsv with four channels")
            << ImageInfo(4, 4, 4, 1, kes::core::image::Hsv) << 16 << true << whole;
        QTest::newRow("rgb with one channel") << ImageInfo(4, 4, 1, 1, rgb) << 4 << true << whole;
        QTest::newRow("unlisted format with four channels") << ImageInfo(4, 4, 4, 1, Format(11)) << 16 << true
                                                            << whole;
        QTest::newRow("negative channel count") << ImageInfo(4, 4, -3, 1, bgr) << 12 << true << whole;
        QTest::newRow("stride shorter than a row") << ImageInfo(4, 4, 3, 1, bgr) << 11 << true << whole;
        QTest::newRow("stride of zero") << ImageInfo(4, 4, 3, 1, bgr) << 0 << true << whole;
        QTest::newRow("no pixels") << ImageInfo(4, 4, 3, 1, bgr) << 12 << false << whole;
        QTest::newRow("region outside the image") << ImageInfo(4, 4, 3, 1, bgr) << 12 << true << Roi(9, 9, 2, 2);
    }

    void rejectsInconsistentImage()
    {
        const kes::test::GuardCase guard;
        const Image& image = guard.image();

        QVERIFY(kes::cv::convert(image, kes::core::image::Bgr).isNull());
        QVERIFY(kes::cv::convert(image, kes::core::image::Hsv).isNull());
    }
};

KES_TEST_MAIN(TstConvert)
#include "tst_convert.moc"
