#include <kes/qt/discreteapproximator/contextmenu.h>
#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/tableview.h>

#include "approxtest.h"
#include "kestest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPointer>

#include <memory>

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
const QStringList pointEntries{entryBefore, entryAfter, entryRemove, separator, entryImport,
                               entryExport};

// A table of threePoints on screen.
struct Table
{
    Table()
    {
        model.setData(threePoints);
        view.resize(300, 300);
        view.show();
    }
    QPoint cellCentre(int row, int column) const
    {
        return view.visualRect(model.index(row, column)).center();
    }

    Model model;
    TableView view{&model};
};

} // namespace

class tst_TableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editsAsTextWithSixDigitsAndComma()
    {
        Table table;
        QVERIFY(QTest::qWaitForWindowExposed(&table.view));
        table.model.setData(Points{{M_PI, -1234567.0}, {4.0, 0.0}});
        QAbstractItemDelegate* delegate = table.view.itemDelegate();
        for (const int column : {0, 1}) {
            const QModelIndex cell = table.model.index(0, column);
            const std::unique_ptr<QWidget> widget(
                delegate->createEditor(table.view.viewport(), {}, cell));
            auto* editor = qobject_cast<QLineEdit*>(widget.get());
            QVERIFY(editor);
            QVERIFY(!editor->validator());
            delegate->setEditorData(editor, cell);
            QCOMPARE(editor->text(), column == 0 ? "3.14159" : "-1.23457e+06");
        }

        // Typed for real: a comma is a decimal point.
        const QModelIndex cell = table.model.index(1, 1);
        table.view.setCurrentIndex(cell);
        table.view.edit(cell);
        QPointer<QLineEdit> editor = table.view.viewport()->findChild<QLineEdit*>();
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral("1,5"));
        QTest::keyClick(editor, Qt::Key_Return);
        // The delegate commits and closes in a queued call.
        QTRY_VERIFY(!editor);
        QCOMPARE(table.model.points()[1].y, 1.5);
    }

    void menuOffersEntriesForRow_data()
    {
        QTest::addColumn<Points>("points");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<bool>("withHelp");
        QTest::addColumn<QStringList>("entries");

        const QString off = QStringLiteral(" (off)");
        QTest::newRow("only point") << Points{{1.0, 1.0}} << 0 << "1 2" << false
                                    << QStringList{entryBefore, entryAfter, entryRemove + off,
                                                   separator, entryImport, entryExport};
        QTest::newRow("empty clipboard") << threePoints << 2 << "" << false
                                         << QStringList{entryBefore, entryAfter, entryRemove,
                                                        separator, entryImport + off, entryExport};
        QTest::newRow("no point, help") << threePoints << -1 << "" << true
                                        << QStringList{entryImport + off, entryExport, separator,
                                                       help};
        QTest::newRow("point, help") << threePoints << 0 << "x" << true
                                     << pointEntries + QStringList{separator, help};
    }

    void menuOffersEntriesForRow()
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

    void rightClickActsOnRowUnderCursor_data()
    {
        QTest::addColumn<int>("row"); // -1 for below the last row
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<Points>("points");
        QTest::addColumn<QString>("clipboard");

        const QString clipboard = QStringLiteral("5 6\r\n7   8\n");
        QTest::newRow("insert before") << 1 << entryBefore << pointEntries
                                       << Points{{0, 0}, {0.5, 10}, {1, 10}, {2, 20}} << clipboard;
        QTest::newRow("insert after") << 1 << entryAfter << pointEntries
                                      << Points{{0, 0}, {1, 10}, {1.5, 20}, {2, 20}} << clipboard;
        QTest::newRow("remove") << 1 << entryRemove << pointEntries << Points{{0, 0}, {2, 20}}
                                << clipboard;
        QTest::newRow("import") << 0 << entryImport << pointEntries
                                << Points{{5.0, 6.0}, {7.0, 8.0}} << clipboard;
        QTest::newRow("below the last row, export")
            << -1 << entryExport << QStringList{entryImport, entryExport} << threePoints
            << "0\t0\n1\t10\n2\t20";
    }

    void rightClickActsOnRowUnderCursor()
    {
        QFETCH(int, row);
        QFETCH(QString, entry);

        QGuiApplication::clipboard()->setText(QStringLiteral("5 6\r\n7   8\n"));
        Table table;
        QVERIFY(QTest::qWaitForWindowExposed(&table.view));
        QSignalSpy changed(&table.model, SIGNAL(modelDataChanged()));
        const QPoint below(table.cellCentre(2, 0).x(), table.view.viewport()->height() - 5);
        const QPoint pos = row < 0 ? below : table.cellCentre(row, 0);
        QTEST(kes::test::rightClickMenu(table.view.viewport(), pos, entry), "entries");
        QTEST(table.model.points(), "points");
        QCOMPARE(changed.count(), row < 0 ? 0 : 1);
        QTEST(QGuiApplication::clipboard()->text(), "clipboard");
    }

    void clickSelectsPointAndInsertionMovesCurrentCell()
    {
        Table table;
        QVERIFY(QTest::qWaitForWindowExposed(&table.view));
        QTest::mouseClick(table.view.viewport(), Qt::LeftButton, {}, table.cellCentre(2, 1));
        QCOMPARE(table.model.selectedRow(), 2);
        QCOMPARE(table.view.currentIndex(), table.model.index(2, 1));

        table.model.insertPointBefore(1);
        QCOMPARE(table.view.currentIndex(), table.model.index(1, 0));
    }
};

KES_TEST_MAIN(tst_TableView)
#include "tst_tableview.moc"
