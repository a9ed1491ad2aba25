#include <kes/qt/log/window.h>

#include <kes/qt/log/log.h>
#include <kes/qt/log/view.h>

#include <QAction>
#include <QHideEvent>
#include <QPointer>
#include <QShowEvent>
#include <QTextCursor>

namespace kes::qt::log {

struct WindowPrivate
{
    // Guarded: an application may delete its action before the panel.
    QPointer<QAction> action;
};

Window::Window(QAction* action, QWidget* parent)
    : QDockWidget(parent)
    , d(std::make_unique<WindowPrivate>())
{
    d->action = action;
    setObjectName(QStringLiteral("LogMessageWindow"));
    auto* view = new View;
    if (Log* hub = Log::singleton()) {
        view->setDocument(hub);
        // The view follows new lines only while its cursor sits at the end of the document.
        view->moveCursor(QTextCursor::End);
    }
    setWidget(view);
    translate();
    if (d->action)
        connect(d->action, SIGNAL(triggered()), this, SLOT(on_logmessage_triggered()));
}

Window::~Window() = default;

void Window::updateAction()
{
    if (d->action)
        d->action->setChecked(isVisible());
}

void Window::translate()
{
    setWindowTitle(tr("Log"));
}

void Window::on_logmessage_triggered()
{
    if (!d->action)
        return;
    setVisible(d->action->isChecked());
}

void Window::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    if (d->action)
        d->action->setChecked(true);
    event->accept();
}

void Window::hideEvent(QHideEvent* event)
{
    QDockWidget::hideEvent(event);
    if (d->action)
        d->action->setChecked(false);
    event->accept();
}

} // namespace kes::qt::log
