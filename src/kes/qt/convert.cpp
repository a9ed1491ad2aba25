#include <kes/qt/convert.h>

#include <kes/cv/convert.h>
#include <kes/cv/pixels.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace kes::qt {

using kes::core::image::Image;
using kes::core::image::ImageInfo;

namespace {

// Bytes per pixel that the display reads for a format, whatever the image's channel count says.
int displayChannels(kes::core::image::Format format)
{
    switch (format) {
    case kes::core::image::Bgra:
        return 4;
    case kes::core::image::Grey:
        return 1;
    default:
        return 3;
    }
}

// Whether every row of the image holds \a channels bytes per pixel. A region starts at its
// column times the image's own pixel size, which may differ from what the format needs.
bool rowsHold(const Image& image, int channels)
{
    if (image.isNull())
        return false;
    const std::size_t start = std::size_t(image.roi().x) * image.pixelBytes();
    return start + std::size_t(image.info().width) * std::size_t(channels) <= image.step();
}

// Destination channels 0 to 3 of a Qt pixel (blue, green, red, pad) from the source channels;
// the pad byte is set to 255 as Format_RGB32 expects.
constexpr int keepOrder[] = {0, 1, 2, kes::cv::pixels::fillChannel};
constexpr int swapRedBlue[] = {2, 1, 0, kes::cv::pixels::fillChannel};
constexpr int greyToAll[] = {0, 0, 0, kes::cv::pixels::fillChannel};

// Bytes of the region's last row that lie inside the image. A caller's buffer may end right after
// the last pixel of the whole image, so where the display reads more bytes per pixel than the
// image's own pixels have, it must stop there in that row.
std::size_t lastRowBytes(const Image& image)
{
    const kes::core::Roi roi = image.roi();
    const std::size_t start = std::size_t(roi.x) * image.pixelBytes();
    const bool bottom = std::int64_t(roi.y) + image.info().height >= image.fullInfo().height;
    const std::size_t end = bottom ? std::size_t(image.fullInfo().width) * image.pixelBytes() : image.step();
    return end > start ? end - start : 0;
}

QImage toQImage(const Image& image, int channels, const int* order)
{
    const ImageInfo& info = image.info();
    QImage result(info.width, info.height, QImage::Format_RGB32);
    if (result.isNull())
        return QImage();
    const std::size_t row = std::size_t(info.width) * std::size_t(channels);
    const std::size_t lastRow = lastRowBytes(image);
    const int direct = row <= lastRow ? info.height : info.height - 1;
    const auto bytesPerLine = std::size_t(result.bytesPerLine());
    if (direct > 0
        && !kes::cv::pixels::copy(image.constData(), image.step(), channels, result.bits(), bytesPerLine, 4,
                                  info.width, direct, order))
        return QImage();
    if (direct < info.height) {
        // The missing bytes read as 0.
        std::vector<std::uint8_t> padded(row, 0);
        std::memcpy(padded.data(), image.constData() + image.step() * std::size_t(direct), lastRow);
        if (!kes::cv::pixels::copy(padded.data(), row, channels, result.scanLine(direct), bytesPerLine, 4,
                                   info.width, 1, order))
            return QImage();
    }
    return result;
}

} // namespace

QImage convert(const Image& image, bool useColorConversion)
{
    if (image.isNull())
        return QImage();
    const ImageInfo& info = image.info();
    // Format 3 is never converted: its bytes are already in Qt's order. Its fourth byte, which
    // the format leaves undefined, is replaced by the opaque pad byte.
    if (info.format == kes::core::image::Bgra) {
        if (!rowsHold(image, 4))
            return QImage();
        return toQImage(image, 4, keepOrder);
    }
    if (useColorConversion) {
        const Image bgr = kes::cv::convert(image, kes::core::image::Bgr);
        if (bgr.isNull())
            return QImage();
        return toQImage(bgr, 3, keepOrder);
    }
    const int channels = displayChannels(info.format);
    if (!rowsHold(image, channels))
        return QImage();
    return toQImage(image, channels, channels == 1 ? greyToAll : swapRedBlue);
}

Image convert(const QImage& image)
{
    if (image.isNull() || image.width() == 0 || image.height() == 0)
        return Image();
    const QImage rgb = image.format() == QImage::Format_RGB32 ? image : image.convertToFormat(QImage::Format_RGB32);
    if (rgb.isNull())
        return Image();
    // Every row is written below, padding aside, which nothing reads.
    Image result(ImageInfo(rgb.width(), rgb.height(), 3, 1, kes::core::image::Bgr),
                 Image::Uninitialized{});
    if (!kes::cv::pixels::copy(rgb.constBits(), std::size_t(rgb.bytesPerLine()), 4, result.data(), result.step(), 3,
                               rgb.width(), rgb.height()))
        return Image();
    return result;
}

QColor convert(const kes::core::Color& color)
{
    return QColor(QRgb(color.argb()));
}

kes::core::Color convert(const QColor& color)
{
    return kes::core::Color(color.rgba());
}

QStringList convert(const kes::core::StringList& list)
{
    QStringList result;
    result.reserve(int(list.size()));
    for (const std::string& text : list)
        result.append(QString::fromUtf8(text.data(), int(text.size())));
    return result;
}

kes::core::StringList convert(const QStringList& list)
{
    kes::core::StringList result;
    for (const QString& text : list) {
        const QByteArray utf8 = text.toUtf8();
        result.append(std::string(utf8.constData(), std::size_t(utf8.size())));
    }
    return result;
}

int qtVersion()
{
    // Unsigned, so that a component spilling over the top bits cannot overflow.
    static unsigned int version = 0;
    if (version != 0)
        return int(version);
    const QStringList parts = QString::fromLatin1(qVersion()).split(QLatin1Char('.'));
    for (int i = 0; i < 3; ++i) {
        version <<= 8;
        if (i < parts.size()) {
            bool ok = false;
            const ushort value = parts.at(i).toUShort(&ok);
            // A component above 255 spills into the next field; kept as it is.
            version |= ok ? value : 0u;
        }
    }
    return int(version);
}

QByteArray encryptString(const QString& text, const QByteArray& key)
{
    Q_UNUSED(key)
    return text.toUtf8();
}

QByteArray encryptString(const QByteArray& data, const QByteArray& key)
{
    Q_UNUSED(key)
    return data;
}

QString decryptString(const QByteArray& data, const QByteArray& key)
{
    Q_UNUSED(key)
    return QString::fromUtf8(data);
}

QByteArray decryptStringToUtf8(const QByteArray& data, const QByteArray& key)
{
    Q_UNUSED(key)
    return data;
}

void setWindowCloseButtonEnabled(QWidget* window, bool enabled)
{
    Q_UNUSED(window)
    Q_UNUSED(enabled)
}

} // namespace kes::qt
