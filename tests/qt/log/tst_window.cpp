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

void setShown(Window& window, QAction* action, Way way, bool shown)
{
    switch (way) {
    case CloseButton:
        QTest::mouseClick(window.findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton")),
                          Qt::LeftButton);
        break;
    case Action:
        action->trigger();
        break;
    case Call:
        window.setVisible(shown);
        break;
    }
}

// Opens the view's context menu and returns the texts of its entries ("-" for a separator).
QStringList contextMenuEntries(View& view, QAction** last = nullptr)
{
    QStringList entries;
    QAction* lastAction = nullptr;
    // The menu runs modally: it is read and closed from inside its own event loop.
    std::function<void()> inspect = [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) {
            QTimer::singleShot(10, inspect);
            return;
        }
        for (QAction* action : menu->actions())
            entries << (action->isSeparator() ? QStringLiteral("-") : action->text());
        lastAction = menu->actions().isEmpty() ? nullptr : menu->actions().constLast();
        menu->close();
    };
    QTimer::singleShot(0, inspect);
    const QPoint pos = view.viewport()->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, view.viewport()->mapToGlobal(pos));
    QApplication::sendEvent(view.viewport(), &event);
    if (last)
        *last = lastAction;
    return entries;
}

} // namespace

class tst_Window : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void actionFollowsPanel_data();
    void actionFollowsPanel();
    void worksWithoutAction();
    void showsTheHubAndFollowsNewLines();
    void contextMenuEndsWithHelp_data();
    void contextMenuEndsWithHelp();
    void translatesOnlyWhenAsked();
};

void tst_Window::initTestCase()
{
    Log::init();
}

void tst_Window::cleanupTestCase()
{
    Log::done();
}

void tst_Window::actionFollowsPanel_data()
{
    QTest::addColumn<int>("hideBy");
    QTest::addColumn<int>("showBy");

    QTest::newRow("close button, action") << int(CloseButton) << int(Action);
    QTest::newRow("close button, show()") << int(CloseButton) << int(Call);
    QTest::newRow("action, action") << int(Action) << int(Action);
    QTest::newRow("action, show()") << int(Action) << int(Call);
    QTest::newRow("hide(), action") << int(Call) << int(Action);
    QTest::newRow("hide(), show()") << int(Call) << int(Call);
}

void tst_Window::actionFollowsPanel()
{
    QFETCH(int, hideBy);
    QFETCH(int, showBy);

    QAction action(QStringLiteral("Log window"), nullptr);
    action.setCheckable(true);
    QMainWindow main;
    auto* window = new Window(&action, &main);
    main.addDockWidget(Qt::BottomDockWidgetArea, window);
    main.show();
    QVERIFY(QTest::qWaitForWindowExposed(&main));
    QVERIFY(window->isVisible());
    QVERIFY(action.isChecked());

    setShown(*window, &action, Way(hideBy), false);
    QVERIFY(!window->isVisible());
    QVERIFY(!action.isChecked());

    setShown(*window, &action, Way(showBy), true);
    QVERIFY(window->isVisible());
    QVERIFY(action.isChecked());

    action.setChecked(false);
    window->updateAction();
    QVERIFY(action.isChecked());
}

void tst_Window::worksWithoutAction()
{
    QMainWindow main;
    auto* window = new Window(nullptr, &main);
    main.addDockWidget(Qt::BottomDockWidgetArea, window);
    main.show();
    QVERIFY(QTest::qWaitForWindowExposed(&main));
    QCOMPARE(window->objectName(), QStringLiteral("LogMessageWindow"));
    QCOMPARE(window->windowTitle(), QStringLiteral("Log"));

    setShown(*window, nullptr, CloseButton, false);
    QVERIFY(!window->isVisible());
    window->on_logmessage_triggered();
    window->updateAction();
    QVERIFY(!window->isVisible());
    window->show();
    QVERIFY(window->isVisible());
}

void tst_Window::showsTheHubAndFollowsNewLines()
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

void tst_Window::contextMenuEndsWithHelp_data()
{
    QTest::addColumn<bool>("withHelp");

    QTest::newRow("without help action") << false;
    QTest::newRow("with help action") << true;
}

void tst_Window::contextMenuEndsWithHelp()
{
    QFETCH(bool, withHelp);

    View view;
    view.setPlainText(QStringLiteral("a line to copy"));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QAction help(QStringLiteral("Help on the log"), nullptr);
    if (withHelp)
        view.setHelpAction(&help);

    QStringList standard;
    {
        const std::unique_ptr<QMenu> menu(view.createStandardContextMenu());
        for (QAction* action : menu->actions())
            standard << (action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    QVERIFY(!standard.isEmpty());

    QAction* last = nullptr;
    const QStringList entries = contextMenuEntries(view, &last);
    if (withHelp) {
        QCOMPARE(entries, standard + QStringList({"-", "Help on the log"}));
        QCOMPARE(last, &help);
    } else {
        QCOMPARE(entries, standard);
        QVERIFY(entries.constLast() != QStringLiteral("-"));
    }
    // The menu is gone, the action still belongs to the application.
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(help.text(), QStringLiteral("Help on the log"));
}

void tst_Window::translatesOnlyWhenAsked()
{
    auto& manager = kes::qt::translation::Manager::singleton();
    QVERIFY(manager.load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
    manager.setLanguage(QStringLiteral("de"));
    Window window(nullptr);
    QCOMPARE(window.windowTitle(), QStringLiteral("Protokoll"));

    manager.setLanguage(QStringLiteral("fr"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Protokoll"));
    window.translate();
    QCOMPARE(window.windowTitle(), QStringLiteral("Journal"));
    manager.setLanguage(QStringLiteral("en"));
}

KES_TEST_MAIN(tst_Window)
#include "tst_window.moc"
