#ifndef KES_QT_CONVERT_H
#define KES_QT_CONVERT_H

#include <kes/core/color.h>
#include <kes/core/image/image.h>
#include <kes/core/list.h>
#include <kes/qt/kes_qt_export.h>

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QString>
#include <QStringList>

class QWidget;

/// Conversions between the core library's value types and Qt's, and a few small utilities.
namespace kes::qt {

/// The core image as a QImage::Format_RGB32 image of the same size, or a null QImage.
///
/// Format 3 is copied as it is (its bytes already are blue, green, red). Otherwise, with
/// \a useColorConversion, the image goes through kes::cv::convert to blue-green-red first; without
/// it, format 4 is shown as grey and every other format is read as three bytes red, green, blue
/// per pixel, so that a blue-green-red image (format 2) shows red and blue exchanged. The
/// image's own channel count is not consulted on that path, but its row stride is: an image
/// whose rows are too short for the bytes its format needs gives a null QImage.
KES_QT_EXPORT QImage convert(const kes::core::image::Image& image, bool useColorConversion);
/// The Qt image as a three-channel 8-bit blue-green-red core image (format 2), alpha dropped; a
/// null core image for a null or empty QImage.
KES_QT_EXPORT kes::core::image::Image convert(const QImage& image);
/// The colour, always opaque: the alpha byte is dropped.
KES_QT_EXPORT QColor convert(const kes::core::Color& color);
/// The colour's rgba() value, alpha kept.
KES_QT_EXPORT kes::core::Color convert(const QColor& color);
/// Each element decoded as UTF-8, order kept.
KES_QT_EXPORT QStringList convert(const kes::core::StringList& list);
/// Each element encoded as UTF-8, order kept.
KES_QT_EXPORT kes::core::StringList convert(const QStringList& list);

/// The running Qt version packed as 0xMMmmpp (5.15.2 gives 0x050f02). Cached after the first
/// call; GUI thread only.
KES_QT_EXPORT int qtVersion();

// Plain pass-throughs on this platform: what they store is plain UTF-8 and the key is not used.
/// \a text as UTF-8 bytes: stored settings stay readable on this platform.
KES_QT_EXPORT QByteArray encryptString(const QString& text, const QByteArray& key);
/// \a data unchanged.
KES_QT_EXPORT QByteArray encryptString(const QByteArray& data, const QByteArray& key);
/// \a data decoded as UTF-8.
KES_QT_EXPORT QString decryptString(const QByteArray& data, const QByteArray& key);
/// \a data unchanged.
KES_QT_EXPORT QByteArray decryptStringToUtf8(const QByteArray& data, const QByteArray& key);

/// Does nothing on this platform; callers must not rely on it.
KES_QT_EXPORT void setWindowCloseButtonEnabled(QWidget* window, bool enabled);

} // namespace kes::qt

#endif
