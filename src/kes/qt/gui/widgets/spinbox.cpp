#include <kes/qt/gui/widgets/spinbox.h>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include <climits>
#include <cmath>

namespace kes::qt::gui::widgets {

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
    normalAfterBoundChange(before);
}

void SpinBox::setMaximum(double maximum)
{
    if (std::isnan(maximum))
        return;
    const int before = value();
    QSpinBox::setMaximum(saturatedInt(maximum));
    normalAfterBoundChange(before);
}

void SpinBox::setRange(int minimum, int maximum)
{
    const int before = value();
    QSpinBox::setRange(minimum, maximum);
    normalAfterBoundChange(before);
}

void SpinBox::normalAfterBoundChange(int before)
{
    if (value() != before && displayStyleTracking())
        setDisplayStyle(Normal);
}

void SpinBox::on_valueChanged(int value)
{
    if (displayStyleTracking()) {
        const DisplayStyle before = displayStyle();
        setDisplayStyle(Normal);
        Q_EMIT valueChanged(value, userData());
        // A change that ends typing is finished by Return or focus loss, which follow.
        if (before != Normal)
            return;
    } else {
        Q_EMIT valueChanged(value, userData());
    }
    // A step, a wheel turn or a program's change: nothing was being typed, so it is final.
    Q_EMIT QAbstractSpinBox::editingFinished();
}

void SpinBox::on_valueChanged(const QString& text)
{
    Q_EMIT valueChanged(text, userData());
}

void SpinBox::on_editingFinished()
{
    d->committed = value();
    if (displayStyleTracking())
        setDisplayStyle(Normal);
    Q_EMIT editingFinished(userData());
}

void SpinBox::on_lineEdit_textChanged(const QString&)
{
    if (displayStyleTracking())
        setDisplayStyle(Editing);
}

bool SpinBox::displayedValue(int* value) const
{
    QString text = lineEdit()->displayText();
    int pos = lineEdit()->cursorPosition();
    if (validate(text, pos) != QValidator::Acceptable)
        return false;
    *value = valueFromText(text);
    return true;
}

void SpinBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        setValue(d->committed);
        selectAll();
        if (displayStyleTracking())
            setDisplayStyle(Normal);
    } else if (event->key() == Qt::Key_Return) {
        int shown = 0;
        if (displayedValue(&shown) && shown == d->committed) {
            selectAll();
            if (displayStyleTracking())
                setDisplayStyle(Normal);
            event->accept();
            return;
        }
    }
    QSpinBox::keyPressEvent(event);
}

void SpinBox::focusOutEvent(QFocusEvent* event)
{
    const bool blocked = signalsBlocked();
    int shown = 0;
    const bool number = displayedValue(&shown);
    if (number && shown == d->committed) {
        selectAll();
        if (displayStyleTracking())
            setDisplayStyle(Normal);
        // Nothing changed, so the base's editingFinished() would only be noise.
        blockSignals(true);
        QSpinBox::focusOutEvent(event);
    } else {
        if (number)
            setValue(shown);
        else if (displayStyleTracking())
            setDisplayStyle(Normal); // the base puts the committed text back
        blockSignals(false);
        QSpinBox::focusOutEvent(event);
    }
    blockSignals(blocked);
    Q_EMIT lostFocus();
}

} // namespace kes::qt::gui::widgets
