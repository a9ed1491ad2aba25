#include <kes/qt/discreteapproximator/contextmenu.h>
#include <kes/qt/discreteapproximator/delegate.h>
#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/tableview.h>

#include "kestest.h"
#include "pointstext.h"
#include "popupmenu.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QtTest>

using kes::core::PointF;
using kes::qt::discreteapproximator::ContextMenu;
using kes::qt::discreteapproximator::Model;
using kes::qt::discreteapproximator::TableView;
using Points = Model::Points;

namespace {

const Points threePoints{{0.0, 0.0}, {1.0, 10.0}, {2.0, 20.0}};

const QString entryBefore = QStringLiteral("Insert point before");
const QString entryAfter = QStringLiteral("Insert point after");
const QString entryRemove = QStringLiteral("Remove point");
const QString separator = QStringLiteral("-");
const QString entryImport = QStringLiteral("Import from clipboard");
const QString entryExport = QStringLiteral("Export to clipboard");
const QString help = QStringLiteral("Help");

QPoint cellCentre(const TableView& view, int row, int column)
{
    return view.visualRect(view.model()->index(row, column)).center();
}

// A table of threePoints on screen.
struct Table
{
    Table()
    {
        model.setData(threePoints);
        view.resize(300, 300);
    }
    bool show()
    {
        view.show();
        return QTest::qWaitForWindowExposed(&view);
    }

    Model model;
    TableView view{&model};
};

} // namespace

class tst_TableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void storesTypedText_data();
    void storesTypedText();
    void editorShowsSixDigits();
    void menuOffersEntriesForRow_data();
    void menuOffersEntriesForRow();
    void menuEditsPoints_data();
    void menuEditsPoints();
    void menuExchangesListWithClipboard();
    void rightClickOpensMenuForRowUnderCursor_data();
    void rightClickOpensMenuForRowUnderCursor();
    void clickSelectsPointAndInsertionMovesCurrentCell();
};

void tst_TableView::init()
{
    QGuiApplication::clipboard()->clear();
}

void tst_TableView::storesTypedText_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("stored");

    QTest::newRow("comma as decimal point") << 1 << "1,5" << 1.5;
    QTest::newRow("dot") << 1 << "-2.25" << -2.25;
    QTest::newRow("word reads as zero") << 1 << "abc" << 0.0;
    QTest::newRow("x past its neighbour is refused") << 0 << "3" << 1.0;
    QTest::newRow("x up to its neighbour") << 0 << "2" << 2.0;
}

void tst_TableView::storesTypedText()
{
    QFETCH(int, column);
    QFETCH(QString, typed);

    Table table;
    QVERIFY(table.show());
    Model& model = table.model;
    TableView& view = table.view;

    const QModelIndex cell = model.index(1, column);
    view.setCurrentIndex(cell);
    view.edit(cell);
    QPointer<QLineEdit> editor = view.viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, typed);
    QTest::keyClick(editor, Qt::Key_Return);
    // The delegate commits and closes in a queued call.
    QTRY_VERIFY(!editor);
    const PointF& p = model.points()[1];
    QTEST(column == 0 ? p.x : p.y, "stored");
}

void tst_TableView::editorShowsSixDigits()
{
    Model model;
    model.setData(Points{{M_PI, -1234567.0}});
    TableView view(&model);
    QLineEdit* editor = nullptr;
    for (int column = 0; column < 2; ++column) {
        const QModelIndex cell = model.index(0, column);
        QWidget* widget = view.itemDelegate()->createEditor(view.viewport(), {}, cell);
        editor = qobject_cast<QLineEdit*>(widget);
        QVERIFY(editor);
        QVERIFY(!editor->validator());
        view.itemDelegate()->setEditorData(editor, cell);
        QCOMPARE(editor->text(), column == 0 ? QStringLiteral("3.14159") : QStringLiteral("-1.23457e+06"));
        QCOMPARE(model.data(cell).toString(), column == 0 ? QStringLiteral("3.141593") : QStringLiteral("-1234567"));
        delete widget;
    }
}

void tst_TableView::menuOffersEntriesForRow_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<bool>("withHelp");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("point, clipboard text")
        << threePoints << 1 << "1 2" << false
        << QStringList{entryBefore, entryAfter, entryRemove, separator, entryImport, entryExport};
    QTest::newRow("only point")
        << Points{{1.0, 1.0}} << 0 << "1 2" << false
        << QStringList{entryBefore, entryAfter, entryRemove + " (off)", separator, entryImport, entryExport};
    QTest::newRow("empty clipboard")
        << threePoints << 2 << "" << false
        << QStringList{entryBefore, entryAfter, entryRemove, separator, entryImport + " (off)", entryExport};
    QTest::newRow("no point") << threePoints << -1 << "1 2" << false
                              << QStringList{entryImport, entryExport};
    QTest::newRow("no point, help")
        << threePoints << -1 << "" << true
        << QStringList{entryImport + " (off)", entryExport, separator, help};
    QTest::newRow("point, help")
        << threePoints << 0 << "x" << true
        << QStringList{entryBefore, entryAfter, entryRemove, separator, entryImport, entryExport, separator, help};
}

void tst_TableView::menuOffersEntriesForRow()
{
    QFETCH(Points, points);
    QFETCH(int, row);
    QFETCH(QString, clipboard);
    QFETCH(bool, withHelp);

    QGuiApplication::clipboard()->setText(clipboard);
    Model model;
    model.setData(points);
    QAction helpAction(help);
    if (withHelp)
        model.setHelpAction(&helpAction);
    ContextMenu menu(row, &model);
    menu.init();
    QTEST(kes::test::menuEntries(&menu), "entries");
    for (const QAction* action : menu.actions())
        QVERIFY(action->shortcut().isEmpty());
}

void tst_TableView::menuEditsPoints_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<Points>("points");

    QTest::newRow("insert before")
        << entryBefore << Points{{0.0, 0.0}, {0.5, 10.0}, {1.0, 10.0}, {2.0, 20.0}};
    QTest::newRow("insert after")
        << entryAfter << Points{{0.0, 0.0}, {1.0, 10.0}, {1.5, 20.0}, {2.0, 20.0}};
    QTest::newRow("remove") << entryRemove << Points{{0.0, 0.0}, {2.0, 20.0}};
}

void tst_TableView::menuEditsPoints()
{
    QFETCH(QString, entry);

    Model model;
    model.setData(threePoints);
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
    ContextMenu menu(1, &model);
    menu.init();
    kes::test::triggerEntry(&menu, entry);
    QTEST(model.points(), "points");
    QCOMPARE(changed.count(), 1);
}

void tst_TableView::menuExchangesListWithClipboard()
{
    Model model;
    model.setData(threePoints);
    {
        ContextMenu menu(-1, &model);
        menu.init();
        kes::test::triggerEntry(&menu, entryExport);
    }
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("0\t0\n1\t10\n2\t20"));

    QGuiApplication::clipboard()->setText(QStringLiteral("5 6\r\n7   8\n"));
    ContextMenu menu(0, &model);
    menu.init();
    kes::test::triggerEntry(&menu, entryImport);
    QCOMPARE(model.points(), (Points{{5.0, 6.0}, {7.0, 8.0}}));
}

void tst_TableView::rightClickOpensMenuForRowUnderCursor_data()
{
    QTest::addColumn<bool>("onRow");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<int>("rows");

    QTest::newRow("on row 1") << true
                              << QStringList{entryBefore, entryAfter, entryRemove, separator, entryImport, entryExport} << 2;
    QTest::newRow("below the last row") << false << QStringList{entryImport, entryExport} << 3;
}

void tst_TableView::rightClickOpensMenuForRowUnderCursor()
{
    QFETCH(bool, onRow);

    QGuiApplication::clipboard()->setText(QStringLiteral("1 1"));
    Table table;
    QVERIFY(table.show());
    Model& model = table.model;
    TableView& view = table.view;

    QStringList entries;
    kes::test::whenMenuOpens([&entries](QMenu* menu) {
        entries = kes::test::menuEntries(menu);
        kes::test::triggerEntry(menu, entryRemove);
    });
    const QPoint pos = onRow ? cellCentre(view, 1, 0)
                             : QPoint(cellCentre(view, 2, 0).x(), view.viewport()->height() - 5);
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, pos);
    QTRY_VERIFY(!entries.isEmpty());
    QTEST(entries, "entries");
    QTEST(model.rowCount(), "rows");
}

void tst_TableView::clickSelectsPointAndInsertionMovesCurrentCell()
{
    Table table;
    QVERIFY(table.show());
    Model& model = table.model;
    TableView& view = table.view;
    QCOMPARE(view.verticalHeader()->model()->headerData(0, Qt::Vertical).toString(),
             QStringLiteral("0"));

    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, cellCentre(view, 2, 1));
    QCOMPARE(model.selectedRow(), 2);
    QCOMPARE(view.currentIndex(), model.index(2, 1));

    model.insertPointBefore(1);
    QCOMPARE(view.currentIndex(), model.index(1, 0));
}

KES_TEST_MAIN(tst_TableView)
#include "tst_tableview.moc"
