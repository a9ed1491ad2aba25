#include "kestest.h"

#include <kes/qt/version.h>

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <cstdlib>

namespace {

constexpr int kFrameCount = 12;

QImage progressFrame(int frame)
{
    return QImage(QStringLiteral(":/kes_qt/icons/progress%1.png").arg(frame))
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// Mean absolute difference over every byte of two premultiplied images of the same size, whose
// rows of whole pixels have no padding; 0 for equal images, 255 for opposite ones. Premultiplied,
// the colour of fully transparent pixels does not count.
double meanDifference(const QImage& a, const QImage& b)
{
    qint64 sum = 0;
    for (qsizetype i = 0; i < a.sizeInBytes(); ++i)
        sum += std::abs(a.constBits()[i] - b.constBits()[i]);
    return double(sum) / double(a.sizeInBytes());
}

} // namespace

class TstIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The icons register when kes_qt loads; calling into it keeps an as-needed linker from
        // dropping a library that this test otherwise reaches only through the resource system.
        QVERIFY(kes::qt::libraryVersion() != nullptr);
    }

    void loadsEveryIcon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("size");
        for (int frame = 0; frame < kFrameCount; ++frame)
            QTest::addRow("progress%d.png", frame) << QStringLiteral("progress%1.png").arg(frame) << 48;
        const std::pair<const char*, int> icons[] = {
            {"warning.png", 32},  {"exclamation.png", 32}, {"cancel.png", 32},       {"balloon_cross.png", 16},
            {"copy16.png", 16},   {"copy24.png", 24},      {"paste16.png", 16},      {"paste24.png", 24},
            {"fileopen.png", 24}, {"filesave.png", 24},    {"filecloseall.png", 24}, {"newproject.png", 24},
        };
        for (const auto& [name, size] : icons)
            QTest::newRow(name) << QString::fromLatin1(name) << size;
    }

    void loadsEveryIcon()
    {
        QFETCH(QString, name);
        QFETCH(int, size);
        const QImage image(QStringLiteral(":/kes_qt/icons/") + name);
        QVERIFY2(!image.isNull(), qPrintable(name));
        QCOMPARE(image.size(), QSize(size, size));

        // Covered area in whole pixels, counting a half-transparent pixel as half.
        const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
        double ink = 0;
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                ink += qAlpha(pixels.pixel(x, y)) / 255.0;
        QVERIFY2(ink >= size * size / 20.0, qPrintable(QStringLiteral("covers only %1 pixels").arg(ink)));
        // Icons sit on a transparent background, which the corners always show.
        for (const QPoint corner : {QPoint(0, 0), QPoint(size - 1, 0), QPoint(0, size - 1), QPoint(size - 1, size - 1)})
            QCOMPARE(qAlpha(pixels.pixel(corner)), 0);
    }

    // Also shows the frames apart: two equal frames would be equally close to the one turned before.
    void progressFrameTurnsIntoTheNext_data()
    {
        QTest::addColumn<int>("frame");
        for (int frame = 0; frame < kFrameCount; ++frame)
            QTest::addRow("frame %d to %d", frame, (frame + 1) % kFrameCount) << frame;
    }

    void progressFrameTurnsIntoTheNext()
    {
        QFETCH(int, frame);
        const QImage source = progressFrame(frame);
        QImage turned(source.size(), QImage::Format_ARGB32_Premultiplied);
        turned.fill(Qt::transparent);
        QPainter painter(&turned);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.translate(source.width() / 2.0, source.height() / 2.0);
        painter.rotate(360.0 / kFrameCount);
        painter.translate(-source.width() / 2.0, -source.height() / 2.0);
        painter.drawImage(0, 0, source);
        painter.end();

        // Turning a raster blurs the antialiased edges a little, which the tolerance allows for.
        const int next = (frame + 1) % kFrameCount;
        const double toNext = meanDifference(turned, progressFrame(next));
        QVERIFY2(toNext < 2.5, qPrintable(QStringLiteral("differs by %1").arg(toNext)));
        // Nor may the tolerance hide a wrong direction or step: every other frame is clearly further.
        for (int other = 0; other < kFrameCount; ++other) {
            const double toOther = meanDifference(turned, progressFrame(other));
            QVERIFY2(other == next || toOther > 2 * toNext,
                     qPrintable(QStringLiteral("frame %1 differs by only %2").arg(other).arg(toOther)));
        }
    }
};

KES_TEST_MAIN(TstIcons)
#include "tst_icons.moc"
