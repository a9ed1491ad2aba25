#include <kes/qt/gui/widgets/labeledhexspinboximpl.h>

namespace kes::qt::gui::widgets {

LabeledHexSpinBoxImpl::LabeledHexSpinBoxImpl(QWidget* parent)
    : HexSpinBox(parent)
{
}

LabeledHexSpinBoxImpl::~LabeledHexSpinBoxImpl() = default;

void LabeledHexSpinBoxImpl::setLineEdit(QLineEdit* edit)
{
    HexSpinBox::setLineEdit(edit);
}

} // namespace kes::qt::gui::widgets
