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

    int row() const;

public Q_SLOTS:
    void on_insertPointBefore();
    void on_insertPointAfter();
    void on_removePoint();
    void on_importFromClipboard();
    void on_exportToClipboard();
    void translate();

private:
    std::unique_ptr<ContextMenuPrivate> const d;
};

} // namespace kes::qt::discreteapproximator

#endif
