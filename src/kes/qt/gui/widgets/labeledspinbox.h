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
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int value READ value WRITE setValue)

public:
    explicit LabeledSpinBox(QWidget* parent = nullptr);
    explicit LabeledSpinBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledSpinBox() override;

    QWidget* widget() const override;
    LabeledSpinBoxImpl* spinBox() const;
    /// Replaces the spin box's line edit, which the spin box then owns.
    void setLineEdit(QLineEdit* edit);

    /// The spin box's value and range, so that forms can set them.
    int value() const;
    int minimum() const;
    void setMinimum(int minimum);
    int maximum() const;
    void setMaximum(int maximum);

public Q_SLOTS:
    void setValue(int value);

Q_SIGNALS:
    void valueChanged(int value);
    void valueChanged(const QString& text);
    void editingFinished();

private:
    void init();

    std::unique_ptr<LabeledSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
