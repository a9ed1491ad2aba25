#include <kes/qt/gui/widgets/spinbox.h>

#include "edittracking_p.h"

#include <QLineEdit>

#include <climits>
#include <cmath>

namespace kes::qt::gui::widgets {

using Tracking = EditTracking<SpinBox, QSpinBox, int>;

struct SpinBoxPrivate
{
    int committed = 0;
};

namespace {

// The integer part of \a value, saturated at the int bounds instead of overflowing.
int saturatedInt(double value)
{
    if (value <= double(INT_MIN))
        return INT_MIN;
    if (value >= double(INT_MAX))
        return INT_MAX;
    return int(value);
}

} // namespace

SpinBox::SpinBox()
    : QSpinBox()
    , Widget(this)
    , d(std::make_unique<SpinBoxPrivate>())
{
    init();
}

SpinBox::SpinBox(void* userData)
    : QSpinBox()
    , Widget(this)
    , UserData<void*>(userData)
    , d(std::make_unique<SpinBoxPrivate>())
{
    init();
}

SpinBox::~SpinBox() = default;

void SpinBox::init()
{
    d->committed = value();
    // The base would take the value while it is typed; here it is taken on Return, focus loss
    // or stepping only.
    disconnect(lineEdit(), SIGNAL(textChanged(const QString&)), nullptr, nullptr);
    connect(this, SIGNAL(valueChanged(int)), this, SLOT(on_valueChanged(int)));
    connect(this, SIGNAL(valueChanged(const QString&)), this, SLOT(on_valueChanged(const QString&)));
    connect(this, SIGNAL(editingFinished(void)), this, SLOT(on_editingFinished(void)));
    connect(lineEdit(), SIGNAL(textChanged(const QString&)), this,
            SLOT(on_lineEdit_textChanged(const QString&)));
    setDisplayStyle(Normal);
}

int SpinBox::committedValue() const
{
    return d->committed;
}

void SpinBox::setValue(int value)
{
    d->committed = value;
    QSpinBox::setValue(value);
    // What the range and the decimals made of it.
    d->committed = this->value();
}

void SpinBox::directSetValue(int value)
{
    const bool blocked = blockSignals(true);
    setValue(value);
    blockSignals(blocked);
}

void SpinBox::setMinimum(double minimum)
{
    if (std::isnan(minimum))
        return;
    const int before = value();
    QSpinBox::setMinimum(saturatedInt(minimum));
    Tracking::normalAfterBoundChange(this, before);
}

void SpinBox::setMaximum(double maximum)
{
    if (std::isnan(maximum))
        return;
    const int before = value();
    QSpinBox::setMaximum(saturatedInt(maximum));
    Tracking::normalAfterBoundChange(this, before);
}

void SpinBox::setRange(int minimum, int maximum)
{
    const int before = value();
    QSpinBox::setRange(minimum, maximum);
    Tracking::normalAfterBoundChange(this, before);
}

void SpinBox::on_valueChanged(int value)
{
    Tracking::valueChanged(this, value);
}

void SpinBox::on_valueChanged(const QString& text)
{
    Q_EMIT valueChanged(text, userData());
}

void SpinBox::on_editingFinished()
{
    Tracking::editingFinished(this);
}

void SpinBox::on_lineEdit_textChanged(const QString&)
{
    Tracking::textEdited(this);
}

void SpinBox::keyPressEvent(QKeyEvent* event)
{
    Tracking::keyPress(this, event);
}

void SpinBox::focusOutEvent(QFocusEvent* event)
{
    Tracking::focusOut(this, event);
}

} // namespace kes::qt::gui::widgets
