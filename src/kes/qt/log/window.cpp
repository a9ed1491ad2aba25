#include <kes/qt/log/window.h>

#include <kes/qt/log/log.h>
#include <kes/qt/log/view.h>

#include <QAction>
#include <QHideEvent>
#include <QShowEvent>
#include <QTextCursor>

namespace kes::qt::log {

Window::Window(QAction* action, QWidget* parent)
    : QDockWidget(parent)
    , m_action(action)
{
    setObjectName(QStringLiteral("LogMessageWindow"));
    auto* view = new View;
    if (Log* hub = Log::singleton()) {
        view->setDocument(hub);
        // The view follows new lines only while its cursor sits at the end of the document.
        view->moveCursor(QTextCursor::End);
    }
    setWidget(view);
    translate();
    if (m_action)
        connect(m_action, SIGNAL(triggered()), this, SLOT(on_logmessage_triggered()));
}

Window::~Window() = default;

void Window::updateAction()
{
    if (m_action)
        m_action->setChecked(isVisible());
}

void Window::translate()
{
    setWindowTitle(tr("Log"));
}

void Window::on_logmessage_triggered()
{
    if (!m_action)
        return;
    setVisible(m_action->isChecked());
}

void Window::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    if (m_action)
        m_action->setChecked(true);
    event->accept();
}

void Window::hideEvent(QHideEvent* event)
{
    QDockWidget::hideEvent(event);
    if (m_action)
        m_action->setChecked(false);
    event->accept();
}

} // namespace kes::qt::log
