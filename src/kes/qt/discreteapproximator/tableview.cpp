#include <kes/qt/discreteapproximator/tableview.h>

#include <kes/qt/discreteapproximator/contextmenu.h>
#include <kes/qt/discreteapproximator/delegate.h>
#include <kes/qt/discreteapproximator/model.h>

#include <QHeaderView>
#include <QMouseEvent>

namespace kes::qt::discreteapproximator {

struct TableViewPrivate
{
    Model* model = nullptr;
};

TableView::TableView(Model* model, QWidget* parent)
    : QTableView(parent)
    , d(std::make_unique<TableViewPrivate>())
{
    d->model = model;
    setItemDelegate(new Delegate(model, this));
    setModel(model);
    // Two columns of numbers share the width, however wide the editor is.
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    // The press opens our own menu; the request Qt sends after it must not reach the parents.
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(this, SIGNAL(clicked(const QModelIndex&)), this, SLOT(on_clicked(const QModelIndex&)));
    connect(model, SIGNAL(selectedPointChanged(const QModelIndex&)), this,
            SLOT(on_selectedPointChanged(const QModelIndex&)));
}

TableView::~TableView() = default;

void TableView::on_clicked(const QModelIndex& index)
{
    d->model->setSelectedPoint(index.row(), index.column());
}

void TableView::on_selectedPointChanged(const QModelIndex& index)
{
    setCurrentIndex(index);
}

void TableView::mousePressEvent(QMouseEvent* event)
{
    QTableView::mousePressEvent(event);
    if (event->button() != Qt::RightButton)
        return;
    const QModelIndex index = indexAt(event->pos());
    ContextMenu menu(index.isValid() ? index.row() : -1, d->model);
    menu.init();
    menu.exec(event->globalPos());
}

} // namespace kes::qt::discreteapproximator
