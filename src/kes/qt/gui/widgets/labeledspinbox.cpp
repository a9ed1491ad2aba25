#include <kes/qt/gui/widgets/labeledspinbox.h>

#include <kes/qt/gui/widgets/labeledspinboximpl.h>

namespace kes::qt::gui::widgets {

struct LabeledSpinBoxPrivate
{
    LabeledSpinBoxImpl* field = nullptr;
};

LabeledSpinBox::LabeledSpinBox(QWidget* parent)
    : AbstractLabeledWidget(parent)
    , d(std::make_unique<LabeledSpinBoxPrivate>())
{
    init();
}

LabeledSpinBox::LabeledSpinBox(const QString& labelText, QWidget* parent)
    : AbstractLabeledWidget(labelText, parent)
    , d(std::make_unique<LabeledSpinBoxPrivate>())
{
    init();
}

LabeledSpinBox::~LabeledSpinBox() = default;

void LabeledSpinBox::init()
{
    d->field = new LabeledSpinBoxImpl(this);
    d->field->setObjectName(QStringLiteral("spinBox"));
    connect(d->field, SIGNAL(valueChanged(int)), this, SIGNAL(valueChanged(int)));
    connect(d->field, SIGNAL(valueChanged(const QString&)), this, SIGNAL(valueChanged(const QString&)));
    connect(d->field, SIGNAL(editingFinished()), this, SIGNAL(editingFinished()));
    setupLayout();
}

QWidget* LabeledSpinBox::widget() const
{
    return d->field;
}

LabeledSpinBoxImpl* LabeledSpinBox::spinBox() const
{
    return d->field;
}

void LabeledSpinBox::setLineEdit(QLineEdit* edit)
{
    d->field->setLineEdit(edit);
}

int LabeledSpinBox::value() const
{
    return d->field->value();
}

void LabeledSpinBox::setValue(int value)
{
    d->field->setValue(value);
}

int LabeledSpinBox::minimum() const
{
    return d->field->minimum();
}

void LabeledSpinBox::setMinimum(int minimum)
{
    d->field->setMinimum(minimum);
}

int LabeledSpinBox::maximum() const
{
    return d->field->maximum();
}

void LabeledSpinBox::setMaximum(int maximum)
{
    d->field->setMaximum(maximum);
}

} // namespace kes::qt::gui::widgets
