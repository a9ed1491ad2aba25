#include <kes/core/variant/variant.h>

#include <kestest.h>

#include <QtTest>

#include <cstdio>
#include <limits>
#include <string>

using kes::core::variant::Variant;

namespace {

// 17 digits tell every pair of doubles apart, where QCOMPARE on doubles is fuzzy and Qt's number
// formatting drops the sign of zero.
QByteArray text17(double value)
{
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.17g", value);
    return buffer;
}

} // namespace

Q_DECLARE_METATYPE(Variant)
Q_DECLARE_METATYPE(Variant::Type)

class TestVariant : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data()
    {
        QTest::addColumn<Variant>("variant");
        QTest::addColumn<Variant::Type>("type");
        QTest::addColumn<double>("number");
        QTest::addColumn<QByteArray>("text");
        using T = Variant::Type;
        const double nan = std::numeric_limits<double>::quiet_NaN();

        QTest::newRow("null") << Variant() << T::Null << 0.0 << QByteArray();
        QTest::newRow("true") << Variant(true) << T::Bool << 1.0 << QByteArray("true");
        QTest::newRow("int") << Variant(-7) << T::Int << -7.0 << QByteArray("-7");
        QTest::newRow("float 0.1 widens to double 0.1") << Variant(0.1f) << T::Float << 0.1 << QByteArray("0.1");
        QTest::newRow("largest float") << Variant(std::numeric_limits<float>::max()) << T::Float << 3.4028235e38
                                       << QByteArray("3.4028235e+38");
        QTest::newRow("float -0") << Variant(-0.0f) << T::Float << -0.0 << QByteArray("-0");
        QTest::newRow("float nan") << Variant(std::numeric_limits<float>::quiet_NaN()) << T::Float << nan
                                   << QByteArray("nan");
        QTest::newRow("double third") << Variant(1.0 / 3) << T::Double << 1.0 / 3 << QByteArray("0.3333333333333333");
        QTest::newRow("text number") << Variant("2.5") << T::String << 2.5 << QByteArray("2.5");
        QTest::newRow("text with blanks") << Variant(" \t42 \n") << T::String << 42.0 << QByteArray(" \t42 \n");
        QTest::newRow("text plus sign") << Variant("+4") << T::String << 4.0 << QByteArray("+4");
        QTest::newRow("text two signs") << Variant("+-4") << T::String << 0.0 << QByteArray("+-4");
        QTest::newRow("text decimal comma") << Variant("1,5") << T::String << 0.0 << QByteArray("1,5");
        QTest::newRow("text trailing junk") << Variant("12abc") << T::String << 0.0 << QByteArray("12abc");
        QTest::newRow("text out of range") << Variant("1e999") << T::String << 0.0 << QByteArray("1e999");
        QTest::newRow("only blanks") << Variant("  ") << T::String << 0.0 << QByteArray("  ");
        QTest::newRow("null pointer") << Variant(static_cast<const char*>(nullptr)) << T::String << 0.0 << QByteArray();
    }

    void converts()
    {
        QFETCH(Variant, variant);
        QFETCH(Variant::Type, type);
        QFETCH(double, number);
        QFETCH(QByteArray, text);
        QVERIFY(variant.type() == type);
        QCOMPARE(text17(variant.toDouble()), text17(number));
        QCOMPARE(QByteArray::fromStdString(variant.toString()), text);
    }
};

KES_TEST_MAIN(TestVariant)
#include "tst_variant.moc"
