#include <kes/qt/colorrangefinder/spinboxgroup.h>

#include <kes/qt/translation/manager.h>

#include <QBoxLayout>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QSignalBlocker>
#include <QSpinBox>

#include <cmath>

namespace kes::qt::colorrangefinder {

class SpinBoxGroupPrivate
{
public:
    QGroupBox* hue = nullptr;
    QGroupBox* saturation = nullptr;
    QGroupBox* value = nullptr;
    QSpinBox* hueMin = nullptr;
    QSpinBox* hueMax = nullptr;
    QDoubleSpinBox* satMin = nullptr;
    QDoubleSpinBox* satMax = nullptr;
    QDoubleSpinBox* valMin = nullptr;
    QDoubleSpinBox* valMax = nullptr;
};

namespace {

QSpinBox* hueBox(const QString& name, QWidget* parent)
{
    auto* box = new QSpinBox(parent);
    box->setObjectName(name);
    box->setRange(0, 360);
    box->setSingleStep(10);
    box->setSuffix(QStringLiteral(" \u00b0"));
    return box;
}

QDoubleSpinBox* percentBox(const QString& name, QWidget* parent)
{
    auto* box = new QDoubleSpinBox(parent);
    box->setObjectName(name);
    box->setDecimals(1);
    box->setRange(0.0, 100.0);
    box->setSingleStep(10.0);
    box->setSuffix(QStringLiteral(" %"));
    return box;
}

QGroupBox* group(const QString& name, QWidget* min, QWidget* max, QWidget* parent)
{
    auto* box = new QGroupBox(parent);
    box->setObjectName(name);
    auto* form = new QFormLayout(box);
    // Fixed labels, the same in every language.
    form->addRow(QStringLiteral("Min:"), min);
    form->addRow(QStringLiteral("Max:"), max);
    return box;
}

// A hue for its box: whole degrees within 0 to 360, NaN taken as 0.
int hueValue(double value)
{
    if (!(value > 0.0))
        return 0;
    return value >= 360.0 ? 360 : int(std::lround(value));
}

// NaN would defeat the box's own clamping.
double percentValue(double value)
{
    return value == value ? value : 0.0;
}

} // namespace

SpinBoxGroup::SpinBoxGroup(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<SpinBoxGroupPrivate>())
{
    d->hueMin = hueBox(QStringLiteral("hueMin"), this);
    d->hueMax = hueBox(QStringLiteral("hueMax"), this);
    d->satMin = percentBox(QStringLiteral("satMin"), this);
    d->satMax = percentBox(QStringLiteral("satMax"), this);
    d->valMin = percentBox(QStringLiteral("valMin"), this);
    d->valMax = percentBox(QStringLiteral("valMax"), this);
    d->hue = group(QStringLiteral("hue"), d->hueMin, d->hueMax, this);
    d->saturation = group(QStringLiteral("saturation"), d->satMin, d->satMax, this);
    d->value = group(QStringLiteral("value"), d->valMin, d->valMax, this);

    QBoxLayout* layout = orientation == Qt::Horizontal ? static_cast<QBoxLayout*>(new QHBoxLayout(this))
                                                       : new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->hue);
    layout->addWidget(d->saturation);
    layout->addWidget(d->value);

    for (QSpinBox* box : {d->hueMin, d->hueMax}) {
        connect(box, SIGNAL(valueChanged(int)), this, SLOT(onValueChanged()));
        connect(box, SIGNAL(editingFinished()), this, SIGNAL(editingFinished()));
    }
    for (QDoubleSpinBox* box : {d->satMin, d->satMax, d->valMin, d->valMax}) {
        connect(box, SIGNAL(valueChanged(double)), this, SLOT(onValueChanged()));
        connect(box, SIGNAL(editingFinished()), this, SIGNAL(editingFinished()));
    }
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

SpinBoxGroup::~SpinBoxGroup() = default;

int SpinBoxGroup::hueMin() const
{
    return d->hueMin->value();
}

int SpinBoxGroup::hueMax() const
{
    return d->hueMax->value();
}

double SpinBoxGroup::satMin() const
{
    return d->satMin->value();
}

double SpinBoxGroup::satMax() const
{
    return d->satMax->value();
}

double SpinBoxGroup::valMin() const
{
    return d->valMin->value();
}

double SpinBoxGroup::valMax() const
{
    return d->valMax->value();
}

void SpinBoxGroup::setRanges(double hueMin, double hueMax, double satMin, double satMax, double valMin,
                             double valMax)
{
    if (double(d->hueMin->value()) == hueMin && double(d->hueMax->value()) == hueMax
        && d->satMin->value() == satMin && d->satMax->value() == satMax && d->valMin->value() == valMin
        && d->valMax->value() == valMax)
        return;
    {
        const QSignalBlocker b1(d->hueMin), b2(d->hueMax), b3(d->satMin), b4(d->satMax), b5(d->valMin),
            b6(d->valMax);
        d->hueMin->setValue(hueValue(hueMin));
        d->hueMax->setValue(hueValue(hueMax));
        d->satMin->setValue(percentValue(satMin));
        d->satMax->setValue(percentValue(satMax));
        d->valMin->setValue(percentValue(valMin));
        d->valMax->setValue(percentValue(valMax));
    }
    Q_EMIT valuesChanged();
}

kes::core::IntVector SpinBoxGroup::ranges() const
{
    return kes::core::IntVector{hueMin(), hueMax(), int(satMin()), int(satMax()), int(valMin()), int(valMax())};
}

void SpinBoxGroup::translate()
{
    d->hue->setTitle(tr("Hue"));
    d->saturation->setTitle(tr("Saturation"));
    d->value->setTitle(tr("Value"));
}

void SpinBoxGroup::onValueChanged()
{
    Q_EMIT valuesChanged();
}

} // namespace kes::qt::colorrangefinder
