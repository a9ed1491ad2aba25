#include <kes/qt/gui/widgets/labeleddoublespinbox.h>

#include <QDoubleSpinBox>

namespace kes::qt::gui::widgets {

struct LabeledDoubleSpinBoxPrivate
{
    QDoubleSpinBox* field = nullptr;
};

LabeledDoubleSpinBox::LabeledDoubleSpinBox(QWidget* parent)
    : AbstractLabeledWidget(parent)
    , d(std::make_unique<LabeledDoubleSpinBoxPrivate>())
{
    init();
}

LabeledDoubleSpinBox::LabeledDoubleSpinBox(const QString& labelText, QWidget* parent)
    : AbstractLabeledWidget(labelText, parent)
    , d(std::make_unique<LabeledDoubleSpinBoxPrivate>())
{
    init();
}

LabeledDoubleSpinBox::~LabeledDoubleSpinBox() = default;

void LabeledDoubleSpinBox::init()
{
    d->field = new QDoubleSpinBox(this);
    d->field->setObjectName(QStringLiteral("doubleSpinBox"));
    connect(d->field, SIGNAL(valueChanged(double)), this, SIGNAL(valueChanged(double)));
    connect(d->field, SIGNAL(valueChanged(const QString&)), this, SIGNAL(valueChanged(const QString&)));
    connect(d->field, SIGNAL(editingFinished()), this, SIGNAL(editingFinished()));
    setupLayout();
}

QWidget* LabeledDoubleSpinBox::widget() const
{
    return d->field;
}

QDoubleSpinBox* LabeledDoubleSpinBox::doubleSpinBox() const
{
    return d->field;
}

double LabeledDoubleSpinBox::value() const
{
    return d->field->value();
}

void LabeledDoubleSpinBox::setValue(double value)
{
    d->field->setValue(value);
}

int LabeledDoubleSpinBox::decimals() const
{
    return d->field->decimals();
}

void LabeledDoubleSpinBox::setDecimals(int decimals)
{
    d->field->setDecimals(decimals);
}

double LabeledDoubleSpinBox::minimum() const
{
    return d->field->minimum();
}

void LabeledDoubleSpinBox::setMinimum(double minimum)
{
    d->field->setMinimum(minimum);
}

double LabeledDoubleSpinBox::maximum() const
{
    return d->field->maximum();
}

void LabeledDoubleSpinBox::setMaximum(double maximum)
{
    d->field->setMaximum(maximum);
}

} // namespace kes::qt::gui::widgets
