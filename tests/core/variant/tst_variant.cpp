#include <kes/core/variant/variant.h>

#include <kestest.h>

#include <QtTest>

#include <climits>
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

class TestVariant : public QObject
{
    Q_OBJECT

private slots:
    void converts_data()
    {
        QTest::addColumn<Variant>("variant");
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("number");
        QTest::addColumn<QByteArray>("text");
        const int Null = int(Variant::Type::Null), Bool = int(Variant::Type::Bool), Int = int(Variant::Type::Int);
        const int Float = int(Variant::Type::Float), Double = int(Variant::Type::Double);
        const int String = int(Variant::Type::String);
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();

        QTest::newRow("null") << Variant() << Null << 0.0 << QByteArray();
        QTest::newRow("true") << Variant(true) << Bool << 1.0 << QByteArray("true");
        QTest::newRow("false") << Variant(false) << Bool << 0.0 << QByteArray("false");
        QTest::newRow("int") << Variant(-7) << Int << -7.0 << QByteArray("-7");
        QTest::newRow("largest int") << Variant(INT_MAX) << Int << 2147483647.0 << QByteArray("2147483647");
        QTest::newRow("float 0.1 widens to double 0.1") << Variant(0.1f) << Float << 0.1 << QByteArray("0.1");
        QTest::newRow("float 3.14159") << Variant(3.14159f) << Float << 3.14159 << QByteArray("3.14159");
        QTest::newRow("float 1e-8") << Variant(1e-8f) << Float << 1e-8 << QByteArray("1e-08");
        QTest::newRow("float 2^24") << Variant(16777216.0f) << Float << 16777216.0 << QByteArray("16777216");
        QTest::newRow("largest float") << Variant(std::numeric_limits<float>::max()) << Float << 3.4028235e38
                                       << QByteArray("3.4028235e+38");
        QTest::newRow("float -0") << Variant(-0.0f) << Float << -0.0 << QByteArray("-0");
        QTest::newRow("float infinity") << Variant(std::numeric_limits<float>::infinity()) << Float << inf
                                        << QByteArray("inf");
        QTest::newRow("float nan") << Variant(std::numeric_limits<float>::quiet_NaN()) << Float << nan
                                   << QByteArray("nan");
        QTest::newRow("double 0.1") << Variant(0.1) << Double << 0.1 << QByteArray("0.1");
        QTest::newRow("double third") << Variant(1.0 / 3) << Double << 1.0 / 3 << QByteArray("0.3333333333333333");
        QTest::newRow("double whole") << Variant(100.0) << Double << 100.0 << QByteArray("100");
        QTest::newRow("double huge") << Variant(1e100) << Double << 1e100 << QByteArray("1e+100");
        QTest::newRow("text number") << Variant("2.5") << String << 2.5 << QByteArray("2.5");
        QTest::newRow("std::string") << Variant(std::string("-3.25")) << String << -3.25 << QByteArray("-3.25");
        QTest::newRow("text with blanks") << Variant(" \t42 \n") << String << 42.0 << QByteArray(" \t42 \n");
        QTest::newRow("text exponent") << Variant("1e3") << String << 1000.0 << QByteArray("1e3");
        QTest::newRow("text plus sign") << Variant("+4") << String << 4.0 << QByteArray("+4");
        QTest::newRow("text two signs") << Variant("+-4") << String << 0.0 << QByteArray("+-4");
        QTest::newRow("text infinity") << Variant("inf") << String << inf << QByteArray("inf");
        QTest::newRow("text decimal comma") << Variant("1,5") << String << 0.0 << QByteArray("1,5");
        QTest::newRow("text trailing junk") << Variant("12abc") << String << 0.0 << QByteArray("12abc");
        QTest::newRow("text hexadecimal") << Variant("0x10") << String << 0.0 << QByteArray("0x10");
        QTest::newRow("text out of range") << Variant("1e999") << String << 0.0 << QByteArray("1e999");
        QTest::newRow("text word") << Variant("abc") << String << 0.0 << QByteArray("abc");
        QTest::newRow("empty text") << Variant("") << String << 0.0 << QByteArray();
        QTest::newRow("null pointer") << Variant(static_cast<const char*>(nullptr)) << String << 0.0 << QByteArray();
    }

    void converts()
    {
        QFETCH(Variant, variant);
        QFETCH(int, type);
        QFETCH(double, number);
        QFETCH(QByteArray, text);
        QCOMPARE(int(variant.type()), type);
        QCOMPARE(variant.isNull(), type == int(Variant::Type::Null));
        QCOMPARE(text17(variant.toDouble()), text17(number));
        QCOMPARE(QByteArray::fromStdString(variant.toString()), text);
    }
};

KES_TEST_MAIN(TestVariant)
#include "tst_variant.moc"
