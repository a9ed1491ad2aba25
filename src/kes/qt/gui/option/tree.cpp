#include <kes/qt/gui/option/tree.h>

#include <kes/qt/gui/option/page.h>
#include <kes/qt/gui/option/treeitem.h>

#include <QIcon>

namespace kes::qt::gui::option {

struct TreePrivate
{
    std::unique_ptr<TreeItem> root;
};

Tree::Tree(QObject* parent)
    : QAbstractItemModel(parent)
    , d(std::make_unique<TreePrivate>())
{
    d->root = std::make_unique<TreeItem>(QString(), QString(), nullptr);
}

Tree::~Tree() = default;

TreeItem* Tree::addDir(const char* name, const char* context)
{
    return insert(new TreeItem(QString::fromUtf8(name), QString::fromUtf8(context), nullptr),
                  d->root.get());
}

TreeItem* Tree::addPage(Page* page, TreeItem* parent)
{
    return insert(new TreeItem(QString(), QString(), page), parent ? parent : d->root.get());
}

TreeItem* Tree::insert(TreeItem* item, TreeItem* parent)
{
    const int row = parent->childCount();
    beginInsertRows(index(parent), row, row);
    parent->addChild(item);
    endInsertRows();
    connect(item, SIGNAL(dataChanged(kes::qt::gui::option::TreeItem*)), this,
            SLOT(on_itemDataChanged(kes::qt::gui::option::TreeItem*)));
    return item;
}

TreeItem* Tree::root() const
{
    return d->root.get();
}

TreeItem* Tree::itemOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<TreeItem*>(index.internalPointer()) : d->root.get();
}

QModelIndex Tree::index(int row, int column, const QModelIndex& parent) const
{
    if (column != 0 || (parent.isValid() && parent.model() != this))
        return QModelIndex();
    TreeItem* child = itemOf(parent)->child(row);
    return child ? createIndex(row, 0, child) : QModelIndex();
}

QModelIndex Tree::parent(const QModelIndex& index) const
{
    if (!index.isValid() || index.model() != this)
        return QModelIndex();
    return this->index(itemOf(index)->parentItem());
}

int Tree::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() && (parent.column() != 0 || parent.model() != this))
        return 0;
    return itemOf(parent)->childCount();
}

int Tree::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant Tree::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.model() != this)
        return QVariant();
    const TreeItem* item = itemOf(index);
    if (role == Qt::DisplayRole)
        return item->data(index.column());
    if (role == Qt::DecorationRole && !item->page())
        return TreeItem::directoryIcon();
    return QVariant();
}

Page* Tree::page(const QModelIndex& index) const
{
    if (!index.isValid() || index.model() != this)
        return nullptr;
    return itemOf(index)->page();
}

QModelIndex Tree::index(TreeItem* item) const
{
    if (!item || item == d->root.get() || !item->parentItem())
        return QModelIndex();
    return createIndex(item->row(), 0, item);
}

QModelIndex Tree::firstPage(TreeItem* from) const
{
    const QList<TreeItem*> children = (from ? from : d->root.get())->childItems();
    for (TreeItem* child : children) {
        if (child->page())
            return index(child);
        const QModelIndex below = firstPage(child);
        if (below.isValid())
            return below;
    }
    return QModelIndex();
}

void Tree::on_itemDataChanged(TreeItem* item)
{
    const QModelIndex changed = index(item);
    if (changed.isValid())
        Q_EMIT dataChanged(changed, changed);
}

} // namespace kes::qt::gui::option
