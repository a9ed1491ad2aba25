#include <kes/qt/gui/option/treeitem.h>

#include <kes/qt/gui/option/page.h>
#include <kes/qt/translation/manager.h>

#include <QApplication>
#include <QCoreApplication>
#include <QIcon>
#include <QPointer>
#include <QStyle>

namespace kes::qt::gui::option {

struct TreeItemPrivate
{
    QList<TreeItem*> children;
    TreeItem* parent = nullptr;
    QString name;
    QString context;
    // Guarded: the page belongs to the dialog's page stack.
    QPointer<Page> page;
};

TreeItem::TreeItem(const QString& name, const QString& context, Page* page, TreeItem* parent)
    : d(std::make_unique<TreeItemPrivate>())
{
    d->name = name;
    d->context = context;
    d->page = page;
    setParent(parent);
    connect(&translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
}

TreeItem::~TreeItem()
{
    if (d->parent)
        d->parent->d->children.removeOne(this);
    const QList<TreeItem*> children = d->children;
    for (TreeItem* item : children) {
        item->d->parent = nullptr;
        delete item;
    }
}

TreeItem* TreeItem::child(int row) const
{
    return row >= 0 && row < d->children.size() ? d->children.at(row) : nullptr;
}

int TreeItem::childCount() const
{
    return d->children.size();
}

QList<TreeItem*> TreeItem::childItems() const
{
    return d->children;
}

int TreeItem::row() const
{
    return d->parent ? d->parent->d->children.indexOf(const_cast<TreeItem*>(this)) : 0;
}

void TreeItem::addChild(TreeItem* item)
{
    if (item && item != this)
        item->setParent(this);
}

void TreeItem::removeChild(TreeItem* item)
{
    if (item && item->d->parent == this)
        item->setParent(nullptr);
}

void TreeItem::setParent(TreeItem* parent)
{
    if (parent == d->parent)
        return;
    // An item cannot become its own descendant: the tree would lose it and recurse for ever.
    for (const TreeItem* p = parent; p; p = p->d->parent) {
        if (p == this)
            return;
    }
    if (d->parent)
        d->parent->d->children.removeOne(this);
    d->parent = parent;
    if (parent)
        parent->d->children.append(this);
}

TreeItem* TreeItem::parentItem() const
{
    return d->parent;
}

QString TreeItem::name() const
{
    return d->name;
}

QString TreeItem::context() const
{
    return d->context;
}

Page* TreeItem::page() const
{
    return d->page;
}

QStringList TreeItem::path() const
{
    // The invisible root has no parent and no name of its own to show.
    if (!d->parent)
        return QStringList();
    QStringList names = d->parent->path();
    names.append(data(0).toString());
    return names;
}

QVariant TreeItem::data(int column) const
{
    if (column != 0)
        return QVariant();
    if (d->page)
        return d->page->windowTitle();
    return QCoreApplication::translate(d->context.toUtf8().constData(), d->name.toUtf8().constData());
}

QIcon TreeItem::directoryIcon()
{
    // Created once, on first use, when a style exists to draw it.
    static const QIcon icon = qobject_cast<QApplication*>(QCoreApplication::instance())
                                  ? QApplication::style()->standardIcon(QStyle::SP_DirIcon)
                                  : QIcon();
    return icon;
}

void TreeItem::translate()
{
    Q_EMIT dataChanged(this);
}

} // namespace kes::qt::gui::option
