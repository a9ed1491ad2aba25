#include <kes/qt/log/window.h>

#include <kes/qt/log/log.h>
#include <kes/qt/log/view.h>

#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QAbstractButton>
#include <QAction>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QScrollBar>
#include <QTextCursor>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using kes::qt::log::Log;
using kes::qt::log::View;
using kes::qt::log::Window;

namespace {

enum Way { CloseButton, Action, Call };

void setShown(Window& window, QAction& action, Way way, bool shown)
{
    if (way == CloseButton)
        QTest::mouseClick(window.findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton")),
                          Qt::LeftButton);
    else if (way == Action)
        action.trigger();
    else
        window.setVisible(shown);
}

QStringList entries(const QMenu& menu)
{
    QStringList result;
    for (QAction* action : menu.actions())
        result << (action->isSeparator() ? QStringLiteral("-") : action->text());
    return result;
}

// Opens the view's context menu and returns its entries ("-" for a separator) and last action.
QStringList contextMenuEntries(View& view, QAction*& last)
{
    QStringList result;
    // The menu runs modally: it is read and closed from inside its own event loop.
    std::function<void()> inspect = [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return QTimer::singleShot(10, inspect);
        result = entries(*menu);
        last = menu->actions().isEmpty() ? nullptr : menu->actions().constLast();
        menu->close();
    };
    QTimer::singleShot(0, inspect);
    const QPoint pos = view.viewport()->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, view.viewport()->mapToGlobal(pos));
    QApplication::sendEvent(view.viewport(), &event);
    return result;
}

} // namespace

class tst_Window : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Log::init(); }
    void cleanupTestCase() { Log::done(); }

    void actionFollowsPanel_data()
    {
        QTest::addColumn<bool>("withAction");
        QTest::addColumn<int>("hideBy");
        QTest::addColumn<int>("showBy");

        const char* names[] = {"close button", "action", "setVisible()"};
        for (const bool with : {true, false}) {
            for (const int hide : {CloseButton, Action, Call}) {
                for (const int show : {Action, Call}) {
                    if (with || (hide != Action && show != Action))
                        QTest::addRow("%s%s, %s", with ? "" : "no action, ", names[hide], names[show])
                            << with << hide << show;
                }
            }
        }
    }

    // A null action leaves the panel to its own close button and calls; \a action then stays unchecked.
    void actionFollowsPanel()
    {
        QFETCH(bool, withAction);
        QFETCH(int, hideBy);
        QFETCH(int, showBy);

        QAction action(QStringLiteral("Log window"), nullptr);
        action.setCheckable(true);
        QMainWindow main;
        auto* window = new Window(withAction ? &action : nullptr, &main);
        main.addDockWidget(Qt::BottomDockWidgetArea, window);
        main.show();
        QVERIFY(QTest::qWaitForWindowExposed(&main));
        QVERIFY(window->isVisible());
        QCOMPARE(action.isChecked(), withAction);

        setShown(*window, action, Way(hideBy), false);
        QVERIFY(!window->isVisible());
        QVERIFY(!action.isChecked());
        window->on_logmessage_triggered();
        window->updateAction();
        QVERIFY(!window->isVisible());

        setShown(*window, action, Way(showBy), true);
        QVERIFY(window->isVisible());
        QCOMPARE(action.isChecked(), withAction);

        action.setChecked(false);
        window->updateAction();
        QCOMPARE(action.isChecked(), withAction);
    }

    void showsTheHubAndFollowsNewLines()
    {
        Log* hub = Log::singleton();
        for (int i = 0; i < 150; ++i)
            hub->log(QStringLiteral("earlier %1").arg(i));

        Window window(nullptr);
        window.resize(400, 150);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* view = qobject_cast<View*>(window.widget());
        QVERIFY(view);
        QCOMPARE(view->document(), static_cast<QTextDocument*>(hub));
        QVERIFY(view->isReadOnly());

        // A panel opened on an existing log starts at its newest line, and stays there.
        const auto newestLineShown = [&] {
            QTextCursor end(hub);
            end.movePosition(QTextCursor::End);
            return view->viewport()->rect().contains(view->cursorRect(end));
        };
        QTRY_VERIFY(newestLineShown());
        for (int i = 0; i < 30; ++i)
            hub->postLog(QStringLiteral("newer %1").arg(i));
        QTRY_VERIFY(view->toPlainText().endsWith(QStringLiteral("newer 29")));
        QTRY_VERIFY(newestLineShown());
        window.resize(400, 100);
        QTRY_VERIFY(newestLineShown());
        QVERIFY(view->verticalScrollBar()->value() > 0);
    }

    void contextMenuEndsWithHelp()
    {
        View view;
        view.setPlainText(QStringLiteral("a line to copy"));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QStringList standard = entries(*std::unique_ptr<QMenu>(view.createStandardContextMenu()));
        QVERIFY(!standard.isEmpty() && standard.constLast() != QStringLiteral("-"));
        QAction* last = nullptr;
        QCOMPARE(contextMenuEntries(view, last), standard);

        auto* help = new QAction(QStringLiteral("Help on the log"), nullptr);
        view.setHelpAction(help);
        QCOMPARE(contextMenuEntries(view, last), standard + QStringList({"-", "Help on the log"}));
        QCOMPARE(last, help);
        // The menu is gone; the action still belongs to the application, which may delete it.
        QVERIFY(!QApplication::activePopupWidget());
        delete help;
        QCOMPARE(contextMenuEntries(view, last), standard);
    }

    void translatesOnlyWhenAsked()
    {
        Window window(nullptr);
        QCOMPARE(window.objectName(), QStringLiteral("LogMessageWindow"));
        QCOMPARE(window.windowTitle(), QStringLiteral("Log"));

        auto& manager = kes::qt::translation::Manager::singleton();
        QVERIFY(manager.load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
        manager.setLanguage(QStringLiteral("de"));
        QCOMPARE(Window(nullptr).windowTitle(), QStringLiteral("Protokoll"));
        manager.setLanguage(QStringLiteral("fr"));
        QCOMPARE(window.windowTitle(), QStringLiteral("Log"));
        window.translate();
        QCOMPARE(window.windowTitle(), QStringLiteral("Journal"));
        manager.setLanguage(QStringLiteral("en"));
    }
};

KES_TEST_MAIN(tst_Window)
#include "tst_window.moc"
