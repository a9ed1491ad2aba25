#include <kes/qt/gui/widgets/labeledcombobox.h>

#include <QComboBox>

namespace kes::qt::gui::widgets {

struct LabeledComboBoxPrivate
{
    QComboBox* field = nullptr;
};

LabeledComboBox::LabeledComboBox(QWidget* parent)
    : AbstractLabeledWidget(parent)
    , d(std::make_unique<LabeledComboBoxPrivate>())
{
    init();
}

LabeledComboBox::LabeledComboBox(const QString& labelText, QWidget* parent)
    : AbstractLabeledWidget(labelText, parent)
    , d(std::make_unique<LabeledComboBoxPrivate>())
{
    init();
}

LabeledComboBox::~LabeledComboBox() = default;

void LabeledComboBox::init()
{
    d->field = new QComboBox(this);
    d->field->setObjectName(QStringLiteral("comboBox"));
    connect(d->field, SIGNAL(activated(int)), this, SIGNAL(activated(int)));
    connect(d->field, SIGNAL(activated(const QString&)), this, SIGNAL(activated(const QString&)));
    connect(d->field, SIGNAL(currentIndexChanged(int)), this, SIGNAL(currentIndexChanged(int)));
    connect(d->field, SIGNAL(currentIndexChanged(const QString&)), this, SIGNAL(currentIndexChanged(const QString&)));
    connect(d->field, SIGNAL(highlighted(int)), this, SIGNAL(highlighted(int)));
    connect(d->field, SIGNAL(highlighted(const QString&)), this, SIGNAL(highlighted(const QString&)));
    connect(d->field, SIGNAL(editTextChanged(const QString&)), this, SIGNAL(editTextChanged(const QString&)));
    setupLayout();
}

QWidget* LabeledComboBox::widget() const
{
    return d->field;
}

QComboBox* LabeledComboBox::comboBox() const
{
    return d->field;
}

} // namespace kes::qt::gui::widgets
