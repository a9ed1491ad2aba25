#include <kes/qt/gui/widgets/labeledlineedit.h>

#include <QLineEdit>

namespace kes::qt::gui::widgets {

struct LabeledLineEditPrivate
{
    QLineEdit* field = nullptr;
};

LabeledLineEdit::LabeledLineEdit(QWidget* parent)
    : AbstractLabeledWidget(parent)
    , d(std::make_unique<LabeledLineEditPrivate>())
{
    init();
}

LabeledLineEdit::LabeledLineEdit(const QString& labelText, QWidget* parent)
    : AbstractLabeledWidget(labelText, parent)
    , d(std::make_unique<LabeledLineEditPrivate>())
{
    init();
}

LabeledLineEdit::~LabeledLineEdit() = default;

void LabeledLineEdit::init()
{
    d->field = new QLineEdit(this);
    d->field->setObjectName(QStringLiteral("lineEdit"));
    connect(d->field, SIGNAL(cursorPositionChanged(int, int)), this, SIGNAL(cursorPositionChanged(int, int)));
    connect(d->field, SIGNAL(editingFinished()), this, SIGNAL(editingFinished()));
    connect(d->field, SIGNAL(returnPressed()), this, SIGNAL(returnPressed()));
    connect(d->field, SIGNAL(selectionChanged()), this, SIGNAL(selectionChanged()));
    connect(d->field, SIGNAL(textChanged(const QString&)), this, SIGNAL(textChanged(const QString&)));
    connect(d->field, SIGNAL(textEdited(const QString&)), this, SIGNAL(textEdited(const QString&)));
    setupLayout();
}

QWidget* LabeledLineEdit::widget() const
{
    return d->field;
}

QLineEdit* LabeledLineEdit::lineEdit() const
{
    return d->field;
}

QString LabeledLineEdit::text() const
{
    return d->field->text();
}

void LabeledLineEdit::setText(const QString& text)
{
    d->field->setText(text);
}

} // namespace kes::qt::gui::widgets
