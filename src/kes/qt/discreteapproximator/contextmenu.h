#ifndef KES_QT_DISCRETEAPPROXIMATOR_CONTEXTMENU_H
#define KES_QT_DISCRETEAPPROXIMATOR_CONTEXTMENU_H

#include <kes/qt/kes_qt_export.h>

#include <QMenu>

#include <memory>

namespace kes::qt::discreteapproximator {

class Model;
struct ContextMenuPrivate;

/// The right-click menu of the table and the graph: insert before or after the point of the
/// menu's row, remove it, and exchange the whole list with the clipboard. Built on the stack for
/// one click: construct, let the caller add entries in front, call init(), exec().
class KES_QT_EXPORT ContextMenu : public QMenu
{
    Q_OBJECT

public:
    /// \a row is the point acted on, -1 for none (only the list-wide entries); \a model is not
    /// owned.
    ContextMenu(int row, Model* model, QWidget* parent = nullptr);
    ~ContextMenu() override;

    /// Appends the entries. "Remove point" is disabled for the last point and "Import from
    /// clipboard" while the clipboard holds no text; the model's help action, if any, comes last.
    void init();

    /// The row the menu acts on, -1 for none.
    int row() const;

public Q_SLOTS:
    /// Inserts a point in front of the menu's row.
    void on_insertPointBefore();
    /// Inserts a point behind the menu's row.
    void on_insertPointAfter();
    /// Removes the point of the menu's row.
    void on_removePoint();
    /// Replaces the points with the clipboard's lines of x and y.
    void on_importFromClipboard();
    /// Puts the points on the clipboard, one "x<tab>y" line each.
    void on_exportToClipboard();
    /// Names the entries in the current language.
    void translate();

private:
    std::unique_ptr<ContextMenuPrivate> const d;
};

} // namespace kes::qt::discreteapproximator

#endif
