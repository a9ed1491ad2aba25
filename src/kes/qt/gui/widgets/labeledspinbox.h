#ifndef KES_QT_GUI_WIDGETS_LABELEDSPINBOX_H
#define KES_QT_GUI_WIDGETS_LABELEDSPINBOX_H

#include <kes/qt/gui/widgets/abstractlabeledwidget.h>
#include <kes/qt/kes_qt_export.h>

#include <memory>

class QLineEdit;

namespace kes::qt::gui::widgets {

class LabeledSpinBoxImpl;
struct LabeledSpinBoxPrivate;

/// A label in front of the spin box, whose signals it re-emits as its own.
class KES_QT_EXPORT LabeledSpinBox : public AbstractLabeledWidget
{
    Q_OBJECT
    /// The lowest value.
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    /// The highest value.
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    /// The spin box's value.
    Q_PROPERTY(int value READ value WRITE setValue)

public:
    /// An empty label in front of a spin box with Qt's defaults.
    explicit LabeledSpinBox(QWidget* parent = nullptr);
    /// \a labelText and ":" in front of a spin box with Qt's defaults.
    explicit LabeledSpinBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledSpinBox() override;

    QWidget* widget() const override;
    /// The field.
    LabeledSpinBoxImpl* spinBox() const;
    /// Replaces the spin box's line edit, which the spin box then owns.
    void setLineEdit(QLineEdit* edit);

    /// The spin box's value and range, so that forms can set them.
    int value() const;
    /// The lowest value.
    int minimum() const;
    /// Sets the lowest value.
    void setMinimum(int minimum);
    /// The highest value.
    int maximum() const;
    /// Sets the highest value.
    void setMaximum(int maximum);

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

    std::unique_ptr<LabeledSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
