#include <kes/qt/gui/widgets/imageview.h>

#include "kestest.h"

#include <kes/core/image/overlay.h>

#include <QSignalSpy>
#include <QWindow>
#include <QtTest>

#include <cstring>

using kes::core::Roi;
using kes::core::image::Image;
using kes::core::image::ImageInfo;
using kes::qt::gui::widgets::ImageView;

namespace {

// A blue-green-red image of one colour.
Image filled(int width, int height, const QColor& color)
{
    Image image(ImageInfo(width, height, 3, 1, kes::core::image::Bgr));
    const std::uint8_t pixel[3] = {std::uint8_t(color.blue()), std::uint8_t(color.green()), std::uint8_t(color.red())};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            std::memcpy(image.data() + std::size_t(y) * image.step() + std::size_t(x) * 3, pixel, 3);
    }
    return image;
}

bool showAt(ImageView& view, const QSize& size)
{
    view.resize(size);
    view.show();
    return QTest::qWaitForWindowExposed(&view) && view.size() == size;
}

} // namespace

class TstImageView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scalesIntoTheWidgetAndReportsEachChange()
    {
        ImageView view;
        QVERIFY(showAt(view, QSize(320, 400)));
        QSignalSpy changed(&view, SIGNAL(imageRectChanged(QRect)));
        view.setImage(filled(640, 480, Qt::gray), true);
        QCOMPARE(view.imageRect(), QRect(0, 0, 320, 240));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.takeFirst().at(0).toRect(), QRect());

        view.setImage(filled(640, 480, Qt::darkGray), true);
        view.setImage(Image(), true); // clears the picture, keeps the rectangle
        QCOMPARE(changed.count(), 0);
        QCOMPARE(view.imageRect(), QRect(0, 0, 320, 240));

        view.setImage(filled(640, 480, Qt::gray), true);
        view.resize(160, 400);
        QCOMPARE(view.imageRect(), QRect(0, 0, 160, 120));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.takeFirst().at(0).toRect(), QRect(0, 0, 320, 240));
    }

    void dragGivesTheRegionInImagePixels_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QRect>("band");
        QTest::addColumn<Roi>("roi");
        QTest::newRow("inside") << QPoint(10, 10) << QPoint(110, 60) << QRect(10, 10, 101, 51) << Roi(20, 20, 202, 102);
        QTest::newRow("upwards") << QPoint(110, 60) << QPoint(10, 10) << QRect(10, 10, 101, 51) << Roi(20, 20, 202, 102);
        QTest::newRow("below the picture, clamped") << QPoint(300, 200) << QPoint(200, 390) << QRect(200, 200, 101, 40)
                                                    << Roi(400, 400, 202, 80);
        QTest::newRow("past the top left, clamped") << QPoint(20, 30) << QPoint(-50, -5) << QRect(0, 0, 21, 31)
                                                    << Roi(0, 0, 42, 62);
    }

    void dragGivesTheRegionInImagePixels()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(QRect, band);
        QFETCH(Roi, roi);
        ImageView view;
        QVERIFY(showAt(view, QSize(320, 400)));
        view.setImage(filled(640, 480, Qt::gray), true);
        view.setRoiSelectionEnabled(true);
        QSignalSpy selected(&view, SIGNAL(roiChanged(kes::core::Roi)));
        QWindow* window = view.windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, from);
        QTest::mouseMove(window, (from + to) / 2);
        QTest::mouseMove(window, to);
        QTest::mouseRelease(window, Qt::LeftButton, {}, to);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(0).value<Roi>(), roi);
        QCOMPARE(view.roi(), roi);
        auto* rubberBand = view.findChild<QWidget*>();
        QVERIFY(rubberBand && rubberBand->isVisible());
        QCOMPARE(rubberBand->geometry(), band);

        view.clearRoi();
        QVERIFY(!rubberBand->isVisible());
        QCOMPARE(view.roi(), Roi());
        QCOMPARE(selected.count(), 1);
    }

    void freezingKeepsThePicture()
    {
        ImageView view;
        QVERIFY(showAt(view, QSize(40, 40)));
        view.setImage(filled(40, 40, Qt::red), true);
        view.setFreezeImage(true);
        view.setImage(filled(40, 40, Qt::blue), true);
        QCOMPARE(view.grab().toImage().pixelColor(20, 20), QColor(Qt::red));
        view.setFreezeImage(false);
        QCOMPARE(view.grab().toImage().pixelColor(20, 20), QColor(Qt::red)); // the blue frame was never stored
        view.setImage(filled(40, 40, Qt::blue), true);
        QCOMPARE(view.grab().toImage().pixelColor(20, 20), QColor(Qt::blue));
    }

    void crossContrastsWithThePixel_data()
    {
        QTest::addColumn<QColor>("background");
        QTest::addColumn<bool>("showImage");
        QTest::addColumn<QColor>("cross");
        QTest::newRow("white") << QColor(Qt::white) << true << QColor(Qt::black);
        QTest::newRow("black") << QColor(Qt::black) << true << QColor(Qt::white);
        QTest::newRow("pure red") << QColor(255, 0, 0) << true << QColor(0, 255, 255);
        QTest::newRow("black hidden behind white") << QColor(Qt::black) << false << QColor(Qt::black);
    }

    void crossContrastsWithThePixel()
    {
        QFETCH(QColor, background);
        QFETCH(bool, showImage);
        QFETCH(QColor, cross);
        Image image = filled(40, 40, background);
        kes::core::image::Segment segment;
        segment.count = 50;
        segment.id = 7;
        segment.centerX = 20;
        segment.centerY = 20;
        segment.color = kes::core::Color::fromRgb(0, 0, 255);
        segment.lines = {{{5, 5}, {35, 5}, kes::core::Color::fromRgb(0, 0, 255)}};
        kes::core::image::setSegmentList(image, {segment});

        ImageView view;
        QVERIFY(showAt(view, QSize(40, 40))); // shown at one screen pixel per image pixel
        view.setImage(image, true);
        view.setShowImageEnabled(showImage);
        view.setSegmentDrawingEnabled(true, 5); // no segment at that position
        QCOMPARE(view.grab().toImage().pixelColor(20, 5), showImage ? background : QColor(Qt::white));
        view.setSegmentDrawingEnabled(true, -1);
        QImage shown = view.grab().toImage();
        QCOMPARE(shown.pixelColor(20, 5), QColor(Qt::blue)); // the outline
        QCOMPARE(shown.pixelColor(23, 20), cross);
        QCOMPARE(shown.pixelColor(20, 17), cross);
        QCOMPARE(shown.pixelColor(25, 20), showImage ? background : QColor(Qt::white));
        view.setHighlightedSegment(7); // bold and longer
        shown = view.grab().toImage();
        QCOMPARE(shown.pixelColor(25, 20), cross);
        QCOMPARE(shown.pixelColor(24, 21), cross);
    }
};

KES_TEST_MAIN(TstImageView)
#include "tst_imageview.moc"
