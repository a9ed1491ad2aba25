#ifndef KES_QT_GUI_WIDGETS_LABELEDHEXSPINBOXIMPL_H
#define KES_QT_GUI_WIDGETS_LABELEDHEXSPINBOXIMPL_H

#include <kes/qt/gui/widgets/hexspinbox.h>
#include <kes/qt/kes_qt_export.h>

#include <memory>

class QLineEdit;

namespace kes::qt::gui::widgets {

struct LabeledHexSpinBoxImplPrivate;

/// The field of a labelled widget: a HexSpinBox whose line edit can be replaced from outside.
class KES_QT_EXPORT LabeledHexSpinBoxImpl : public HexSpinBox
{
    Q_OBJECT

public:
    /// A hexadecimal spin box as HexSpinBox makes it.
    explicit LabeledHexSpinBoxImpl(QWidget* parent = nullptr);
    ~LabeledHexSpinBoxImpl() override;

    /// Replaces the line edit, which the spin box then owns.
    void setLineEdit(QLineEdit* edit);

private:
    std::unique_ptr<LabeledHexSpinBoxImplPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
