#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/coordsystem.h>
#include <kes/qt/discreteapproximator/schematic/cross.h>
#include <kes/qt/discreteapproximator/schematic/line.h>
#include <kes/qt/discreteapproximator/schematic/model.h>
#include <kes/qt/discreteapproximator/schematic/point.h>
#include <kes/qt/discreteapproximator/schematic/posdisplay.h>
#include <kes/qt/discreteapproximator/schematic/view.h>

#include "kestest.h"
#include "pointstext.h"
#include "popupmenu.h"

#include <QClipboard>
#include <QGraphicsSimpleTextItem>
#include <QGuiApplication>
#include <QtTest>

using kes::core::PointF;
using kes::qt::discreteapproximator::Model;
using kes::qt::discreteapproximator::schematic::Coordsystem;
using kes::qt::discreteapproximator::schematic::Point;
using kes::qt::discreteapproximator::schematic::View;
using Points = Model::Points;
using Scene = kes::qt::discreteapproximator::schematic::Model;

namespace {

// x from 0 to 4, y from 0 to 20: a 300 x 230 plotting area in a 400 x 300 view gives 75 and 11.5
// scene pixels per unit.
const Points fivePoints{{0.0, 0.0}, {1.0, 5.0}, {2.0, 20.0}, {3.0, 10.0}, {4.0, 15.0}};

// Every item where the data say, every line between the right points, the rows numbered.
void verifyLayout(const Scene& scene)
{
    const Points& data = scene.dataModel()->points();
    const int n = int(data.size());
    QCOMPARE(scene.points().size(), n);
    QCOMPARE(scene.lines().size(), n == 0 ? 0 : n + 1);
    for (int i = 0; i < n; ++i) {
        QCOMPARE(scene.points().at(i)->row(), i);
        QCOMPARE(scene.points().at(i)->pos(), scene.toSceneCoords(data[std::size_t(i)]));
    }
    for (int k = 1; k < n; ++k) {
        const QLineF line = scene.lines().at(k)->line();
        QCOMPARE(line.p1(), scene.points().at(k - 1)->pos());
        QCOMPARE(line.p2(), scene.points().at(k)->pos());
    }
    if (n > 0) {
        const QPointF first = scene.points().first()->pos();
        const QPointF last = scene.points().last()->pos();
        QCOMPARE(scene.lines().first()->line(),
                 QLineF(first, first - QPointF(scene.viewWidth(), 0.0)));
        QCOMPARE(scene.lines().last()->line(), QLineF(last, last + QPointF(scene.viewWidth(), 0.0)));
    }
}

// The graph of fivePoints in a view of 400 x 300 pixels.
struct Graph
{
    Graph()
    {
        model.setData(fivePoints);
        view.resize(400, 300);
    }
    bool show()
    {
        view.show();
        return QTest::qWaitForWindowExposed(&view);
    }

    Model model;
    Scene schematic{&model};
    View view{&schematic};
};

QStringList rangeTexts(const Scene& scene)
{
    QStringList texts;
    for (auto label : {Coordsystem::XMinimum, Coordsystem::XMaximum, Coordsystem::YMinimum,
                       Coordsystem::YMaximum})
        texts << scene.coordsystem()->rangeText(label);
    return texts;
}

} // namespace

class tst_Schematic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapsCoordinatesBothWays_data();
    void mapsCoordinatesBothWays();
    void capsScaleForZeroRange();
    void followsTableModel_data();
    void followsTableModel();
    void labelsRangeWithFourDigits();
    void labelsDoNotOverlapAtMinimumSize_data();
    void labelsDoNotOverlapAtMinimumSize();
    void marksOperatingPoint();
    void followsSelection();
    void dragMovesPointAndRefusesCrossingNeighbour_data();
    void dragMovesPointAndRefusesCrossingNeighbour();
    void rightClickOffersEntriesForPlace_data();
    void rightClickOffersEntriesForPlace();
};

void tst_Schematic::mapsCoordinatesBothWays_data()
{
    QTest::addColumn<PointF>("data");
    QTest::addColumn<QPointF>("scene");

    QTest::newRow("minima at the axes' crossing") << PointF{0.0, 0.0} << QPointF(50.0, 270.0);
    QTest::newRow("maxima at the far corner") << PointF{4.0, 20.0} << QPointF(350.0, 40.0);
    QTest::newRow("inside") << PointF{2.0, 10.0} << QPointF(200.0, 155.0);
    QTest::newRow("outside the range") << PointF{-1.0, 30.0} << QPointF(-25.0, -75.0);
}

void tst_Schematic::mapsCoordinatesBothWays()
{
    QFETCH(PointF, data);
    QFETCH(QPointF, scene);

    Model model;
    model.setData(fivePoints);
    Scene schematic(&model);
    schematic.setViewSize(QSize(400, 300));
    QCOMPARE(schematic.xScale(), 75.0);
    QCOMPARE(schematic.yScale(), 11.5);
    QCOMPARE(schematic.toSceneCoords(data), scene);
    QCOMPARE(schematic.toDataCoords(scene), data);
    QCOMPARE(schematic.sceneRect(), QRectF(0, 0, 400, 300));
}

void tst_Schematic::capsScaleForZeroRange()
{
    Model model;
    model.setData(Points{{3.0, -2.0}});
    Scene schematic(&model);
    schematic.setViewSize(QSize(300, 200));
    QCOMPARE(schematic.xScale(), Scene::maximumScale);
    QCOMPARE(schematic.yScale(), Scene::maximumScale);
    QCOMPARE(schematic.points().first()->pos(), QPointF(50.0, 170.0));
    verifyLayout(schematic);

    // A tiny range is capped too; an ordinary one is not.
    model.setData(Points{{0.0, 0.0}, {0.01, 100.0}});
    QCOMPARE(schematic.xScale(), Scene::maximumScale);
    QCOMPARE(schematic.yScale(), 1.3);

    // Moving the only point shifts the range without changing its width.
    model.setData(Points{{3.0, -2.0}});
    QVERIFY(model.movePoint(0, PointF{5.0, 1.0}));
    verifyLayout(schematic);
    QCOMPARE(schematic.points().first()->pos(), QPointF(50.0, 170.0));
}

void tst_Schematic::followsTableModel_data()
{
    QTest::addColumn<QString>("change");

    QTest::newRow("insert before the first") << "before 0";
    QTest::newRow("insert after the last") << "after 4";
    QTest::newRow("insert between") << "after 1";
    QTest::newRow("insert at a data position") << "at";
    QTest::newRow("remove the first") << "remove 0";
    QTest::newRow("remove the last") << "remove 4";
    QTest::newRow("remove in the middle") << "remove 2";
    QTest::newRow("remove all") << "clear";
    QTest::newRow("remove all and insert") << "clear at";
    QTest::newRow("replace the list") << "replace";
    QTest::newRow("edit a cell") << "edit";
}

void tst_Schematic::followsTableModel()
{
    QFETCH(QString, change);

    Model model;
    model.setData(fivePoints);
    Scene schematic(&model);
    schematic.setViewSize(QSize(400, 300));

    const QStringList words = change.split(QLatin1Char(' '));
    for (int i = 0; i < words.size(); ++i) {
        const QString& word = words.at(i);
        const int row = i + 1 < words.size() ? words.at(i + 1).toInt() : 0;
        if (word == "before")
            model.insertPointBefore(row);
        else if (word == "after")
            model.insertPointAfter(row);
        else if (word == "remove")
            model.removePoint(row);
        else if (word == "at")
            model.insertPoint(PointF{2.5, 7.0});
        else if (word == "clear")
            while (model.rowCount() > 0)
                model.removePoint(0);
        else if (word == "replace")
            model.setData(Points{{-1.0, 1.0}, {1.0, -1.0}});
        else if (word == "edit")
            QVERIFY(model.setData(model.index(3, 1), 30.0));
    }
    verifyLayout(schematic);
    if (model.rowCount() > 0)
        QCOMPARE(schematic.xMaximum() - schematic.xMinimum(),
                 model.points()[model.points().size() - 1].x - model.points()[0].x);
}

void tst_Schematic::labelsRangeWithFourDigits()
{
    Model model;
    model.setData(Points{{-1.23456, 0.5}, {12345.6, 2.0 / 3.0}});
    Scene schematic(&model);
    QCOMPARE(rangeTexts(schematic), (QStringList{"-1.235", "1.235e+04", "0.5", "0.6667"}));
    QCOMPARE(schematic.coordsystem()->xAxisText(), QStringLiteral("x"));
    QCOMPARE(schematic.coordsystem()->yAxisText(), QStringLiteral("y"));
    schematic.setXAxisText(QStringLiteral("speed"));
    QCOMPARE(schematic.coordsystem()->xAxisText(), QStringLiteral("speed"));
}

void tst_Schematic::labelsDoNotOverlapAtMinimumSize_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<QString>("xText");

    QTest::newRow("default curve") << Model().createDefaultData() << "x";
    QTest::newRow("long values") << Points{{-1234.5, -0.0012345}, {98765.4, 3.25e7}} << "x";
    QTest::newRow("axis text with unit") << Model().createDefaultData() << "U [V]";
}

void tst_Schematic::labelsDoNotOverlapAtMinimumSize()
{
    QFETCH(Points, points);
    QFETCH(QString, xText);

    Model model;
    model.setData(points);
    Scene schematic(&model);
    View view(&schematic);
    schematic.setXAxisText(xText);
    view.resize(view.minimumSize());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.minimumSize(), QSize(200, 170));
    QCOMPARE(schematic.sceneRect(), QRectF(0, 0, 200, 170));
    QCOMPARE((schematic.xMaximum() - schematic.xMinimum()) * schematic.xScale(), 100.0);
    QCOMPARE((schematic.yMaximum() - schematic.yMinimum()) * schematic.yScale(), 100.0);

    QList<QRectF> rects;
    for (QGraphicsItem* child : schematic.coordsystem()->childItems()) {
        if (auto* text = dynamic_cast<QGraphicsSimpleTextItem*>(child))
            rects << text->sceneBoundingRect();
    }
    QCOMPARE(rects.size(), 6);
    for (int i = 0; i < rects.size(); ++i) {
        QVERIFY2(schematic.sceneRect().contains(rects.at(i)), qPrintable(QString::number(i)));
        for (int j = i + 1; j < rects.size(); ++j)
            QVERIFY2(!rects.at(i).intersects(rects.at(j)), qPrintable(QStringLiteral("%1 %2").arg(i).arg(j)));
    }
}

void tst_Schematic::marksOperatingPoint()
{
    Model model;
    model.setData(fivePoints);
    Scene schematic(&model);
    schematic.setViewSize(QSize(400, 300));
    QVERIFY(!schematic.cross()->isVisible());

    schematic.setPoint(PointF{2.0, 10.0});
    schematic.setShowPointEnabled(true);
    QVERIFY(schematic.cross()->isVisible());
    QCOMPARE(schematic.cross()->pos(), QPointF(200.0, 155.0));
    QCOMPARE(schematic.cross()->labelText(), QStringLiteral("(2,10)"));

    // The cross stays on its data point when the scale changes.
    schematic.setViewSize(QSize(500, 300));
    QCOMPARE(schematic.cross()->pos(), schematic.toSceneCoords(PointF{2.0, 10.0}));
    schematic.setShowPointEnabled(false);
    QVERIFY(!schematic.cross()->isVisible());
}

void tst_Schematic::followsSelection()
{
    Model model;
    model.setData(fivePoints);
    Scene schematic(&model);
    model.setSelectedPoint(3, 1);
    for (const Point* point : schematic.points()) {
        QCOMPARE(point->selected(), point->row() == 3);
        QCOMPARE(point->zValue(), point->row() == 3 ? 100.0 : 50.0);
    }
    model.insertPointBefore(0);
    QVERIFY(schematic.points().first()->selected());
    model.setSelectedPoint(-1, 0);
    for (const Point* point : schematic.points())
        QVERIFY(!point->selected());
}

void tst_Schematic::dragMovesPointAndRefusesCrossingNeighbour_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<PointF>("result");

    // 75 scene pixels per unit in x, 11.5 in y.
    QTest::newRow("up and right") << QPoint(30, -46) << PointF{2.4, 24.0};
    QTest::newRow("half way, then past the right neighbour")
        << QPoint(90, -23) << PointF{2.6, 22.0};
    QTest::newRow("past the right neighbour") << QPoint(160, 0) << PointF{2.0, 20.0};
    QTest::newRow("onto the left neighbour") << QPoint(-75, 0) << PointF{1.0, 20.0};
}

void tst_Schematic::dragMovesPointAndRefusesCrossingNeighbour()
{
    QFETCH(QPoint, offset);

    Graph graph;
    QVERIFY(graph.show());
    Model& model = graph.model;
    Scene& schematic = graph.schematic;
    View& view = graph.view;
    QCOMPARE(schematic.sceneRect(), QRectF(0, 0, 400, 300));
    const QStringList rangeBefore = rangeTexts(schematic);

    QWindow* window = view.window()->windowHandle();
    const QPoint start = view.viewport()->mapTo(view.window(), view.mapFromScene(200.0, 40.0));
    QTest::mousePress(window, Qt::LeftButton, {}, start);
    QCOMPARE(model.selectedRow(), 2);
    QTest::mouseMove(window, start + offset / 2);
    QTest::mouseMove(window, start + offset);
    QTRY_VERIFY(schematic.isMoving());
    // The axes hold still until the point is let go.
    QCOMPARE(rangeTexts(schematic), rangeBefore);
    QTest::mouseRelease(window, Qt::LeftButton, {}, start + offset);

    const PointF p = model.points()[2];
    QFETCH(PointF, result);
    QCOMPARE(p.x, result.x);
    QVERIFY2(qAbs(p.y - result.y) < 1e-9, qPrintable(QString::number(p.y, 'g', 17)));
    QVERIFY(!schematic.isMoving());
    QCOMPARE(schematic.coordsystem()->rangeText(Coordsystem::YMaximum),
             QString::number(p.y, 'g', 4));
    verifyLayout(schematic);
}

void tst_Schematic::rightClickOffersEntriesForPlace_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<Points>("points");
    QTest::addColumn<int>("selected");

    const QStringList listEntries{"Import from clipboard (off)", "Export to clipboard"};
    // Data (2.6, 4.0): the new point goes where the click was.
    QTest::newRow("empty space") << QPointF(245.0, 224.0) << "Insert point"
                                 << QStringList{"Insert point", "-"} + listEntries
                                 << Points{{0.0, 0.0}, {1.0, 5.0}, {2.0, 20.0}, {2.6, 4.0},
                                           {3.0, 10.0}, {4.0, 15.0}}
                                 << -1;
    QTest::newRow("point 3") << QPointF(275.0, 155.0) << "Remove point"
                             << QStringList{"Insert point before", "Insert point after",
                                            "Remove point", "-"} + listEntries
                             << Points{{0.0, 0.0}, {1.0, 5.0}, {2.0, 20.0}, {4.0, 15.0}} << 3;
}

void tst_Schematic::rightClickOffersEntriesForPlace()
{
    QFETCH(QPointF, place);
    QFETCH(QString, entry);

    QGuiApplication::clipboard()->clear();
    Graph graph;
    QVERIFY(graph.show());

    QStringList entries;
    kes::test::whenMenuOpens([&entries, entry](QMenu* menu) {
        entries = kes::test::menuEntries(menu);
        kes::test::triggerEntry(menu, entry);
    });
    QTest::mouseClick(graph.view.viewport(), Qt::RightButton, {}, graph.view.mapFromScene(place));
    QTRY_VERIFY(!entries.isEmpty());
    QTEST(entries, "entries");
    QTEST(graph.model.points(), "points");
    QTEST(graph.model.selectedRow(), "selected");
    verifyLayout(graph.schematic);
}

KES_TEST_MAIN(tst_Schematic)
#include "tst_schematic.moc"
