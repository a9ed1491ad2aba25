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
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double value READ value WRITE setValue)

public:
    explicit LabeledDoubleSpinBox(QWidget* parent = nullptr);
    explicit LabeledDoubleSpinBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledDoubleSpinBox() override;

    QWidget* widget() const override;
    QDoubleSpinBox* doubleSpinBox() const;

    /// The spin box's value, range and decimals, so that forms can set them.
    double value() const;
    int decimals() const;
    void setDecimals(int decimals);
    double minimum() const;
    void setMinimum(double minimum);
    double maximum() const;
    void setMaximum(double maximum);

public Q_SLOTS:
    void setValue(double value);

Q_SIGNALS:
    void valueChanged(double value);
    void valueChanged(const QString& text);
    void editingFinished();

private:
    void init();

    std::unique_ptr<LabeledDoubleSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
