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

// The texts of the entries; with \a checkedOnly, those of the checked entries of all submenus.
QStringList texts(const QMenu* menu, bool checkedOnly = false)
{
    QStringList result;
    for (const QAction* action : menu->actions()) {
        if (checkedOnly && action->menu())
            result << texts(action->menu(), true);
        else if (!checkedOnly || action->isChecked())
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

QStringList submenuTexts(const QMenu* menu, const QString& title)
{
    const QAction* action = entry(menu, {title});
    return action && action->menu() ? texts(action->menu()) : QStringList();
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
    void listsAndChecksTheEntries_data();
    void listsAndChecksTheEntries();
    void allChannelsEditEveryShownChannel();
    void triggerChoicesCloseNoCycle();
    void setColor_data();
    void setColor();
    void outlivesItsView();
    void rightClickMenu();
    void translates_data();
    void translates();
    void copiesData_data();
    void copiesData();
    void copiesNothing_data();
    void copiesNothing();
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

// Channel 1 of the view, or all channels, with channel "changed" set to the given scales and
// trigger.
void tst_ChannelMenu::listsAndChecksTheEntries_data()
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

void tst_ChannelMenu::listsAndChecksTheEntries()
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
    const bool all = channel < 0;
    QCOMPARE(menu.title(), all ? QStringLiteral("All channels") : QStringLiteral("Channel 2"));
    QCOMPARE(menu.icon().isNull(), all);
    const QStringList common{"Disable", "Time", "Amplification", "Trigger"};
    QCOMPARE(texts(&menu), all ? QStringList("Enable") + common : common + QStringList("Set color"));
    QCOMPARE(submenuTexts(&menu, "Time"),
             (QStringList{"1ms", "2ms", "5ms", "10ms", "20ms", "50ms", "100ms", "200ms", "500ms",
                          "1000ms", "2000ms", "5000ms", "10000ms"}));
    QCOMPARE(submenuTexts(&menu, "Amplification"),
             (QStringList{"0.1 / Div", "0.2 / Div", "0.5 / Div", "1 / Div", "2 / Div", "5 / Div",
                          "10 / Div", "20 / Div", "50 / Div", "100 / Div", "200 / Div",
                          "500 / Div", "1000 / Div"}));
    QStringList triggers{"Off", "Rising edge", "Falling edge", "Channel 1", "Channel 3", "Channel 4"};
    if (all)
        triggers.insert(4, "Channel 2");
    QCOMPARE(submenuTexts(&menu, "Trigger"), triggers);
    QTEST(texts(&menu, true), "checked");
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

// "All channels" sets a channel as trigger of every other shown channel; a choice that would
// close a cycle of followers is refused and not reported.
void tst_ChannelMenu::triggerChoicesCloseNoCycle()
{
    View view;
    view.setTrigger(2, TriggerRisingEdge);
    ChannelMenu all(-1, &view);
    QSignalSpy triggers(&all, SIGNAL(triggerChanged(int, int)));
    entry(&all, {"Trigger", "Channel 3"})->trigger();
    QCOMPARE(triggers.size(), 3);
    QCOMPARE(triggers.at(2), (QVariantList{3, 2}));
    QCOMPARE(int(view.channel(2).trigger), int(TriggerRisingEdge));
    for (int i : {0, 1, 3}) {
        QCOMPARE(int(view.channel(i).trigger), 2);
        QVERIFY(view.channel(i).triggered);
    }

    ChannelMenu two(2, &view);
    QSignalSpy refused(&two, SIGNAL(triggerChanged(int, int)));
    entry(&two, {"Trigger", "Channel 1"})->trigger();
    QVERIFY(refused.isEmpty());
    QCOMPARE(int(view.channel(2).trigger), int(TriggerRisingEdge));
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

// Without its view a menu lists no channel, and its entries do nothing.
void tst_ChannelMenu::outlivesItsView()
{
    auto* view = new View;
    ChannelMenu single(1, view);
    ChannelMenu all(-1, view);
    ChannelMenu orphan(1, nullptr);
    delete view;
    QCOMPARE(submenuTexts(&orphan, "Trigger"), (QStringList{"Off", "Rising edge", "Falling edge"}));
    for (ChannelMenu* menu : {&single, &all, &orphan}) {
        QSignalSpy enabled(menu, SIGNAL(channelEnabled(int, bool)));
        QSignalSpy triggers(menu, SIGNAL(triggerChanged(int, int)));
        menu->translate();
        entry(menu, {"Disable"})->trigger();
        entry(menu, {"Trigger", "Off"})->trigger();
        QVERIFY(enabled.isEmpty());
        QVERIFY(triggers.isEmpty());
    }
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
    QSignalSpy offsets(&view, SIGNAL(yOffsetChanged(int, double)));

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

    // The submenus' signals reach the application through the view. A new amplification resets
    // the offset, silently.
    view.setYOffset(2, 0.5);
    rightClick(view, [](QMenu* menu) {
        QCOMPARE(texts(menu).at(2), QStringLiteral("Channel 2"));
        entry(menu, {"All channels", "Amplification", "5 / Div"})->trigger();
    });
    QCOMPARE(scales.size(), 3);
    QCOMPARE(scales.at(2), (QVariantList{2, 50 * 0.1}));
    QCOMPARE(view.channel(2).yScale, 50 * 0.1);
    QCOMPARE(view.channel(2).yOffset, 0.0);
    QVERIFY(offsets.isEmpty());

    for (int i = 0; i < 3; ++i)
        view.addPoint(i, 1.0, 1.0);
    rightClick(view, [](QMenu* menu) { entry(menu, {"Copy as Data"})->trigger(); });
    QVERIFY(QApplication::clipboard()->text().startsWith("Time [s]\tChannel 1\t"));
    // The legend lists the enabled channels only, beneath the plot.
    view.setChannelEnabled(0, false);
    rightClick(view, [](QMenu* menu) { entry(menu, {"Copy as Image"})->trigger(); });
    const QImage image = QApplication::clipboard()->image();
    QCOMPARE(image.size(), QSize(320, 240 + 2 * 14));
    QCOMPARE(image.copy(0, 0, 320, 240), view.pixmap().toImage().convertToFormat(image.format()));
    QCOMPARE(image.pixelColor(7, 240 + 7), QColor(Qt::green));
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

    View view;
    ChannelMenu menu(-1, &view);
    kes::qt::translation::Manager::singleton().setLanguage(language);
    const QStringList shown = QStringList{menu.title()} + texts(&menu)
                              + texts(menu.actions().at(4)->menu()).mid(0, 1);
    kes::qt::translation::Manager::singleton().setLanguage(QStringLiteral("en"));
    QTEST(shown, "entries");
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

// Channel 1 holds no points, the others one each.
void tst_ChannelMenu::copiesNothing_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("numChannels");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("data, no channel shown") << QByteArray("on_copy_data") << 0 << true;
    QTest::newRow("data, no channel enabled") << QByteArray("on_copy_data") << 2 << false;
    QTest::newRow("data, an enabled channel is empty") << QByteArray("on_copy_data") << 3 << true;
    QTest::newRow("image, no channel shown") << QByteArray("on_copy_image") << 0 << true;
    QTest::newRow("image, no channel enabled") << QByteArray("on_copy_image") << 2 << false;
}

void tst_ChannelMenu::copiesNothing()
{
    QFETCH(QByteArray, slot);
    QFETCH(int, numChannels);
    QFETCH(bool, enabled);

    View view;
    view.setNumChannels(numChannels);
    for (int i = 0; i < numChannels; ++i) {
        view.setChannelEnabled(i, enabled);
        if (i != 1)
            view.addPoint(i, 0.0, 1.0);
    }
    QVERIFY(QMetaObject::invokeMethod(&view, slot.constData()));
    QCOMPARE(QApplication::clipboard()->text(), unchanged);
}

KES_TEST_MAIN(tst_ChannelMenu)
#include "tst_channelmenu.moc"
