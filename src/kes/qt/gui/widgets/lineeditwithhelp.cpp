#include <kes/qt/gui/widgets/lineeditwithhelp.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>

namespace kes::qt::gui::widgets {

class LineEditWithHelpPrivate
{
public:
    // Guarded: the application may delete its action before the line edit.
    QPointer<QAction> helpAction;
};

LineEditWithHelp::LineEditWithHelp(QAction* helpAction, QWidget* parent)
    : QLineEdit(parent)
    , d(std::make_unique<LineEditWithHelpPrivate>())
{
    d->helpAction = helpAction;
}

LineEditWithHelp::~LineEditWithHelp() = default;

void LineEditWithHelp::setHelpAction(QAction* helpAction)
{
    d->helpAction = helpAction;
}

QAction* LineEditWithHelp::helpAction() const
{
    return d->helpAction;
}

void LineEditWithHelp::contextMenuEvent(QContextMenuEvent* event)
{
    // Guarded: a slot run from the menu may delete the line edit.
    QPointer<QMenu> menu = createStandardContextMenu();
    if (d->helpAction) {
        menu->addSeparator();
        menu->addAction(d->helpAction);
    }
    menu->exec(event->globalPos());
    delete menu;
}

} // namespace kes::qt::gui::widgets
