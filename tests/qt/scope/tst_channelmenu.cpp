// The scope's channel menus, its right-click menu and its two clipboard exports.
#include <kes/qt/scope/channelmenu.h>

#include <kes/qt/scope/view.h>
#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QClipboard>
#include <QColorDialog>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QTimer>
#include <QtTest>

#include <functional>

using kes::qt::scope::ChannelMenu;
using kes::qt::scope::Trigger_t;
using kes::qt::scope::TriggerOff;
using kes::qt::scope::TriggerRisingEdge;
using kes::qt::scope::View;

using Curves = QVector<QVector<QPointF>>;
Q_DECLARE_METATYPE(Curves)

namespace {

QStringList texts(const QMenu* menu)
{
    QStringList result;
    for (const QAction* action : menu->actions())
        result << action->text();
    return result;
}

QStringList checked(const QMenu* menu)
{
    QStringList result;
    for (const QAction* action : menu->actions()) {
        if (action->menu())
            result << checked(action->menu());
        else if (action->isChecked())
            result << action->text();
    }
    return result;
}

// The entry reached through the texts of \a path, submenus first; null if there is none.
QAction* entry(const QMenu* menu, const QStringList& path)
{
    for (QAction* action : menu->actions()) {
        if (action->text() != path.first())
            continue;
        if (path.size() == 1)
            return action;
        return action->menu() ? entry(action->menu(), path.mid(1)) : nullptr;
    }
    return nullptr;
}

QMenu* submenu(const QMenu* menu, const QString& title)
{
    QAction* action = entry(menu, {title});
    return action ? action->menu() : nullptr;
}

QStringList series(const QString& format, double factor)
{
    QStringList result;
    for (int value : {1, 2, 5, 10, 20, 50, 100, 200, 500, 1000, 2000, 5000, 10000})
        result << format.arg(value * factor, 0, 'g', -1);
    return result;
}

// Runs \a inspect on the context menu that a right click on \a view opens, then closes it.
void rightClick(View& view, const std::function<void(QMenu*)>& inspect)
{
    bool seen = false;
    QTimer::singleShot(0, &view, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu) {
            seen = true;
            inspect(menu);
            menu->close();
        }
    });
    QTest::mouseClick(&view, Qt::RightButton, Qt::NoModifier, QPoint(150, 100));
    QVERIFY(seen);
}

const QString unchanged = QStringLiteral("unchanged");

} // namespace

class tst_ChannelMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void listsTheEntries_data();
    void listsTheEntries();
    void checksTheCurrentSettings_data();
    void checksTheCurrentSettings();
    void amplificationResetsTheOffset();
    void allChannelsEditEveryShownChannel();
    void allChannelsTriggerSkipsTheChosenChannel();
    void refusedTriggerIsNotReported();
    void setColor_data();
    void setColor();
    void rightClickMenu();
    void translates_data();
    void translates();
    void copiesData_data();
    void copiesData();
    void copiesNoData_data();
    void copiesNoData();
    void copiesImage_data();
    void copiesImage();
};

void tst_ChannelMenu::initTestCase()
{
    QSettings().setValue("language", "en");
    QVERIFY(kes::qt::translation::Manager::singleton().load(
        QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
}

void tst_ChannelMenu::init()
{
    QApplication::clipboard()->setText(unchanged);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void tst_ChannelMenu::listsTheEntries_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QStringList>("triggers");

    QTest::newRow("one channel")
        << 1 << "Channel 2"
        << QStringList{"Disable", "Time", "Amplification", "Trigger", "Set color"}
        << QStringList{"Off", "Rising edge", "Falling edge", "Channel 1", "Channel 3",
                       "Channel 4"};
    QTest::newRow("all channels")
        << -1 << "All channels" << QStringList{"Enable", "Disable", "Time", "Amplification", "Trigger"}
        << QStringList{"Off",       "Rising edge", "Falling edge", "Channel 1",
                       "Channel 2", "Channel 3",   "Channel 4"};
}

void tst_ChannelMenu::listsTheEntries()
{
    QFETCH(int, channel);

    View view;
    ChannelMenu menu(channel, &view);
    QTEST(menu.title(), "title");
    QCOMPARE(menu.icon().isNull(), channel < 0);
    QTEST(texts(&menu), "entries");
    QCOMPARE(texts(submenu(&menu, "Time")), series("%1ms", 1));
    QCOMPARE(texts(submenu(&menu, "Amplification")).first(), QStringLiteral("0.1 / Div"));
    QCOMPARE(texts(submenu(&menu, "Amplification")), series("%1 / Div", 0.1));
    QTEST(texts(submenu(&menu, "Trigger")), "triggers");
}

void tst_ChannelMenu::checksTheCurrentSettings_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("changed");
    QTest::addColumn<double>("xScale");
    QTest::addColumn<double>("yScale");
    QTest::addColumn<int>("trigger");
    QTest::addColumn<QStringList>("checked");

    QTest::newRow("one channel, defaults")
        << 1 << 1 << 100.0 << 1.0 << int(TriggerOff) << QStringList{"100ms", "1 / Div", "Off"};
    QTest::newRow("one channel, changed")
        << 1 << 1 << 20.0 << 0.5 << 2 << QStringList{"20ms", "0.5 / Div", "Channel 3"};
    QTest::newRow("one channel, off the series")
        << 1 << 1 << 30.0 << 0.25 << int(TriggerRisingEdge) << QStringList{"Rising edge"};
    QTest::newRow("all, equal") << -1 << 1 << 100.0 << 1.0 << int(TriggerRisingEdge)
                                << QStringList{"100ms", "1 / Div"};
    QTest::newRow("all, one x scale differs")
        << -1 << 3 << 50.0 << 1.0 << int(TriggerOff) << QStringList{"1 / Div"};
    QTest::newRow("all, a hidden channel differs")
        << -1 << 5 << 50.0 << 5.0 << int(TriggerOff) << QStringList{"100ms", "1 / Div"};
}

void tst_ChannelMenu::checksTheCurrentSettings()
{
    QFETCH(int, channel);
    QFETCH(int, changed);
    QFETCH(double, xScale);
    QFETCH(double, yScale);
    QFETCH(int, trigger);

    View view;
    view.setXScale(changed, xScale);
    view.setYScale(changed, yScale);
    view.setTrigger(changed, Trigger_t(trigger));
    ChannelMenu menu(channel, &view);
    QTEST(checked(&menu), "checked");
}

void tst_ChannelMenu::amplificationResetsTheOffset()
{
    View view;
    view.setYOffset(1, 2.0);
    ChannelMenu menu(1, &view);
    QSignalSpy scales(&menu, SIGNAL(yscaleChanged(int, qreal)));
    entry(&menu, {"Amplification", "5 / Div"})->trigger();
    QCOMPARE(view.channel(1).yScale, 50 * 0.1);
    QCOMPARE(view.channel(1).yOffset, 0.0);
    QCOMPARE(scales.size(), 1);
    QCOMPARE(scales.at(0), (QVariantList{1, 50 * 0.1}));
}

void tst_ChannelMenu::allChannelsEditEveryShownChannel()
{
    View view;
    view.setChannelEnabled(2, false);
    ChannelMenu menu(-1, &view);
    QSignalSpy scales(&menu, SIGNAL(xscaleChanged(int, qreal)));
    QSignalSpy enabled(&menu, SIGNAL(channelEnabled(int, bool)));

    entry(&menu, {"Time", "20ms"})->trigger();
    QCOMPARE(scales.size(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(scales.at(i), (QVariantList{i, 20.0}));
        QCOMPARE(view.channel(i).xScale, 20.0);
    }
    QCOMPARE(view.channel(4).xScale, 100.0);

    entry(&menu, {"Enable"})->trigger();
    QVERIFY(view.channel(2).enabled);
    entry(&menu, {"Disable"})->trigger();
    QCOMPARE(enabled.size(), 8);
    QCOMPARE(enabled.at(7), (QVariantList{3, false}));
    for (int i = 0; i < 16; ++i)
        QCOMPARE(view.channel(i).enabled, i >= 4);
}

void tst_ChannelMenu::allChannelsTriggerSkipsTheChosenChannel()
{
    View view;
    view.setTrigger(2, TriggerRisingEdge);
    ChannelMenu menu(-1, &view);
    QSignalSpy triggers(&menu, SIGNAL(triggerChanged(int, int)));
    entry(&menu, {"Trigger", "Channel 3"})->trigger();

    QCOMPARE(triggers.size(), 3);
    QCOMPARE(triggers.at(2), (QVariantList{3, 2}));
    QCOMPARE(int(view.channel(2).trigger), int(TriggerRisingEdge));
    for (int i : {0, 1, 3}) {
        QCOMPARE(int(view.channel(i).trigger), 2);
        QVERIFY(view.channel(i).triggered);
    }
}

void tst_ChannelMenu::refusedTriggerIsNotReported()
{
    View view;
    view.setTrigger(2, Trigger_t(1));
    ChannelMenu menu(1, &view);
    QSignalSpy triggers(&menu, SIGNAL(triggerChanged(int, int)));
    entry(&menu, {"Trigger", "Channel 3"})->trigger();
    QVERIFY(triggers.isEmpty());
    QCOMPARE(int(view.channel(1).trigger), int(TriggerOff));
}

void tst_ChannelMenu::setColor_data()
{
    QTest::addColumn<bool>("accept");
    QTest::newRow("picked") << true;
    QTest::newRow("cancelled") << false;
}

void tst_ChannelMenu::setColor()
{
    QFETCH(bool, accept);

    View view;
    ChannelMenu menu(1, &view);
    QSignalSpy colors(&menu, SIGNAL(colorChanged(int, quint32)));
    QColor initial;
    QTimer::singleShot(0, &view, [&] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        initial = dialog->currentColor();
        dialog->setCurrentColor(QColor(10, 20, 30));
        accept ? dialog->accept() : dialog->reject();
    });
    entry(&menu, {"Set color"})->trigger();

    QCOMPARE(initial, QColor(Qt::green));
    const QColor expected = accept ? QColor(10, 20, 30) : QColor(Qt::green);
    QCOMPARE(view.channel(1).color, expected);
    QCOMPARE(view.channel(1).icon.toImage().pixelColor(5, 5), expected);
    QCOMPARE(colors.size(), accept ? 1 : 0);
    if (accept)
        QCOMPARE(colors.at(0), (QVariantList{1, QVariant::fromValue(quint32(qRgb(10, 20, 30)))}));
}

void tst_ChannelMenu::rightClickMenu()
{
    View view;
    view.resize(320, 240);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.setNumChannels(3);
    view.setChannelEnabled(1, false);
    QSignalSpy enabled(&view, SIGNAL(channelEnabled(int, bool)));
    QSignalSpy scales(&view, SIGNAL(yscaleChanged(int, qreal)));

    rightClick(view, [](QMenu* menu) {
        QCOMPARE(texts(menu), (QStringList{"All channels", "Channel 1", "Enable Channel 2",
                                           "Channel 3", "Copy as Image", "Copy as Data"}));
        QVERIFY(!entry(menu, {"Enable Channel 2"})->icon().isNull());
        QVERIFY(entry(menu, {"Channel 3", "Set color"}));
        entry(menu, {"Enable Channel 2"})->trigger();
    });
    QCOMPARE(enabled.size(), 1);
    QCOMPARE(enabled.at(0), (QVariantList{1, true}));
    QVERIFY(view.channel(1).enabled);

    // The submenus' signals reach the application through the view.
    rightClick(view, [](QMenu* menu) {
        QCOMPARE(texts(menu).at(2), QStringLiteral("Channel 2"));
        entry(menu, {"All channels", "Amplification", "2 / Div"})->trigger();
    });
    QCOMPARE(scales.size(), 3);
    QCOMPARE(scales.at(2), (QVariantList{2, 2.0}));

    view.addPoint(0, 1.0, 1.0);
    view.addPoint(1, 1.0, 1.0);
    view.addPoint(2, 1.0, 1.0);
    rightClick(view, [](QMenu* menu) { entry(menu, {"Copy as Data"})->trigger(); });
    QVERIFY(QApplication::clipboard()->text().startsWith("Time [s]\tChannel 1\t"));
    rightClick(view, [](QMenu* menu) { entry(menu, {"Copy as Image"})->trigger(); });
    QCOMPARE(QApplication::clipboard()->pixmap().height(), 240 + 3 * 14);
}

void tst_ChannelMenu::translates_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("German") << "de"
                            << QStringList{"Alle Kanäle", "Aktivieren", "Deaktivieren", "Zeit",
                                           "Verstärkung", "Trigger", "Aus"};
    QTest::newRow("French") << "fr"
                            << QStringList{"Tous les canaux", "Activer", "Désactiver", "Temps",
                                           "Amplification", "Déclenchement", "Arrêt"};
    QTest::newRow("Spanish") << "es"
                             << QStringList{"Todos los canales", "Activar", "Desactivar",
                                            "Tiempo", "Amplificación", "Disparo", "Apagado"};
}

void tst_ChannelMenu::translates()
{
    QFETCH(QString, language);
    QFETCH(QStringList, entries);

    View view;
    ChannelMenu menu(-1, &view);
    kes::qt::translation::Manager::singleton().setLanguage(language);
    QStringList shown = QStringList{menu.title()} + texts(&menu);
    shown << texts(menu.actions().at(4)->menu()).first();
    kes::qt::translation::Manager::singleton().setLanguage(QStringLiteral("en"));
    QCOMPARE(shown, entries);
    QCOMPARE(menu.title(), QStringLiteral("All channels"));
}

void tst_ChannelMenu::copiesData_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<Curves>("curves");   // a channel without points is disabled
    QTest::addColumn<QString>("expected");

    const Curves equal{{{0.5, 1.0}, {1.0, 2.0}, {1.5, 3.0}}, {{0.5, -1.0}, {1.0, -2.0}, {1.5, -3.25}}};
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates) << equal
                             << "Time [s]\tChannel 1\tTime [s]\tChannel 2\t\n"
                                "0.000000000000\t1.000000000000\t0.000000000000\t-1.000000000000\t\n"
                                "0.500000000000\t2.000000000000\t0.500000000000\t-2.000000000000\t\n"
                                "1.000000000000\t3.000000000000\t1.000000000000\t-3.250000000000\t\n"
                                "\n";
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << equal
                            << "Time [s]\tChannel 1\tTime [s]\tChannel 2\t\n"
                               "0,000000000000\t1,000000000000\t0,000000000000\t-1,000000000000\t\n"
                               "0,500000000000\t2,000000000000\t0,500000000000\t-2,000000000000\t\n"
                               "1,000000000000\t3,000000000000\t1,000000000000\t-3,250000000000\t\n"
                               "\n";
    QTest::newRow("ragged, single-precision start, disabled channel skipped")
        << QLocale(QLocale::English, QLocale::UnitedStates)
        << Curves{{{0.0, 1.0}, {1.0, 2.0}, {2.0, 3.0}}, {}, {{0.1, 4.0}, {0.2, 5.0}}}
        << "Time [s]\tChannel 1\tTime [s]\tChannel 3\t\n"
           "0.000000000000\t1.000000000000\t-0.000000001490\t4.000000000000\t\n"
           "1.000000000000\t2.000000000000\t0.099999998510\t5.000000000000\t\n"
           "2.000000000000\t3.000000000000\t\n";
}

void tst_ChannelMenu::copiesData()
{
    QFETCH(QLocale, locale);
    QFETCH(Curves, curves);

    QLocale::setDefault(locale);
    View view;
    view.setNumChannels(curves.size());
    for (int i = 0; i < curves.size(); ++i) {
        view.setChannelEnabled(i, !curves.at(i).isEmpty());
        for (const QPointF& p : curves.at(i))
            view.addPoint(i, p.x(), p.y());
    }
    QVERIFY(QMetaObject::invokeMethod(&view, "on_copy_data"));
    QTEST(QApplication::clipboard()->text(), "expected");
    QCOMPARE(QLocale(), QLocale::system());
}

void tst_ChannelMenu::copiesNoData_data()
{
    QTest::addColumn<int>("numChannels");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("no channel shown") << 0 << true;
    QTest::newRow("no channel enabled") << 2 << false;
    QTest::newRow("an enabled channel is empty") << 3 << true;
}

void tst_ChannelMenu::copiesNoData()
{
    QFETCH(int, numChannels);
    QFETCH(bool, enabled);

    View view;
    view.setNumChannels(numChannels);
    for (int i = 0; i < numChannels; ++i) {
        view.setChannelEnabled(i, enabled);
        if (i != 1)
            view.addPoint(i, 0.0, 1.0);
    }
    QVERIFY(QMetaObject::invokeMethod(&view, "on_copy_data"));
    QCOMPARE(QApplication::clipboard()->text(), unchanged);
}

void tst_ChannelMenu::copiesImage_data()
{
    QTest::addColumn<int>("numChannels");
    QTest::addColumn<int>("disabled");
    QTest::addColumn<int>("legendRows");

    QTest::newRow("four channels") << 4 << -1 << 4;
    QTest::newRow("one of three disabled") << 3 << 0 << 2;
    QTest::newRow("none enabled") << 1 << 0 << 0;
    QTest::newRow("none shown") << 0 << -1 << 0;
}

void tst_ChannelMenu::copiesImage()
{
    QFETCH(int, numChannels);
    QFETCH(int, disabled);
    QFETCH(int, legendRows);

    View view;
    view.resize(400, 300);
    view.setNumChannels(numChannels);
    view.setChannelEnabled(disabled, false);
    QVERIFY(QMetaObject::invokeMethod(&view, "on_copy_image"));
    if (legendRows == 0) {
        QCOMPARE(QApplication::clipboard()->text(), unchanged);
        return;
    }
    const QImage image = QApplication::clipboard()->image();
    QCOMPARE(image.size(), QSize(400, 300 + 14 * legendRows));
    QCOMPARE(image.copy(0, 0, 400, 300), view.pixmap().toImage().convertToFormat(image.format()));
    // The first legend line starts with the first enabled channel's colour.
    QCOMPARE(image.pixelColor(7, 300 + 7), view.channel(disabled == 0 ? 1 : 0).color);
}

KES_TEST_MAIN(tst_ChannelMenu)
#include "tst_channelmenu.moc"
