#include <kes/qt/gui/widgets/doublespinbox.h>

#include <kes/core/variant/variant.h>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include <cfloat>
#include <cmath>

namespace kes::qt::gui::widgets {

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
    normalAfterBoundChange(before);
}

void DoubleSpinBox::setMaximum(double maximum)
{
    const double before = value();
    QDoubleSpinBox::setMaximum(maximum);
    normalAfterBoundChange(before);
}

void DoubleSpinBox::setRange(double minimum, double maximum)
{
    const double before = value();
    QDoubleSpinBox::setRange(minimum, maximum);
    normalAfterBoundChange(before);
}

void DoubleSpinBox::useMaximumRange()
{
    setRange(-DBL_MAX, DBL_MAX);
}

void DoubleSpinBox::normalAfterBoundChange(double before)
{
    if (value() != before && displayStyleTracking())
        setDisplayStyle(Normal);
}

void DoubleSpinBox::on_valueChanged(double value)
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

void DoubleSpinBox::on_valueChanged(const QString& text)
{
    Q_EMIT valueChanged(text, userData());
}

void DoubleSpinBox::on_editingFinished()
{
    d->committed = value();
    if (displayStyleTracking())
        setDisplayStyle(Normal);
    Q_EMIT editingFinished(userData());
}

void DoubleSpinBox::on_lineEdit_textChanged(const QString&)
{
    if (displayStyleTracking())
        setDisplayStyle(Editing);
}

bool DoubleSpinBox::displayedValue(double* value) const
{
    QString text = lineEdit()->displayText();
    int pos = lineEdit()->cursorPosition();
    if (validate(text, pos) != QValidator::Acceptable)
        return false;
    *value = valueFromText(text);
    return true;
}

void DoubleSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        setValue(d->committed);
        selectAll();
        if (displayStyleTracking())
            setDisplayStyle(Normal);
    } else if (event->key() == Qt::Key_Return) {
        double shown = 0.0;
        if (displayedValue(&shown) && shown == d->committed) {
            selectAll();
            if (displayStyleTracking())
                setDisplayStyle(Normal);
            event->accept();
            return;
        }
    }
    QDoubleSpinBox::keyPressEvent(event);
}

void DoubleSpinBox::focusOutEvent(QFocusEvent* event)
{
    const bool blocked = signalsBlocked();
    double shown = 0.0;
    const bool number = displayedValue(&shown);
    if (number && shown == d->committed) {
        selectAll();
        if (displayStyleTracking())
            setDisplayStyle(Normal);
        // Nothing changed, so the base's editingFinished() would only be noise.
        blockSignals(true);
        QDoubleSpinBox::focusOutEvent(event);
    } else {
        if (number)
            setValue(shown);
        else if (displayStyleTracking())
            setDisplayStyle(Normal); // the base puts the committed text back
        blockSignals(false);
        QDoubleSpinBox::focusOutEvent(event);
    }
    blockSignals(blocked);
    Q_EMIT lostFocus();
}

} // namespace kes::qt::gui::widgets
