#ifndef KES_QT_COLORRANGEFINDER_SPINBOXGROUP_H
#define KES_QT_COLORRANGEFINDER_SPINBOXGROUP_H

#include <kes/core/vector.h>
#include <kes/qt/kes_qt_export.h>

#include <QWidget>

#include <memory>

namespace kes::qt::colorrangefinder {

class SpinBoxGroupPrivate;

/// Six spin boxes for a hue, saturation and value range: hue in degrees (0 to 360), saturation
/// and value in percent (0 to 100), in three group boxes side by side or stacked.
class KES_QT_EXPORT SpinBoxGroup : public QWidget
{
    Q_OBJECT

public:
    /// The three group boxes side by side for Qt::Horizontal, stacked for Qt::Vertical; every box starts at 0.
    explicit SpinBoxGroup(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~SpinBoxGroup() override;

    /// Hue limits in whole degrees, 0 to 360.
    int hueMin() const;
    /// The hue maximum; below hueMin() when the range wraps over 0.
    int hueMax() const;
    /// Saturation limits in percent, 0 to 100.
    double satMin() const;
    /// The saturation maximum in percent.
    double satMax() const;
    /// Value limits in percent, 0 to 100.
    double valMin() const;
    /// The value maximum in percent.
    double valMax() const;

    /// Sets all six boxes and emits valuesChanged() once; emits nothing when they already hold
    /// these values. Hues are rounded to whole degrees; every value is clamped to its box.
    void setRanges(double hueMin, double hueMax, double satMin, double satMax, double valMin, double valMax);
    /// Hue minimum and maximum, then saturation and value ones truncated to whole percent.
    kes::core::IntVector ranges() const;

public Q_SLOTS:
    /// Titles the group boxes in the current language.
    void translate();
    /// Re-emits a change of any box as valuesChanged().
    void onValueChanged();

Q_SIGNALS:
    /// Any of the six values changed, by the user or by setRanges().
    void valuesChanged();
    /// The user finished editing one of the boxes.
    void editingFinished();

private:
    std::unique_ptr<SpinBoxGroupPrivate> const d;
};

} // namespace kes::qt::colorrangefinder

#endif
