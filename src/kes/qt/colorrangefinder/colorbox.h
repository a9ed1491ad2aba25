#ifndef KES_QT_COLORRANGEFINDER_COLORBOX_H
#define KES_QT_COLORRANGEFINDER_COLORBOX_H

#include <kes/core/vector.h>
#include <kes/qt/kes_qt_export.h>

#include <QListWidget>
#include <QPixmap>

#include <memory>

namespace kes::qt::colorrangefinder {

struct ColorBoxPrivate;

/// Up to three labelled swatches of a hue, saturation and value range: hue across, saturation
/// down, one swatch each at the lowest, middle and highest value.
class KES_QT_EXPORT ColorBox : public QListWidget
{
    Q_OBJECT

public:
    /// An empty list in icon mode; updateColors() fills it.
    explicit ColorBox(QWidget* parent = nullptr);
    ~ColorBox() override;

    /// The 150 by 130 list icon: \a swatch scaled to 100 by 100 with the range's limits and the
    /// swatch's \a value (percent) written around it.
    QPixmap labeledPixmap(const QPixmap& swatch, int value, const kes::core::IntVector& ranges);

public Q_SLOTS:
    /// \a ranges as hue min, max (degrees), saturation min, max and value min, max (percent); a
    /// hue minimum above the maximum wraps over 0. Anything but six values with hues within 0 to
    /// 360 and the others within 0 to 255 leaves the list empty.
    void updateColors(const kes::core::IntVector& ranges);

private:
    std::unique_ptr<ColorBoxPrivate> const d;
};

} // namespace kes::qt::colorrangefinder

#endif
