#ifndef KES_QT_GUI_OPTION_TREE_H
#define KES_QT_GUI_OPTION_TREE_H

#include <kes/qt/kes_qt_export.h>

#include <QAbstractItemModel>

#include <memory>

namespace kes::qt::gui::option {

class Page;
class TreeItem;
struct TreePrivate;

/// The options dialog's tree of directories and pages as a one-column item model.
class KES_QT_EXPORT Tree : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// An empty tree.
    explicit Tree(QObject* parent = nullptr);
    ~Tree() override;

    /// A directory at the top level, named by the source text \a name of the translation
    /// \a context, so that it follows the language.
    TreeItem* addDir(const char* name, const char* context);
    /// A page item under \a parent, at the top level for null.
    TreeItem* addPage(Page* page, TreeItem* parent = nullptr);

    /// The invisible root, parent of the top level.
    TreeItem* root() const;

    /// The index of the child at \a row of \a parent; invalid outside the tree.
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    /// The index of the directory holding \a index; invalid at the top level.
    QModelIndex parent(const QModelIndex& index) const override;
    /// The number of children of \a parent.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// One column: the names.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The item's name in the current language and, for directories, the directory icon.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// The page of \a index; null for a directory or an invalid index.
    Page* page(const QModelIndex& index) const;
    /// The index of \a item; invalid for the root and null.
    QModelIndex index(TreeItem* item) const;
    /// The first page below \a from (the root for null), depth first; invalid if there is none.
    QModelIndex firstPage(TreeItem* from = nullptr) const;

private Q_SLOTS:
    void on_itemDataChanged(kes::qt::gui::option::TreeItem* item);

private:
    TreeItem* itemOf(const QModelIndex& index) const;
    TreeItem* insert(TreeItem* item, TreeItem* parent);

    std::unique_ptr<TreePrivate> const d;
};

} // namespace kes::qt::gui::option

#endif
