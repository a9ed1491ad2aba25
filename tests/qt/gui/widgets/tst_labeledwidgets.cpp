#include <kes/qt/gui/widgets/labeledcombobox.h>
#include <kes/qt/gui/widgets/labeleddoublespinbox.h>
#include <kes/qt/gui/widgets/labeledhexspinbox.h>
#include <kes/qt/gui/widgets/labeledhexspinboximpl.h>
#include <kes/qt/gui/widgets/labeledlineedit.h>
#include <kes/qt/gui/widgets/labeledspinbox.h>
#include <kes/qt/gui/widgets/labeledspinboximpl.h>

#include "kestest.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <functional>
#include <memory>

using namespace kes::qt::gui::widgets;

Q_DECLARE_METATYPE(std::function<kes::qt::gui::widgets::AbstractLabeledWidget*()>)

namespace {

using Factory = std::function<AbstractLabeledWidget*()>;

} // namespace

class tst_LabeledWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    // What every member of the family shares: label text, separator, layout and enabled state.
    void common_data()
    {
        QTest::addColumn<Factory>("make");
        QTest::newRow("LabeledSpinBox") << Factory([] { return new LabeledSpinBox(QStringLiteral("Speed")); });
        QTest::newRow("LabeledDoubleSpinBox") << Factory([] { return new LabeledDoubleSpinBox(QStringLiteral("Speed")); });
        QTest::newRow("LabeledHexSpinBox") << Factory([] { return new LabeledHexSpinBox(QStringLiteral("Speed")); });
        QTest::newRow("LabeledComboBox") << Factory([] { return new LabeledComboBox(QStringLiteral("Speed")); });
        QTest::newRow("LabeledLineEdit") << Factory([] { return new LabeledLineEdit(QStringLiteral("Speed")); });
    }

    void common()
    {
        QFETCH(Factory, make);
        std::unique_ptr<AbstractLabeledWidget> labeled(make());
        QLabel* label = labeled->label();
        QCOMPARE(label->text(), QStringLiteral("Speed:"));
        labeled->setSeparator(QString());
        QCOMPARE(label->text(), QStringLiteral("Speed"));
        labeled->setSeparator(QStringLiteral(" ="));
        labeled->setLabelText(QStringLiteral("Gain"));
        QCOMPARE(label->text(), QStringLiteral("Gain ="));

        auto* layout = qobject_cast<QHBoxLayout*>(labeled->layout());
        QVERIFY(layout);
        QCOMPARE(layout->indexOf(label), 0);
        QCOMPARE(layout->indexOf(labeled->widget()), 1);
        QCOMPARE(layout->stretch(1), 1);
        QCOMPARE(labeled->widget()->parentWidget(), labeled.get());

        labeled->setEnabled(false);
        QVERIFY(!label->isEnabled());
        QVERIFY(!labeled->widget()->isEnabled());
        labeled->setDisabled(false);
        QVERIFY(label->isEnabled());
        QVERIFY(labeled->widget()->isEnabled());

        std::unique_ptr<AbstractLabeledWidget> empty(make());
        empty->setLabelText(QString());
        QCOMPARE(empty->label()->text(), QStringLiteral(":"));
    }

    void reemittedSignals()
    {
        LabeledLineEdit line(QStringLiteral("Name"));
        QSignalSpy edited(&line, SIGNAL(textEdited(const QString&)));
        QSignalSpy changed(&line, SIGNAL(textChanged(const QString&)));
        QSignalSpy returned(&line, SIGNAL(returnPressed()));
        QTest::keyClicks(line.lineEdit(), QStringLiteral("cam1"));
        QTest::keyClick(line.lineEdit(), Qt::Key_Return);
        QCOMPARE(edited.count(), 4);
        QCOMPARE(edited.last().at(0).toString(), QStringLiteral("cam1"));
        QCOMPARE(changed.last().at(0).toString(), QStringLiteral("cam1"));
        QCOMPARE(returned.count(), 1);

        LabeledSpinBox spin(QStringLiteral("Count"));
        QSignalSpy spinValue(&spin, SIGNAL(valueChanged(int)));
        QSignalSpy spinText(&spin, SIGNAL(valueChanged(const QString&)));
        QTest::keyClick(spin.spinBox(), Qt::Key_Up);
        QCOMPARE(spinValue.count(), 1);
        QCOMPARE(spinValue.last().at(0).toInt(), 1);
        QCOMPARE(spinText.last().at(0).toString(), QStringLiteral("1"));

        LabeledHexSpinBox hex(QStringLiteral("Register"));
        QSignalSpy hexText(&hex, SIGNAL(valueChanged(const QString&)));
        hex.hexSpinBox()->setValue(0x1f);
        QCOMPARE(hexText.last().at(0).toString(), QStringLiteral("1f"));
        // The field's line edit can be replaced from outside.
        auto* edit = new QLineEdit;
        hex.setLineEdit(edit);
        QCOMPARE(edit->parentWidget(), hex.hexSpinBox());

        LabeledDoubleSpinBox number(QStringLiteral("Gain"));
        QSignalSpy finished(&number, SIGNAL(editingFinished()));
        QSignalSpy doubleValue(&number, SIGNAL(valueChanged(double)));
        number.doubleSpinBox()->setValue(2.5);
        QCOMPARE(doubleValue.last().at(0).toDouble(), 2.5);
        QTest::keyClick(number.doubleSpinBox(), Qt::Key_Return);
        QCOMPARE(finished.count(), 1);

        LabeledComboBox combo(QStringLiteral("Mode"));
        QSignalSpy index(&combo, SIGNAL(currentIndexChanged(int)));
        QSignalSpy indexText(&combo, SIGNAL(currentIndexChanged(const QString&)));
        QSignalSpy activated(&combo, SIGNAL(activated(int)));
        combo.comboBox()->addItems({QStringLiteral("Free run"), QStringLiteral("Triggered")});
        QTest::keyClick(combo.comboBox(), Qt::Key_Down);
        QCOMPARE(index.last().at(0).toInt(), 1);
        QCOMPARE(indexText.last().at(0).toString(), QStringLiteral("Triggered"));
        QCOMPARE(activated.last().at(0).toInt(), 1);
    }
};

KES_TEST_MAIN(tst_LabeledWidgets)
#include "tst_labeledwidgets.moc"
