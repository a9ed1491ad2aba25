#ifndef KES_QT_LOG_VIEW_H
#define KES_QT_LOG_VIEW_H

#include <kes/qt/kes_qt_export.h>

#include <QTextEdit>

#include <memory>

class QAction;
class QContextMenuEvent;
class QResizeEvent;

namespace kes::qt::log {

struct ViewPrivate;

/// A read-only text view that follows the newest line of its document while its cursor is at the
/// end; its context menu can end with an application's help entry.
class KES_QT_EXPORT View : public QTextEdit
{
    Q_OBJECT

public:
    /// Read-only and empty; give it the hub's document with setDocument().
    explicit View(QWidget* parent = nullptr);
    ~View() override;

    /// Appended to the context menu after a separator; not owned; null (or deleted) for none.
    void setHelpAction(QAction* action);

public Q_SLOTS:
    /// Scrolls to the cursor, so that a cursor at the end follows new lines.
    void on_textChanged();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    /// Keeps the cursor in sight when the view changes size, as when a panel first comes up.
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<ViewPrivate> const d;
};

} // namespace kes::qt::log

#endif
