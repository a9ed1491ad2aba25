#ifndef KES_QT_GUI_WIDGETS_LABELEDSPINBOXIMPL_H
#define KES_QT_GUI_WIDGETS_LABELEDSPINBOXIMPL_H

#include <kes/qt/kes_qt_export.h>

#include <QSpinBox>

#include <memory>

class QLineEdit;

namespace kes::qt::gui::widgets {

struct LabeledSpinBoxImplPrivate;

/// The field of a labelled widget: a QSpinBox whose line edit can be replaced from outside.
class KES_QT_EXPORT LabeledSpinBoxImpl : public QSpinBox
{
    Q_OBJECT

public:
    /// A spin box with Qt's defaults.
    explicit LabeledSpinBoxImpl(QWidget* parent = nullptr);
    ~LabeledSpinBoxImpl() override;

    /// Replaces the line edit, which the spin box then owns.
    void setLineEdit(QLineEdit* edit);

private:
    std::unique_ptr<LabeledSpinBoxImplPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
