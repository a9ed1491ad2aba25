#ifndef KES_QT_DISCRETEAPPROXIMATOR_TABLEVIEW_H
#define KES_QT_DISCRETEAPPROXIMATOR_TABLEVIEW_H

#include <kes/qt/kes_qt_export.h>

#include <QTableView>

#include <memory>

namespace kes::qt::discreteapproximator {

class Model;
struct TableViewPrivate;

/// The point table as x/y cells, edited as text through a Delegate; a right click opens the
/// ContextMenu for the row under the cursor, or for the whole list below the last row.
class KES_QT_EXPORT TableView : public QTableView
{
    Q_OBJECT

public:
    /// \a model is not owned.
    explicit TableView(Model* model, QWidget* parent = nullptr);
    ~TableView() override;

public Q_SLOTS:
    /// Selects the clicked row's point in the model, so that the graph highlights it.
    void on_clicked(const QModelIndex& index);
    /// Makes \a index the current cell, so that a selection in the graph or a new point shows.
    void on_selectedPointChanged(const QModelIndex& index);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<TableViewPrivate> const d;
};

} // namespace kes::qt::discreteapproximator

#endif
