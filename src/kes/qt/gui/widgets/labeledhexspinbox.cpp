#include <kes/qt/gui/widgets/labeledhexspinbox.h>

#include <kes/qt/gui/widgets/labeledhexspinboximpl.h>

namespace kes::qt::gui::widgets {

struct LabeledHexSpinBoxPrivate
{
    LabeledHexSpinBoxImpl* field = nullptr;
};

LabeledHexSpinBox::LabeledHexSpinBox(QWidget* parent)
    : AbstractLabeledWidget(parent)
    , d(std::make_unique<LabeledHexSpinBoxPrivate>())
{
    init();
}

LabeledHexSpinBox::LabeledHexSpinBox(const QString& labelText, QWidget* parent)
    : AbstractLabeledWidget(labelText, parent)
    , d(std::make_unique<LabeledHexSpinBoxPrivate>())
{
    init();
}

LabeledHexSpinBox::~LabeledHexSpinBox() = default;

void LabeledHexSpinBox::init()
{
    d->field = new LabeledHexSpinBoxImpl(this);
    d->field->setObjectName(QStringLiteral("hexSpinBox"));
    connect(d->field, SIGNAL(valueChanged(int)), this, SIGNAL(valueChanged(int)));
    connect(d->field, SIGNAL(valueChanged(const QString&)), this, SIGNAL(valueChanged(const QString&)));
    connect(d->field, SIGNAL(editingFinished()), this, SIGNAL(editingFinished()));
    setupLayout();
}

QWidget* LabeledHexSpinBox::widget() const
{
    return d->field;
}

LabeledHexSpinBoxImpl* LabeledHexSpinBox::hexSpinBox() const
{
    return d->field;
}

void LabeledHexSpinBox::setLineEdit(QLineEdit* edit)
{
    d->field->setLineEdit(edit);
}

int LabeledHexSpinBox::value() const
{
    return d->field->value();
}

void LabeledHexSpinBox::setValue(int value)
{
    d->field->setValue(value);
}

int LabeledHexSpinBox::minimum() const
{
    return d->field->minimum();
}

void LabeledHexSpinBox::setMinimum(int minimum)
{
    d->field->setMinimum(minimum);
}

int LabeledHexSpinBox::maximum() const
{
    return d->field->maximum();
}

void LabeledHexSpinBox::setMaximum(int maximum)
{
    d->field->setMaximum(maximum);
}

int LabeledHexSpinBox::textWidth() const
{
    return d->field->textWidth();
}

void LabeledHexSpinBox::setTextWidth(int width)
{
    d->field->setTextWidth(width);
}

bool LabeledHexSpinBox::upperCase() const
{
    return d->field->upperCase();
}

void LabeledHexSpinBox::setUpperCase(bool upperCase)
{
    d->field->setUpperCase(upperCase);
}

} // namespace kes::qt::gui::widgets
