#include <kes/qt/log/view.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QResizeEvent>

#include <memory>

namespace kes::qt::log {

View::View(QWidget* parent)
    : QTextEdit(parent)
{
    setReadOnly(true);
    connect(this, SIGNAL(textChanged()), this, SLOT(on_textChanged()));
}

View::~View() = default;

void View::setHelpAction(QAction* action)
{
    m_helpAction = action;
}

void View::on_textChanged()
{
    ensureCursorVisible();
}

void View::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    if (m_helpAction) {
        menu->addSeparator();
        menu->addAction(m_helpAction);
    }
    menu->exec(event->globalPos());
}

void View::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    ensureCursorVisible();
}

} // namespace kes::qt::log
