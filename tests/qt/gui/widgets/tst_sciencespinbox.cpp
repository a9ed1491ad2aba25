#include <kes/qt/gui/widgets/sciencespinbox.h>

#include "kestest.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QLocale>
#include <QRandomGenerator>
#include <QtTest>

#include <cfloat>

using kes::qt::gui::widgets::ScienceSpinBox;

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);

QValidator::State verdict(ScienceSpinBox& box, QString text)
{
    // The process-wide cache answers a repeated text at once, whatever the range: a throw-away
    // text in between makes every row a fresh validation.
    QString other = QStringLiteral("#");
    int pos = 0;
    box.validate(other, pos);
    pos = text.size();
    return box.validate(text, pos);
}

} // namespace

class tst_ScienceSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validate_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("state");
        const int invalid = QValidator::Invalid;
        const int intermediate = QValidator::Intermediate;
        const int acceptable = QValidator::Acceptable;
        const double big = DBL_MAX;
        auto row = [](const char* name, const QLocale& locale, double min, double max,
                      const QString& text, int state) {
            QTest::newRow(name) << locale << min << max << text << state;
        };
        const QLocale& en = english;
        const QLocale& de = german;
        row("en: empty", en, 0, 10, QString(), intermediate);
        row("en: point", en, 0, 10, QStringLiteral("."), intermediate);
        row("en: plus, range reaches positive", en, 0, 10, QStringLiteral("+"), intermediate);
        row("en: plus, range negative", en, -10, -1, QStringLiteral("+"), invalid);
        row("en: minus, range reaches negative", en, -10, 10, QStringLiteral("-"), intermediate);
        row("en: minus, range positive", en, 1, 10, QStringLiteral("-"), invalid);
        row("en: comma", en, -big, big, QStringLiteral(","), invalid);
        row("en: minus point", en, -10, 10, QStringLiteral("-."), intermediate);
        row("en: comma first", en, -big, big, QStringLiteral(",5"), invalid);
        row("en: letter", en, -big, big, QStringLiteral("x"), invalid);
        row("en: inner blank", en, 0, 100, QStringLiteral("1 5"), invalid);
        row("en: inner no-break space", en, 0, 100, QStringLiteral("1\u00a05"), invalid);
        row("en: inner tab", en, 0, 100, QStringLiteral("1\t5"), invalid);
        row("en: blanks around", en, 0, 100, QStringLiteral(" 15 "), acceptable);
        row("en: groups, wide range", en, 0, 1e6, QStringLiteral("1,000"), acceptable);
        row("en: misplaced group, wide range", en, 0, 1e6, QStringLiteral("1,0"), acceptable);
        row("en: misplaced group, narrow range", en, 0, 100, QStringLiteral("1,0"), invalid);
        row("en: two groups in a row", en, 0, 1e6, QStringLiteral("1,,000"), invalid);
        row("en: above the maximum", en, 0, 10, QStringLiteral("11"), invalid);
        row("en: below the minimum", en, 0, 10, QStringLiteral("-1"), invalid);
        row("en: in range", en, 0, 10, QStringLiteral("10"), acceptable);
        row("en: equal bounds", en, 5, 5, QStringLiteral("1"), invalid);
        row("en: grows into range", en, 100, 200, QStringLiteral("3"), intermediate);
        row("en: digit no candidate holds", en, 100, 105, QStringLiteral("7"), invalid);
        row("en: leading zero takes digits", en, 100, 105, QStringLiteral("0"), intermediate);
        row("en: negative grows into range", en, -200, -100, QStringLiteral("-3"), intermediate);
        row("en: minus zero, positive range", en, 100, 200, QStringLiteral("-0"), invalid);
        row("en: point and fraction", en, 10, 20, QStringLiteral("2.5"), intermediate);
        row("en: fraction beyond the maximum", en, 19, 20, QStringLiteral("2.5"), invalid);
        row("en: zero fraction at the maximum", en, 19, 20, QStringLiteral("2.0"), intermediate);
        row("en: sign and point", en, 100, 200, QStringLiteral("+.5"), intermediate);
        row("en: more decimals than the box keeps", en, 100, 200, QStringLiteral("1.") + QString(400, QLatin1Char('5')), invalid);
        row("en: exponent", en, -big, big, QStringLiteral("1.5e-07"), acceptable);
        row("en: exponent upper case", en, -big, big, QStringLiteral("2E+20"), acceptable);
        row("en: exponent below range", en, 100, 200, QStringLiteral("2e1"), intermediate);
        row("en: exponent above range", en, 100, 200, QStringLiteral("2e3"), invalid);
        row("en: exponent overflows", en, -big, big, QStringLiteral("1e400"), invalid);
        row("en: exponent unfinished", en, -big, big, QStringLiteral("1e"), invalid);
        row("en: largest double", en, -big, big, QStringLiteral("1.7976931348623157e308"), acceptable);
        row("en: infinity", en, -big, big, QStringLiteral("inf"), invalid);
        row("en: not a number", en, -big, big, QStringLiteral("nan"), invalid);
        // Seven sevens fit no candidate near 1e12: the search gives up after 500,000 of them
        // when there are more, and says no when it has seen them all.
        row("en: candidate bound reached", en, 1e12, 1e12 + 1e6, QStringLiteral("7777777"), intermediate);
        row("en: all candidates seen", en, 1e12, 1e12 + 1000, QStringLiteral("7777777"), invalid);
        row("en: huge range grows", en, 1e300, big, QStringLiteral("5"), intermediate);
        row("de: comma", de, 0, 10, QStringLiteral(","), intermediate);
        row("de: full stop", de, -big, big, QStringLiteral("."), invalid);
        row("de: minus comma", de, -10, 10, QStringLiteral("-,"), intermediate);
        row("de: decimal comma", de, 0, 10, QStringLiteral("1,5"), acceptable);
        row("de: group, narrow range", de, 0, 10, QStringLiteral("1.5"), invalid);
        row("de: groups, wide range", de, 0, 1e6, QStringLiteral("1.000,5"), acceptable);
        row("de: inner blank", de, 0, 100, QStringLiteral("1 5"), invalid);
        row("de: exponent", de, -big, big, QStringLiteral("1,5e3"), acceptable);
        row("de: fraction beyond the maximum", de, 19, 20, QStringLiteral("2,5"), invalid);
        row("de: above the maximum", de, 0, 10, QStringLiteral("10,5"), invalid);
    }

    void validate()
    {
        QFETCH(QLocale, locale);
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(QString, text);
        QFETCH(int, state);
        ScienceSpinBox box;
        // Set after construction: the box must follow a change of locale.
        box.setLocale(locale);
        box.setRange(min, max);
        QCOMPARE(int(verdict(box, text)), state);
    }

    void valueFromTypedText()
    {
        ScienceSpinBox box;
        box.setLocale(german);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        auto* edit = box.findChild<QLineEdit*>();
        edit->selectAll();
        QTest::keyClicks(&box, QStringLiteral("2,5e-3"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 2.5e-3);
        // A decimal comma typed onto the existing one (cursor behind the first) steps over it.
        QString doubled = QStringLiteral("1,,5");
        int pos = 2;
        QCOMPARE(box.validate(doubled, pos), QValidator::Acceptable);
        QCOMPARE(doubled, QStringLiteral("1,5"));
    }

    void texts_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("fixed");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");
        QTest::newRow("exponent gets a point") << english << 1e20 << false << 12 << QStringLiteral("1.0e+20");
        QTest::newRow("integer gets a point") << english << 12.0 << false << 12 << QStringLiteral("12.0");
        QTest::newRow("no group at 1000") << english << 4567.5 << false << 12 << QStringLiteral("4567.5");
        QTest::newRow("no group, negative") << english << -1234567.0 << false << 12 << QStringLiteral("-1234567.0");
        QTest::newRow("small") << english << 1.5e-7 << false << 12 << QStringLiteral("1.5e-07");
        QTest::newRow("fixed") << english << 0.5 << true << 3 << QStringLiteral("0.500");
        QTest::newRow("fixed, large") << english << 1e20 << true << 1 << QStringLiteral("100000000000000000000.0");
        QTest::newRow("three decimals") << english << 3.14159 << false << 3 << QStringLiteral("3.14");
        QTest::newRow("de: decimal comma") << german << 1.5 << false << 12 << QStringLiteral("1,5");
        QTest::newRow("de: integer") << german << 12.0 << false << 12 << QStringLiteral("12,0");
        QTest::newRow("de: exponent") << german << 1e20 << false << 12 << QStringLiteral("1,0e+20");
        QTest::newRow("de: no group at 1000") << german << 4567.5 << false << 12 << QStringLiteral("4567,5");
    }

    void texts()
    {
        QFETCH(QLocale, locale);
        QFETCH(double, value);
        QFETCH(bool, fixed);
        QFETCH(int, decimals);
        QFETCH(QString, text);
        ScienceSpinBox box;
        box.setValue(value);
        box.setFixedNotation(fixed);
        box.setDisplayDecimals(decimals);
        box.setLocale(locale);
        // The shown text follows every setter, and reads back as the value.
        QCOMPARE(box.findChild<QLineEdit*>()->text(), text);
        QCOMPARE(box.valueFromText(text), box.round(value));
    }

    void stepping_data()
    {
        QTest::addColumn<bool>("decades");
        QTest::addColumn<int>("key");
        QTest::addColumn<double>("expected");
        QTest::newRow("decade up") << true << int(Qt::Key_Up) << 5.0;
        QTest::newRow("decade down") << true << int(Qt::Key_Down) << 0.05;
        QTest::newRow("page up, still one decade") << true << int(Qt::Key_PageUp) << 5.0;
        QTest::newRow("page down, still one decade") << true << int(Qt::Key_PageDown) << 0.05;
        QTest::newRow("single step up") << false << int(Qt::Key_Up) << 1.5;
        QTest::newRow("page up, still one step") << false << int(Qt::Key_PageUp) << 1.5;
    }

    void stepping()
    {
        QFETCH(bool, decades);
        QFETCH(int, key);
        QFETCH(double, expected);
        ScienceSpinBox box;
        box.setDecadeStepping(decades);
        box.setValue(0.5);
        QTest::keyClick(&box, Qt::Key(key));
        QCOMPARE(box.value(), expected);
    }

    void hostileTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QRandomGenerator random(13);
        QString noise;
        for (int i = 0; i < 100000; ++i)
            noise += QChar(ushort(random.bounded(1, 0xffff)));
        QString digitsAndSeparators;
        const QString alphabet = QStringLiteral("0123456789.,+-e ");
        for (int i = 0; i < 100000; ++i)
            digitsAndSeparators += alphabet.at(random.bounded(alphabet.size()));
        QTest::newRow("100,000 digits") << QString(100000, QLatin1Char('7')) << -DBL_MAX << DBL_MAX;
        QTest::newRow("100,000 digits, narrow") << QString(100000, QLatin1Char('7')) << 1e12 << 1e12 + 1e6;
        QTest::newRow("zeros then a digit, narrow")
            << QString(100000, QLatin1Char('0')) + QLatin1Char('7') << 1e300 << DBL_MAX;
        QTest::newRow("long fraction, narrow")
            << QStringLiteral("0.") + QString(100000, QLatin1Char('3')) << 1e12 << 1e12 + 1e6;
        QTest::newRow("random characters") << noise << -DBL_MAX << DBL_MAX;
        QTest::newRow("random number characters") << digitsAndSeparators << 1.0 << 1e300;
        QTest::newRow("lone surrogates") << QString(1000, QChar(0xd800)) << -DBL_MAX << DBL_MAX;
    }

    void hostileTexts()
    {
        QFETCH(QString, text);
        QFETCH(double, min);
        QFETCH(double, max);
        ScienceSpinBox box;
        box.setLocale(english);
        box.setRange(min, max);
        QElapsedTimer clock;
        clock.start();
        const QValidator::State state = verdict(box, text);
        QVERIFY(state == QValidator::Invalid || state == QValidator::Intermediate);
        // Generous for a loaded machine under the sanitizers: a freeze takes far longer.
        QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
    }

    // Blanks around the number are ignored; the cursor the editor hands in stays inside its text.
    void keepsTheCursorInTheText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("cursor");
        QTest::newRow("a blank, cursor before it") << QStringLiteral(" ") << 0;
        QTest::newRow("blanks around, cursor in the leading ones") << QStringLiteral("   12 ") << 1;
        QTest::newRow("blanks around, cursor at the end") << QStringLiteral("   12 ") << 6;
    }

    void keepsTheCursorInTheText()
    {
        QFETCH(QString, text);
        QFETCH(int, cursor);
        ScienceSpinBox box;
        box.setLocale(english);
        box.setRange(-100.0, 100.0);
        QString edited = text;
        int pos = cursor;
        box.validate(edited, pos);
        QVERIFY2(pos >= 0 && pos <= edited.size(), qPrintable(QString::number(pos)));
    }

    void helperBound()
    {
        qint64 match = 0;
        QVERIFY(ScienceSpinBox::isIntermediateValueHelper(3, 100, 200, &match));
        QCOMPARE(match, qint64(193));
        QVERIFY(ScienceSpinBox::isIntermediateValueHelper(12, -150, -100, &match));
        QCOMPARE(match, qint64(-102));
        QVERIFY(!ScienceSpinBox::isIntermediateValueHelper(7, 100, 105, &match));
        // 1,000,000 candidates below the largest qint64 hold no 7777777: the search gives up.
        QVERIFY(ScienceSpinBox::isIntermediateValueHelper(7777777, LLONG_MAX - 1000000, LLONG_MAX, &match));
        QCOMPARE(match, qint64(7777777));
        QVERIFY(ScienceSpinBox::isIntermediateValueHelper(808, LLONG_MIN, LLONG_MIN + 10, &match));
        QCOMPARE(match, LLONG_MIN);
    }
};

KES_TEST_MAIN(tst_ScienceSpinBox)
#include "tst_sciencespinbox.moc"
