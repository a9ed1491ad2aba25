#include <kes/qt/gui/widgets/doublespinbox.h>

#include <kes/core/variant/variant.h>

#include "edittracking_p.h"

#include <QLineEdit>

#include <cfloat>
#include <cmath>

namespace kes::qt::gui::widgets {

using Tracking = EditTracking<DoubleSpinBox, QDoubleSpinBox, double>;

struct DoubleSpinBoxPrivate
{
    double committed = 0.0;
};

DoubleSpinBox::DoubleSpinBox()
    : QDoubleSpinBox()
    , Widget(this)
    , d(std::make_unique<DoubleSpinBoxPrivate>())
{
    init();
}

DoubleSpinBox::DoubleSpinBox(void* userData)
    : QDoubleSpinBox()
    , Widget(this)
    , UserData<void*>(userData)
    , d(std::make_unique<DoubleSpinBoxPrivate>())
{
    init();
}

DoubleSpinBox::~DoubleSpinBox() = default;

void DoubleSpinBox::init()
{
    d->committed = value();
    // The base would take the value while it is typed; here it is taken on Return, focus loss
    // or stepping only.
    disconnect(lineEdit(), SIGNAL(textChanged(const QString&)), nullptr, nullptr);
    connect(this, SIGNAL(valueChanged(double)), this, SLOT(on_valueChanged(double)));
    connect(this, SIGNAL(valueChanged(const QString&)), this, SLOT(on_valueChanged(const QString&)));
    connect(this, SIGNAL(editingFinished(void)), this, SLOT(on_editingFinished(void)));
    connect(lineEdit(), SIGNAL(textChanged(const QString&)), this,
            SLOT(on_lineEdit_textChanged(const QString&)));
    setDisplayStyle(Normal);
}

double DoubleSpinBox::committedValue() const
{
    return d->committed;
}

void DoubleSpinBox::setValue(double value)
{
    d->committed = value;
    QDoubleSpinBox::setValue(value);
    // What the range and the decimals made of it.
    d->committed = this->value();
}

void DoubleSpinBox::setValue(float value)
{
    setValue(kes::core::variant::Variant(value).toDouble());
}

void DoubleSpinBox::directSetValue(double value)
{
    const bool blocked = blockSignals(true);
    setValue(value);
    blockSignals(blocked);
}

void DoubleSpinBox::directSetValue(float value)
{
    directSetValue(kes::core::variant::Variant(value).toDouble());
}

void DoubleSpinBox::setMinimum(double minimum)
{
    const double before = value();
    QDoubleSpinBox::setMinimum(minimum);
    Tracking::normalAfterBoundChange(this, before);
}

void DoubleSpinBox::setMaximum(double maximum)
{
    const double before = value();
    QDoubleSpinBox::setMaximum(maximum);
    Tracking::normalAfterBoundChange(this, before);
}

void DoubleSpinBox::setRange(double minimum, double maximum)
{
    const double before = value();
    QDoubleSpinBox::setRange(minimum, maximum);
    Tracking::normalAfterBoundChange(this, before);
}

void DoubleSpinBox::useMaximumRange()
{
    setRange(-DBL_MAX, DBL_MAX);
}

void DoubleSpinBox::on_valueChanged(double value)
{
    Tracking::valueChanged(this, value);
}

void DoubleSpinBox::on_valueChanged(const QString& text)
{
    Q_EMIT valueChanged(text, userData());
}

void DoubleSpinBox::on_editingFinished()
{
    Tracking::editingFinished(this);
}

void DoubleSpinBox::on_lineEdit_textChanged(const QString&)
{
    Tracking::textEdited(this);
}

void DoubleSpinBox::keyPressEvent(QKeyEvent* event)
{
    Tracking::keyPress(this, event);
}

void DoubleSpinBox::focusOutEvent(QFocusEvent* event)
{
    Tracking::focusOut(this, event);
}

} // namespace kes::qt::gui::widgets
