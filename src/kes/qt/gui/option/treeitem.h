#ifndef KES_QT_GUI_OPTION_TREEITEM_H
#define KES_QT_GUI_OPTION_TREEITEM_H

#include <kes/qt/kes_qt_export.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

class QIcon;

namespace kes::qt::gui::option {

class Page;
struct TreeItemPrivate;

/// A node of the options dialog's tree: a directory, named by a source text and its translation
/// context, or a page, named by the page's window title.
///
/// An item owns its children. Its text follows the language: every language change announces it
/// with dataChanged().
class KES_QT_EXPORT TreeItem : public QObject
{
    Q_OBJECT

public:
    /// A directory when \a page is null. The item is appended to \a parent's children if given.
    TreeItem(const QString& name, const QString& context, Page* page, TreeItem* parent = nullptr);
    ~TreeItem() override;

    /// The child at \a row, null outside 0 to childCount() - 1.
    TreeItem* child(int row) const;
    /// The number of children.
    int childCount() const;
    /// The children in order.
    QList<TreeItem*> childItems() const;
    /// The index in the parent's children; 0 for the root.
    int row() const;

    /// Takes ownership of \a item, moving it from its former parent.
    void addChild(TreeItem* item);
    /// Gives up ownership of \a item, which keeps living without a parent.
    void removeChild(TreeItem* item);
    /// Moves the item to \a parent's children (to none for null).
    void setParent(TreeItem* parent);
    /// The directory holding the item, null for the root.
    TreeItem* parentItem() const;

    /// The source text of a directory's name, as given to the constructor (the tree gives pages none).
    QString name() const;
    /// The translation context of the name.
    QString context() const;
    /// The page of a page item, null for a directory.
    Page* page() const;

    /// The names from the topmost directory down to this item.
    QStringList path() const;
    /// Column 0 only: a page's window title, or a directory's name in the current language.
    QVariant data(int column) const;

    /// The icon shown for directories, shared by all items.
    static QIcon directoryIcon();

Q_SIGNALS:
    /// The item's text changed, after a change of language.
    void dataChanged(kes::qt::gui::option::TreeItem* item);

private Q_SLOTS:
    void translate();

private:
    std::unique_ptr<TreeItemPrivate> const d;
};

} // namespace kes::qt::gui::option

#endif
