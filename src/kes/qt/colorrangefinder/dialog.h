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
    Q_PROPERTY(bool rangeModifiersEnabled READ rangeModifiersEnabled WRITE setRangeModifiersEnabled)

public:
    explicit Dialog(QWidget* parent = nullptr);
    ~Dialog() override;

    /// The camera image, shown unless "Show result" is checked.
    void setImage(const kes::core::image::Image& image);
    /// The application's segmentation with the current ranges, shown while "Show result" is checked.
    void setResultImage(const kes::core::image::Image& image);
    void setRanges(int hueMin, int hueMax, int satMin, int satMax, int valMin, int valMax);
    /// Applies \a ranges only when it holds exactly six values.
    void setRanges(const kes::core::IntVector& ranges);
    kes::core::IntVector ranges() const;
    /// The spin boxes, the region selection and pasting together; copying stays possible.
    void setRangeModifiersEnabled(bool enable);
    bool rangeModifiersEnabled() const;
    void updateColors();

public Q_SLOTS:
    void translate();
    void on_imageView_roiChanged(const kes::core::Roi& roi);
    void on_showResult_stateChanged(int state);
    void on_freezeImage_stateChanged(int state);
    void on_spinBoxGroup_valuesChanged();
    void on_copy_clicked();
    void on_paste_clicked();

Q_SIGNALS:
    void valuesChanged();

private:
    std::unique_ptr<DialogPrivate> const d;
};

} // namespace kes::qt::colorrangefinder

#endif
