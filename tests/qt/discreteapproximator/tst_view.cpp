#include <kes/qt/discreteapproximator/view.h>

#include <kes/qt/discreteapproximator/contextmenu.h>
#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/coordsystem.h>
#include <kes/qt/discreteapproximator/schematic/cross.h>
#include <kes/qt/discreteapproximator/schematic/model.h>
#include <kes/qt/discreteapproximator/schematic/view.h>
#include <kes/qt/discreteapproximator/tableview.h>
#include <kes/qt/translation/manager.h>

#include "kestest.h"
#include "pointstext.h"
#include "popupmenu.h"

#include <QAction>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSettings>
#include <QtTest>

using kes::core::PointF;
using kes::qt::discreteapproximator::ContextMenu;
using kes::qt::discreteapproximator::Model;
using kes::qt::discreteapproximator::TableView;
using kes::qt::discreteapproximator::View;
using kes::qt::translation::Manager;
using Points = Model::Points;

class tst_View : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsWithDefaultCurveAndTwoTabs();
    void emitsDataChangedOnlyOnRealChanges_data();
    void emitsDataChangedOnlyOnRealChanges();
    void handedOutDataUnaffectedByLaterEdits();
    void passesSettingsToItsParts();
    void dragInGraphTabChangesData();
    void retitlesTabsOnLanguageChange_data();
    void retitlesTabsOnLanguageChange();
};

void tst_View::initTestCase()
{
    QSettings().setValue("language", "en");
    QVERIFY(Manager::singleton().load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
}

void tst_View::startsWithDefaultCurveAndTwoTabs()
{
    View view;
    QCOMPARE(view.data(), view.model()->createDefaultData());
    QCOMPARE(view.count(), 2);
    QCOMPARE(view.widget(0), view.findChild<kes::qt::discreteapproximator::schematic::View*>(
                                 QStringLiteral("graphicsView")));
    QCOMPARE(view.widget(1), view.findChild<TableView*>(QStringLiteral("tableView")));
    QCOMPARE(view.tabPosition(), QTabWidget::South);
    QCOMPARE(view.tabShape(), QTabWidget::Triangular);
    QCOMPARE(View::absoluteMinimum(), -2147483648.0);
    QCOMPARE(View::absoluteMaximum(), 2147483647.0);
    QCOMPARE(view.model()->xMinimum(), View::absoluteMinimum());
    QCOMPARE(view.model()->yMaximum(), View::absoluteMaximum());
    QVERIFY(!view.graphicsView()->schematic()->cross()->isVisible());
}

void tst_View::emitsDataChangedOnlyOnRealChanges_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("signals");

    QTest::newRow("same list again") << "same" << 0;
    QTest::newRow("other list") << "other" << 1;
    QTest::newRow("empty list") << "empty" << 1;
    QTest::newRow("accepted cell edit") << "edit" << 1;
    QTest::newRow("refused cell edit") << "refused edit" << 0;
    QTest::newRow("move to where it is") << "no move" << 0;
    QTest::newRow("insertion") << "insert" << 1;
    QTest::newRow("removal") << "remove" << 1;
    QTest::newRow("clipboard import") << "import" << 1;
    QTest::newRow("blank clipboard import") << "blank import" << 0;
}

void tst_View::emitsDataChangedOnlyOnRealChanges()
{
    QFETCH(QString, change);

    View view;
    Model& model = *view.model();
    view.setXRange(-2.0, 2.0);
    QSignalSpy changed(&view, SIGNAL(dataChanged()));

    if (change == "same") {
        view.setData(view.data());
    } else if (change == "other") {
        view.setData(Points{{0.0, 1.0}});
    } else if (change == "empty") {
        view.setData(Points());
    } else if (change == "edit") {
        model.setData(model.index(3, 1), 0.5);
    } else if (change == "refused edit") {
        model.setData(model.index(0, 0), -2.5);
    } else if (change == "no move") {
        model.movePoint(4, model.points()[4]);
    } else if (change == "insert") {
        model.insertPointAfter(20);
    } else if (change == "remove") {
        model.removePoint(7);
    } else {
        QGuiApplication::clipboard()->setText(change == "import" ? "1 2\n3 4" : " \n\t ");
        ContextMenu menu(-1, &model);
        menu.init();
        kes::test::triggerEntry(&menu, QStringLiteral("Import from clipboard"));
    }
    QTEST(int(changed.count()), "signals");
}

void tst_View::handedOutDataUnaffectedByLaterEdits()
{
    View view;
    const Points before = view.data();
    const Points copy(std::vector<PointF>(before.begin(), before.end()));
    Model& model = *view.model();
    QVERIFY(model.setData(model.index(0, 1), 0.0));
    QVERIFY(model.movePoint(5, PointF{-1.0, 0.0}));
    model.insertPointBefore(3);
    model.removePoint(0);
    QCOMPARE(before, copy);
    QVERIFY(view.data() != before);

    QSignalSpy changed(&view, SIGNAL(dataChanged()));
    view.setData(view.data());
    QCOMPARE(changed.count(), 0);
}

void tst_View::passesSettingsToItsParts()
{
    View view;
    const auto* scene = view.graphicsView()->schematic();
    view.setXAxisText(QStringLiteral("speed"));
    view.setYAxisText(QStringLiteral("torque"));
    QCOMPARE(scene->coordsystem()->xAxisText(), QStringLiteral("speed"));
    QCOMPARE(scene->coordsystem()->yAxisText(), QStringLiteral("torque"));

    view.setPoint(0.5, 0.25);
    view.setShowPointEnabled(true);
    QCOMPARE(scene->cross()->crossPoint(), (PointF{0.5, 0.25}));
    QVERIFY(scene->cross()->isVisible());

    view.setYRange(-0.5, 0.5);
    Model& model = *view.model();
    QVERIFY(!model.setData(model.index(10, 1), 0.75));
    QVERIFY(model.setData(model.index(10, 1), 0.5));

    QAction help(QStringLiteral("Help"));
    view.setHelpAction(&help);
    ContextMenu menu(-1, &model);
    menu.init();
    QCOMPARE(menu.actions().last(), &help);
}

void tst_View::dragInGraphTabChangesData()
{
    View view;
    view.setData(Points{{0.0, 0.0}, {1.0, 1.0}, {2.0, 0.5}});
    view.resize(500, 400);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QSignalSpy changed(&view, SIGNAL(dataChanged()));

    // Point 1 sits at the top of the plotting area, half way across.
    const auto* graph = view.graphicsView();
    const QPointF point = graph->schematic()->toSceneCoords(PointF{1.0, 1.0});
    QWindow* window = view.windowHandle();
    const QPoint start = graph->viewport()->mapTo(&view, graph->mapFromScene(point));
    QTest::mousePress(window, Qt::LeftButton, {}, start);
    QTest::mouseMove(window, start + QPoint(0, 40));
    QTest::mouseRelease(window, Qt::LeftButton, {}, start + QPoint(0, 40));

    QVERIFY(changed.count() >= 1);
    const Points data = view.data();
    QCOMPARE(data[1].x, 1.0);
    QVERIFY(data[1].y < 1.0);
    QCOMPARE(view.tableView()->model()->data(view.model()->index(1, 1)).toString(),
             QString::number(data[1].y, 'g', 7));
}

void tst_View::retitlesTabsOnLanguageChange_data()
{
    QTest::addColumn<QString>("lang");
    QTest::addColumn<QString>("graphics");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("insert");
    QTest::addColumn<QString>("import");

    QTest::newRow("German") << "de" << "Grafik" << "Tabelle" << "Punkt einfügen"
                            << "Aus der Zwischenablage importieren";
    QTest::newRow("French") << "fr" << "Graphique" << "Tableau" << "Insérer un point"
                            << "Importer depuis le presse-papiers";
    QTest::newRow("Spanish") << "es" << "Gráfico" << "Tabla" << "Insertar punto"
                             << "Importar del portapapeles";
    QTest::newRow("English") << "en" << "Graphics" << "Table" << "Insert point"
                             << "Import from clipboard";
}

void tst_View::retitlesTabsOnLanguageChange()
{
    QFETCH(QString, lang);
    QGuiApplication::clipboard()->setText(QStringLiteral("1 1"));
    View view;
    Manager::singleton().setLanguage(lang);
    QTEST(view.tabText(0), "graphics");
    QTEST(view.tabText(1), "table");

    // The menus built later speak the new language too.
    QAction help;
    view.setHelpAction(&help);
    QStringList entries;
    kes::test::whenMenuOpens([&entries](QMenu* menu) { entries = kes::test::menuEntries(menu); });
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTest::mouseClick(view.graphicsView()->viewport(), Qt::RightButton, {}, QPoint(5, 5));
    QTRY_VERIFY(!entries.isEmpty());
    QCOMPARE(entries.size(), 6);
    QTEST(entries.at(0), "insert");
    QTEST(entries.at(2), "import");
}

KES_TEST_MAIN(tst_View)
#include "tst_view.moc"
