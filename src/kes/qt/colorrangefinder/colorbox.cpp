#include <kes/qt/colorrangefinder/colorbox.h>

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QListWidgetItem>
#include <QPainter>

#include <algorithm>

namespace kes::qt::colorrangefinder {

namespace {

bool isSane(const kes::core::IntVector& r)
{
    if (r.size() != 6)
        return false;
    const auto within = [](int v, int hi) { return v >= 0 && v <= hi; };
    return within(r[0], 360) && within(r[1], 360) && within(r[2], 255) && within(r[3], 255) && within(r[4], 255)
           && within(r[5], 255);
}

// One swatch: hue hMin + x across, saturation sMin + y down, at one value. The saturation
// percentages go to the 0-to-255 HSV scale unscaled, and hues past 359 from a wrapping range are
// left for QColor::setHsv to take modulo 360, both as the swatches have always been drawn.
QPixmap swatch(int hMin, int width, int sMin, int height, int value8)
{
    if (width < 1 || height < 1)
        return QPixmap();
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        const int s = std::min(sMin + y, 255);
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        QColor color;
        for (int x = 0; x < width; ++x) {
            color.setHsv(hMin + x, s, value8, 255); // unlike fromHsv, takes hues past 359
            line[x] = color.rgb();
        }
    }
    return QPixmap::fromImage(image);
}

} // namespace

// Empty for now; it keeps the class's size when the box gains state.
struct ColorBoxPrivate
{
};

ColorBox::ColorBox(QWidget* parent)
    : QListWidget(parent)
    , d(std::make_unique<ColorBoxPrivate>())
{
    setIconSize(QSize(150, 130));
    setFixedWidth(180);
}

ColorBox::~ColorBox() = default;

void ColorBox::updateColors(const kes::core::IntVector& ranges)
{
    clear();
    if (!isSane(ranges))
        return;
    const int hMin = ranges[0], hMax = ranges[1], sMin = ranges[2], sMax = ranges[3], vMin = ranges[4],
              vMax = ranges[5];
    const int width = hMax - hMin + 1 + (hMin > hMax ? 360 : 0);
    const int height = sMax - sMin + 1;
    const int count = std::min(vMax - vMin + 1, 3);
    for (int i = 0; i < count; ++i) {
        int v = vMin + (i * (vMax - vMin)) / 2;
        int value8 = 0;
        if (v > 99) {
            v = 100;
            value8 = 255;
        } else {
            value8 = v * 255 / 100;
        }
        const QPixmap pixmap = swatch(hMin, width, sMin, height, value8);
        if (pixmap.isNull())
            break;
        auto* item = new QListWidgetItem(this);
        item->setData(Qt::DecorationRole, QIcon(labeledPixmap(pixmap, v, ranges)));
    }
}

QPixmap ColorBox::labeledPixmap(const QPixmap& swatch, int value, const kes::core::IntVector& ranges)
{
    QPixmap pixmap(150, 130);
    pixmap.fill(Qt::lightGray);
    QPainter painter(&pixmap);
    painter.drawPixmap(QRect(44, 17, 100, 100),
                       swatch.scaled(100, 100, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    if (ranges.size() == 6) {
        painter.drawText(QPoint(44, 13), QStringLiteral("h=%1").arg(ranges[0]));
        painter.drawText(QPoint(110, 13), QStringLiteral("h=%1").arg(ranges[1]));
        painter.drawText(QPoint(6, 26), QStringLiteral("s=%1").arg(ranges[2]));
        painter.drawText(QPoint(6, 117), QStringLiteral("s=%1").arg(ranges[3]));
    }
    painter.drawText(QPoint(71, 128), QStringLiteral("v=%1").arg(value));
    return pixmap;
}

} // namespace kes::qt::colorrangefinder
