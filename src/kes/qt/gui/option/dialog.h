#ifndef KES_QT_GUI_OPTION_DIALOG_H
#define KES_QT_GUI_OPTION_DIALOG_H

#include <kes/qt/kes_qt_export.h>

#include <QDialog>

#include <memory>

class QAction;
class QModelIndex;

namespace kes::qt::gui::option {

class Page;
class TreeItem;
struct DialogPrivate;

/// An options dialog: a tree of directories and pages on the left, the selected page on the
/// right, OK and Cancel below.
///
/// The dialog deletes itself when closed. It keeps its size, position and splitter layout in the
/// settings group "gui_option" whenever it closes, with OK, Cancel or the window's close button.
/// OK asks every page, in the order added, to finish(); the first that refuses keeps the dialog
/// open and the pages after it are not asked. The action that opened the dialog, if any, is
/// disabled while the dialog exists.
class KES_QT_EXPORT Dialog : public QDialog
{
    Q_OBJECT

public:
    /// \a action is not owned and may be null.
    Dialog(QWidget* parent, QAction* action);
    ~Dialog() override;

    /// A top-level directory named by the source text \a name of the translation \a context.
    TreeItem* addDir(const char* name, const char* context);
    /// Adds \a page, which the dialog takes over, under \a dir (at the top level for null).
    void addPage(Page* page, TreeItem* dir = nullptr);

    /// Takes size, position and splitter layout from the settings group "gui_option", with defaults for a first run.
    void readSettings();
    /// Stores size, position and splitter layout and enables the action again.
    void writeSettings();

    /// Closes when every page's finish() agrees; see the class description.
    void accept() override;
    /// Stores the layout and closes without asking the pages.
    void reject() override;
    /// Treats the window's close button like Cancel.
    bool eventFilter(QObject* object, QEvent* event) override;

public Q_SLOTS:
    /// Nothing of its own to translate: the pages and the tree follow the language themselves.
    void translate();
    /// Shows the page of \a index; a directory changes nothing.
    void on_treeView_clicked(const QModelIndex& index);

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<DialogPrivate> const d;
};

} // namespace kes::qt::gui::option

#endif
