#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/coordsystem.h>
#include <kes/qt/discreteapproximator/schematic/cross.h>
#include <kes/qt/discreteapproximator/schematic/line.h>
#include <kes/qt/discreteapproximator/schematic/model.h>
#include <kes/qt/discreteapproximator/schematic/point.h>
#include <kes/qt/discreteapproximator/schematic/view.h>

#include "approxtest.h"
#include "kestest.h"

#include <QClipboard>
#include <QGraphicsSimpleTextItem>
#include <QGuiApplication>

#include <functional>
#include <utility>

using kes::core::PointF;
using kes::qt::discreteapproximator::Model;
using kes::qt::discreteapproximator::schematic::Coordsystem;
using kes::qt::discreteapproximator::schematic::Point;
using kes::qt::discreteapproximator::schematic::View;
using Points = Model::Points;
using Scene = kes::qt::discreteapproximator::schematic::Model;
using Change = std::function<void(Model&)>;

Q_DECLARE_METATYPE(Change)

namespace {

// x from 0 to 4, y from 0 to 20: a 300 x 230 plotting area in a 400 x 300 view gives 75 and 11.5
// scene pixels per unit.
const Points fivePoints{{0.0, 0.0}, {1.0, 5.0}, {2.0, 20.0}, {3.0, 10.0}, {4.0, 15.0}};

// The graph of some points, its scene sized for a view of 400 x 300 pixels.
struct Graph
{
    explicit Graph(const Points& points = fivePoints)
    {
        model.setData(points);
        schematic.setViewSize(QSize(400, 300));
        view.resize(400, 300);
    }
    bool show()
    {
        view.show();
        return QTest::qWaitForWindowExposed(&view);
    }
    QPoint windowPos(const QPointF& scenePos) const
    {
        return view.viewport()->mapTo(view.window(), view.mapFromScene(scenePos));
    }

    Model model;
    Scene schematic{&model};
    View view{&schematic};
};

// Every item where the data say, every line between the right points, the rows numbered, and a
// run of a view's width beyond either end.
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
    for (int k = 1; k < n; ++k)
        QCOMPARE(scene.lines().at(k)->line(),
                 QLineF(scene.points().at(k - 1)->pos(), scene.points().at(k)->pos()));
    if (n > 0) {
        const QPointF first = scene.points().first()->pos();
        const QPointF last = scene.points().last()->pos();
        const QPointF run(scene.viewWidth(), 0.0);
        QCOMPARE(scene.lines().first()->line(), QLineF(first, first - run));
        QCOMPARE(scene.lines().last()->line(), QLineF(last, last + run));
    }
}

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
    void mapsCoordinatesBothWays_data()
    {
        QTest::addColumn<PointF>("data");
        QTest::addColumn<QPointF>("scene");

        QTest::newRow("minima at the axes' crossing") << PointF{0.0, 0.0} << QPointF(50.0, 270.0);
        QTest::newRow("maxima at the far corner") << PointF{4.0, 20.0} << QPointF(350.0, 40.0);
        QTest::newRow("inside") << PointF{2.0, 10.0} << QPointF(200.0, 155.0);
        QTest::newRow("outside the range") << PointF{-1.0, 30.0} << QPointF(-25.0, -75.0);
    }

    void mapsCoordinatesBothWays()
    {
        QFETCH(PointF, data);
        QFETCH(QPointF, scene);

        Graph graph;
        Scene& schematic = graph.schematic;
        QCOMPARE(schematic.xScale(), 75.0);
        QCOMPARE(schematic.yScale(), 11.5);
        QCOMPARE(schematic.toSceneCoords(data), scene);
        QCOMPARE(schematic.toDataCoords(scene), data);
        QCOMPARE(schematic.sceneRect(), QRectF(0, 0, 400, 300));
        schematic.setPoint(data);
        QCOMPARE(schematic.cross()->pos(), scene);
    }

    void capsScaleForZeroRange()
    {
        Graph graph(Points{{3.0, -2.0}});
        Scene& schematic = graph.schematic;
        schematic.setPoint(PointF{3.0, -2.0});
        schematic.setViewSize(QSize(300, 200));
        QCOMPARE(schematic.xScale(), Scene::maximumScale);
        QCOMPARE(schematic.yScale(), Scene::maximumScale);
        QCOMPARE(schematic.points().first()->pos(), QPointF(50.0, 170.0));
        // The operating point's cross follows a change of scale.
        QCOMPARE(schematic.cross()->pos(), QPointF(50.0, 170.0));
        QCOMPARE(schematic.cross()->labelText(), QStringLiteral("(3,-2)"));
        verifyLayout(schematic);

        // A tiny range is capped too; an ordinary one is not.
        graph.model.setData(Points{{0.0, 0.0}, {0.01, 100.0}});
        QCOMPARE(schematic.xScale(), Scene::maximumScale);
        QCOMPARE(schematic.yScale(), 1.3);

        // Moving the only point shifts the range without changing its width.
        graph.model.setData(Points{{3.0, -2.0}});
        QVERIFY(graph.model.movePoint(0, PointF{5.0, 1.0}));
        verifyLayout(schematic);
        QCOMPARE(schematic.points().first()->pos(), QPointF(50.0, 170.0));
    }

    void followsTableModel_data()
    {
        QTest::addColumn<Change>("change");

        QTest::newRow("insert before first") << Change([](Model& m) { m.insertPointBefore(0); });
        QTest::newRow("insert after last") << Change([](Model& m) { m.insertPointAfter(4); });
        QTest::newRow("remove the first") << Change([](Model& m) { m.removePoint(0); });
        QTest::newRow("remove the last") << Change([](Model& m) { m.removePoint(4); });
        const Change clear = [](Model& m) {
            while (m.rowCount() > 0)
                m.removePoint(0);
        };
        QTest::newRow("remove all") << clear;
        QTest::newRow("remove all and insert") << Change([clear](Model& m) {
            clear(m);
            m.insertPoint(PointF{2.5, 7.0});
        });
        QTest::newRow("replace the list")
            << Change([](Model& m) { m.setData(Points{{-1.0, 1.0}, {1.0, -1.0}}); });
    }

    void followsTableModel()
    {
        QFETCH(Change, change);

        Graph graph;
        const Points& points = graph.model.points();
        change(graph.model);
        QVERIFY(points != fivePoints);
        verifyLayout(graph.schematic);
        if (!points.empty())
            QCOMPARE(graph.schematic.xMaximum() - graph.schematic.xMinimum(),
                     points[points.size() - 1].x - points[0].x);
    }

    void labelsRangeWithFourDigits()
    {
        const Graph graph(Points{{-1.23456, 0.5}, {12345.6, 2.0 / 3.0}});
        QCOMPARE(rangeTexts(graph.schematic),
                 (QStringList{"-1.235", "1.235e+04", "0.5", "0.6667"}));
        QCOMPARE(graph.schematic.coordsystem()->xAxisText(), QStringLiteral("x"));
        QCOMPARE(graph.schematic.coordsystem()->yAxisText(), QStringLiteral("y"));
    }

    void labelsDoNotOverlapAtMinimumSize_data()
    {
        QTest::addColumn<Points>("points");
        QTest::addColumn<QString>("xText");

        QTest::newRow("default curve") << Model().createDefaultData() << "x";
        QTest::newRow("long values") << Points{{-1234.5, -0.0012345}, {98765.4, 3.25e7}} << "x";
        QTest::newRow("axis text with unit") << Model().createDefaultData() << "U [V]";
    }

    void labelsDoNotOverlapAtMinimumSize()
    {
        QFETCH(Points, points);
        QFETCH(QString, xText);

        Graph graph(points);
        Scene& schematic = graph.schematic;
        schematic.setXAxisText(xText);
        graph.view.resize(graph.view.minimumSize());
        QVERIFY(graph.show());
        QCOMPARE(graph.view.minimumSize(), QSize(200, 170));
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
                QVERIFY2(!rects.at(i).intersects(rects.at(j)),
                         qPrintable(QStringLiteral("%1 %2").arg(i).arg(j)));
        }
    }

    void followsSelection()
    {
        Graph graph;
        graph.model.setSelectedPoint(3, 1);
        for (const Point* point : graph.schematic.points()) {
            QCOMPARE(point->selected(), point->row() == 3);
            QCOMPARE(point->zValue(), point->row() == 3 ? 100.0 : 50.0);
        }
        graph.model.insertPointBefore(0);
        QVERIFY(graph.schematic.points().first()->selected());
        graph.model.setSelectedPoint(-1, 0);
        for (const Point* point : graph.schematic.points())
            QVERIFY(!point->selected());

        // A new list comes without a selection.
        graph.model.setSelectedPoint(1, 0);
        graph.model.setData(fivePoints);
        for (const Point* point : graph.schematic.points())
            QVERIFY(!point->selected());
    }

    void dragMovesPointAndRefusesCrossingNeighbour_data()
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

    void dragMovesPointAndRefusesCrossingNeighbour()
    {
        QFETCH(QPoint, offset);
        QFETCH(PointF, result);

        Graph graph;
        QVERIFY(graph.show());
        Scene& schematic = graph.schematic;
        QCOMPARE(schematic.sceneRect(), QRectF(0, 0, 400, 300));
        const QStringList rangeBefore = rangeTexts(schematic);

        QWindow* window = graph.view.window()->windowHandle();
        const QPoint start = graph.windowPos(QPointF(200.0, 40.0));
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        QCOMPARE(graph.model.selectedRow(), 2);
        QTest::mouseMove(window, start + offset / 2);
        QTest::mouseMove(window, start + offset);
        QTRY_VERIFY(schematic.isMoving());
        // The axes hold still until the point is let go.
        QCOMPARE(rangeTexts(schematic), rangeBefore);
        QTest::mouseRelease(window, Qt::LeftButton, {}, start + offset);

        const PointF p = graph.model.points()[2];
        QCOMPARE(p.x, result.x);
        QVERIFY2(qAbs(p.y - result.y) < 1e-9, qPrintable(QString::number(p.y, 'g', 17)));
        QVERIFY(!schematic.isMoving());
        QCOMPARE(schematic.coordsystem()->rangeText(Coordsystem::YMaximum),
                 QString::number(p.y, 'g', 4));
        verifyLayout(schematic);
    }

    void dragSurvivesApplicationChangingPoints_data()
    {
        QTest::addColumn<Change>("answer");

        QTest::newRow("replaced") << Change([](Model& m) { m.setData({{0.0, 0.0}, {1.0, 1.0}}); });
        QTest::newRow("dragged one removed") << Change([](Model& m) { m.removePoint(2); });
    }

    void dragSurvivesApplicationChangingPoints()
    {
        QFETCH(Change, answer);

        Graph graph;
        QVERIFY(graph.show());
        // The application answers the first step of the drag, while the point is still in it.
        bool answered = false;
        connect(&graph.model, &Model::modelDataChanged, [&] {
            if (!std::exchange(answered, true))
                answer(graph.model);
        });
        QWindow* window = graph.view.window()->windowHandle();
        const QPoint start = graph.windowPos(QPointF(200.0, 40.0));
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        QTest::mouseMove(window, start + QPoint(5, 10));
        QTest::mouseMove(window, start + QPoint(10, 20));
        QTest::mouseRelease(window, Qt::LeftButton, {}, start + QPoint(10, 20));
        QVERIFY(answered);
        QVERIFY(!graph.schematic.isMoving());
        verifyLayout(graph.schematic);
    }

    void rightClickOffersEntriesForPlace_data()
    {
        QTest::addColumn<QPointF>("place");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<Points>("points");
        QTest::addColumn<int>("selected");

        const QStringList listEntries{"-", "Import from clipboard (off)", "Export to clipboard"};
        const QStringList pointEntries{"Insert point before", "Insert point after", "Remove point"};
        // Data (2.6, 4.0): the new point goes where the click was.
        QTest::newRow("empty space")
            << QPointF(245.0, 224.0) << "Insert point" << QStringList{"Insert point"} + listEntries
            << Points{{0, 0}, {1, 5}, {2, 20}, {2.6, 4}, {3, 10}, {4, 15}} << -1;
        QTest::newRow("point 3") << QPointF(275.0, 155.0) << "Remove point"
                                 << pointEntries + listEntries
                                 << Points{{0, 0}, {1, 5}, {2, 20}, {4, 15}} << 3;
    }

    void rightClickOffersEntriesForPlace()
    {
        QFETCH(QPointF, place);
        QFETCH(QString, entry);

        QGuiApplication::clipboard()->clear();
        Graph graph;
        QVERIFY(graph.show());
        const QPoint pos = graph.view.mapFromScene(place);
        QTEST(kes::test::rightClickMenu(graph.view.viewport(), pos, entry), "entries");
        QTEST(graph.model.points(), "points");
        QTEST(graph.model.selectedRow(), "selected");
        verifyLayout(graph.schematic);
    }
};

KES_TEST_MAIN(tst_Schematic)
#include "tst_schematic.moc"
