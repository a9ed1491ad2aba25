// The sample and trigger rules of a scope channel, through View::addPoint and View::setTrigger.
#include <kes/qt/scope/channel.h>
#include <kes/qt/scope/view.h>

#include "kestest.h"

#include <QtTest>

using kes::qt::scope::Channel;
using kes::qt::scope::Trigger_t;
using kes::qt::scope::TriggerFallingEdge;
using kes::qt::scope::TriggerOff;
using kes::qt::scope::TriggerRisingEdge;
using kes::qt::scope::View;
using Samples = QVector<double>;

Q_DECLARE_METATYPE(Trigger_t)

namespace {

// Followers are kept as pointers to the view's own records.
Channel* record(const View& view, int channel)
{
    return const_cast<Channel*>(&view.channel(channel));
}

} // namespace

class tst_Channel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firesAtTheLevel_data();
    void firesAtTheLevel();
    void offModeRestartsWhenTimeRunsBackwards();
    void fullChannelWaitsForTheNextCrossing();
    void followersAreClearedAndCopyTheFlag();
    void refusesFollowerCycles_data();
    void refusesFollowerCycles();
};

// Channel 1 follows channel 0 and holds one sample, so that its being cleared shows that
// channel 0 fired, even on channel 0's very first sample (compared against lastY 0).
void tst_Channel::firesAtTheLevel_data()
{
    QTest::addColumn<Trigger_t>("mode");
    QTest::addColumn<double>("level");
    QTest::addColumn<Samples>("samples");
    QTest::addColumn<bool>("fired");

    const Trigger_t up = TriggerRisingEdge;
    const Trigger_t down = TriggerFallingEdge;
    QTest::newRow("rising: reaching the level") << up << 0.0 << Samples{-1, 0} << true;
    QTest::newRow("rising: leaving the level") << up << 0.0 << Samples{0, 1} << false;
    QTest::newRow("rising: falling through") << up << 0.0 << Samples{1, -1} << false;
    QTest::newRow("falling: from the level") << down << 0.0 << Samples{0, -1} << true;
    QTest::newRow("falling: reaching the level") << down << 0.0 << Samples{1, 0} << false;
    QTest::newRow("falling: rising through") << down << 0.5 << Samples{0.2, 1} << false;
    QTest::newRow("first sample above 0.5") << up << 0.5 << Samples{0.7} << true;
    QTest::newRow("first sample, level -0.5") << up << -0.5 << Samples{0.7} << false;
    QTest::newRow("first sample below, falling") << down << 0.0 << Samples{-0.1} << true;
    QTest::newRow("beyond falling: never") << Trigger_t(19) << 0.0 << Samples{-1, 1} << false;
}

void tst_Channel::firesAtTheLevel()
{
    QFETCH(Trigger_t, mode);
    QFETCH(double, level);
    QFETCH(Samples, samples);
    QFETCH(bool, fired);

    View view;
    view.setTrigger(0, mode);
    view.setTriggerPosition(0, level);
    view.setTrigger(1, Trigger_t(0));
    view.addPoint(1, 0.0, 3.0);

    for (int i = 0; i < samples.size(); ++i)
        view.addPoint(0, i, samples.at(i));

    QCOMPARE(view.channel(1).points.isEmpty(), fired);
    QCOMPARE(view.channel(0).points.size(), fired ? 1 : samples.size());
    QCOMPARE(view.channel(0).points.constLast(), QPointF(samples.size() - 1, samples.last()));
    QCOMPARE(view.channel(0).lastY, samples.last());
}

void tst_Channel::offModeRestartsWhenTimeRunsBackwards()
{
    View view;
    // No cap in this mode: drawing trims the channel.
    for (int i = 0; i <= 10000; ++i)
        view.addPoint(0, i, 1.0);
    view.addPoint(0, 10000, 2.0);
    QCOMPARE(view.channel(0).points.size(), 10002);
    view.addPoint(0, 5.0, 3.0);
    QCOMPARE(view.channel(0).points, (QVector<QPointF>{{5.0, 3.0}}));
}

void tst_Channel::fullChannelWaitsForTheNextCrossing()
{
    View view;
    view.setTrigger(0, TriggerRisingEdge);
    view.setTriggerPosition(0, 0.5);
    for (int i = 0; i < 10005; ++i)
        view.addPoint(0, i, 1.0);
    QCOMPARE(view.channel(0).points.size(), 10000);
    QCOMPARE(view.channel(0).points.constLast().x(), 9999.0);

    // Dropped, but its y still counts as the previous sample of the next one.
    view.addPoint(0, 20000, 0.0);
    QCOMPARE(view.channel(0).points.size(), 10000);
    QCOMPARE(view.channel(0).lastY, 0.0);
    view.addPoint(0, 20001, 1.0);
    QCOMPARE(view.channel(0).points, (QVector<QPointF>{{20001, 1.0}}));
}

void tst_Channel::followersAreClearedAndCopyTheFlag()
{
    View view;
    view.setTrigger(2, TriggerRisingEdge);
    view.setTrigger(3, TriggerFallingEdge);
    view.setTrigger(1, Trigger_t(3));
    view.setTrigger(1, Trigger_t(2));
    view.setTrigger(0, Trigger_t(1));
    QVERIFY(view.channel(3).followers.isEmpty());
    QCOMPARE(view.channel(2).followers, QSet<Channel*>{record(view, 1)});
    QVERIFY(view.channel(1).triggered);
    QVERIFY(view.channel(0).triggered);

    for (int i = 0; i < 3; ++i) {
        view.addPoint(0, i, 5.0);
        view.addPoint(1, i, 5.0);
    }
    // Channel 3 fires but is followed no more; a follower's own crossings count for nothing.
    view.addPoint(3, 0, -1.0);
    view.addPoint(1, 3, -1.0);
    view.addPoint(1, 4, 1.0);
    QCOMPARE(view.channel(1).points.size(), 5);
    view.addPoint(2, 0, -1.0);
    view.addPoint(2, 1, 1.0);
    QVERIFY(view.channel(1).points.isEmpty());
    QVERIFY(view.channel(0).points.isEmpty());

    view.addPoint(1, 0, 1.0);
    view.setTrigger(2, TriggerOff);
    QVERIFY(!view.channel(1).triggered);
    QVERIFY(!view.channel(0).triggered);
    // Setting a mode does not clear the points; the next trigger does.
    QCOMPARE(view.channel(1).points.size(), 1);
}

void tst_Channel::refusesFollowerCycles_data()
{
    QTest::addColumn<QVector<int>>("chain");   // chain[i] follows chain[i + 1]
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("target");

    QTest::newRow("itself") << QVector<int>{} << 1 << 1;
    QTest::newRow("the channel following it") << QVector<int>{0, 1} << 1 << 0;
    QTest::newRow("through two others") << QVector<int>{0, 1, 2} << 2 << 0;
    QTest::newRow("through fifteen others")
        << QVector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15} << 15 << 0;
}

void tst_Channel::refusesFollowerCycles()
{
    QFETCH(QVector<int>, chain);
    QFETCH(int, channel);
    QFETCH(int, target);

    View view;
    view.setNumChannels(16);
    view.setTrigger(channel, TriggerRisingEdge);
    for (int i = 0; i + 1 < chain.size(); ++i)
        view.setTrigger(chain.at(i), Trigger_t(chain.at(i + 1)));

    view.setTrigger(channel, Trigger_t(target));
    QCOMPARE(int(view.channel(channel).trigger), int(TriggerRisingEdge));
    QVERIFY(!view.channel(target).followers.contains(record(view, channel)));

    // Both recursions end.
    view.addPoint(channel, 0, -1.0);
    view.addPoint(channel, 1, 1.0);
    QCOMPARE(view.channel(channel).points.size(), 1);
    view.setTrigger(channel, TriggerOff);
    QVERIFY(!view.channel(target).triggered);
}

KES_TEST_MAIN(tst_Channel)
#include "tst_channel.moc"
