#include <kes/qt/gui/widgets/labeledspinboximpl.h>

namespace kes::qt::gui::widgets {

LabeledSpinBoxImpl::LabeledSpinBoxImpl(QWidget* parent)
    : QSpinBox(parent)
{
}

LabeledSpinBoxImpl::~LabeledSpinBoxImpl() = default;

void LabeledSpinBoxImpl::setLineEdit(QLineEdit* edit)
{
    QSpinBox::setLineEdit(edit);
}

} // namespace kes::qt::gui::widgets
