#include <kes/qt/discreteapproximator/view.h>

#include <kes/qt/discreteapproximator/contextmenu.h>
#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/coordsystem.h>
#include <kes/qt/discreteapproximator/schematic/cross.h>
#include <kes/qt/discreteapproximator/schematic/model.h>
#include <kes/qt/discreteapproximator/schematic/view.h>
#include <kes/qt/discreteapproximator/tableview.h>
#include <kes/qt/translation/manager.h>

#include "approxtest.h"
#include "kestest.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSettings>

#include <functional>

using kes::core::PointF;
using kes::qt::discreteapproximator::ContextMenu;
using kes::qt::discreteapproximator::Model;
using kes::qt::discreteapproximator::View;
using kes::qt::translation::Manager;
using Points = Model::Points;
using Change = std::function<void(View&, Model&)>;

Q_DECLARE_METATYPE(Change)

namespace {

Change importing(const QString& text)
{
    return [text](View&, Model& model) {
        QGuiApplication::clipboard()->setText(text);
        ContextMenu menu(-1, &model);
        menu.init();
        kes::test::triggerEntry(&menu, QStringLiteral("Import from clipboard"));
    };
}

// Counts the context-menu requests that reach it from its children.
class MenuParent : public QWidget
{
public:
    int requests = 0;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        ++requests;
        event->accept();
    }
};

} // namespace

class tst_View : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSettings().setValue("language", "en");
        QVERIFY(Manager::singleton().load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
    }

    void startsWithDefaultCurveAndPassesSettingsToItsParts()
    {
        View view;
        QCOMPARE(view.data(), view.model()->createDefaultData());
        QCOMPARE(view.count(), 2);
        QCOMPARE(view.widget(0), view.graphicsView());
        QCOMPARE(view.widget(1), view.tableView());
        const auto* scene = view.graphicsView()->schematic();
        QVERIFY(!scene->cross()->isVisible());

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

    void emitsDataChangedOnlyOnRealChanges_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("signals");

        QTest::newRow("same list") << Change([](View& v, Model&) { v.setData(v.data()); }) << 0;
        QTest::newRow("other list") << Change([](View& v, Model&) { v.setData({{0, 1}}); }) << 1;
        QTest::newRow("empty list") << Change([](View& v, Model&) { v.setData({}); }) << 1;
        QTest::newRow("accepted cell edit")
            << Change([](View&, Model& m) { m.setData(m.index(3, 1), 0.5); }) << 1;
        QTest::newRow("refused cell edit")
            << Change([](View&, Model& m) { m.setData(m.index(0, 0), -2.5); }) << 0;
        QTest::newRow("move to where it is")
            << Change([](View&, Model& m) { m.movePoint(4, m.points()[4]); }) << 0;
        QTest::newRow("clipboard import") << importing("1 2\n3 4") << 1;
        QTest::newRow("blank clipboard import") << importing(" \n\t ") << 0;
    }

    void emitsDataChangedOnlyOnRealChanges()
    {
        QFETCH(Change, change);

        View view;
        view.setXRange(-2.0, 2.0);
        QSignalSpy changed(&view, SIGNAL(dataChanged()));
        change(view, *view.model());
        QTEST(int(changed.count()), "signals");
    }

    void handedOutDataUnaffectedByLaterEdits()
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
        view.setData(Points{{9.0, 9.0}});
        QCOMPARE(before, copy);
    }

    void rightClickMenuIsTheOnlyOne_data()
    {
        QTest::addColumn<int>("tab");

        QTest::newRow("graphics") << 0;
        QTest::newRow("table") << 1;
    }

    void rightClickMenuIsTheOnlyOne()
    {
        QFETCH(int, tab);

        // A main window around a dock, say, would open its own menu after ours.
        MenuParent parent;
        auto* view = new View(&parent);
        view->setCurrentIndex(tab);
        view->resize(300, 250);
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        QWidget* viewport =
            tab == 0 ? view->graphicsView()->viewport() : view->tableView()->viewport();
        QVERIFY(!kes::test::rightClickMenu(viewport, QPoint(20, 10)).isEmpty());
        QCOMPARE(parent.requests, 0);
    }

    void retitlesTabsOnLanguageChange_data()
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

    void retitlesTabsOnLanguageChange()
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
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QStringList entries =
            kes::test::rightClickMenu(view.graphicsView()->viewport(), QPoint(5, 5));
        QCOMPARE(entries.size(), 6);
        QTEST(entries.at(0), "insert");
        QTEST(entries.at(2), "import");
    }
};

KES_TEST_MAIN(tst_View)
#include "tst_view.moc"
