#include <kes/qt/discreteapproximator/delegate.h>

#include <kes/qt/discreteapproximator/model.h>

#include <QDoubleValidator>
#include <QLineEdit>

namespace kes::qt::discreteapproximator {

struct DelegatePrivate
{
    Model* model = nullptr;
    // Deliberately never attached to an editor: any text may be typed, the model judges it.
    QDoubleValidator* validator = nullptr;
};

Delegate::Delegate(Model* model, QObject* parent)
    : QItemDelegate(parent)
    , d(std::make_unique<DelegatePrivate>())
{
    d->model = model;
    d->validator = new QDoubleValidator(this);
}

Delegate::~Delegate() = default;

QWidget* Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                const QModelIndex&) const
{
    return new QLineEdit(parent);
}

void Delegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* lineEdit = qobject_cast<QLineEdit*>(editor);
    const int row = index.row();
    if (!lineEdit || row < 0 || row >= d->model->rowCount())
        return;
    const kes::core::PointF& p = d->model->points()[std::size_t(row)];
    lineEdit->setText(QString::number(index.column() == 0 ? p.x : p.y, 'g', 6));
}

void Delegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                            const QModelIndex& index) const
{
    const auto* lineEdit = qobject_cast<const QLineEdit*>(editor);
    if (!lineEdit || !model)
        return;
    QString text = lineEdit->text();
    text.replace(QLatin1Char(','), QLatin1Char('.'));
    model->setData(index, QVariant(text.toDouble()), Qt::EditRole);
}

void Delegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                    const QModelIndex&) const
{
    editor->setGeometry(option.rect);
}

} // namespace kes::qt::discreteapproximator
