#ifndef KES_QT_GUI_WIDGETS_LABELEDHEXSPINBOX_H
#define KES_QT_GUI_WIDGETS_LABELEDHEXSPINBOX_H

#include <kes/qt/gui/widgets/abstractlabeledwidget.h>
#include <kes/qt/kes_qt_export.h>

#include <memory>

class QLineEdit;

namespace kes::qt::gui::widgets {

class LabeledHexSpinBoxImpl;
struct LabeledHexSpinBoxPrivate;

/// A label in front of the hexadecimal spin box, whose signals it re-emits as its own.
class KES_QT_EXPORT LabeledHexSpinBox : public AbstractLabeledWidget
{
    Q_OBJECT
    /// The lowest value.
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    /// The highest value.
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    /// The spin box's value.
    Q_PROPERTY(int value READ value WRITE setValue)
    /// The minimum number of digits shown; see HexSpinBox::textWidth().
    Q_PROPERTY(int textWidth READ textWidth WRITE setTextWidth)
    /// Whether the digits A to F are shown in upper case.
    Q_PROPERTY(bool upperCase READ upperCase WRITE setUpperCase)

public:
    /// An empty label in front of a hexadecimal spin box.
    explicit LabeledHexSpinBox(QWidget* parent = nullptr);
    /// \a labelText and ":" in front of a hexadecimal spin box.
    explicit LabeledHexSpinBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledHexSpinBox() override;

    QWidget* widget() const override;
    /// The field.
    LabeledHexSpinBoxImpl* hexSpinBox() const;
    /// Replaces the spin box's line edit, which the spin box then owns.
    void setLineEdit(QLineEdit* edit);

    /// The spin box's value, range and digits, so that forms can set them.
    int value() const;
    /// The lowest value.
    int minimum() const;
    /// Sets the lowest value.
    void setMinimum(int minimum);
    /// The highest value.
    int maximum() const;
    /// Sets the highest value.
    void setMaximum(int maximum);
    /// The minimum number of digits shown.
    int textWidth() const;
    /// See HexSpinBox::setTextWidth().
    void setTextWidth(int width);
    /// Whether the digits A to F are shown in upper case.
    bool upperCase() const;
    /// See HexSpinBox::setUpperCase().
    void setUpperCase(bool upperCase);

public Q_SLOTS:
    /// Sets the value, clamped to the range.
    void setValue(int value);

Q_SIGNALS:
    /// Re-emitted from the spin box.
    void valueChanged(int value);
    /// Re-emitted from the spin box.
    void valueChanged(const QString& text);
    /// Re-emitted from the spin box.
    void editingFinished();

private:
    void init();

    std::unique_ptr<LabeledHexSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
