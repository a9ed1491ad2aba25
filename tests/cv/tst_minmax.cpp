#include <kes/cv/minmax.h>

#include "guardcase.h"
#include "kestest.h"

#include <kes/core/image/image.h>
#include <kes/core/roi.h>

#include <QtTest>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

using kes::core::Roi;
using kes::core::image::Format;
using kes::core::image::Image;
using kes::core::image::ImageInfo;


namespace {

using Values = QVector<double>;

// Writes one channel value in the image's own sample type, whatever the alignment of the pixel.
void setSample(std::uint8_t* pixel, int bytesPerChannel, int channel, double value)
{
    std::uint8_t* at = pixel + channel * bytesPerChannel;
    if (bytesPerChannel == 1) {
        *at = std::uint8_t(value);
    } else if (bytesPerChannel == 2) {
        const auto sample = std::uint16_t(value);
        std::memcpy(at, &sample, sizeof sample);
    } else {
        const auto sample = float(value);
        std::memcpy(at, &sample, sizeof sample);
    }
}

struct Layout
{
    int width;
    int height;
    int channels;
    int bytesPerChannel;
};

// Fills the region with the midpoint of each channel's range and plants that channel's minimum
// and maximum at different pixels of the region; every pixel outside the region gets a value beyond
// one of the extremes.
void plant(std::uint8_t* memory, std::size_t step, const Layout& layout, const Roi& region,
           const Values& mins, const Values& maxs, double below, double above)
{
    const int pixelBytes = layout.channels * layout.bytesPerChannel;
    for (int y = 0; y < layout.height; ++y) {
        for (int x = 0; x < layout.width; ++x) {
            const bool inside = x >= region.x && x < region.x + int(region.width) && y >= region.y
                                && y < region.y + int(region.height);
            std::uint8_t* pixel = memory + std::size_t(y) * step + std::size_t(x * pixelBytes);
            for (int c = 0; c < layout.channels; ++c) {
                const double outside = (x + y + c) % 2 ? above : below;
                setSample(pixel, layout.bytesPerChannel, c, inside ? (mins[c] + maxs[c]) / 2 : outside);
            }
        }
    }
    for (int c = 0; c < layout.channels; ++c) {
        const int lowX = region.x + c % int(region.width);
        const int highX = region.x + int(region.width) - 1 - c % int(region.width);
        std::uint8_t* low = memory + std::size_t(region.y) * step + std::size_t(lowX * pixelBytes);
        std::uint8_t* high = memory + std::size_t(region.y + int(region.height) - 1) * step
                             + std::size_t(highX * pixelBytes);
        setSample(low, layout.bytesPerChannel, c, mins[c]);
        setSample(high, layout.bytesPerChannel, c, maxs[c]);
    }
}

Values toValues(const std::vector<double>& values)
{
    return Values(values.begin(), values.end());
}

std::pair<double, double> beyondRange(int bytesPerChannel)
{
    if (bytesPerChannel == 1)
        return {0, 255};
    if (bytesPerChannel == 2)
        return {0, 65535};
    return {-1e30, 1e30};
}

} // namespace

class TstMinmax : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsExtremesOfEachChannel_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("bytesPerChannel");
        QTest::addColumn<Roi>("roi");
        QTest::addColumn<Values>("mins");
        QTest::addColumn<Values>("maxs");

        const Roi whole(0, 0, 7, 5);
        const Roi inner(2, 1, 3, 3);
        QTest::newRow("8-bit grey") << 1 << 1 << whole << Values{3} << Values{250};
        QTest::newRow("8-bit three channels") << 3 << 1 << whole << Values{1, 40, 100} << Values{9, 200, 254};
        QTest::newRow("8-bit four channels") << 4 << 1 << whole << Values{5, 6, 7, 8} << Values{50, 60, 70, 80};
        QTest::newRow("8-bit constant channel") << 2 << 1 << whole << Values{77, 0} << Values{77, 1};
        QTest::newRow("16-bit grey") << 1 << 2 << whole << Values{300} << Values{65000};
        QTest::newRow("16-bit two channels") << 2 << 2 << whole << Values{1000, 2} << Values{40000, 513};
        QTest::newRow("16-bit three channels") << 3 << 2 << whole << Values{256, 1, 4097} << Values{257, 9, 60000};
        QTest::newRow("float grey") << 1 << 4 << whole << Values{-12.5} << Values{3.25};
        QTest::newRow("float three channels") << 3 << 4 << whole << Values{-1, 0.5, 1e6} << Values{1, 0.75, 2e6};
        QTest::newRow("float four channels") << 4 << 4 << whole << Values{-4, -3, -2, -1} << Values{1, 2, 3, 4};
        QTest::newRow("8-bit grey region") << 1 << 1 << inner << Values{100} << Values{120};
        QTest::newRow("8-bit three channel region") << 3 << 1 << inner << Values{10, 20, 30} << Values{11, 21, 31};
        QTest::newRow("16-bit region") << 2 << 2 << inner << Values{1000, 2000} << Values{3000, 4000};
        QTest::newRow("float region") << 3 << 4 << inner << Values{-0.5, 0, 7} << Values{0.5, 1, 8};
        QTest::newRow("single pixel region") << 2 << 1 << Roi(6, 4, 1, 1) << Values{42, 43} << Values{42, 43};
        QTest::newRow("single row region") << 1 << 2 << Roi(0, 2, 7, 1) << Values{12} << Values{13};
        QTest::newRow("single column region") << 1 << 4 << Roi(3, 0, 1, 5) << Values{-2} << Values{2};
    }

    void findsExtremesOfEachChannel()
    {
        QFETCH(int, channels);
        QFETCH(int, bytesPerChannel);
        QFETCH(Roi, roi);
        QFETCH(Values, mins);
        QFETCH(Values, maxs);

        const Layout layout{7, 5, channels, bytesPerChannel};
        Image image(ImageInfo(layout.width, layout.height, channels, bytesPerChannel, kes::core::image::Rgb));
        const auto [below, above] = beyondRange(bytesPerChannel);
        plant(image.data(), image.step(), layout, roi, mins, maxs, below, above);
        setRoi(image, roi);

        std::vector<double> min;
        std::vector<double> max;
        QVERIFY(kes::cv::minmax(image, min, max));
        QCOMPARE(toValues(min), mins);
        QCOMPARE(toValues(max), maxs);
    }

    void readsUnalignedLayouts_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("bytesPerChannel");
        QTest::addColumn<int>("stride");
        QTest::addColumn<int>("offset");

        QTest::newRow("16-bit rows with an odd stride") << 1 << 2 << 15 << 0;
        QTest::newRow("16-bit pixels at an odd address") << 2 << 2 << 28 << 1;
        QTest::newRow("float rows with a stride of whole words plus two") << 1 << 4 << 30 << 0;
        QTest::newRow("float pixels at an odd address") << 3 << 4 << 84 << 3;
        QTest::newRow("8-bit rows with an odd stride") << 3 << 1 << 23 << 1;
    }

    void readsUnalignedLayouts()
    {
        QFETCH(int, channels);
        QFETCH(int, bytesPerChannel);
        QFETCH(int, stride);
        QFETCH(int, offset);

        const Layout layout{7, 5, channels, bytesPerChannel};
        const Roi whole(0, 0, 7, 5);
        const Values mins(channels, 10);
        Values maxs(channels);
        for (int c = 0; c < channels; ++c)
            maxs[c] = 20 + c;
        std::vector<std::uint8_t> memory(std::size_t(offset + stride * layout.height));
        plant(memory.data() + offset, std::size_t(stride), layout, whole, mins, maxs, 0, 0);
        const Image image(ImageInfo(7, 5, channels, bytesPerChannel, kes::core::image::Rgb), memory.data() + offset,
                          std::size_t(stride));

        std::vector<double> min;
        std::vector<double> max;
        QVERIFY(kes::cv::minmax(image, min, max));
        QCOMPARE(toValues(min), mins);
        QCOMPARE(toValues(max), maxs);
    }

    void rejectsInconsistentImage_data()
    {
        kes::test::addGuardColumns();

        const auto grey = kes::core::image::Grey;
        const Roi whole;
        QTest::newRow("zero width") << ImageInfo(0, 4, 1, 1, grey) << 4 << true << whole;
        QTest::newRow("zero height") << ImageInfo(4, 0, 1, 1, grey) << 4 << true << whole;
        QTest::newRow("negative width") << ImageInfo(-4, 4, 1, 1, grey) << 4 << true << whole;
        QTest::newRow("negative height") << ImageInfo(4, -4, 1, 1, grey) << 4 << true << whole;
        QTest::newRow("no channels") << ImageInfo(4, 4, 0, 1, grey) << 4 << true << whole;
        QTest::newRow("five channels") << ImageInfo(4, 4, 5, 1, grey) << 20 << true << whole;
        QTest::newRow("negative channel count") << ImageInfo(4, 4, -1, 1, grey) << 4 << true << whole;
        QTest::newRow("zero bytes a channel") << ImageInfo(4, 4, 1, 0, grey) << 4 << true << whole;
        QTest::newRow("three bytes a channel") << ImageInfo(4, 4, 1, 3, grey) << 12 << true << whole;
        QTest::newRow("eight bytes a channel") << ImageInfo(4, 4, 1, 8, grey) << 32 << true << whole;
        QTest::newRow("stride shorter than an 8-bit row") << ImageInfo(4, 4, 3, 1, grey) << 11 << true << whole;
        QTest::newRow("stride shorter than a 16-bit row") << ImageInfo(4, 4, 2, 2, grey) << 14 << true << whole;
        QTest::newRow("stride shorter than a float row") << ImageInfo(4, 4, 1, 4, grey) << 12 << true << whole;
        QTest::newRow("stride of zero") << ImageInfo(4, 4, 1, 1, grey) << 0 << true << whole;
        QTest::newRow("no pixels") << ImageInfo(4, 4, 1, 1, grey) << 4 << false << whole;
        QTest::newRow("region outside the image") << ImageInfo(4, 4, 1, 1, grey) << 4 << true << Roi(4, 0, 2, 2);
    }

    void rejectsInconsistentImage()
    {
        const kes::test::GuardCase guard;
        const Image& image = guard.image();

        std::vector<double> min{-1.0, 42.0};
        std::vector<double> max{17.0};
        QVERIFY(!kes::cv::minmax(image, min, max));
        QCOMPARE(toValues(min), (Values{-1.0, 42.0}));
        QCOMPARE(toValues(max), Values{17.0});
    }

    void replacesPreviousResults()
    {
        Image image(ImageInfo(3, 2, 1, 1, kes::core::image::Grey));
        image.data()[1] = 9;
        std::vector<double> min{5, 5, 5};
        std::vector<double> max{5, 5, 5, 5};
        QVERIFY(kes::cv::minmax(image, min, max));
        QCOMPARE(toValues(min), Values{0});
        QCOMPARE(toValues(max), Values{9});
    }
};

KES_TEST_MAIN(TstMinmax)
#include "tst_minmax.moc"
