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

public:
    explicit LabeledDoubleSpinBox(QWidget* parent = nullptr);
    explicit LabeledDoubleSpinBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledDoubleSpinBox() override;

    QWidget* widget() const override;
    QDoubleSpinBox* doubleSpinBox() const;

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
