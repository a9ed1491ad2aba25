#include <kes/qt/gui/widgets/combobox.h>
#include <kes/qt/gui/widgets/doublespinbox.h>
#include <kes/qt/gui/widgets/spinbox.h>

#include "kestest.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QVBoxLayout>
#include <QtTest>

#include <climits>
#include <memory>

using kes::qt::gui::widgets::ComboBox;
using kes::qt::gui::widgets::DoubleSpinBox;
using kes::qt::gui::widgets::SpinBox;
using kes::qt::gui::widgets::Widget;

// Writes down every signal of a widget in arrival order, and whether each carried the expected
// user data.
class Recorder : public QObject
{
    Q_OBJECT

public:
    Recorder(QObject* widget, void* userData)
        : m_userData(userData)
    {
        const char* const signalsWithData[][2] = {
            {SIGNAL(valueChanged(int, void*)), SLOT(onInt(int, void*))},
            {SIGNAL(valueChanged(double, void*)), SLOT(onDouble(double, void*))},
            {SIGNAL(editingFinished(void*)), SLOT(onFinished(void*))},
            {SIGNAL(lostFocus()), SLOT(onLostFocus())},
            {SIGNAL(activated(const QString&, void*)), SLOT(onActivated(const QString&, void*))},
            {SIGNAL(editTextChanged(const QString&, void*)), SLOT(onEditText(const QString&, void*))},
            {SIGNAL(currentIndexChanged(int, void*)), SLOT(onIndex(int, void*))},
            // Checked for their user data only.
            {SIGNAL(valueChanged(const QString&, void*)), SLOT(onOther(const QString&, void*))},
            {SIGNAL(activated(int, void*)), SLOT(onOther(int, void*))},
            {SIGNAL(currentIndexChanged(const QString&, void*)), SLOT(onOther(const QString&, void*))},
        };
        for (const auto& pair : signalsWithData) {
            if (widget->metaObject()->indexOfSignal(QMetaObject::normalizedSignature(pair[0] + 1)) >= 0)
                connect(widget, pair[0], this, pair[1]);
        }
    }

    QStringList events;
    bool userDataRight = true;
    int others = 0;

public Q_SLOTS:
    void onInt(int value, void* data) { note(QStringLiteral("value %1").arg(value), data); }
    void onDouble(double value, void* data) { note(QStringLiteral("value %1").arg(value), data); }
    void onFinished(void* data) { note(QStringLiteral("finished"), data); }
    void onLostFocus() { events << QStringLiteral("lostFocus"); }
    void onActivated(const QString& text, void* data) { note(QStringLiteral("activated ") + text, data); }
    void onEditText(const QString& text, void* data) { note(QStringLiteral("edit ") + text, data); }
    void onIndex(int index, void* data) { note(QStringLiteral("index %1").arg(index), data); }
    void onOther(const QString&, void* data) { other(data); }
    void onOther(int, void* data) { other(data); }

private:
    void other(void* data)
    {
        ++others;
        userDataRight = userDataRight && data == m_userData;
    }

    void note(const QString& event, void* data)
    {
        events << event;
        userDataRight = userDataRight && data == m_userData;
    }

    void* m_userData;
};

namespace {

int userDataTarget = 0;

QColor base(QWidget* widget)
{
    return widget->palette().color(QPalette::Active, QPalette::Base);
}

// A window with the widget under test and a second field that takes the focus away.
struct Form
{
    explicit Form(QWidget* field)
        : field(field)
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(other);
        window.show();
    }

    bool ready()
    {
        if (!QTest::qWaitForWindowActive(&window))
            return false;
        field->setFocus();
        return field->hasFocus();
    }

    QWidget window;
    QWidget* field;
    QLineEdit* other = new QLineEdit;
};

std::unique_ptr<QAbstractSpinBox> makeSpinBox(const QString& kind, void* userData)
{
    if (kind == QLatin1String("SpinBox")) {
        auto box = std::make_unique<SpinBox>(userData);
        box->setRange(0, 100);
        box->setValue(5);
        return box;
    }
    auto box = std::make_unique<DoubleSpinBox>(userData);
    box->setRange(0, 100);
    box->setValue(5.0);
    return box;
}

Widget* styled(QAbstractSpinBox* box)
{
    return dynamic_cast<Widget*>(box);
}

} // namespace

class tst_EditTracking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void spinBoxEditing_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("typed");
        // Qt::Key_Return, Qt::Key_Escape, or 0 for moving the focus away.
        QTest::addColumn<int>("key");
        QTest::addColumn<QStringList>("events");
        QTest::addColumn<QString>("shown");
        for (const QString& kind : {QStringLiteral("SpinBox"), QStringLiteral("DoubleSpinBox")}) {
            const bool isInt = kind == QLatin1String("SpinBox");
            const QString five = isInt ? QStringLiteral("5") : QStringLiteral("5.00");
            const QString seven = isInt ? QStringLiteral("7") : QStringLiteral("7.00");
            auto row = [&](const char* name) { return &QTest::newRow(qPrintable(kind + QLatin1String(": ") + QLatin1String(name))); };
            *row("Return on a new number") << kind << QStringLiteral("7") << int(Qt::Key_Return)
                                           << QStringList{QStringLiteral("value 7"), QStringLiteral("finished")} << seven;
            *row("Return on the same number") << kind << five << int(Qt::Key_Return) << QStringList() << five;
            *row("Escape after typing") << kind << QStringLiteral("42") << int(Qt::Key_Escape) << QStringList() << five;
            *row("focus out on a new number")
                << kind << QStringLiteral("7") << 0
                << QStringList{QStringLiteral("value 7"), QStringLiteral("finished"), QStringLiteral("lostFocus")} << seven;
            *row("focus out on the same number") << kind << five << 0 << QStringList{QStringLiteral("lostFocus")} << five;
            *row("focus out on an empty text") << kind << QString() << 0
                                               << QStringList{QStringLiteral("finished"), QStringLiteral("lostFocus")} << five;
        }
    }

    void spinBoxEditing()
    {
        QFETCH(QString, kind);
        QFETCH(QString, typed);
        QFETCH(int, key);
        QFETCH(QStringList, events);
        QFETCH(QString, shown);
        auto owned = makeSpinBox(kind, &userDataTarget);
        QAbstractSpinBox* box = owned.get();
        Form form(owned.release());
        QVERIFY(form.ready());
        Recorder recorder(box, &userDataTarget);
        const QColor normal = base(box);

        auto* edit = box->findChild<QLineEdit*>();
        edit->selectAll();
        QTest::keyClick(box, Qt::Key_Backspace);
        QTest::keyClicks(box, typed);
        QCOMPARE(base(box), Widget::editingColor());
        QCOMPARE(styled(box)->displayStyle(), Widget::Editing);
        if (key)
            QTest::keyClick(box, Qt::Key(key));
        else
            form.other->setFocus();

        QCOMPARE(recorder.events, events);
        QVERIFY(recorder.userDataRight);
        // valueChanged(const QString&, void*) comes with every valueChanged(number, void*).
        QCOMPARE(recorder.others, int(events.filter(QStringLiteral("value")).size()));
        QCOMPARE(base(box), normal);
        QCOMPARE(edit->text(), shown);
    }

    void spinBoxStepping_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("SpinBox") << QStringLiteral("SpinBox");
        QTest::newRow("DoubleSpinBox") << QStringLiteral("DoubleSpinBox");
    }

    void spinBoxStepping()
    {
        QFETCH(QString, kind);
        auto owned = makeSpinBox(kind, &userDataTarget);
        QAbstractSpinBox* box = owned.get();
        Form form(owned.release());
        QVERIFY(form.ready());
        Recorder recorder(box, &userDataTarget);

        QStyleOptionSpinBox option;
        option.initFrom(box);
        option.rect = box->rect();
        option.subControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxFrame;
        option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
        const QRect up = box->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, box);
        QTest::mouseClick(box, Qt::LeftButton, {}, up.center());
        QCOMPARE(recorder.events, (QStringList{QStringLiteral("value 6"), QStringLiteral("finished")}));
        QVERIFY(recorder.userDataRight);

        // Set by the program without signals: nothing arrives, and Escape keeps the new value.
        recorder.events.clear();
        if (auto* spin = qobject_cast<SpinBox*>(box))
            spin->directSetValue(9);
        else
            static_cast<DoubleSpinBox*>(box)->directSetValue(9.0);
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(recorder.events, QStringList());
        QCOMPARE(box->text(), kind == QLatin1String("SpinBox") ? QStringLiteral("9") : QStringLiteral("9.00"));
    }

    void trackingOff()
    {
        auto* box = new SpinBox;
        Form form(box);
        QVERIFY(form.ready());
        box->setDisplayStyleTracking(false);
        const QColor normal = base(box);
        QTest::keyClicks(box, QStringLiteral("3"));
        QCOMPARE(base(box), normal);
        QCOMPARE(box->displayStyle(), Widget::Normal);
        // The application's own colour stays.
        box->setDisplayStyle(Widget::Highlighted);
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(base(box), Widget::highlightedColor());
    }

    void bounds()
    {
        SpinBox box;
        box.setMinimum(-1e20);
        box.setMaximum(1e20);
        QCOMPARE(box.minimum(), INT_MIN);
        QCOMPARE(box.maximum(), INT_MAX);
        box.setMinimum(-2.7);
        box.setMaximum(3.9);
        QCOMPARE(box.minimum(), -2);
        QCOMPARE(box.maximum(), 3);

        DoubleSpinBox doubleBox;
        doubleBox.setDecimals(12);
        doubleBox.useMaximumRange();
        doubleBox.setValue(0.1f);
        QCOMPARE(doubleBox.value(), 0.1);
        QCOMPARE(doubleBox.committedValue(), 0.1);
    }

    void comboBox()
    {
        ComboBox* combo = new ComboBox(&userDataTarget);
        combo->setEditable(true);
        combo->addItems({QStringLiteral("Free run"), QStringLiteral("Hardware trigger")});
        combo->setEditText(QStringLiteral("Free run"));
        Form form(combo);
        QVERIFY(form.ready());
        const QColor normal = base(combo);
        QCOMPARE(combo->displayStyle(), Widget::Normal);
        Recorder recorder(combo, &userDataTarget);

        combo->lineEdit()->selectAll();
        QTest::keyClicks(combo, QStringLiteral("Soft"));
        QCOMPARE(base(combo), Widget::editingColor());
        QTest::keyClick(combo, Qt::Key_Escape);
        QCOMPARE(combo->currentText(), QStringLiteral("Free run"));
        QCOMPARE(base(combo), normal);

        recorder.events.clear();
        combo->lineEdit()->selectAll();
        QTest::keyClicks(combo, QStringLiteral("Hardware trigger"));
        QTest::keyClick(combo, Qt::Key_Return);
        QVERIFY(recorder.events.contains(QStringLiteral("activated Hardware trigger")));
        QVERIFY(recorder.events.contains(QStringLiteral("index 1")));
        QVERIFY(recorder.events.contains(QStringLiteral("edit Hardware trigger")));
        // activated(int, void*) and currentIndexChanged(const QString&, void*).
        QCOMPARE(recorder.others, 2);
        QVERIFY(recorder.userDataRight);
        QCOMPARE(combo->committedText(), QStringLiteral("Hardware trigger"));
        QCOMPARE(base(combo), normal);

        // Programmatic text is not the user's typing.
        combo->setEditText(QStringLiteral("Software trigger"));
        QCOMPARE(combo->displayStyle(), Widget::Normal);
        QTest::keyClick(combo, Qt::Key_Escape);
        QCOMPARE(combo->currentText(), QStringLiteral("Software trigger"));

        // The default constructor's user data is null.
        ComboBox plain;
        Recorder nullRecorder(&plain, nullptr);
        plain.addItem(QStringLiteral("one"));
        QCOMPARE(nullRecorder.events, QStringList{QStringLiteral("index 0")});
        QVERIFY(nullRecorder.userDataRight);
    }
};

KES_TEST_MAIN(tst_EditTracking)
#include "tst_edittracking.moc"
