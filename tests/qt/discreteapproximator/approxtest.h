#ifndef KES_TESTS_DISCRETEAPPROXIMATOR_APPROXTEST_H
#define KES_TESTS_DISCRETEAPPROXIMATOR_APPROXTEST_H

// Points as test data and in failure messages, and right-click menus opened for real.

#include <kes/core/pointf.h>
#include <kes/core/vector.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QStringList>
#include <QTimer>
#include <QtTest>

Q_DECLARE_METATYPE(kes::core::PointF)
Q_DECLARE_METATYPE(kes::core::Vector<kes::core::PointF>)

namespace kes::core {

// Found by QCOMPARE for its failure messages; the core's own toString() of a vector writes a
// std::string and needs a stream operator that points do not have.
inline char* toString(const PointF& p)
{
    return QTest::toString(QStringLiteral("(%1, %2)").arg(p.x, 0, 'g', 17).arg(p.y, 0, 'g', 17));
}

inline char* toString(const Vector<PointF>& points)
{
    QStringList texts;
    for (const PointF& p : points)
        texts << QStringLiteral("(%1, %2)").arg(p.x).arg(p.y);
    return QTest::toString(texts.join(QLatin1Char(' ')));
}

} // namespace kes::core

namespace kes::test {

/// The entries of \a menu as texts, "-" for a separator, " (off)" appended to disabled ones.
inline QStringList menuEntries(const QMenu* menu)
{
    QStringList entries;
    for (const QAction* action : menu->actions())
        entries << (action->isSeparator() ? QStringLiteral("-")
                                          : action->text() + (action->isEnabled() ? "" : " (off)"));
    return entries;
}

/// Triggers the entry of \a menu with the text \a text, if there is one.
inline void triggerEntry(QMenu* menu, const QString& text)
{
    for (QAction* action : menu->actions()) {
        if (!action->isSeparator() && action->text() == text)
            return action->trigger();
    }
}

/// Right-clicks \a widget at \a pos through its window, as a user does, so that the context-menu
/// request follows the press; inside the modal loop of the popup menu that opens, triggers its
/// entry \a entry, if any, and closes it. Returns the menu's entries, none if no menu opened.
inline QStringList rightClickMenu(QWidget* widget, const QPoint& pos, const QString& entry = {})
{
    QStringList entries;
    // Gone with this call, so that it never outlives the entries.
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            timer.stop();
            entries = menuEntries(menu);
            triggerEntry(menu, entry);
            menu->close();
        }
    });
    timer.start(10);
    QWidget* window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, widget->mapTo(window, pos));
    return entries;
}

} // namespace kes::test

#endif
