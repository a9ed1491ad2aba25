#include <kes/qt/gui/widgets/hexspinbox.h>

#include "kestest.h"

#include <QLineEdit>
#include <QtTest>

using kes::qt::gui::widgets::HexSpinBox;

class tst_HexSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("upper");
        QTest::addColumn<QString>("text");
        QTest::newRow("byte") << 10 << 2 << false << QStringLiteral("0a");
        QTest::newRow("upper case") << 10 << 2 << true << QStringLiteral("0A");
        QTest::newRow("four digits") << 10 << 4 << false << QStringLiteral("000a");
        QTest::newRow("wider than the width") << 0xbeef << 2 << true << QStringLiteral("BEEF");
        QTest::newRow("zero") << 0 << 2 << false << QStringLiteral("00");
    }

    void texts()
    {
        QFETCH(int, value);
        QFETCH(int, width);
        QFETCH(bool, upper);
        QFETCH(QString, text);
        HexSpinBox box;
        box.setRange(0, 0xffff);
        box.setValue(value);
        box.setTextWidth(width);
        box.setUpperCase(upper);
        QCOMPARE(box.findChild<QLineEdit*>()->text(), text);
        QCOMPARE(box.property("textWidth").toInt(), width);
    }

    void verdicts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("value");
        const int current = 0x42;
        QTest::newRow("mixed case") << QStringLiteral("fF") << int(QValidator::Acceptable) << 255;
        QTest::newRow("not hex") << QStringLiteral("G1") << int(QValidator::Invalid) << current;
        QTest::newRow("empty") << QString() << int(QValidator::Intermediate) << current;
        QTest::newRow("eight digits beyond int") << QStringLiteral("FFFFFFFF") << int(QValidator::Acceptable) << 0;
        QTest::newRow("eight digits within int") << QStringLiteral("7fffffff") << int(QValidator::Acceptable) << 0x7fffffff;
        QTest::newRow("nine digits") << QStringLiteral("000000001") << int(QValidator::Invalid) << current;
        QTest::newRow("prefix dropped") << QStringLiteral("0x1f") << int(QValidator::Acceptable) << 0x1f;
    }

    void verdicts()
    {
        QFETCH(QString, text);
        QFETCH(int, state);
        QFETCH(int, value);
        HexSpinBox box;
        box.setValue(0x42);
        box.setPrefix(QStringLiteral("0x"));
        QString input = text;
        int pos = input.size();
        QValidator::State verdict = QValidator::Invalid;
        QCOMPARE(box.interpretText(input, pos, verdict), value);
        QCOMPARE(int(verdict), state);
        QCOMPARE(int(box.validate(input, pos)), state);
    }

    void typing()
    {
        HexSpinBox box;
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        box.findChild<QLineEdit*>()->selectAll();
        QTest::keyClicks(&box, QStringLiteral("c8g"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 200);
        QCOMPARE(box.findChild<QLineEdit*>()->text(), QStringLiteral("c8"));
        // The range is the base's: typing beyond it cannot leave it.
        box.findChild<QLineEdit*>()->selectAll();
        QTest::keyClicks(&box, QStringLiteral("1ff"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 255);
    }
};

KES_TEST_MAIN(tst_HexSpinBox)
#include "tst_hexspinbox.moc"
