#ifndef KES_QT_GUI_WIDGETS_IMAGEVIEW_H
#define KES_QT_GUI_WIDGETS_IMAGEVIEW_H

#include <kes/core/image/image.h>
#include <kes/core/image/segment.h>
#include <kes/core/roi.h>
#include <kes/qt/kes_qt_export.h>

#include <QMetaType>
#include <QRect>
#include <QWidget>

#include <memory>

class QPainter;

namespace kes::qt::gui::widgets {

class ImageViewPrivate;

/// Shows a core image scaled into the widget with its aspect ratio kept, at the top-left corner,
/// with the image's overlays (lines, points, circles) and segments drawn over it on request.
///
/// With ROI selection enabled the user drags a rectangle over the picture; on release it is
/// reported in image pixels by roiChanged(). A frozen view ignores new images; with "show image"
/// disabled a white area of the image's size stands for the picture, and overlays are still drawn
/// on it. Segment crosses are drawn in a colour that contrasts with the pixel under the centre.
class KES_QT_EXPORT ImageView : public QWidget
{
    Q_OBJECT
    /// Whether the user can drag a region; off at first.
    Q_PROPERTY(bool roiSelectionEnabled READ isRoiSelectionEnabled WRITE setRoiSelectionEnabled)
    /// Whether the image's overlays are drawn; off at first.
    Q_PROPERTY(bool overlayDrawingEnabled READ overlayDrawingEnabled WRITE setOverlayDrawingEnabled)
    /// Whether new images are ignored; off at first.
    Q_PROPERTY(bool imageFrozen READ isImageFrozen WRITE setFreezeImage)

public:
    /// An empty view that expands in both directions.
    explicit ImageView(QWidget* parent = nullptr);
    ~ImageView() override;

    /// Ignored while frozen. Rebuilds and repaints at once when the view is visible and
    /// \a updateNow is true; otherwise the image is only stored, for the next show or setting.
    void setImage(const kes::core::image::Image& image, bool updateNow);
    /// The image last accepted, unscaled.
    kes::core::image::Image image() const;

    /// While frozen, setImage() is ignored and the current picture stays.
    void setFreezeImage(bool freeze);
    /// Whether new images are ignored.
    bool isImageFrozen() const;
    /// False shows a white area of the image's size instead of the picture.
    void setShowImageEnabled(bool enabled);
    /// Passed to the image conversion as its colour-conversion flag; true at first.
    void setColorConversionEnabled(bool enabled);
    /// The segment with this id gets a bold cross.
    void setHighlightedSegment(int id);
    /// \a segmentIndex -1 draws every segment, any other value only the one at that position.
    void setSegmentDrawingEnabled(bool enabled, int segmentIndex = -1);
    /// The segment drawn alone, or -1 for every segment.
    int segmentIndex() const;
    /// Draws the image's lines, points and circles; off at first.
    void setOverlayDrawingEnabled(bool enabled);
    /// Whether the image's overlays are drawn.
    bool overlayDrawingEnabled() const;

    /// Lets the user drag a region, or stops it.
    void setRoiSelectionEnabled(bool enabled);
    /// Whether the user can drag a region.
    bool isRoiSelectionEnabled() const;
    /// Stores the region, shows the selection over it and emits roiChanged().
    void setRoi(const kes::core::Roi& roi);
    /// Empties the region and hides the selection; emits nothing.
    void clearRoi();
    /// The region last set or dragged, in image pixels.
    kes::core::Roi roi() const;

    /// The rectangle the scaled picture covers, in widget coordinates.
    QRect imageRect() const;

    /// 320 by 240 pixels.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The picture's rectangle changed; \a oldRect is the one before, imageRect() the new one.
    void imageRectChanged(const QRect& oldRect);
    /// A region was dragged or set, in image pixels.
    void roiChanged(const kes::core::Roi& roi);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void updateImage();
    void updateScaledImage();
    void updateRubberBand();
    void drawSegment(QPainter* painter, const kes::core::image::Segment& segment);
    void drawCross(QPainter* painter, const kes::core::image::Segment& segment);

    std::unique_ptr<ImageViewPrivate> const d;
};

} // namespace kes::qt::gui::widgets

Q_DECLARE_METATYPE(kes::core::Roi)

#endif
