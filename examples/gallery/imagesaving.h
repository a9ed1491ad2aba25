#ifndef KES_GALLERY_IMAGESAVING_H
#define KES_GALLERY_IMAGESAVING_H

#include <QImage>
#include <QString>

class QWidget;

namespace kes::gallery {

/// Asks for a file name, then for the options the chosen format supports (the library's image
/// export dialog), and writes \a image. Returns a line for the page's status: where the image
/// went, why it did not, or nothing when the user cancelled.
QString saveImage(QWidget* parent, const QImage& image, const QString& baseName);

} // namespace kes::gallery

#endif
