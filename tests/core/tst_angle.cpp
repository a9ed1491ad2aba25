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
// number formatting drops the sign of zero. Any NaN will do.
QByteArray text(float value)
{
    if (std::isnan(value))
        return "nan";
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.9g", double(value));
    return buffer;
}

} // namespace

class TestAngle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapsIntoHalfOpenRange_data()
    {
        QTest::addColumn<float>("degrees");
        QTest::addColumn<float>("expected");
        const float nan = std::numeric_limits<float>::quiet_NaN();
        QTest::newRow("fraction inside") << -179.5f << -179.5f;
        QTest::newRow("180 stays") << 180.0f << 180.0f;
        QTest::newRow("-180 becomes 180") << -180.0f << 180.0f;
        QTest::newRow("just past 180") << 181.0f << -179.0f;
        QTest::newRow("-190") << -190.0f << 170.0f;
        QTest::newRow("full turn, never -0") << 360.0f << 0.0f;
        QTest::newRow("negative full turn, never -0") << -360.0f << 0.0f;
        QTest::newRow("1e30") << 1.0e30f << 120.0f;
        QTest::newRow("most negative, never -0") << -FLT_MAX << 0.0f;
        QTest::newRow("smallest denormal") << std::numeric_limits<float>::denorm_min()
                                           << std::numeric_limits<float>::denorm_min();
        QTest::newRow("nan") << nan << nan;
        QTest::newRow("infinity gives nan") << std::numeric_limits<float>::infinity() << nan;
    }

    void mapsIntoHalfOpenRange()
    {
        QFETCH(float, degrees);
        QFETCH(float, expected);
        QCOMPARE(text(mapToMinus180to180Degrees(degrees)), text(expected));
    }
};

KES_TEST_MAIN(TestAngle)
#include "tst_angle.moc"
