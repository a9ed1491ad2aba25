#include <kes/qt/discreteapproximator/model.h>

#include "approxtest.h"
#include "kestest.h"

#include <QSignalSpy>

#include <cmath>
#include <limits>

using kes::core::PointF;
using kes::qt::discreteapproximator::Model;
using Points = Model::Points;

namespace {

const Points threePoints{{0.0, 0.0}, {1.0, 10.0}, {2.0, 20.0}};

// The points inside limits of [-5, 5] in x and [-50, 50] in y.
void setCurve(Model& model, const Points& points = threePoints)
{
    model.setData(points);
    model.setXRange(-5.0, 5.0);
    model.setYRange(-50.0, 50.0);
}

} // namespace

class tst_Model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTanhCurve()
    {
        const Model model;
        QCOMPARE(model.rowCount(), 21);
        QCOMPARE(model.points()[0], (PointF{-2.0, -0.9640275800758169}));
        QCOMPARE(model.points()[20].x, 1.9999999999999996);
        for (const PointF& p : model.points())
            QCOMPARE(p.y, std::tanh(p.x));
        QCOMPARE(model.selectedRow(), -1);
        QCOMPARE(model.xMinimum(), -2147483648.0);
        QCOMPARE(model.yMaximum(), 2147483647.0);
    }

    void presentsCellsAsText()
    {
        Model model;
        model.setData(Points{{M_PI, 1e10}, {-0.5, M_PI}});
        const QStringList texts{"3.141593", "1e+10", "-0.5", "3.141593"};
        for (int i = 0; i < texts.size(); ++i) {
            const QModelIndex cell = model.index(i / 2, i % 2);
            QCOMPARE(model.data(cell, Qt::DisplayRole).toString(), texts.at(i));
            QCOMPARE(model.data(cell, Qt::EditRole).toString(), texts.at(i));
            QVERIFY(!model.data(cell, Qt::ToolTipRole).isValid());
            QVERIFY(model.flags(cell) & Qt::ItemIsEditable);
        }
        QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("x"));
        QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("y"));
        QCOMPARE(model.headerData(0, Qt::Vertical).toString(), QStringLiteral("0"));
    }

    void editsCellWithinLimitsAndNeighbours_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<double>("stored");

        const QVariant justBelow0(std::nextafter(0.0, -1.0));
        const QVariant justAbove2(std::nextafter(2.0, 3.0));
        QTest::newRow("x equal to left neighbour") << 1 << 0 << QVariant(0.0) << true << 0.0;
        QTest::newRow("x equal to right neighbour") << 1 << 0 << QVariant(2.0) << true << 2.0;
        QTest::newRow("x just past left neighbour") << 1 << 0 << justBelow0 << false << 1.0;
        QTest::newRow("x just past right neighbour") << 1 << 0 << justAbove2 << false << 1.0;
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

    void editsCellWithinLimitsAndNeighbours()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QVariant, value);
        QFETCH(bool, accepted);

        Model model;
        setCurve(model);
        QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
        QSignalSpy cells(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));

        const QModelIndex cell = model.index(row, column);
        QCOMPARE(model.setData(cell, value, Qt::EditRole), accepted);
        const PointF& p = model.points()[std::size_t(row)];
        QTEST(column == 0 ? p.x : p.y, "stored");
        QCOMPARE(changed.count(), accepted ? 1 : 0);
        QCOMPARE(cells.count(), accepted ? 1 : 0);
        if (accepted)
            QCOMPARE(cells.at(0).at(0).toModelIndex(), cell);
    }

    void movesEachCoordinateOnItsOwn_data()
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

    void movesEachCoordinateOnItsOwn()
    {
        QFETCH(PointF, target);
        QFETCH(bool, moved);

        Model model;
        setCurve(model);
        QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
        QCOMPARE(model.movePoint(1, target), moved);
        QTEST(model.points()[1], "result");
        QCOMPARE(changed.count(), moved ? 1 : 0);
    }

    void insertsPoint_data()
    {
        QTest::addColumn<Points>("points");
        QTest::addColumn<QString>("how"); // "before" or "after" a row, or "at" a data position
        QTest::addColumn<PointF>("target");
        QTest::addColumn<int>("newRow");
        QTest::addColumn<PointF>("result");

        const Points one{{3.0, 7.0}};
        const Points four{{0.0, 1.0}, {1.0, 2.0}, {3.0, 4.0}, {4.0, 8.0}};
        const Points& three = threePoints;
        using P = PointF;
        const P none;
        // Generated: a step beyond either end (25 beside a lone point), or midway between two.
        QTest::newRow("before the only point") << one << "before 0" << none << 0 << P{-22, 7};
        QTest::newRow("after the only point") << one << "after 0" << none << 1 << P{28, 7};
        QTest::newRow("before the first") << four << "before 0" << none << 0 << P{-1, 1};
        QTest::newRow("after the last") << four << "after 3" << none << 4 << P{5, 8};
        QTest::newRow("between rows 2 and 3") << four << "before 3" << none << 3 << P{3.5, 8};
        QTest::newRow("after row 1") << four << "after 1" << none << 2 << P{2, 4};
        // Behind every point with an x not greater, moved there as far as admissible.
        const P generated{3, 20};
        QTest::newRow("at, between") << three << "at" << P{0.25, 5} << 1 << P{0.25, 5};
        QTest::newRow("at, behind equal x") << three << "at" << P{1, 3} << 2 << P{1, 3};
        QTest::newRow("at, before the first") << three << "at" << P{-4, 1} << 0 << P{-4, 1};
        QTest::newRow("at, after the last") << three << "at" << P{4.5, 30} << 3 << P{4.5, 30};
        QTest::newRow("at, y beyond limit") << three << "at" << P{1.5, 60} << 2 << P{1.5, 20};
        QTest::newRow("at the generated point") << three << "at" << generated << 3 << generated;
        QTest::newRow("at, neither admissible") << three << "at" << P{9, 99} << 3 << generated;
    }

    void insertsPoint()
    {
        QFETCH(Points, points);
        QFETCH(QString, how);
        QFETCH(PointF, target);
        QFETCH(int, newRow);

        Model model;
        setCurve(model, points);
        QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
        QSignalSpy selected(&model, SIGNAL(selectedPointChanged(QModelIndex)));
        QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex, int, int)));

        const int row = how.section(QLatin1Char(' '), 1).toInt();
        if (how.startsWith("before"))
            model.insertPointBefore(row);
        else if (how.startsWith("after"))
            model.insertPointAfter(row);
        else
            model.insertPoint(target);

        QCOMPARE(model.rowCount(), int(points.size()) + 1);
        QTEST(model.points()[std::size_t(newRow)], "result");
        QCOMPARE(changed.count(), 1);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(inserted.at(0).at(1).toInt(), newRow);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(0).toModelIndex(), model.index(newRow, 0));
        QCOMPARE(model.selectedRow(), -1);
    }

    void replacesAndRemovesPoints()
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

        // Removal goes down to no points at all and leaves the selected row as it is.
        model.setData(two);
        model.setSelectedPoint(1, 0);
        model.removePoint(0);
        QCOMPARE(model.points(), (Points{{3.0, 4.0}}));
        QCOMPARE(model.selectedRow(), 1);
        model.removePoint(0);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(changed.count(), 5);
        QCOMPARE(model.toString(), QString());

        // An empty list is then an equal one; an insertion starts from nothing.
        model.setData(Points());
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(changed.count(), 5);
        model.insertPoint(PointF{0.5, -1.0});
        QCOMPARE(model.points(), (Points{{0.5, -1.0}}));
        QCOMPARE(changed.count(), 6);
    }

    void selectsPointAndIgnoresRowsOutOfRange()
    {
        Model model;
        setCurve(model);
        QSignalSpy selected(&model, SIGNAL(selectedPointChanged(QModelIndex)));
        model.setSelectedPoint(1, 1);
        QCOMPARE(model.selectedRow(), 1);
        QCOMPARE(selected.takeFirst().at(0).toModelIndex(), model.index(1, 1));
        model.setSelectedPoint(-1, 0);
        QCOMPARE(model.selectedRow(), -1);
        QVERIFY(!selected.takeFirst().at(0).toModelIndex().isValid());

        model.setSelectedPoint(2, 1);
        selected.clear();
        QSignalSpy changed(&model, SIGNAL(modelDataChanged()));
        QSignalSpy cells(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));
        for (const int row : {-2, -1, 3, 4, std::numeric_limits<int>::max()}) {
            model.removePoint(row);
            QVERIFY(!model.movePoint(row, PointF{0.5, 0.5}));
            QVERIFY(!model.setDataEditRole(model.index(row, 0), 0.5));
            QVERIFY(!model.setData(model.index(row, 0), 0.5, Qt::EditRole));
            QVERIFY(!model.data(model.index(row, 0), Qt::DisplayRole).isValid());
        }
        for (const int row : {-1, 4, std::numeric_limits<int>::min()}) {
            model.insertPointBefore(row);
            QVERIFY(!model.insertPointBefore_i(row));
        }
        model.insertPointAfter(3);
        model.setSelectedPoint(3, 0);
        model.setSelectedPoint(-7, 0);
        QVERIFY(!model.setData(model.index(0, 0), 1.0, Qt::DisplayRole));

        QCOMPARE(model.points(), threePoints);
        QCOMPARE(model.selectedRow(), 2);
        QCOMPARE(changed.count() + selected.count() + cells.count(), 0);
    }

    void writesText()
    {
        const QString text = Model().toString();
        QCOMPARE(text.count(QLatin1Char('\n')), 20);
        QCOMPARE(text.section(QLatin1Char('\n'), 0, 1),
                 QStringLiteral("-2\t-0.964028\n-1.8\t-0.946806"));
        QCOMPARE(text.section(QLatin1Char('\n'), 20), QStringLiteral("2\t0.964028"));
    }

    void readsText_data()
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

    void readsText()
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
};

KES_TEST_MAIN(tst_Model)
#include "tst_model.moc"
