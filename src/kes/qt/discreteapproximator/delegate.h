#ifndef KES_QT_DISCRETEAPPROXIMATOR_DELEGATE_H
#define KES_QT_DISCRETEAPPROXIMATOR_DELEGATE_H

#include <kes/qt/kes_qt_export.h>

#include <QItemDelegate>

#include <memory>

namespace kes::qt::discreteapproximator {

class Model;
struct DelegatePrivate;

/// Edits a point coordinate as free text in a line edit: the model's validation decides, so a
/// refused value simply leaves the cell as it was. A comma is taken for a decimal point.
class KES_QT_EXPORT Delegate : public QItemDelegate
{
    Q_OBJECT

public:
    /// \a model is not owned.
    explicit Delegate(Model* model, QObject* parent = nullptr);
    ~Delegate() override;

    /// A line edit without a validator: the model judges the text when it is committed.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /// The coordinate with 6 significant digits, one fewer than the table shows.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Hands the text to the model's validated edit as a number, a comma read as a decimal point;
    /// text that is no number reads as 0.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    /// The editor covers the cell.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

private:
    std::unique_ptr<DelegatePrivate> const d;
};

} // namespace kes::qt::discreteapproximator

#endif
