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
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(int textWidth READ textWidth WRITE setTextWidth)
    Q_PROPERTY(bool upperCase READ upperCase WRITE setUpperCase)

public:
    explicit LabeledHexSpinBox(QWidget* parent = nullptr);
    explicit LabeledHexSpinBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledHexSpinBox() override;

    QWidget* widget() const override;
    LabeledHexSpinBoxImpl* hexSpinBox() const;
    /// Replaces the spin box's line edit, which the spin box then owns.
    void setLineEdit(QLineEdit* edit);

    /// The spin box's value, range and digits, so that forms can set them.
    int value() const;
    int minimum() const;
    void setMinimum(int minimum);
    int maximum() const;
    void setMaximum(int maximum);
    int textWidth() const;
    void setTextWidth(int width);
    bool upperCase() const;
    void setUpperCase(bool upperCase);

public Q_SLOTS:
    void setValue(int value);

Q_SIGNALS:
    void valueChanged(int value);
    void valueChanged(const QString& text);
    void editingFinished();

private:
    void init();

    std::unique_ptr<LabeledHexSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
