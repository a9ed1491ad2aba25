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

} // namespace kes::qt::gui::widgets
