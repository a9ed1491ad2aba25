#include "imagesaving.h"

#include <kes/qt/exportdialogs/imgexportdialog.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageWriter>

namespace kes::gallery {

namespace {

class ImageSaving
{
    Q_DECLARE_TR_FUNCTIONS(kes::gallery::ImageSaving)
};

} // namespace

QString saveImage(QWidget* parent, const QImage& image, const QString& baseName)
{
    if (image.isNull())
        return ImageSaving::tr("There is no picture to save yet.");
    // Only formats the writers installed here can write; TIFF comes with Qt's image format plugins.
    const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
    QStringList filters{ImageSaving::tr("PNG image (*.png)"), ImageSaving::tr("JPEG image (*.jpg *.jpeg)")};
    if (formats.contains("tiff"))
        filters << ImageSaving::tr("TIFF image (*.tif *.tiff)");
    filters << ImageSaving::tr("BMP image (*.bmp)");
    QString fileName = QFileDialog::getSaveFileName(
        parent, ImageSaving::tr("Save as image"), QDir::home().filePath(baseName + QStringLiteral(".png")),
        filters.join(QStringLiteral(";;")));
    if (fileName.isEmpty())
        return QString();
    if (QFileInfo(fileName).suffix().isEmpty())
        fileName += QStringLiteral(".png");

    QImageWriter writer(fileName);
    if (!kes::qt::exportdialogs::ImgExportDialog::setupWriter(&writer, parent))
        return QString();
    if (!writer.write(image)) {
        return ImageSaving::tr("Could not save %1: %2")
            .arg(QDir::toNativeSeparators(fileName), writer.errorString());
    }
    return ImageSaving::tr("Saved %1").arg(QDir::toNativeSeparators(fileName));
}

} // namespace kes::gallery
