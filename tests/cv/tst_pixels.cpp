#include <kes/cv/pixels.h>

#include "kestest.h"

#include <QtTest>

#include <cstdint>
#include <vector>

namespace pixels = kes::cv::pixels;

namespace {

using Order = QVector<int>;

// Source rows of distinct bytes, with padding after each row that a copy must neither read into
// its result nor write.
struct Buffer
{
    Buffer(int channels, int width, int height, int padding, std::uint8_t seed)
        : step(std::size_t(channels * width + padding)), bytes(step * std::size_t(height))
    {
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = std::uint8_t(seed + i * 7);
    }
    std::uint8_t at(int channels, int x, int y, int c) const
    {
        return bytes[std::size_t(y) * step + std::size_t(x * channels + c)];
    }
    std::size_t step;
    std::vector<std::uint8_t> bytes;
};

} // namespace

class TstPixels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Widths below, at and past the vector block, so that whole blocks and row ends both count.
    void copyMapsEveryChannel_data()
    {
        QTest::addColumn<int>("src");
        QTest::addColumn<int>("dst");
        QTest::addColumn<Order>("order");
        QTest::addColumn<int>("width");
        for (int width : {1, 7, 8, 37}) {
            const QByteArray w = " x" + QByteArray::number(width);
            QTest::newRow("bgr to Qt's bgrx" + w) << 3 << 4 << Order{0, 1, 2, -1} << width;
            QTest::newRow("rgb to Qt's bgrx" + w) << 3 << 4 << Order{2, 1, 0, -1} << width;
            QTest::newRow("grey to Qt's grey" + w) << 1 << 4 << Order{0, 0, 0, -1} << width;
            QTest::newRow("bgrx kept, pad filled" + w) << 4 << 4 << Order{0, 1, 2, -1} << width;
            QTest::newRow("bgrx to bgr" + w) << 4 << 3 << Order{0, 1, 2} << width;
            QTest::newRow("two channels to one" + w) << 2 << 1 << Order{1} << width;
            QTest::newRow("one channel to two" + w) << 1 << 2 << Order{-1, 0} << width;
            QTest::newRow("three reversed" + w) << 3 << 3 << Order{2, 1, 0} << width;
        }
    }

    void copyMapsEveryChannel()
    {
        QFETCH(int, src);
        QFETCH(int, dst);
        QFETCH(Order, order);
        QFETCH(int, width);
        const int height = 3;
        const Buffer in(src, width, height, 5, 1);
        Buffer out(dst, width, height, 6, 99);
        const Buffer untouched = out;
        QVERIFY(pixels::copy(in.bytes.data(), in.step, src, out.bytes.data(), out.step, dst, width, height,
                             order.constData(), 200));
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                for (int c = 0; c < dst; ++c) {
                    const int expected = order[c] < 0 ? 200 : in.at(src, x, y, order[c]);
                    QCOMPARE(int(out.at(dst, x, y, c)), expected);
                }
            }
            for (std::size_t i = std::size_t(dst * width); i < out.step; ++i)
                QCOMPARE(out.bytes[std::size_t(y) * out.step + i], untouched.bytes[std::size_t(y) * out.step + i]);
        }
    }

    void inPlace_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("width");
        for (int channels = 1; channels <= 4; ++channels) {
            for (int width : {5, 8, 29})
                QTest::addRow("%d channels x%d", channels, width) << channels << width;
        }
    }

    void inPlace()
    {
        QFETCH(int, channels);
        QFETCH(int, width);
        const Buffer original(channels, width, 2, 3, 5);
        Buffer reordered = original;
        Order reverse;
        for (int c = channels - 1; c >= 0; --c)
            reverse << c;
        QVERIFY(pixels::reorder(reordered.bytes.data(), reordered.step, channels, reverse.constData(), width, 2));
        Buffer set = original;
        QVERIFY(pixels::setChannel(set.bytes.data(), set.step, channels, channels - 1, 42, width, 2));
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < width; ++x) {
                for (int c = 0; c < channels; ++c) {
                    QCOMPARE(reordered.at(channels, x, y, c), original.at(channels, x, y, channels - 1 - c));
                    QCOMPARE(int(set.at(channels, x, y, c)), c == channels - 1 ? 42 : original.at(channels, x, y, c));
                }
            }
            const std::size_t padding = std::size_t(y) * original.step + std::size_t(channels * width);
            QCOMPARE(reordered.bytes[padding], original.bytes[padding]);
            QCOMPARE(set.bytes[padding], original.bytes[padding]);
        }
    }

    void refusesNonsense_data()
    {
        QTest::addColumn<int>("srcChannels");
        QTest::addColumn<int>("srcStep");
        QTest::addColumn<int>("dstChannels");
        QTest::addColumn<int>("width");
        QTest::addColumn<Order>("order");
        QTest::newRow("source stride shorter than a row") << 3 << 11 << 4 << 4 << Order{0, 1, 2, -1};
        QTest::newRow("five channels") << 5 << 20 << 4 << 4 << Order{0, 1, 2, -1};
        QTest::newRow("no channel") << 3 << 12 << 0 << 4 << Order{0};
        QTest::newRow("order past the source's channels") << 3 << 12 << 4 << 4 << Order{0, 1, 3, -1};
        QTest::newRow("order below the fill mark") << 3 << 12 << 4 << 4 << Order{0, 1, -2, -1};
        QTest::newRow("negative width") << 3 << 12 << 4 << -4 << Order{0, 1, 2, -1};
    }

    void refusesNonsense()
    {
        QFETCH(int, srcChannels);
        QFETCH(int, srcStep);
        QFETCH(int, dstChannels);
        QFETCH(int, width);
        QFETCH(Order, order);
        std::vector<std::uint8_t> in(64, 1);
        std::vector<std::uint8_t> out(64, 9);
        QVERIFY(!pixels::copy(in.data(), std::size_t(srcStep), srcChannels, out.data(), 16, dstChannels, width, 2,
                              order.constData()));
        QCOMPARE(out, std::vector<std::uint8_t>(64, 9));
    }
};

KES_TEST_MAIN(TstPixels)
#include "tst_pixels.moc"
