#include <kes/qt/gui/widgets/labeledhexspinboximpl.h>

namespace kes::qt::gui::widgets {

// Empty for now; it keeps the class's size when the field gains state.
struct LabeledHexSpinBoxImplPrivate
{
};

LabeledHexSpinBoxImpl::LabeledHexSpinBoxImpl(QWidget* parent)
    : HexSpinBox(parent)
    , d(std::make_unique<LabeledHexSpinBoxImplPrivate>())
{
}

LabeledHexSpinBoxImpl::~LabeledHexSpinBoxImpl() = default;

void LabeledHexSpinBoxImpl::setLineEdit(QLineEdit* edit)
{
    HexSpinBox::setLineEdit(edit);
}

} // namespace kes::qt::gui::widgets
