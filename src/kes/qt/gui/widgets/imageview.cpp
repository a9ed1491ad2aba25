#include <kes/qt/gui/widgets/imageview.h>

#include <kes/core/image/overlay.h>
#include <kes/qt/convert.h>

#include <QBrush>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QRubberBand>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace kes::qt::gui::widgets {

using kes::core::Roi;
using kes::core::image::Image;
using kes::core::image::Segment;

class ImageViewPrivate
{
public:
    QPoint rubberBandOrigin;
    QRubberBand* rubberBand = nullptr;
    Roi roi;
    Image coreImage;
    QImage image;       ///< full size, overlays painted on it
    QImage scaledImage; ///< image scaled to the widget
    QPoint imageOffset; ///< never changed: the picture sits at the top-left corner
    QRect imageRect;
    bool overlayDrawingEnabled = false;
    bool segmentDrawingEnabled = false;
    int segmentIndex = -1;
    bool showImageEnabled = true;
    bool freezeImage = false;
    bool roiSelectionEnabled = false;
    int highlightedSegment = -1;
    bool colorConversionEnabled = true;
};

namespace {

QPen pen(const QColor& color, int width)
{
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

// Truncated toward zero and kept within int, so that bad coordinates cannot overflow.
int toInt(double value)
{
    if (!(value > double(std::numeric_limits<int>::min())))
        return value != value ? 0 : std::numeric_limits<int>::min();
    if (!(value < double(std::numeric_limits<int>::max())))
        return std::numeric_limits<int>::max();
    return int(value);
}

} // namespace

ImageView::ImageView(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<ImageViewPrivate>())
{
    qRegisterMetaType<kes::core::Roi>("kes::core::Roi");
    d->rubberBand = new QRubberBand(QRubberBand::Rectangle, this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

ImageView::~ImageView() = default;

void ImageView::setImage(const Image& image, bool updateNow)
{
    if (d->freezeImage)
        return;
    d->coreImage = image;
    if (isVisible() && updateNow) {
        updateImage();
        repaint();
    }
}

Image ImageView::image() const
{
    return d->coreImage;
}

void ImageView::setFreezeImage(bool freeze)
{
    if (freeze == d->freezeImage)
        return;
    if (!freeze) {
        d->freezeImage = false;
        updateImage();
        update();
    }
    d->freezeImage = freeze;
}

bool ImageView::isImageFrozen() const
{
    return d->freezeImage;
}

void ImageView::setShowImageEnabled(bool enabled)
{
    d->showImageEnabled = enabled;
    updateImage();
    update();
}

void ImageView::setColorConversionEnabled(bool enabled)
{
    d->colorConversionEnabled = enabled;
    updateImage();
    update();
}

void ImageView::setHighlightedSegment(int id)
{
    d->highlightedSegment = id;
    updateImage();
    update();
}

void ImageView::setSegmentDrawingEnabled(bool enabled, int segmentIndex)
{
    d->segmentDrawingEnabled = enabled;
    d->segmentIndex = segmentIndex;
    updateImage();
    update();
}

int ImageView::segmentIndex() const
{
    return d->segmentIndex;
}

void ImageView::setOverlayDrawingEnabled(bool enabled)
{
    d->overlayDrawingEnabled = enabled;
    updateImage();
    update();
}

bool ImageView::overlayDrawingEnabled() const
{
    return d->overlayDrawingEnabled;
}

void ImageView::setRoiSelectionEnabled(bool enabled)
{
    d->roiSelectionEnabled = enabled;
    d->rubberBand->setVisible(enabled);
}

bool ImageView::isRoiSelectionEnabled() const
{
    return d->roiSelectionEnabled;
}

void ImageView::setRoi(const Roi& roi)
{
    d->roi = roi;
    updateRubberBand();
    Q_EMIT roiChanged(roi);
}

void ImageView::clearRoi()
{
    d->roi = Roi();
    d->rubberBand->hide();
    updateRubberBand();
}

Roi ImageView::roi() const
{
    return d->roi;
}

QRect ImageView::imageRect() const
{
    return d->imageRect;
}

QSize ImageView::sizeHint() const
{
    return QSize(320, 240);
}

void ImageView::updateImage()
{
    if (d->coreImage.isNull()) {
        d->image = QImage();
        d->rubberBand->hide();
        updateScaledImage();
        return;
    }
    if (d->roiSelectionEnabled)
        d->rubberBand->show();

    if (d->showImageEnabled) {
        d->image = convert(d->coreImage, d->colorConversionEnabled);
    } else {
        d->image = QImage(d->coreImage.info().width, d->coreImage.info().height, QImage::Format_RGB32);
        d->image.fill(0xFFFFFFFFu);
    }
    // A layout the conversion refuses, or a size too large to allocate, shows nothing.
    if (d->image.isNull()) {
        updateScaledImage();
        return;
    }

    if (d->overlayDrawingEnabled) {
        const auto lines = kes::core::image::getLines(d->coreImage);
        if (!lines.empty()) {
            QPainter painter(&d->image);
            for (const auto& line : lines) {
                painter.setPen(pen(convert(line.color), 4));
                painter.drawLine(QPointF(line.p1.x, line.p1.y), QPointF(line.p2.x, line.p2.y));
            }
        }
        const auto points = kes::core::image::getPoints(d->coreImage);
        if (!points.empty()) {
            QPainter painter(&d->image);
            for (const auto& point : points) {
                painter.setPen(pen(convert(point.color), 6));
                painter.drawPoint(QPointF(point.x, point.y));
            }
        }
        bool ok = false;
        const auto circles = kes::core::image::getCircles(d->coreImage, &ok);
        if (!circles.empty()) {
            QPainter painter(&d->image);
            for (const auto& circle : circles) {
                painter.setPen(pen(convert(circle.color), 6));
                // The bounding rectangle in single precision, as the detectors deliver circles.
                const float left = circle.x - circle.radius;
                const float top = circle.y - circle.radius;
                const float size = 2.0f * circle.radius;
                painter.drawEllipse(QRect(toInt(left), toInt(top), toInt(size), toInt(size)));
            }
        }
    }

    if (d->segmentDrawingEnabled) {
        const auto segments = kes::core::image::getSegmentList(d->coreImage);
        QPainter painter(&d->image);
        if (d->segmentIndex == -1) {
            // All outlines first, so that no outline covers a cross.
            for (const Segment& segment : segments)
                drawSegment(&painter, segment);
            for (const Segment& segment : segments)
                drawCross(&painter, segment);
        } else {
            const bool inList = d->segmentIndex >= 0 && std::size_t(d->segmentIndex) < segments.size();
            const Segment segment = inList ? segments[std::size_t(d->segmentIndex)] : Segment();
            if (segment.count != 0) {
                drawSegment(&painter, segment);
                drawCross(&painter, segment);
            }
        }
    }
    updateScaledImage();
}

void ImageView::updateScaledImage()
{
    if (d->image.isNull()) {
        d->scaledImage = QImage();
        return;
    }
    d->scaledImage = d->image.scaled(size(), Qt::KeepAspectRatio, Qt::FastTransformation);
    const QRect rect(d->imageOffset, d->scaledImage.size());
    if (rect == d->imageRect)
        return;
    const QRect oldRect = d->imageRect;
    d->imageRect = rect;
    Q_EMIT imageRectChanged(oldRect);
    if (d->roiSelectionEnabled)
        updateRubberBand();
}

void ImageView::updateRubberBand()
{
    if (d->image.isNull() || d->image.width() == 0 || d->image.height() == 0)
        return;
    const double sx = double(d->imageRect.width()) / d->image.width();
    const double sy = double(d->imageRect.height()) / d->image.height();
    d->rubberBand->setGeometry(toInt(d->roi.x * sx), toInt(d->roi.y * sy), toInt(d->roi.width * sx),
                               toInt(d->roi.height * sy));
}

void ImageView::drawSegment(QPainter* painter, const Segment& segment)
{
    painter->setPen(pen(convert(segment.color), 1));
    for (const auto& line : segment.lines)
        painter->drawLine(QPointF(line.p1.x, line.p1.y), QPointF(line.p2.x, line.p2.y));
}

void ImageView::drawCross(QPainter* painter, const Segment& segment)
{
    const int x = segment.centerX;
    const int y = segment.centerY;
    // A centre off the picture has no pixel to contrast with.
    if (!d->image.valid(x, y))
        return;
    const QRgb pixel = d->image.pixel(x, y);
    const QColor color(qRed(pixel) < 127 ? 255 : 0, qGreen(pixel) < 127 ? 255 : 0, qBlue(pixel) < 127 ? 255 : 0);
    const bool highlighted = segment.id == d->highlightedSegment;
    const int half = highlighted ? 5 : 3;
    painter->setPen(pen(color, highlighted ? 3 : 1));
    painter->drawLine(x - half, y, x + half, y);
    painter->drawLine(x, y - half, x, y + half);
}

void ImageView::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    if (d->scaledImage.isNull())
        painter.eraseRect(rect());
    else
        painter.drawImage(d->imageOffset, d->scaledImage);
}

void ImageView::mousePressEvent(QMouseEvent* event)
{
    if (!d->roiSelectionEnabled || d->coreImage.isNull())
        return;
    // Deliberately not limited to the picture: a drag may start beside it.
    d->rubberBandOrigin = event->localPos().toPoint();
    d->rubberBand->setGeometry(QRect(d->rubberBandOrigin, QSize()));
    d->rubberBand->show();
}

void ImageView::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->roiSelectionEnabled)
        return;
    const QPoint pos = event->localPos().toPoint();
    const QRect& r = d->imageRect;
    const QPoint clamped(std::clamp(pos.x(), r.left(), std::max(r.left(), r.right())),
                         std::clamp(pos.y(), r.top(), std::max(r.top(), r.bottom())));
    d->rubberBand->setGeometry(QRect(d->rubberBandOrigin, clamped).normalized());
}

void ImageView::mouseReleaseEvent(QMouseEvent* event)
{
    Q_UNUSED(event)
    if (!d->roiSelectionEnabled || d->image.isNull() || d->imageRect.isEmpty())
        return;
    const double sx = double(d->imageRect.width()) / d->image.width();
    const double sy = double(d->imageRect.height()) / d->image.height();
    const QRect band = d->rubberBand->geometry();
    Roi roi;
    roi.x = toInt((band.x() - d->imageRect.left()) / sx);
    roi.y = toInt((band.y() - d->imageRect.top()) / sy);
    roi.width = std::uint32_t(std::max(toInt(band.width() / sx), 0));
    roi.height = std::uint32_t(std::max(toInt(band.height() / sy), 0));
    d->roi = roi;
    Q_EMIT roiChanged(roi);
}

void ImageView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateScaledImage();
}

void ImageView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!d->freezeImage)
        updateImage();
}

} // namespace kes::qt::gui::widgets
