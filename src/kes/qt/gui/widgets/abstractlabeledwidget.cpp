#include <kes/qt/gui/widgets/abstractlabeledwidget.h>

#include <QHBoxLayout>
#include <QLabel>

namespace kes::qt::gui::widgets {

struct AbstractLabeledWidgetPrivate
{
    QLabel* label = nullptr;
    QString labelText;
    QString separator = QStringLiteral(":");
};

AbstractLabeledWidget::AbstractLabeledWidget(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<AbstractLabeledWidgetPrivate>())
{
    d->label = new QLabel(this);
    d->label->setObjectName(QStringLiteral("label"));
}

AbstractLabeledWidget::AbstractLabeledWidget(const QString& labelText, QWidget* parent)
    : AbstractLabeledWidget(parent)
{
    setLabelText(labelText);
}

AbstractLabeledWidget::~AbstractLabeledWidget() = default;

QLabel* AbstractLabeledWidget::label() const
{
    return d->label;
}

QString AbstractLabeledWidget::labelText() const
{
    return d->labelText;
}

void AbstractLabeledWidget::setLabelText(const QString& text)
{
    d->labelText = text;
    d->label->setText(text + d->separator);
}

QString AbstractLabeledWidget::separator() const
{
    return d->separator;
}

void AbstractLabeledWidget::setSeparator(const QString& separator)
{
    d->separator = separator;
    setLabelText(d->labelText);
}

void AbstractLabeledWidget::setupLayout()
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->label, 0);
    layout->addWidget(widget(), 1);
    d->label->setBuddy(widget());
}

void AbstractLabeledWidget::setEnabled(bool enable)
{
    d->label->setEnabled(enable);
    widget()->setEnabled(enable);
}

void AbstractLabeledWidget::setDisabled(bool disable)
{
    d->label->setDisabled(disable);
    widget()->setDisabled(disable);
}

} // namespace kes::qt::gui::widgets
