#include <kes/qt/discreteapproximator/model.h>

#include "kestest.h"
#include "pointstext.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>

using kes::core::PointF;
using kes::qt::discreteapproximator::Model;
using Points = Model::Points;

namespace {

// Three points with room between them, inside limits of [-5, 5] in x and [-50, 50] in y.
void setSmallCurve(Model& model)
{
    model.setData(Points{{0.0, 0.0}, {1.0, 10.0}, {2.0, 20.0}});
    model.setXRange(-5.0, 5.0);
    model.setYRange(-50.0, 50.0);
}

} // namespace

class tst_Model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTanhCurve();
    void presentsCellsAsText_data();
    void presentsCellsAsText();
    void editsCellWithinLimitsAndNeighbours_data();
    void editsCellWithinLimitsAndNeighbours();
    void refusesEditOutsideTableOrRole();
    void movesEachCoordinateOnItsOwn_data();
    void movesEachCoordinateOnItsOwn();
    void insertsGeneratedPoint_data();
    void insertsGeneratedPoint();
    void insertsAtDataPosition_data();
    void insertsAtDataPosition();
    void removesDownToNoPoints();
    void ignoresRowsOutOfRange();
    void selectsPoint();
    void replacesList();
    void writesText();
    void readsText_data();
    void readsText();
    void handedOutListNeverChanges();
};

void tst_Model::startsWithTanhCurve()
{
    const Model model;
    const Points& points = model.points();
    QCOMPARE(model.rowCount(), 21);
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(points[0].x, -2.0);
    QCOMPARE(points[0].y, -0.9640275800758169);
    QCOMPARE(points[20].x, 1.9999999999999996);
    for (const PointF& p : points)
        QCOMPARE(p.y, std::tanh(p.x));
    QCOMPARE(model.selectedRow(), -1);
    QCOMPARE(model.xMinimum(), -2147483648.0);
    QCOMPARE(model.yMaximum(), 2147483647.0);
}

void tst_Model::presentsCellsAsText_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("seven digits") << M_PI << "3.141593";
    QTest::newRow("ten to the tenth") << 1e10 << "1e+10";
    QTest::newRow("negative") << -0.5 << "-0.5";
}

void tst_Model::presentsCellsAsText()
{
    QFETCH(double, value);
    Model model;
    model.setData(Points{{value, value}});
    for (int column = 0; column < 2; ++column) {
        const QModelIndex cell = model.index(0, column);
        QTEST(model.data(cell, Qt::DisplayRole).toString(), "text");
        QTEST(model.data(cell, Qt::EditRole).toString(), "text");
        QVERIFY(!model.data(cell, Qt::ToolTipRole).isValid());
        QVERIFY(model.flags(cell) & Qt::ItemIsEditable);
    }
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("x"));
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("y"));
    QCOMPARE(model.headerData(0, Qt::Vertical).toString(), QStringLiteral("0"));
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void tst_Model::editsCellWithinLimitsAndNeighbours_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<double>("stored");

    const double justLeftOf0 = std::nextafter(0.0, -1.0);
    const double justRightOf2 = std::nextafter(2.0, 3.0);
    QTest::newRow("x equal to left neighbour") << 1 << 0 << QVariant(0.0) << true << 0.0;
    QTest::newRow("x equal to right neighbour") << 1 << 0 << QVariant(2.0) << true << 2.0;
    QTest::newRow("x just past left neighbour") << 1 << 0 << QVariant(justLeftOf0) << false << 1.0;
    QTest::newRow("x just past right neighbour") << 1 << 0 << QVariant(justRightOf2) << false << 1.0;
    QTest::newRow("x on lower limit") << 0 << 0 << QVariant(-5.0) << true << -5.0;
    QTest::newRow("x below lower limit") << 0 << 0 << QVariant(-5.001) << false << 0.0;
    QTest::newRow("x on upper limit") << 2 << 0 << QVariant(5.0) << true << 5.0;
    QTest::newRow("y on upper limit") << 0 << 1 << QVariant(50.0) << true << 50.0;
    QTest::newRow("y above upper limit") << 0 << 1 << QVariant(50.5) << false << 0.0;
    QTest::newRow("y free of neighbours") << 1 << 1 << QVariant(-40.0) << true << -40.0;
    QTest::newRow("text number") << 0 << 1 << QVariant("12.5") << true << 12.5;
    QTest::newRow("word reads as zero") << 1 << 1 << QVariant("abc") << true << 0.0;
    QTest::newRow("not a number") << 1 << 1 << QVariant(std::nan("")) << false << 10.0;
}

void tst_Model::editsCellWithinLimitsAndNeighbours()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QVariant, value);
    QFETCH(bool, accepted);
    QFETCH(double, stored);

    Model model;
    setSmallCurve(model);
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
    QSignalSpy cells(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));

    const QModelIndex cell = model.index(row, column);
    QCOMPARE(model.setData(cell, value, Qt::EditRole), accepted);
    const PointF& p = model.points()[std::size_t(row)];
    QCOMPARE(column == 0 ? p.x : p.y, stored);
    QCOMPARE(changed.count(), accepted ? 1 : 0);
    QCOMPARE(cells.count(), accepted ? 1 : 0);
    if (accepted)
        QCOMPARE(cells.at(0).at(0).toModelIndex(), cell);
}

void tst_Model::refusesEditOutsideTableOrRole()
{
    Model model;
    setSmallCurve(model);
    const Points before = model.points();
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));

    QVERIFY(!model.setData(model.index(0, 0), 1.0, Qt::DisplayRole));
    QVERIFY(!model.setData(QModelIndex(), 1.0, Qt::EditRole));
    QVERIFY(!model.setDataEditRole(QModelIndex(), 1.0));
    QVERIFY(!model.data(model.index(3, 0), Qt::DisplayRole).isValid());
    QCOMPARE(model.points(), before);
    QCOMPARE(changed.count(), 0);
}

void tst_Model::movesEachCoordinateOnItsOwn_data()
{
    QTest::addColumn<PointF>("target");
    QTest::addColumn<bool>("moved");
    QTest::addColumn<PointF>("result");

    QTest::newRow("both coordinates") << PointF{1.5, 15.0} << true << PointF{1.5, 15.0};
    QTest::newRow("left of left neighbour") << PointF{-1.0, 12.0} << true << PointF{1.0, 12.0};
    QTest::newRow("y beyond its limit") << PointF{0.5, 99.0} << true << PointF{0.5, 10.0};
    QTest::newRow("neither admissible") << PointF{3.0, -99.0} << false << PointF{1.0, 10.0};
    QTest::newRow("unchanged") << PointF{1.0, 10.0} << false << PointF{1.0, 10.0};
}

void tst_Model::movesEachCoordinateOnItsOwn()
{
    QFETCH(PointF, target);
    QFETCH(bool, moved);

    Model model;
    setSmallCurve(model);
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
    QCOMPARE(model.movePoint(1, target), moved);
    QTEST(model.points()[1], "result");
    QCOMPARE(changed.count(), moved ? 1 : 0);
}

void tst_Model::insertsGeneratedPoint_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<bool>("after");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("newRow");
    QTest::addColumn<PointF>("generated");

    const Points one{{3.0, 7.0}};
    const Points four{{0.0, 1.0}, {1.0, 2.0}, {3.0, 4.0}, {4.0, 8.0}};
    QTest::newRow("before the only point") << one << false << 0 << 0 << PointF{-22.0, 7.0};
    QTest::newRow("after the only point") << one << true << 0 << 1 << PointF{28.0, 7.0};
    QTest::newRow("before the first point") << four << false << 0 << 0 << PointF{-1.0, 1.0};
    QTest::newRow("after the last point") << four << true << 3 << 4 << PointF{5.0, 8.0};
    QTest::newRow("between rows 2 and 3") << four << false << 3 << 3 << PointF{3.5, 8.0};
    QTest::newRow("after row 1") << four << true << 1 << 2 << PointF{2.0, 4.0};
}

void tst_Model::insertsGeneratedPoint()
{
    QFETCH(Points, points);
    QFETCH(bool, after);
    QFETCH(int, row);
    QFETCH(int, newRow);

    Model model;
    model.setData(points);
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
    QSignalSpy selected(&model, SIGNAL(selectedPointChanged(QModelIndex)));
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex, int, int)));

    if (after)
        model.insertPointAfter(row);
    else
        model.insertPointBefore(row);

    QCOMPARE(model.rowCount(), int(points.size()) + 1);
    QTEST(model.points()[std::size_t(newRow)], "generated");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.at(0).at(1).toInt(), newRow);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.at(0).at(0).toModelIndex(), model.index(newRow, 0));
    QCOMPARE(model.selectedRow(), -1);
}

void tst_Model::insertsAtDataPosition_data()
{
    QTest::addColumn<PointF>("target");
    QTest::addColumn<int>("row");
    QTest::addColumn<PointF>("result");

    QTest::newRow("between two points") << PointF{0.25, 5.0} << 1 << PointF{0.25, 5.0};
    QTest::newRow("behind an equal x") << PointF{1.0, 3.0} << 2 << PointF{1.0, 3.0};
    QTest::newRow("before the first") << PointF{-4.0, 1.0} << 0 << PointF{-4.0, 1.0};
    QTest::newRow("after the last") << PointF{4.5, 30.0} << 3 << PointF{4.5, 30.0};
    QTest::newRow("y beyond its limit") << PointF{1.5, 60.0} << 2 << PointF{1.5, 20.0};
    QTest::newRow("exactly the generated point") << PointF{3.0, 20.0} << 3 << PointF{3.0, 20.0};
    QTest::newRow("neither coordinate admissible")
        << PointF{9.0, 99.0} << 3 << PointF{3.0, 20.0};
}

void tst_Model::insertsAtDataPosition()
{
    QFETCH(PointF, target);
    QFETCH(int, row);

    Model model;
    setSmallCurve(model);
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
    model.insertPoint(target);
    QCOMPARE(model.rowCount(), 4);
    QTEST(model.points()[std::size_t(row)], "result");
    QCOMPARE(changed.count(), 1);
}

void tst_Model::removesDownToNoPoints()
{
    Model model;
    model.setData(Points{{1.0, 1.0}, {2.0, 2.0}});
    model.setSelectedPoint(1, 0);
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));

    model.removePoint(0);
    QCOMPARE(model.points(), (Points{{2.0, 2.0}}));
    QCOMPARE(model.selectedRow(), 1);
    model.removePoint(0);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(model.toString(), QString());

    model.insertPoint(PointF{0.0, 0.0});
    QCOMPARE(model.points(), (Points{{0.0, 0.0}}));
    QCOMPARE(changed.count(), 3);
}

void tst_Model::ignoresRowsOutOfRange()
{
    Model model;
    setSmallCurve(model);
    model.setSelectedPoint(2, 1);
    const Points before = model.points();
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
    QSignalSpy selected(&model, SIGNAL(selectedPointChanged(QModelIndex)));
    QSignalSpy cells(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));

    for (const int row : {-2, -1, 3, 4, std::numeric_limits<int>::max()}) {
        model.removePoint(row);
        QVERIFY(!model.movePoint(row, PointF{0.5, 0.5}));
        QVERIFY(!model.setDataEditRole(model.index(row, 0), 0.5));
    }
    for (const int row : {-1, 4, std::numeric_limits<int>::min()}) {
        model.insertPointBefore(row);
        QVERIFY(!model.insertPointBefore_i(row));
    }
    model.insertPointAfter(3);
    model.setSelectedPoint(3, 0);
    model.setSelectedPoint(-7, 0);

    QCOMPARE(model.points(), before);
    QCOMPARE(model.selectedRow(), 2);
    QCOMPARE(changed.count() + selected.count() + cells.count(), 0);
}

void tst_Model::selectsPoint()
{
    Model model;
    setSmallCurve(model);
    QSignalSpy selected(&model, SIGNAL(selectedPointChanged(QModelIndex)));
    QSignalSpy cells(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));

    model.setSelectedPoint(1, 1);
    QCOMPARE(model.selectedRow(), 1);
    QCOMPARE(selected.takeFirst().at(0).toModelIndex(), model.index(1, 1));
    QCOMPARE(cells.takeFirst().at(0).toModelIndex(), model.index(1, 1));

    model.setSelectedPoint(-1, 0);
    QCOMPARE(model.selectedRow(), -1);
    QVERIFY(!selected.takeFirst().at(0).toModelIndex().isValid());
    // The old row is repainted whole; the missing new one is not announced as changed.
    QCOMPARE(cells.count(), 1);
    QCOMPARE(cells.at(0).at(0).toModelIndex(), model.index(1, 0));
    QCOMPARE(cells.at(0).at(1).toModelIndex(), model.index(1, 1));
}

void tst_Model::replacesList()
{
    Model model;
    model.setSelectedPoint(4, 0);
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
    QSignalSpy reset(&model, SIGNAL(modelReset()));

    model.setData(model.createDefaultData());
    QCOMPARE(changed.count() + reset.count(), 0);
    QCOMPARE(model.selectedRow(), 4);

    const Points two{{1.0, 2.0}, {3.0, 4.0}};
    model.setData(two);
    QCOMPARE(model.points(), two);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(model.selectedRow(), -1);

    model.setData(Points());
    QCOMPARE(model.points(), model.createDefaultData());
    QCOMPARE(changed.count(), 2);

    model.removePoint(0);
    while (model.rowCount() > 0)
        model.removePoint_i(0);
    changed.clear();
    model.setData(Points());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(changed.count(), 0);
}

void tst_Model::writesText()
{
    Model model;
    const QStringList lines = model.toString().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 21);
    QCOMPARE(lines.at(0) + QLatin1Char('\n') + lines.at(1),
             QStringLiteral("-2\t-0.964028\n-1.8\t-0.946806"));
    QCOMPARE(lines.at(20), QStringLiteral("2\t0.964028"));
}

void tst_Model::readsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Points>("points");

    const Points unchanged = Model().createDefaultData();
    QTest::newRow("CRLF, blank line, extra field")
        << "1 2\r\n\r\n3\t4 5" << Points{{1.0, 2.0}, {3.0, 4.0}};
    QTest::newRow("words") << "a b" << Points{{0.0, 0.0}};
    QTest::newRow("x only, leading blanks") << "   7.5\n" << Points{{7.5, 0.0}};
    QTest::newRow("comma is no decimal point") << "1,5 2" << Points{{0.0, 2.0}};
    QTest::newRow("exponent") << "-1e3\t2.5E-1" << Points{{-1000.0, 0.25}};
    QTest::newRow("blanks and line ends only") << " \r\n\t\n  \n" << unchanged;
    QTest::newRow("empty") << "" << unchanged;
}

void tst_Model::readsText()
{
    QFETCH(QString, text);
    QFETCH(Points, points);

    Model model;
    const bool changes = points != model.points();
    QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
    model.fromString(text);
    QCOMPARE(model.points(), points);
    QCOMPARE(changed.count(), changes ? 1 : 0);
}

void tst_Model::handedOutListNeverChanges()
{
    Model model;
    setSmallCurve(model);
    const Points handedOut = model.points();
    const Points copy(std::vector<PointF>(handedOut.begin(), handedOut.end()));

    QVERIFY(model.setDataEditRole(model.index(1, 1), 11.0));
    QVERIFY(model.movePoint(2, PointF{2.5, 25.0}));
    model.insertPointAfter(0);
    model.removePoint(3);
    model.fromString(QStringLiteral("0 0\n1 1"));
    model.setData(Points{{9.0, 9.0}});
    QCOMPARE(handedOut, copy);
}

KES_TEST_MAIN(tst_Model)
#include "tst_model.moc"
