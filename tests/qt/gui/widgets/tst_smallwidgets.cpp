#include <kes/qt/gui/widgets/checkbox.h>
#include <kes/qt/gui/widgets/hyperlabel.h>
#include <kes/qt/gui/widgets/lineeditwithhelp.h>
#include <kes/qt/gui/widgets/progress.h>
#include <kes/qt/gui/widgets/scaledlabel.h>
#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <cerrno>

#include <sys/wait.h>

using namespace kes::qt::gui::widgets;
using kes::qt::translation::Manager;

namespace {

// The frame a progress indicator shows, by comparing its picture with the resources'.
int shownFrame(const Progress& progress)
{
    const QImage shown = progress.findChild<QLabel*>(QStringLiteral("icon"))->pixmap(Qt::ReturnByValue).toImage();
    for (int i = 0; i < 12; ++i) {
        if (QImage(QStringLiteral(":/kes_qt/icons/progress%1.png").arg(i)).convertToFormat(shown.format()) == shown)
            return i;
    }
    return -1;
}

QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool fits(const ScaledLabel& label, int pixelSize)
{
    QFont font = label.font();
    font.setPixelSize(pixelSize);
    const QSize needed = QFontMetrics(font).size(Qt::TextSingleLine, label.text());
    return needed.width() <= label.contentsRect().width() && needed.height() <= label.contentsRect().height();
}

} // namespace

class tst_SmallWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(Manager::singleton().load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
        Manager::singleton().setLanguage(QStringLiteral("en"));
    }

    void cleanup() { Manager::singleton().setLanguage(QStringLiteral("en")); }

    void progressTurnsWhileShown()
    {
        Progress progress(nullptr, false, QStringLiteral("Calibrating"));
        QCOMPARE(progress.findChild<QLabel*>(QStringLiteral("title"))->text(), QStringLiteral("Calibrating"));
        QVERIFY(!progress.findChild<QPushButton*>());
        auto* timer = progress.findChild<QTimer*>(QStringLiteral("timer"));
        QCOMPARE(shownFrame(progress), 0);
        QVERIFY(!timer->isActive());

        progress.show();
        QVERIFY(timer->isActive());
        QTRY_COMPARE(shownFrame(progress), 2);
        progress.hide();
        QVERIFY(!timer->isActive());
        // A whole turn of frames by hand, then on from where it stood.
        for (int i = 0; i < 12; ++i)
            progress.on_timer_timeout();
        QCOMPARE(shownFrame(progress), 2);
        progress.show();
        QTRY_COMPARE(shownFrame(progress), 3);
        progress.setTitle(QStringLiteral("Homing"));
        QCOMPARE(progress.findChild<QLabel*>(QStringLiteral("title"))->text(), QStringLiteral("Homing"));
    }

    void progressCancel()
    {
        Progress progress(nullptr, true, QStringLiteral("Scanning"));
        QSignalSpy cancelled(&progress, SIGNAL(cancel()));
        progress.show();
        auto* button = progress.findChild<QPushButton*>(QStringLiteral("cancel"));
        QCOMPARE(button->text(), QStringLiteral("Cancel"));
        QCOMPARE(button->width(), 80);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(cancelled.count(), 1);
        QVERIFY(!progress.findChild<QTimer*>(QStringLiteral("timer"))->isActive());

        Manager::singleton().setLanguage(QStringLiteral("de"));
        QCOMPARE(button->text(), QStringLiteral("Abbrechen"));
    }

    void hyperLabelText()
    {
        HyperLabel label;
        label.setText(QStringLiteral("Manual"));
        QCOMPARE(label.text(), QStringLiteral("Manual"));
        label.setLink(QStringLiteral("https://example.com/manual.html"));
        QCOMPARE(label.text(), QStringLiteral("<a href=\"https://example.com/manual.html\">Manual</a>"));
        // Also by name, as a connection to the slot would call it.
        QVERIFY(QMetaObject::invokeMethod(&label, "setText", Q_ARG(QString, QStringLiteral("Handbook"))));
        QCOMPARE(label.text(), QStringLiteral("<a href=\"https://example.com/manual.html\">Handbook</a>"));
        label.setLink(QString());
        QCOMPARE(label.text(), QStringLiteral("Handbook"));
        QCOMPARE(label.focusPolicy(), Qt::NoFocus);
        QCOMPARE(label.cursor().shape(), Qt::PointingHandCursor);
    }

    // The browser is a script on a temporary PATH that appends its argument to a file.
    void hyperLabelStartsTheBrowser()
    {
        QTemporaryDir bin;
        QVERIFY(bin.isValid());
        const QString out = bin.filePath(QStringLiteral("opened.txt"));
        QFile script(bin.filePath(QStringLiteral("kes-test-browser")));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s\\n' \"$1\" >> '" + QFile::encodeName(out) + "'\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(bin.path()) + ':' + path);
        HyperLabel::setWebBrowser(QStringLiteral("kes-test-browser"));

        HyperLabel linked;
        linked.setText(QStringLiteral("Release notes"));
        linked.setLink(QStringLiteral("https://example.com/notes?v=2&lang=en"));
        HyperLabel unlinked;
        unlinked.setText(QStringLiteral("No link"));
        linked.show();
        unlinked.show();

        QTest::mouseClick(&linked, Qt::RightButton);
        QTest::mouseClick(&unlinked, Qt::LeftButton);
        QTest::mouseClick(&linked, Qt::LeftButton);
        QTRY_COMPARE(linesOf(out), QStringList{QStringLiteral("https://example.com/notes?v=2&lang=en")});
        // Anything the first two clicks started would have written by the time a second browser has.
        HyperLabel::openWebPage(QStringLiteral("https://example.com/second"), nullptr);
        QTRY_COMPARE(linesOf(out).size(), 2);
        QCOMPARE(linesOf(out).last(), QStringLiteral("https://example.com/second"));
        // No child is left to reap.
        QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
        QCOMPARE(errno, ECHILD);

        HyperLabel::setWebBrowser(QString());
        qputenv("PATH", path);
    }

    void scaledLabelFits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSize>("size");
        QTest::newRow("long text, small label") << QStringLiteral("Spindle speed 12000 rpm") << QSize(120, 40);
        QTest::newRow("short text, large label") << QStringLiteral("OK") << QSize(300, 100);
        QTest::newRow("low label") << QStringLiteral("Temperature") << QSize(400, 14);
        QTest::newRow("tiny label") << QStringLiteral("Pressure 4.2 bar") << QSize(8, 8);
    }

    void scaledLabelFits()
    {
        QFETCH(QString, text);
        QFETCH(QSize, size);
        ScaledLabel label(text);
        QCOMPARE(label.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QVERIFY(label.hasScaledContents());
        label.resize(size);
        label.show();
        const int pixelSize = label.font().pixelSize();
        QVERIFY(pixelSize >= 1 && pixelSize <= 32);
        QVERIFY(pixelSize == 1 || fits(label, pixelSize));
        QVERIFY(pixelSize == 32 || !fits(label, pixelSize + 1));

        // Growing brings it back up to 32, and no further.
        label.resize(2000, 200);
        QTRY_COMPARE(label.font().pixelSize(), 32);
        QVERIFY(label.minimumSizeHint().width() < size.width() || size.width() < 20);
    }

    void readOnlyCheckBox_data()
    {
        QTest::addColumn<bool>("readOnly");
        QTest::newRow("editable") << false;
        QTest::newRow("read-only") << true;
    }

    void readOnlyCheckBox()
    {
        QFETCH(bool, readOnly);
        QWidget window;
        auto* box = new CheckBox(QStringLiteral("&Ready"), &window);
        box->resize(box->sizeHint());
        box->setReadOnly(readOnly);
        QCOMPARE(box->isReadOnly(), readOnly);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        box->setFocus();
        QSignalSpy clicked(box, SIGNAL(clicked(bool)));

        bool expected = false;
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2)); // the box
        expected = !readOnly;
        QCOMPARE(box->isChecked(), expected);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 4, box->height() / 2)); // the text
        expected = false;
        QCOMPARE(box->isChecked(), expected);
        QTest::keyClick(box, Qt::Key_Space);
        expected = !readOnly;
        QCOMPARE(box->isChecked(), expected);
        QTest::keyClick(&window, Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(clicked.count(), readOnly ? 0 : 4);
        QCOMPARE(box->isChecked(), false);

        box->setChecked(true);
        QVERIFY(box->isChecked());
    }

    void helpInContextMenu()
    {
        QAction help(QStringLiteral("Help on exposure"));
        QSignalSpy triggered(&help, SIGNAL(triggered()));
        LineEditWithHelp edit(&help);
        QCOMPARE(edit.parent(), nullptr);
        edit.show();
        QStringList entries;
        QTimer::singleShot(0, this, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            const QList<QAction*> actions = menu->actions();
            for (const QAction* action : actions)
                entries << (action->isSeparator() ? QStringLiteral("-") : action->text());
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(actions.last()).center());
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), edit.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&edit, &event);
        QVERIFY(entries.size() > 3);
        QVERIFY(entries.first().startsWith(QStringLiteral("&Undo")));
        QCOMPARE(entries.mid(entries.size() - 2), (QStringList{QStringLiteral("-"), QStringLiteral("Help on exposure")}));
        QCOMPARE(triggered.count(), 1);
        QVERIFY(!QApplication::activePopupWidget());

        // Without a help action the menu is Qt's own.
        edit.setHelpAction(nullptr);
        QTimer::singleShot(0, this, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            QVERIFY(!menu->actions().last()->isSeparator());
            QVERIFY(!menu->actions().contains(&help));
            menu->close();
        });
        QApplication::sendEvent(&edit, &event);
        QVERIFY(!QApplication::activePopupWidget());
    }
};

KES_TEST_MAIN(tst_SmallWidgets)
#include "tst_smallwidgets.moc"
