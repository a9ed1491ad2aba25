#ifndef KES_QT_LOG_WINDOW_H
#define KES_QT_LOG_WINDOW_H

#include <kes/qt/kes_qt_export.h>

#include <QDockWidget>

#include <memory>

class QAction;
class QHideEvent;
class QShowEvent;

namespace kes::qt::log {

struct WindowPrivate;

/// A dockable panel showing the log hub's document, Log::singleton(), which must exist before the
/// panel and outlive it.
///
/// The application's checkable toggle action, if any, shows and hides the panel, and its check
/// mark follows the panel however it is shown or hidden (its own close button included). Unlike
/// the library's other windows, the panel does not follow language changes by itself: connect
/// the language manager's languageChanged() to translate() where the language can change.
class KES_QT_EXPORT Window : public QDockWidget
{
    Q_OBJECT

public:
    /// \a action is not owned and may be null.
    explicit Window(QAction* action, QWidget* parent = nullptr);
    ~Window() override;

    /// Sets the action's check mark to the panel's visibility.
    void updateAction();

public Q_SLOTS:
    /// Titles the panel "Log" in the current language.
    void translate();
    /// Shows or hides the panel as the toggle action's check mark says.
    void on_logmessage_triggered();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::unique_ptr<WindowPrivate> const d;
};

} // namespace kes::qt::log

#endif
