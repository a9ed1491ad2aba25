#ifndef KES_QT_COLORRANGEFINDER_DIALOG_H
#define KES_QT_COLORRANGEFINDER_DIALOG_H

#include <kes/core/image/image.h>
#include <kes/core/roi.h>
#include <kes/core/vector.h>
#include <kes/qt/kes_qt_export.h>

#include <QWidget>

#include <memory>

namespace kes::qt::colorrangefinder {

class DialogPrivate;

/// Finds hue, saturation and value ranges that describe a colour in a camera image: the user drags
/// a rectangle over the image and its minima and maxima become the six ranges, shown in spin
/// boxes and as swatches, and copied to and pasted from the clipboard as "(h0 h1 s0 s1 v0 v1)".
///
/// Ranges are six integers: hue minimum and maximum in degrees (0 to 360), then saturation and
/// value minimum and maximum in percent (0 to 100).
class KES_QT_EXPORT Dialog : public QWidget
{
    Q_OBJECT
    /// Whether the user may change the ranges; see setRangeModifiersEnabled().
    Q_PROPERTY(bool rangeModifiersEnabled READ rangeModifiersEnabled WRITE setRangeModifiersEnabled)

public:
    /// Starts without an image and with every range at 0.
    explicit Dialog(QWidget* parent = nullptr);
    ~Dialog() override;

    /// The camera image, shown unless "Show result" is checked.
    void setImage(const kes::core::image::Image& image);
    /// The application's segmentation with the current ranges, shown while "Show result" is checked.
    void setResultImage(const kes::core::image::Image& image);
    /// Sets the six ranges and emits valuesChanged() once if they changed; each is clamped to its scale.
    void setRanges(int hueMin, int hueMax, int satMin, int satMax, int valMin, int valMax);
    /// Applies \a ranges only when it holds exactly six values.
    void setRanges(const kes::core::IntVector& ranges);
    /// Hue minimum and maximum, saturation and value minima and maxima, as setRanges() takes them.
    kes::core::IntVector ranges() const;
    /// The spin boxes, the region selection and pasting together; copying stays possible.
    void setRangeModifiersEnabled(bool enable);
    /// Whether the spin boxes, the region selection and pasting are enabled.
    bool rangeModifiersEnabled() const;
    /// Redraws the colour swatches from the current ranges.
    void updateColors();

public Q_SLOTS:
    /// Labels the check boxes and buttons in the current language.
    void translate();
    /// Takes the minima and maxima of hue, saturation and value within \a roi as the new ranges and clears the selection; a region without pixels changes nothing.
    void on_imageView_roiChanged(const kes::core::Roi& roi);
    /// Shows the result image (checked) or the camera image; regions can be selected on the camera image only.
    void on_showResult_stateChanged(int state);
    /// Freezes the view on the current image while checked.
    void on_freezeImage_stateChanged(int state);
    /// Re-colours the swatches and emits valuesChanged().
    void on_spinBoxGroup_valuesChanged();
    /// Copies the ranges to the clipboard as "(h0 h1 s0 s1 v0 v1)".
    void on_copy_clicked();
    /// Takes the ranges from clipboard text of the form "(h0 h1 s0 s1 v0 v1)"; text that does not hold six values changes nothing.
    void on_paste_clicked();

Q_SIGNALS:
    /// The ranges changed, by the user or by the application.
    void valuesChanged();

private:
    std::unique_ptr<DialogPrivate> const d;
};

} // namespace kes::qt::colorrangefinder

#endif
