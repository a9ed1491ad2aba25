#include <kes/qt/gui/widgets/labeledspinboximpl.h>

namespace kes::qt::gui::widgets {

// Empty for now; it keeps the class's size when the field gains state.
struct LabeledSpinBoxImplPrivate
{
};

LabeledSpinBoxImpl::LabeledSpinBoxImpl(QWidget* parent)
    : QSpinBox(parent)
    , d(std::make_unique<LabeledSpinBoxImplPrivate>())
{
}

LabeledSpinBoxImpl::~LabeledSpinBoxImpl() = default;

void LabeledSpinBoxImpl::setLineEdit(QLineEdit* edit)
{
    QSpinBox::setLineEdit(edit);
}

} // namespace kes::qt::gui::widgets
