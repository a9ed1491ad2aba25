#include "kestest.h"

#include <kes/qt/version.h>

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <cstdlib>

namespace {

constexpr int kFrameCount = 12;

QString iconPath(const QString& name)
{
    return QStringLiteral(":/kes_qt/icons/") + name;
}

QImage loadIcon(const QString& name)
{
    return QImage(iconPath(name)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage progressFrame(int frame)
{
    return loadIcon(QStringLiteral("progress%1.png").arg(frame));
}

// Mean absolute difference over every channel of every pixel, premultiplied so that the colour of
// fully transparent pixels does not count; 0 for equal images, 255 for opposite ones.
double meanDifference(const QImage& a, const QImage& b)
{
    Q_ASSERT(a.size() == b.size());
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        const auto* pa = reinterpret_cast<const QRgb*>(a.constScanLine(y));
        const auto* pb = reinterpret_cast<const QRgb*>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            sum += std::abs(qAlpha(pa[x]) - qAlpha(pb[x])) + std::abs(qRed(pa[x]) - qRed(pb[x]))
                   + std::abs(qGreen(pa[x]) - qGreen(pb[x])) + std::abs(qBlue(pa[x]) - qBlue(pb[x]));
        }
    }
    return double(sum) / (4.0 * a.width() * a.height());
}

QImage turnedClockwise(const QImage& image, double degrees)
{
    QImage turned(image.size(), QImage::Format_ARGB32_Premultiplied);
    turned.fill(Qt::transparent);
    QPainter painter(&turned);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QPointF centre(image.width() / 2.0, image.height() / 2.0);
    painter.translate(centre);
    painter.rotate(degrees);
    painter.translate(-centre);
    painter.drawImage(0, 0, image);
    return turned;
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

        for (int frame = 0; frame < kFrameCount; ++frame) {
            const QString name = QStringLiteral("progress%1.png").arg(frame);
            QTest::newRow(qPrintable(name)) << name << 48;
        }
        const QList<QPair<QString, int>> icons = {
            {QStringLiteral("warning.png"), 32},      {QStringLiteral("exclamation.png"), 32},
            {QStringLiteral("cancel.png"), 32},       {QStringLiteral("balloon_cross.png"), 16},
            {QStringLiteral("copy16.png"), 16},       {QStringLiteral("copy24.png"), 24},
            {QStringLiteral("paste16.png"), 16},      {QStringLiteral("paste24.png"), 24},
            {QStringLiteral("fileopen.png"), 24},     {QStringLiteral("filesave.png"), 24},
            {QStringLiteral("filecloseall.png"), 24}, {QStringLiteral("newproject.png"), 24},
        };
        for (const auto& icon : icons)
            QTest::newRow(qPrintable(icon.first)) << icon.first << icon.second;
    }

    void loadsEveryIcon()
    {
        QFETCH(QString, name);
        QFETCH(int, size);

        const QImage image(iconPath(name));
        QVERIFY2(!image.isNull(), qPrintable(iconPath(name)));
        QCOMPARE(image.size(), QSize(size, size));
        QVERIFY(image.hasAlphaChannel());

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

    void progressFramesAreDistinct_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        for (int a = 0; a < kFrameCount; ++a)
            for (int b = a + 1; b < kFrameCount; ++b)
                QTest::addRow("frames %d and %d", a, b) << a << b;
    }

    void progressFramesAreDistinct()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QVERIFY(meanDifference(progressFrame(first), progressFrame(second)) > 2.0);
    }

    void progressFrameTurnsIntoTheNext_data()
    {
        QTest::addColumn<int>("frame");
        for (int frame = 0; frame < kFrameCount; ++frame)
            QTest::addRow("frame %d to %d", frame, (frame + 1) % kFrameCount) << frame;
    }

    void progressFrameTurnsIntoTheNext()
    {
        QFETCH(int, frame);
        const QImage turned = turnedClockwise(progressFrame(frame), 360.0 / kFrameCount);
        const int next = (frame + 1) % kFrameCount;

        // Turning a raster blurs the antialiased edges a little, which the tolerance allows for.
        const double toNext = meanDifference(turned, progressFrame(next));
        QVERIFY2(toNext < 2.5, qPrintable(QStringLiteral("differs by %1").arg(toNext)));
        // Nor may the tolerance hide a wrong direction or step: every other frame is clearly further.
        for (int other = 0; other < kFrameCount; ++other) {
            if (other == next)
                continue;
            const double toOther = meanDifference(turned, progressFrame(other));
            QVERIFY2(toOther > 2 * toNext, qPrintable(QStringLiteral("frame %1 differs by only %2 against %3")
                                                             .arg(other)
                                                             .arg(toOther)
                                                             .arg(toNext)));
        }
    }
};

KES_TEST_MAIN(TstIcons)
#include "tst_icons.moc"
