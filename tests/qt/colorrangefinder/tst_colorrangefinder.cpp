#include <kes/qt/colorrangefinder/colorbox.h>
#include <kes/qt/colorrangefinder/dialog.h>
#include <kes/qt/colorrangefinder/spinboxgroup.h>
#include <kes/qt/gui/widgets/imageview.h>
#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFileInfo>
#include <QGroupBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QWindow>
#include <QtTest>

#include <cstring>

using kes::core::IntVector;
using kes::core::image::Image;
using kes::core::image::ImageInfo;
using kes::qt::colorrangefinder::ColorBox;
using kes::qt::colorrangefinder::Dialog;
using kes::qt::gui::widgets::ImageView;

namespace {

// 64 x 48 pixels: pure red on the left half; on the right half dark green above and a dim,
// pale blue below.
Image testImage()
{
    Image image(ImageInfo(64, 48, 3, 1, kes::core::image::Bgr));
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 64; ++x) {
            const std::uint8_t red[3] = {0, 0, 255}, green[3] = {0, 128, 0}, blue[3] = {120, 100, 100};
            const std::uint8_t* pixel = x < 32 ? red : (y < 24 ? green : blue);
            std::memcpy(image.data() + std::size_t(y) * image.step() + std::size_t(x) * 3, pixel, 3);
        }
    }
    return image;
}

using Ranges = QVector<int>;

Ranges asRanges(const IntVector& values)
{
    return Ranges(values.begin(), values.end());
}

struct Shown
{
    Shown()
    {
        dialog.resize(700, 520);
        dialog.show();
        dialog.setImage(testImage());
    }
    QPoint windowPos(double imageX, double imageY) const
    {
        const QRect r = view()->imageRect();
        return view()->mapTo(&dialog, QPoint(r.left() + int(imageX * r.width() / 64.0),
                                              r.top() + int(imageY * r.height() / 48.0)));
    }
    ImageView* view() const { return dialog.findChild<ImageView*>(QStringLiteral("imageView")); }
    QPushButton* button(const char* name) const { return dialog.findChild<QPushButton*>(QLatin1String(name)); }
    Dialog dialog;
};

} // namespace

class TstColorRangeFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSettings().setValue(QStringLiteral("language"), QStringLiteral("en"));
        QVERIFY(kes::qt::translation::Manager::singleton().load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
    }

    void dragMeasuresTheRegion_data()
    {
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<Ranges>("ranges");
        QTest::newRow("pure red") << QPointF(4, 4) << QPointF(20, 40) << Ranges{0, 0, 100, 100, 100, 100};
        // Green: hue 85 of 255, value 128 of 255, rounded outwards.
        QTest::newRow("red and dark green") << QPointF(20, 4) << QPointF(50, 16) << Ranges{0, 120, 100, 100, 50, 100};
        // Pale blue (blue 120, green and red 100): hue 240 exactly, saturation 42 and value 120 of 255.
        QTest::newRow("pale blue") << QPointF(40, 30) << QPointF(60, 44) << Ranges{240, 240, 16, 17, 47, 48};
    }

    void dragMeasuresTheRegion()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(Ranges, ranges);
        Shown shown;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.dialog));
        QSignalSpy changed(&shown.dialog, SIGNAL(valuesChanged()));
        QWindow* window = shown.dialog.windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, shown.windowPos(from.x(), from.y()));
        QTest::mouseMove(window, shown.windowPos(to.x(), to.y()));
        QTest::mouseRelease(window, Qt::LeftButton, {}, shown.windowPos(to.x(), to.y()));
        QCOMPARE(asRanges(shown.dialog.ranges()), ranges);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(shown.view()->roi(), kes::core::Roi()); // the selection is consumed
        // The same values again change nothing.
        shown.dialog.setRanges(IntVector(ranges.begin(), ranges.end()));
        QCOMPARE(changed.count(), 1);
    }

    void setRangesEmitsOncePerChange()
    {
        Dialog dialog;
        QSignalSpy changed(&dialog, SIGNAL(valuesChanged()));
        dialog.setRanges(10, 20, 30, 40, 50, 60);
        QCOMPARE(changed.count(), 1);
        dialog.setRanges(10, 20, 30, 40, 50, 60);
        dialog.setRanges(IntVector{1, 2, 3});
        QCOMPARE(changed.count(), 1);
        dialog.setRanges(10, 20, 30, 40, 50, 61);
        QCOMPARE(changed.count(), 2);
        dialog.setRanges(-5, 400, 0, 250, 0, 100); // clamped by the boxes
        QCOMPARE(asRanges(dialog.ranges()), (Ranges{0, 360, 0, 100, 0, 100}));
    }

    void clipboard_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Ranges>("ranges");
        const Ranges before{0, 360, 0, 100, 0, 100};
        QTest::newRow("six values") << QStringLiteral("(10 20 30 40 50 60)") << Ranges{10, 20, 30, 40, 50, 60};
        QTest::newRow("extra blanks") << QStringLiteral(" ( 1 2 3 4 5 6 ) ") << Ranges{1, 2, 3, 4, 5, 6};
        QTest::newRow("three values") << QStringLiteral("(1 2 3)") << before;
        QTest::newRow("seven values") << QStringLiteral("(1 2 3 4 5 6 7)") << before;
        QTest::newRow("a word") << QStringLiteral("reddish") << before;
        QTest::newRow("no parentheses") << QStringLiteral("10 20 30 40 50 60") << before;
        QTest::newRow("empty") << QString() << before;
    }

    void clipboard()
    {
        QFETCH(QString, text);
        QFETCH(Ranges, ranges);
        Shown shown;
        shown.dialog.setRanges(0, 360, 0, 100, 0, 100);
        QTest::mouseClick(shown.button("copy"), Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("(0 360 0 100 0 100)"));
        QSignalSpy changed(&shown.dialog, SIGNAL(valuesChanged()));
        QApplication::clipboard()->setText(text);
        QTest::mouseClick(shown.button("paste"), Qt::LeftButton);
        QCOMPARE(asRanges(shown.dialog.ranges()), ranges);
        QCOMPARE(changed.count(), (ranges == Ranges{0, 360, 0, 100, 0, 100} ? 0 : 1));
    }

    void swatches_data()
    {
        QTest::addColumn<Ranges>("ranges");
        QTest::addColumn<QVector<int>>("values"); // the label of each swatch
        QTest::addColumn<QColor>("left");          // colours at the swatch's left and right edges
        QTest::addColumn<QColor>("right");
        QTest::newRow("one value") << Ranges{0, 0, 100, 100, 60, 60} << QVector<int>{60}
                                   << QColor::fromHsv(0, 100, 153) << QColor::fromHsv(0, 100, 153);
        QTest::newRow("two values, both at the lower") << Ranges{120, 120, 50, 50, 60, 61} << QVector<int>{60, 60}
                                                       << QColor::fromHsv(120, 50, 153) << QColor::fromHsv(120, 50, 153);
        QTest::newRow("three values, the top one full") << Ranges{200, 240, 100, 100, 20, 100}
                                                        << QVector<int>{20, 60, 100} << QColor::fromHsv(200, 100, 51)
                                                        << QColor::fromHsv(240, 100, 51);
        QTest::newRow("hue wrapping over 0") << Ranges{350, 10, 100, 100, 100, 100} << QVector<int>{100}
                                             << QColor::fromHsv(350, 100, 255) << QColor::fromHsv(10, 100, 255);
    }

    void swatches()
    {
        QFETCH(Ranges, ranges);
        QFETCH(QVector<int>, values);
        QFETCH(QColor, left);
        QFETCH(QColor, right);
        ColorBox box;
        box.updateColors(IntVector(ranges.begin(), ranges.end()));
        QCOMPARE(box.count(), values.size());
        for (int i = 0; i < box.count(); ++i) {
            const QImage icon = box.item(i)->icon().pixmap(150, 130).toImage();
            QCOMPARE(icon.size(), QSize(150, 130));
            QCOMPARE(icon.pixelColor(0, 0), QColor(Qt::lightGray));
            // The swatch fills (44, 17) to (143, 116); its edges hold the range's first and last hue.
            const QColor shownLeft = icon.pixelColor(44, 20);
            const QColor shownRight = icon.pixelColor(143, 20);
            if (i == 0) {
                QVERIFY2(qAbs(shownLeft.hue() - left.hue()) <= 2 && qAbs(shownLeft.value() - left.value()) <= 2,
                         qPrintable(shownLeft.name()));
                QVERIFY2(qAbs(shownRight.hue() - right.hue()) <= 2, qPrintable(shownRight.name()));
            }
        }
        // The middle of a 350-to-10 swatch, 21 hues wide, is hue 0; a non-wrapping one is nothing.
        if (ranges[0] > ranges[1])
            QCOMPARE(box.item(0)->icon().pixmap(150, 130).toImage().pixelColor(94, 60).hue(), 0);
        box.updateColors(IntVector{0, 10, 0, 10});
        QCOMPARE(box.count(), 0);
    }

    void rangeModifiersCanBeDisabled()
    {
        Shown shown;
        shown.dialog.setRangeModifiersEnabled(false);
        QVERIFY(shown.button("copy")->isEnabled());
        QVERIFY(!shown.button("paste")->isEnabled());
        QVERIFY(!shown.dialog.findChild<QWidget*>(QStringLiteral("spinBoxGroup"))->isEnabled());
        QVERIFY(!shown.view()->isRoiSelectionEnabled());
        shown.dialog.setRangeModifiersEnabled(true);
        QVERIFY(shown.button("paste")->isEnabled());
        QVERIFY(shown.view()->isRoiSelectionEnabled());
    }

    void showResultAndFreeze()
    {
        Shown shown;
        Image result(ImageInfo(64, 48, 1, 1, kes::core::image::Grey));
        shown.dialog.setResultImage(result);
        QCOMPARE(shown.view()->image().info().format, kes::core::image::Bgr);
        auto* showResult = shown.dialog.findChild<QCheckBox*>(QStringLiteral("showResult"));
        showResult->setChecked(true);
        QCOMPARE(shown.view()->image().info().format, kes::core::image::Grey);
        QVERIFY(!shown.view()->isRoiSelectionEnabled());
        shown.dialog.findChild<QCheckBox*>(QStringLiteral("freezeImage"))->setChecked(true);
        QVERIFY(shown.view()->isImageFrozen());
        shown.dialog.setResultImage(Image());
        QCOMPARE(shown.view()->image().info().format, kes::core::image::Grey);
        showResult->setChecked(false);
        QVERIFY(shown.view()->isRoiSelectionEnabled());
    }

    void translates_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("German") << "de" << QStringList{"Ergebnis zeigen", "Bild einfrieren", "Farbton"};
        QTest::newRow("French") << "fr" << QStringList{"Afficher le résultat", "Figer l'image", "Teinte"};
        QTest::newRow("Spanish") << "es" << QStringList{"Mostrar resultado", "Congelar imagen", "Tono"};
    }

    void translates()
    {
        QFETCH(QString, language);
        Dialog dialog;
        kes::qt::translation::Manager::singleton().setLanguage(language);
        const QStringList texts{dialog.findChild<QCheckBox*>(QStringLiteral("showResult"))->text(),
                                dialog.findChild<QCheckBox*>(QStringLiteral("freezeImage"))->text(),
                                dialog.findChild<QGroupBox*>(QStringLiteral("hue"))->title()};
        kes::qt::translation::Manager::singleton().setLanguage(QStringLiteral("en"));
        QTEST(texts, "texts");
        QCOMPARE(dialog.findChild<QCheckBox*>(QStringLiteral("showResult"))->text(), QStringLiteral("Show result"));
    }
};

KES_TEST_MAIN(TstColorRangeFinder)
#include "tst_colorrangefinder.moc"
