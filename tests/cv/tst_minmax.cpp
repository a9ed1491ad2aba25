#include <kes/cv/minmax.h>

#include "guardcase.h"
#include "kestest.h"

#include <QRect>
#include <QtTest>

#include <cstdint>
#include <cstring>
#include <vector>

using namespace kes::core::image;
using kes::core::Roi;

namespace {

using Values = QVector<double>;

// Writes one sample in the image's own type, whatever the alignment of the address.
void put(std::uint8_t* at, int bytesPerChannel, double value)
{
    const auto u8 = std::uint8_t(value);
    const auto u16 = std::uint16_t(value);
    const auto f = float(value);
    std::memcpy(at, bytesPerChannel == 1 ? &u8 : bytesPerChannel == 2 ? static_cast<const void*>(&u16) : &f,
                std::size_t(bytesPerChannel));
}

Values toValues(const std::vector<double>& values)
{
    return Values(values.begin(), values.end());
}

} // namespace

class TstMinmax : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Images of 7 x 5 pixels; extra bytes at the end of each row and an offset of the first pixel
    // from an aligned address make OpenCV's own layout rules fail.
    void findsExtremesOfEachChannelInRegion_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("bytesPerChannel");
        QTest::addColumn<int>("extraStride");
        QTest::addColumn<int>("offset");
        QTest::addColumn<Roi>("roi");
        QTest::addColumn<Values>("mins");
        QTest::addColumn<Values>("maxs");
        const Roi whole(0, 0, 7, 5);
        const Roi inner(2, 1, 3, 3);
        QTest::newRow("8-bit three channels") << 3 << 1 << 0 << 0 << whole << Values{1, 40, 100} << Values{9, 200, 254};
        QTest::newRow("8-bit region") << 3 << 1 << 1 << 0 << inner << Values{10, 20, 30} << Values{11, 21, 31};
        QTest::newRow("16-bit grey") << 1 << 2 << 0 << 0 << whole << Values{300} << Values{65000};
        QTest::newRow("16-bit region") << 2 << 2 << 0 << 0 << inner << Values{1000, 2000} << Values{3000, 4000};
        QTest::newRow("16-bit region, odd stride") << 1 << 2 << 1 << 0 << inner << Values{100} << Values{200};
        QTest::newRow("float four channels") << 4 << 4 << 0 << 0 << whole << Values{-4, -3, -2, -1} << Values{1, 2, 3, 4};
        QTest::newRow("float region") << 3 << 4 << 0 << 0 << inner << Values{-0.5, 0, 7} << Values{0.5, 1, 8};
        QTest::newRow("float region at an odd address") << 3 << 4 << 0 << 3 << inner << Values{-1, 1e6, 2} << Values{1, 2e6, 3};
        QTest::newRow("single pixel region") << 2 << 1 << 0 << 0 << Roi(6, 4, 1, 1) << Values{42, 43} << Values{42, 43};
    }

    void findsExtremesOfEachChannelInRegion()
    {
        QFETCH(int, channels);
        QFETCH(int, bytesPerChannel);
        QFETCH(int, extraStride);
        QFETCH(int, offset);
        QFETCH(Roi, roi);
        QFETCH(Values, mins);
        QFETCH(Values, maxs);
        const int pixelBytes = channels * bytesPerChannel;
        const std::size_t step = std::size_t(7 * pixelBytes + extraStride);
        std::vector<std::uint8_t> memory(std::size_t(offset) + step * 5);
        // Samples outside the region lie beyond its extremes; inside, each channel's minimum sits
        // at the region's first pixel, its maximum at the last and the midpoint everywhere else.
        const QRect region(roi.x, roi.y, int(roi.width), int(roi.height));
        const double below = bytesPerChannel == 4 ? -1e30 : 0;
        const double above = bytesPerChannel == 4 ? 1e30 : bytesPerChannel == 2 ? 65535 : 255;
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < 7; ++x) {
                for (int c = 0; c < channels; ++c) {
                    double value = (x + y + c) % 2 ? above : below;
                    if (QPoint(x, y) == region.topLeft())
                        value = mins[c];
                    else if (QPoint(x, y) == region.bottomRight())
                        value = maxs[c];
                    else if (region.contains(x, y))
                        value = (mins[c] + maxs[c]) / 2;
                    const std::size_t at = std::size_t(offset + x * pixelBytes + c * bytesPerChannel) + std::size_t(y) * step;
                    put(memory.data() + at, bytesPerChannel, value);
                }
            }
        }
        Image image(ImageInfo(7, 5, channels, bytesPerChannel, Rgb), memory.data() + offset, step);
        setRoi(image, roi);

        // Earlier contents are replaced, not added to.
        std::vector<double> min(5, -99.0);
        std::vector<double> max(5, 99.0);
        QVERIFY(kes::cv::minmax(image, min, max));
        QCOMPARE(toValues(min), mins);
        QCOMPARE(toValues(max), maxs);
    }

    void rejectsInconsistentImage_data()
    {
        kes::test::addGuardRows(ImageInfo(4, 4, 2, 2, Grey));
        QTest::newRow("no channels") << ImageInfo(4, 4, 0, 1, Grey) << 4 << true << Roi();
        QTest::newRow("five channels") << ImageInfo(4, 4, 5, 1, Grey) << 20 << true << Roi();
        QTest::newRow("three bytes a channel") << ImageInfo(4, 4, 1, 3, Grey) << 12 << true << Roi();
    }

    void rejectsInconsistentImage()
    {
        const kes::test::GuardCase guard;
        std::vector<double> min{-1.0, 42.0};
        std::vector<double> max{17.0};
        QVERIFY(!kes::cv::minmax(guard.image, min, max));
        QCOMPARE(toValues(min), (Values{-1.0, 42.0}));
        QCOMPARE(toValues(max), Values{17.0});
    }
};

KES_TEST_MAIN(TstMinmax)
#include "tst_minmax.moc"
