#ifndef KES_TESTS_DISCRETEAPPROXIMATOR_POPUPMENU_H
#define KES_TESTS_DISCRETEAPPROXIMATOR_POPUPMENU_H

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

namespace kes::test {

/// The entries of \a menu as texts, "-" for a separator, "(off)" appended to disabled ones.
inline QStringList menuEntries(const QMenu* menu)
{
    QStringList entries;
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator())
            entries << QStringLiteral("-");
        else
            entries << action->text() + (action->isEnabled() ? QString() : QStringLiteral(" (off)"));
    }
    return entries;
}

/// Arranges for \a handle to run on the next popup menu as soon as it is open, from inside its
/// modal loop; the menu is closed afterwards. Gives up after about two seconds.
inline void whenMenuOpens(std::function<void(QMenu*)> handle)
{
    auto* timer = new QTimer;
    timer->setInterval(10);
    auto tries = std::make_shared<int>(200);
    QObject::connect(timer, &QTimer::timeout, [timer, tries, handle] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu && --*tries > 0)
            return;
        timer->stop();
        timer->deleteLater();
        if (menu) {
            handle(menu);
            menu->close();
        }
    });
    timer->start();
}

/// Triggers the entry of \a menu with the text \a text, if there is one.
inline void triggerEntry(QMenu* menu, const QString& text)
{
    for (QAction* action : menu->actions()) {
        if (action->text() == text) {
            action->trigger();
            return;
        }
    }
}

} // namespace kes::test

#endif
