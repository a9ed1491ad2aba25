// The image export dialog: enabled states per format, settings, and real writers set up by it.
#include <kes/qt/exportdialogs/imgexportdialog.h>
#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QImageWriter>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

using kes::qt::exportdialogs::ImgExportDialog;

namespace {

// What the user does in the dialog; it ends with a click on OK or Cancel.
using Answer = std::function<void(ImgExportDialog*)>;

template <typename T>
T* child(QWidget* dialog, const char* name)
{
    return dialog->findChild<T*>(QLatin1String(name));
}

void click(ImgExportDialog* dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(child<QDialogButtonBox>(dialog, "buttons")->button(which), Qt::LeftButton);
}

void typeQuality(ImgExportDialog* dialog, int quality)
{
    auto* spin = child<QSpinBox>(dialog, "qualitySpinBox");
    QTest::keyClick(spin, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(spin, QString::number(quality));
}

void check(QWidget* dialog, const char* box)
{
    QTest::keyClick(child<QCheckBox>(dialog, box), Qt::Key_Space);
}

// Answers the modal dialog that setupWriter() is about to open; \a shown tells whether it came.
void answerNextDialog(const Answer& answer, bool* shown)
{
    *shown = false;
    auto* poll = new QTimer;
    poll->setInterval(10);
    QObject::connect(poll, &QTimer::timeout, [=] {
        auto* dialog = qobject_cast<ImgExportDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        poll->deleteLater();
        poll->stop();
        *shown = true;
        answer(dialog);
    });
    poll->start();
}

QImage picture()
{
    QImage image(160, 120, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb((x * 7) ^ (y * 3), (x * y) & 255, (x + y * 5) & 255));
    }
    return image;
}

QString settingsKey(const char* key)
{
    return QStringLiteral("Export/ProgramToImage/") + QLatin1String(key);
}

} // namespace

Q_DECLARE_METATYPE(Answer)

class TstImgExportDialog : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

private Q_SLOTS:
    void init()
    {
        QSettings().clear();
        QVERIFY(m_dir.isValid());
    }

    void writers_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<bool>("dialog");
        QTest::addColumn<bool>("qualityEnabled");
        QTest::addColumn<bool>("compressionEnabled");
        QTest::addColumn<int>("quality");      // the writer's afterwards
        QTest::addColumn<int>("compression");  // the writer's afterwards; -1 where unsupported
        const Answer ok = [](ImgExportDialog* d) { click(d, QDialogButtonBox::Ok); };
        // Qt's PNG writer takes both: a quality and a compression level.
        QTest::newRow("png, custom quality off") << QByteArray("png") << ok << true << true << true << -1 << 0;
        QTest::newRow("jpeg, quality 35") << QByteArray("jpeg") << Answer([](ImgExportDialog* d) {
            check(d, "customQuality");
            typeQuality(d, 35);
            click(d, QDialogButtonBox::Ok);
        }) << true << true << false << 35 << -1;
        QTest::newRow("tiff, compression") << QByteArray("tiff") << Answer([](ImgExportDialog* d) {
            check(d, "compression");
            click(d, QDialogButtonBox::Ok);
        }) << true << false << true << -1 << 1;
        QTest::newRow("tiff, no compression") << QByteArray("tiff") << ok << true << false << true << -1 << 0;
        QTest::newRow("bmp, nothing to ask") << QByteArray("bmp") << Answer() << false << false << false << -1 << -1;
    }

    void writers()
    {
        QFETCH(QByteArray, format);
        QFETCH(Answer, answer);
        QFETCH(bool, dialog);
        QFETCH(bool, qualityEnabled);
        QFETCH(bool, compressionEnabled);
        QFETCH(int, quality);
        QFETCH(int, compression);
        QVERIFY2(QImageWriter::supportedImageFormats().contains(format), format.constData());
        const QString path = m_dir.filePath(QStringLiteral("picture.") + QLatin1String(format));
        QImageWriter writer(path, format);
        bool shown = false;
        bool enabled[2] = {false, false};
        if (answer) {
            answerNextDialog([&](ImgExportDialog* d) {
                enabled[0] = child<QCheckBox>(d, "customQuality")->isEnabled();
                enabled[1] = child<QCheckBox>(d, "compression")->isEnabled();
                answer(d);
            }, &shown);
        }
        QVERIFY(ImgExportDialog::setupWriter(&writer));
        QCOMPARE(shown, dialog);
        QCOMPARE(enabled[0], qualityEnabled);
        QCOMPARE(enabled[1], compressionEnabled);
        QCOMPARE(writer.quality(), quality);
        QCOMPARE(writer.compression(), compression);
        QVERIFY2(writer.write(picture()), qPrintable(writer.errorString()));
        QCOMPARE(QImage(path).size(), picture().size());
        QCOMPARE(QSettings().contains(settingsKey("windowPosition")), dialog);
    }

    void noWriter()
    {
        QVERIFY(!ImgExportDialog::setupWriter(nullptr));
    }

    void cancelStoresNothing()
    {
        QImageWriter writer(m_dir.filePath(QStringLiteral("cancelled.jpg")));
        writer.setQuality(80);
        bool shown = false;
        answerNextDialog([](ImgExportDialog* d) {
            check(d, "customQuality");
            typeQuality(d, 12);
            click(d, QDialogButtonBox::Cancel);
        }, &shown);
        QVERIFY(!ImgExportDialog::setupWriter(&writer));
        QVERIFY(shown);
        QCOMPARE(writer.quality(), 80);
        QVERIFY(QSettings().allKeys().isEmpty());
    }

    // OK stores only what the format let the user choose; the next dialog starts from it, where
    // the last one was.
    void okStoresEnabledChoices()
    {
        QSettings settings;
        {
            ImgExportDialog dialog(true, false);
            dialog.move(140, 90);
            dialog.show();
            check(&dialog, "customQuality");
            typeQuality(&dialog, 42);
            QCOMPARE(child<QSlider>(&dialog, "qualitySlider")->value(), 42);
            QCOMPARE(dialog.quality(), 42);
            click(&dialog, QDialogButtonBox::Ok);
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        }
        QCOMPARE(settings.value(settingsKey("quality")).toInt(), 42);
        QVERIFY(!settings.contains(settingsKey("compression")));
        {
            // Compression only: the quality controls are off and at 0, and keep the stored choice.
            ImgExportDialog dialog(false, true);
            QCOMPARE(dialog.pos(), QPoint(140, 90));
            QCOMPARE(dialog.quality(), -1);
            QCOMPARE(child<QSpinBox>(&dialog, "qualitySpinBox")->value(), 0);
            QVERIFY(!child<QSpinBox>(&dialog, "qualitySpinBox")->isEnabled());
            dialog.show();
            check(&dialog, "compression");
            click(&dialog, QDialogButtonBox::Ok);
        }
        ImgExportDialog again(true, true);
        QCOMPARE(again.quality(), 42);
        QCOMPARE(again.compression(), 1);
        QVERIFY(child<QSlider>(&again, "qualitySlider")->isEnabled());
    }

    void jpegQualityChangesTheFile()
    {
        qint64 sizes[2] = {0, 0};
        const int qualities[2] = {10, 90};
        for (int i = 0; i < 2; ++i) {
            const QString path = m_dir.filePath(QStringLiteral("q%1.jpg").arg(qualities[i]));
            QImageWriter writer(path);
            bool shown = false;
            const int q = qualities[i];
            answerNextDialog([q](ImgExportDialog* d) {
                if (!child<QCheckBox>(d, "customQuality")->isChecked())
                    check(d, "customQuality");
                typeQuality(d, q);
                click(d, QDialogButtonBox::Ok);
            }, &shown);
            QVERIFY(ImgExportDialog::setupWriter(&writer));
            QCOMPARE(writer.quality(), q);
            QVERIFY(writer.write(picture()));
            sizes[i] = QFileInfo(path).size();
        }
        QVERIFY2(sizes[0] * 2 < sizes[1], qPrintable(QStringLiteral("%1 and %2 bytes").arg(sizes[0]).arg(sizes[1])));
    }

    void translated_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("compression");
        QTest::newRow("de") << "de" << "Bildexport" << "Komprimierung aktivieren";
        QTest::newRow("fr") << "fr" << "Exportation d'image" << "Activer la compression";
        QTest::newRow("es") << "es" << "Exportar imagen" << "Activar compresión";
        QTest::newRow("en") << "en" << "Image export" << "Enable compression";
    }

    void translated()
    {
        QFETCH(QString, language);
        QFETCH(QString, title);
        QFETCH(QString, compression);
        auto& manager = kes::qt::translation::Manager::singleton();
        QSettings().setValue(QStringLiteral("language"), QStringLiteral("en"));
        QVERIFY(manager.load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
        ImgExportDialog dialog(true, true);
        manager.setLanguage(language);
        QCOMPARE(dialog.windowTitle(), title);
        QCOMPARE(child<QCheckBox>(&dialog, "compression")->text(), compression);
        manager.setLanguage(QStringLiteral("en"));
    }
};

KES_TEST_MAIN(TstImgExportDialog)
#include "tst_imgexportdialog.moc"
