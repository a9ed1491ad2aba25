#include <kes/qt/convert.h>

#include "kestest.h"

#include <QtTest>

#include <cstdint>
#include <vector>

using namespace kes::core::image;

namespace {

using Bytes = QVector<int>;

// A core image of 3 x 2 identical pixels over rows padded by 5 bytes, every padding byte 0xEE, so
// that ignoring the stride shows.
struct CoreImage
{
    CoreImage(Format format, int channels, const Bytes& pixel, int width = 3)
        : step(std::size_t(width * pixel.size() + 5)), memory(step * 2, 0xEE)
    {
        for (std::size_t y = 0; y < 2; ++y) {
            for (int i = 0; i < width * pixel.size(); ++i)
                memory[y * step + std::size_t(i)] = std::uint8_t(pixel[i % pixel.size()]);
        }
        image = Image(ImageInfo(width, 2, channels, 1, format), memory.data(), step);
    }
    std::size_t step;
    std::vector<std::uint8_t> memory;
    Image image;
};

} // namespace

Q_DECLARE_METATYPE(Format)

class TstConvert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coreToQt_data()
    {
        QTest::addColumn<Format>("format");
        QTest::addColumn<Bytes>("pixel");
        QTest::addColumn<bool>("colorConversion");
        QTest::addColumn<QColor>("expected");
        for (bool flag : {false, true}) {
            const QByteArray f = flag ? ", converted" : ", not converted";
            QTest::newRow("bgr blue" + f) << Bgr << Bytes{255, 0, 0} << flag << QColor(flag ? Qt::blue : Qt::red);
            QTest::newRow("bgr red" + f) << Bgr << Bytes{0, 0, 255} << flag << QColor(flag ? Qt::red : Qt::blue);
            QTest::newRow("bgr green" + f) << Bgr << Bytes{0, 255, 0} << flag << QColor(Qt::green);
            QTest::newRow("bgra red, fourth byte ignored" + f) << Bgra << Bytes{0, 0, 255, 17} << flag << QColor(Qt::red);
            QTest::newRow("bgra blue" + f) << Bgra << Bytes{255, 0, 0, 0} << flag << QColor(Qt::blue);
            QTest::newRow("rgb red" + f) << Rgb << Bytes{255, 0, 0} << flag << QColor(Qt::red);
            QTest::newRow("rgb blue" + f) << Rgb << Bytes{0, 0, 255} << flag << QColor(Qt::blue);
            QTest::newRow("unlisted format read as rgb" + f) << Format(9) << Bytes{255, 0, 0} << flag << QColor(Qt::red);
            QTest::newRow("grey" + f) << Grey << Bytes{77} << flag << QColor(77, 77, 77);
        }
        QTest::newRow("hsv blue, converted") << Hsv << Bytes{170, 255, 255} << true << QColor(Qt::blue);
        QTest::newRow("hsv read as rgb, not converted") << Hsv << Bytes{170, 0, 255} << false << QColor(170, 0, 255);
    }

    void coreToQt()
    {
        QFETCH(Format, format);
        QFETCH(Bytes, pixel);
        QFETCH(bool, colorConversion);
        QFETCH(QColor, expected);
        const CoreImage core(format, pixel.size(), pixel);
        const QImage image = kes::qt::convert(core.image, colorConversion);
        QCOMPARE(image.format(), QImage::Format_RGB32);
        QCOMPARE(image.size(), QSize(3, 2));
        for (int y = 0; y < 2; ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            for (int x = 0; x < 3; ++x)
                QCOMPARE(line[x], expected.rgba()); // opaque, the pad byte included
        }
    }

    void refusesLayoutsTooSmallForTheirFormat_data()
    {
        QTest::addColumn<Format>("format");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("step");
        QTest::addColumn<bool>("colorConversion");
        QTest::newRow("one-channel rows labelled bgr") << Bgr << 1 << 4 << false;
        QTest::newRow("one-channel rows labelled bgra") << Bgra << 1 << 4 << false;
        QTest::newRow("stride shorter than a bgr row") << Bgr << 3 << 11 << false;
        QTest::newRow("stride shorter than a bgr row, converted") << Bgr << 3 << 11 << true;
        QTest::newRow("one-channel rows labelled rgb, converted") << Rgb << 1 << 4 << true;
    }

    void refusesLayoutsTooSmallForTheirFormat()
    {
        QFETCH(Format, format);
        QFETCH(int, channels);
        QFETCH(int, step);
        QFETCH(bool, colorConversion);
        // Exactly the bytes the layout claims, so that a read past them shows under the sanitizers.
        std::vector<std::uint8_t> memory(std::size_t(step) * 2, 9);
        const Image image(ImageInfo(4, 2, channels, 1, format), memory.data(), std::size_t(step));
        QVERIFY(kes::qt::convert(image, colorConversion).isNull());
        QVERIFY(kes::qt::convert(Image(), colorConversion).isNull());
        // A region of an allocated grey image relabelled bgr would run past the row's end.
        Image region(ImageInfo(8, 2, 1, 1, Bgr));
        setRoi(region, kes::core::Roi(4, 0, 4, 2));
        QVERIFY(kes::qt::convert(region, colorConversion).isNull());
    }

    // A caller's buffer may end right after the image's last pixel. Read as three bytes per pixel,
    // one-byte pixels fit every row's stride but not the last row: what lies beyond reads as 0.
    void readsNoFurtherThanTheLastPixel()
    {
        const std::size_t step = 12;
        std::vector<std::uint8_t> memory(step + 4);
        for (std::size_t i = 0; i < memory.size(); ++i)
            memory[i] = std::uint8_t(i + 1);
        const Image image(ImageInfo(4, 2, 1, 1, Rgb), memory.data(), step);
        const QImage shown = kes::qt::convert(image, false);
        QCOMPARE(shown.size(), QSize(4, 2));
        QCOMPARE(shown.pixelColor(1, 0), QColor(4, 5, 6));
        const QVector<QColor> lastRow{QColor(13, 14, 15), QColor(16, 0, 0), QColor(0, 0, 0), QColor(0, 0, 0)};
        for (int x = 0; x < 4; ++x)
            QCOMPARE(shown.pixelColor(x, 1), lastRow.at(x));
    }

    void qtToCore_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("rgb32") << QImage::Format_RGB32;
        QTest::newRow("argb32, alpha dropped") << QImage::Format_ARGB32;
        QTest::newRow("rgb888, converted first") << QImage::Format_RGB888;
    }

    void qtToCore()
    {
        QFETCH(QImage::Format, format);
        QImage source(5, 3, format); // five pixels of 3 or 4 bytes: rows padded on both sides
        source.fill(QColor(10, 20, 30, 128));
        source.setPixelColor(4, 2, QColor(200, 100, 50));
        const Image core = kes::qt::convert(source);
        QCOMPARE(core.info(), ImageInfo(5, 3, 3, 1, Bgr));
        const std::uint8_t* first = core.constData();
        const std::uint8_t* last = core.constData() + 2 * core.step() + 4 * 3;
        const QColor firstColor = source.pixelColor(0, 0); // premultiplication may have rounded it
        QCOMPARE(Bytes({first[0], first[1], first[2]}), Bytes({firstColor.blue(), firstColor.green(), firstColor.red()}));
        QCOMPARE(Bytes({last[0], last[1], last[2]}), Bytes({50, 100, 200}));
        // Back with colour conversion: the same colours.
        const QImage back = kes::qt::convert(core, true);
        QCOMPARE(back.pixel(4, 2), qRgb(200, 100, 50));
        QCOMPARE(back.pixel(0, 0), firstColor.rgb());

        QVERIFY(kes::qt::convert(QImage()).isNull());
        QVERIFY(kes::qt::convert(QImage(0, 3, format)).isNull());
    }

    void colorsAndTexts()
    {
        const kes::core::Color halfRed = kes::qt::convert(QColor(255, 0, 0, 128));
        QCOMPARE(halfRed.a(), 128);
        QCOMPARE(halfRed.r(), 255);
        QCOMPARE(kes::qt::convert(halfRed), QColor(255, 0, 0, 255));

        const QStringList texts{QStringLiteral("Größe"), QString(), QStringLiteral("ñandú")};
        const kes::core::StringList core = kes::qt::convert(texts);
        QCOMPARE(core.size(), std::size_t(3));
        QCOMPARE(core[0], std::string("Gr\xc3\xb6\xc3\x9f" "e"));
        QCOMPARE(kes::qt::convert(core), texts);
        QVERIFY(kes::qt::convert(kes::core::StringList()).isEmpty());
        QVERIFY(kes::qt::convert(QStringList()).empty());

        const QByteArray stored = kes::qt::encryptString(texts[0], "key");
        QCOMPARE(stored, texts[0].toUtf8());
        QCOMPARE(kes::qt::decryptString(stored, "other key"), texts[0]);
        QCOMPARE(kes::qt::decryptStringToUtf8(kes::qt::encryptString(stored, "k"), "k2"), stored);
    }

    void packsTheQtVersion()
    {
        const QStringList parts = QString::fromLatin1(qVersion()).split(QLatin1Char('.'));
        const int expected = (parts.value(0).toInt() << 16) | (parts.value(1).toInt() << 8) | parts.value(2).toInt();
        QCOMPARE(kes::qt::qtVersion(), expected);
        QCOMPARE(kes::qt::qtVersion(), expected); // from the cache
        QVERIFY(kes::qt::qtVersion() >= 0x050f00);
    }
};

KES_TEST_MAIN(TstConvert)
#include "tst_convert.moc"
