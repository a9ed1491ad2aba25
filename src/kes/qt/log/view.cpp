#include <kes/qt/log/view.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QResizeEvent>

#include <memory>

namespace kes::qt::log {

struct ViewPrivate
{
    // Guarded: the application may delete its action before the view.
    QPointer<QAction> helpAction;
};

View::View(QWidget* parent)
    : QTextEdit(parent)
    , d(std::make_unique<ViewPrivate>())
{
    setReadOnly(true);
    connect(this, SIGNAL(textChanged()), this, SLOT(on_textChanged()));
}

View::~View() = default;

void View::setHelpAction(QAction* action)
{
    d->helpAction = action;
}

void View::on_textChanged()
{
    ensureCursorVisible();
}

void View::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    if (d->helpAction) {
        menu->addSeparator();
        menu->addAction(d->helpAction);
    }
    menu->exec(event->globalPos());
}

void View::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    ensureCursorVisible();
}

} // namespace kes::qt::log
