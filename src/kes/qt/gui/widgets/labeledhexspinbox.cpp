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

} // namespace kes::qt::gui::widgets
