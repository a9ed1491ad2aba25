#ifndef KES_QT_GUI_WIDGETS_LABELEDDOUBLESPINBOX_H
#define KES_QT_GUI_WIDGETS_LABELEDDOUBLESPINBOX_H

#include <kes/qt/gui/widgets/abstractlabeledwidget.h>
#include <kes/qt/kes_qt_export.h>

#include <memory>

class QDoubleSpinBox;

namespace kes::qt::gui::widgets {

struct LabeledDoubleSpinBoxPrivate;

/// A label in front of the double spin box, whose signals it re-emits as its own.
class KES_QT_EXPORT LabeledDoubleSpinBox : public AbstractLabeledWidget
{
    Q_OBJECT
    /// The decimals shown; before the range and value, which it rounds.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    /// The lowest value.
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    /// The highest value.
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    /// The spin box's value.
    Q_PROPERTY(double value READ value WRITE setValue)

public:
    /// An empty label in front of a double spin box with Qt's defaults.
    explicit LabeledDoubleSpinBox(QWidget* parent = nullptr);
    /// \a labelText and ":" in front of a double spin box with Qt's defaults.
    explicit LabeledDoubleSpinBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledDoubleSpinBox() override;

    QWidget* widget() const override;
    /// The field.
    QDoubleSpinBox* doubleSpinBox() const;

    /// The spin box's value, range and decimals, so that forms can set them.
    double value() const;
    /// The decimals shown.
    int decimals() const;
    /// As QDoubleSpinBox::setDecimals(), which rounds the range and value.
    void setDecimals(int decimals);
    /// The lowest value.
    double minimum() const;
    /// Sets the lowest value.
    void setMinimum(double minimum);
    /// The highest value.
    double maximum() const;
    /// Sets the highest value.
    void setMaximum(double maximum);

public Q_SLOTS:
    /// Sets the value, clamped to the range.
    void setValue(double value);

Q_SIGNALS:
    /// Re-emitted from the spin box.
    void valueChanged(double value);
    /// Re-emitted from the spin box.
    void valueChanged(const QString& text);
    /// Re-emitted from the spin box.
    void editingFinished();

private:
    void init();

    std::unique_ptr<LabeledDoubleSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
