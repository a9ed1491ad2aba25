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
    explicit SpinBoxGroup(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~SpinBoxGroup() override;

    int hueMin() const;
    int hueMax() const;
    double satMin() const;
    double satMax() const;
    double valMin() const;
    double valMax() const;

    /// Sets all six boxes and emits valuesChanged() once; emits nothing when they already hold
    /// these values. Hues are rounded to whole degrees; every value is clamped to its box.
    void setRanges(double hueMin, double hueMax, double satMin, double satMax, double valMin, double valMax);
    /// Hue minimum and maximum, then saturation and value ones truncated to whole percent.
    kes::core::IntVector ranges() const;

public Q_SLOTS:
    void translate();
    void onValueChanged();

Q_SIGNALS:
    void valuesChanged();
    void editingFinished();

private:
    std::unique_ptr<SpinBoxGroupPrivate> const d;
};

} // namespace kes::qt::colorrangefinder

#endif
