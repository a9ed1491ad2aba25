#include <kes/core/angle.h>

#include <kestest.h>

#include <QtTest>

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <limits>

using kes::core::mapToMinus180to180Degrees;

namespace {

// Exact comparison with a readable message: QCOMPARE on floats forgives small errors, and Qt's
// number formatting drops the sign of zero.
QByteArray text(float value)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.9g", double(value));
    return buffer;
}

} // namespace

class TestAngle : public QObject
{
    Q_OBJECT

private slots:
    void mapsIntoHalfOpenRange_data()
    {
        QTest::addColumn<float>("degrees");
        QTest::addColumn<float>("expected");
        QTest::newRow("zero") << 0.0f << 0.0f;
        QTest::newRow("inside") << 90.0f << 90.0f;
        QTest::newRow("fraction inside") << -179.5f << -179.5f;
        QTest::newRow("180 stays") << 180.0f << 180.0f;
        QTest::newRow("-180 becomes 180") << -180.0f << 180.0f;
        QTest::newRow("just past 180") << 181.0f << -179.0f;
        QTest::newRow("190") << 190.0f << -170.0f;
        QTest::newRow("-190") << -190.0f << 170.0f;
        QTest::newRow("359") << 359.0f << -1.0f;
        QTest::newRow("full turn, never -0") << 360.0f << 0.0f;
        QTest::newRow("negative full turn, never -0") << -360.0f << 0.0f;
        QTest::newRow("540") << 540.0f << 180.0f;
        QTest::newRow("-540") << -540.0f << 180.0f;
        QTest::newRow("two turns and a fraction") << 720.25f << 0.25f;
        QTest::newRow("a million") << 1.0e6f << -80.0f;
    }

    void mapsIntoHalfOpenRange()
    {
        QFETCH(float, degrees);
        QFETCH(float, expected);
        QCOMPARE(text(mapToMinus180to180Degrees(degrees)), text(expected));
    }

    void extremeValuesStayInRange_data()
    {
        QTest::addColumn<float>("degrees");
        QTest::newRow("1e30") << 1.0e30f;
        QTest::newRow("largest") << FLT_MAX;
        QTest::newRow("most negative") << -FLT_MAX;
        QTest::newRow("smallest denormal") << std::numeric_limits<float>::denorm_min();
    }

    void extremeValuesStayInRange()
    {
        QFETCH(float, degrees);
        const float result = mapToMinus180to180Degrees(degrees);
        QVERIFY2(result > -180.0f && result <= 180.0f, text(result).constData());
    }

    void nonFiniteGivesNan_data()
    {
        QTest::addColumn<float>("degrees");
        QTest::newRow("nan") << std::numeric_limits<float>::quiet_NaN();
        QTest::newRow("infinity") << std::numeric_limits<float>::infinity();
        QTest::newRow("negative infinity") << -std::numeric_limits<float>::infinity();
    }

    void nonFiniteGivesNan()
    {
        QFETCH(float, degrees);
        QVERIFY(std::isnan(mapToMinus180to180Degrees(degrees)));
    }
};

KES_TEST_MAIN(TestAngle)
#include "tst_angle.moc"
