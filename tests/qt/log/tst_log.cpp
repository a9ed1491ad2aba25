#include <kes/qt/log/log.h>

#include <kes/core/log.h>

#include "kestest.h"

#include <QPointer>
#include <QTextBlock>
#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

using kes::qt::log::Log;

namespace {

QStringList lines(const QTextDocument& document)
{
    QStringList result;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        result << block.text();
    return result;
}

// Posts \a messages from a worker thread and delivers them, as the event loop would.
void postFromWorker(Log& hub, const QStringList& messages)
{
    std::thread worker([&] {
        for (const QString& message : messages)
            hub.postLog(message);
    });
    worker.join();
    QCoreApplication::sendPostedEvents(&hub, Log::MessageReceivedEvent::messageReceivedType);
}

// Messages from a small vocabulary, so that runs of repeats come up often.
QStringList repetitive(int count)
{
    QStringList messages;
    for (int i = 0; i < count; ++i)
        messages << QStringLiteral("camera %1 ready").arg((i * 7 / 3) % 5);
    return messages;
}

} // namespace

class tst_Log : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void writesRepeatsAsDots_data();
    void writesRepeatsAsDots();
    void keepsTheNewestHundredLines_data();
    void keepsTheNewestHundredLines();
    void postedBatchesMatchOneByOneWriting_data();
    void postedBatchesMatchOneByOneWriting();
    void writesDirectlyPostedEvent();
    void decodesCoreLogAsUtf8();
    void keepsEachThreadsOrder_data();
    void keepsEachThreadsOrder();
    void doneLeavesNoHub();
};

void tst_Log::cleanup()
{
    // Later tests must not reach a hub an earlier one deleted.
    kes::core::Log::singleton().setReceiver({});
    Log::done();
}

void tst_Log::writesRepeatsAsDots_data()
{
    QTest::addColumn<bool>("allowRepeats");
    QTest::addColumn<QStringList>("messages"); // an empty one is written by insertEmptyLine()
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("three equal messages") << false << QStringList{"a", "a", "a"}
                                          << QStringList{"", "a.."};
    QTest::newRow("three equal, repeats allowed") << true << QStringList{"a", "a", "a"}
                                                  << QStringList{"", "a", "a", "a"};
    QTest::newRow("interrupted run starts again") << false << QStringList{"a", "a", "b", "a"}
                                                  << QStringList{"", "a.", "b", "a"};
    QTest::newRow("empty line twice") << false << QStringList{"x", "", ""}
                                      << QStringList{"", "x", "."};
    QTest::newRow("empty line twice, repeats allowed") << true << QStringList{"x", "", ""}
                                                       << QStringList{"", "x", "", ""};
    // The hub starts with an empty last message, so a first empty line only adds a dot.
    QTest::newRow("empty line first") << false << QStringList{"", "y"} << QStringList{".", "y"};
}

void tst_Log::writesRepeatsAsDots()
{
    QFETCH(bool, allowRepeats);
    QFETCH(QStringList, messages);
    QFETCH(QStringList, expected);

    Log hub(false, allowRepeats);
    for (const QString& message : messages) {
        if (message.isEmpty())
            hub.insertEmptyLine();
        else
            hub.log(message);
    }
    QCOMPARE(lines(hub), expected);
}

void tst_Log::keepsTheNewestHundredLines_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("first");

    QTest::newRow("99 lines and the empty first one") << 99 << QString();
    QTest::newRow("100th line pushes out the empty one") << 100 << QStringLiteral("line 1");
    QTest::newRow("101st line pushes out the first") << 101 << QStringLiteral("line 2");
}

void tst_Log::keepsTheNewestHundredLines()
{
    QFETCH(int, count);
    QFETCH(QString, first);

    Log hub;
    for (int i = 1; i <= count; ++i)
        hub.log(QStringLiteral("line %1").arg(i));
    const QStringList written = lines(hub);
    QCOMPARE(written.size(), 100);
    QCOMPARE(written.first(), first);
    QCOMPARE(written.last(), QStringLiteral("line %1").arg(count));
}

void tst_Log::postedBatchesMatchOneByOneWriting_data()
{
    QTest::addColumn<bool>("allowRepeats");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<int>("batchSize"); // messages delivered per event; 0: all in one

    const QStringList runs{"a", "a", "b", "b", "b", "c", "a", "a"};
    QTest::newRow("runs of repeats") << false << runs << 0;
    QTest::newRow("runs of repeats, repeats allowed") << true << runs << 0;
    QTest::newRow("run continued by the next batch") << false << runs << 3;
    QTest::newRow("batch repeating the last line only") << false << QStringList{"a", "a", "a"} << 1;
    QTest::newRow("empty lines first") << false << QStringList{"", "", "x", "", ""} << 0;
    QTest::newRow("flood past the limit") << false << repetitive(5000) << 0;
    QTest::newRow("flood in batches of 37") << false << repetitive(5000) << 37;
    QTest::newRow("flood, repeats allowed") << true << repetitive(5000) << 0;

    // Line breaks inside a message make several lines, which count against the limit.
    QStringList breaks{"a\nb", "c\r", "c\r", "d\r\ne", QString(QChar::ParagraphSeparator), "f\rg"};
    QTest::newRow("line breaks inside messages") << false << breaks << 0;
    QStringList manyBreaks;
    for (int i = 0; i < 80; ++i)
        manyBreaks << QStringLiteral("%1\r\nsecond\r").arg(i) << QStringLiteral("%1\r").arg(i % 3);
    QTest::newRow("line breaks past the limit") << false << manyBreaks << 0;
    QTest::newRow("line breaks past the limit in batches") << false << manyBreaks << 9;
}

void tst_Log::postedBatchesMatchOneByOneWriting()
{
    QFETCH(bool, allowRepeats);
    QFETCH(QStringList, messages);
    QFETCH(int, batchSize);

    Log oneByOne(false, allowRepeats);
    for (const QString& message : messages)
        oneByOne.log(message);

    Log posted(false, allowRepeats);
    const int step = batchSize > 0 ? batchSize : messages.size();
    for (int i = 0; i < messages.size(); i += step)
        postFromWorker(posted, messages.mid(i, step));

    Log listed(false, allowRepeats);
    listed.log(messages);

    QCOMPARE(lines(posted), lines(oneByOne));
    QCOMPARE(posted.toHtml(), oneByOne.toHtml());
    QCOMPARE(listed.toHtml(), oneByOne.toHtml());
}

void tst_Log::writesDirectlyPostedEvent()
{
    Log hub;
    hub.postLog(QStringLiteral("queued"));
    QCoreApplication::postEvent(&hub, new Log::MessageReceivedEvent(7, QStringLiteral("direct")));
    QCoreApplication::postEvent(&hub, new QEvent(QEvent::Type(QEvent::User + 1)));
    QCoreApplication::sendPostedEvents(&hub, 0);
    QCOMPARE(lines(hub), (QStringList{"", "queued", "direct"}));
    QCOMPARE(int(Log::MessageReceivedEvent(7, QString()).type()), 1000);
}

void tst_Log::decodesCoreLogAsUtf8()
{
    Log hub(true, false);
    Log unregistered; // must not take the core log over
    std::thread worker([] { kes::core::Log::singleton().log("Gr\xc3\xb6\xc3\x9f" "e 12 \xc2\xb5m"); });
    worker.join();
    QTRY_COMPARE(lines(hub), (QStringList{"", QStringLiteral("Größe 12 µm")}));
    QCOMPARE(lines(unregistered), QStringList{""});
}

void tst_Log::keepsEachThreadsOrder_data()
{
    QTest::addColumn<int>("threads");
    QTest::addColumn<int>("perThread");

    QTest::newRow("all lines kept") << 4 << 20;
    QTest::newRow("newest hundred kept") << 8 << 5000;
}

void tst_Log::keepsEachThreadsOrder()
{
    QFETCH(int, threads);
    QFETCH(int, perThread);

    Log::init();
    Log* hub = Log::singleton();
    std::atomic<int> finished{0};
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([t, perThread, &finished] {
            for (int i = 0; i < perThread; ++i)
                Log::singleton()->postLog(QStringLiteral("%1 %2").arg(t).arg(i));
            ++finished;
        });
    }
    // The GUI thread keeps delivering while the workers post.
    QTRY_VERIFY_WITH_TIMEOUT(finished == threads, 60000);
    for (auto& worker : workers)
        worker.join();
    const QString last = QStringLiteral("end");
    hub->postLog(last);
    QTRY_COMPARE(lines(*hub).constLast(), last);

    QStringList written = lines(*hub);
    written.removeLast();
    const int total = threads * perThread;
    QCOMPARE(written.size(), qMin(total + 1, 99));
    if (total + 1 <= 99)
        QCOMPARE(written.takeFirst(), QString());
    // The document holds the newest lines of all, so each thread's are the end of its sequence.
    QVector<int> next(threads, -1);
    for (const QString& line : qAsConst(written)) {
        const QStringList parts = line.split(QLatin1Char(' '));
        QCOMPARE(parts.size(), 2);
        const int t = parts.at(0).toInt();
        const int i = parts.at(1).toInt();
        QVERIFY(t >= 0 && t < threads);
        if (next[t] >= 0)
            QCOMPARE(i, next[t]);
        next[t] = i + 1;
    }
    for (int t = 0; t < threads; ++t) {
        if (next[t] >= 0)
            QCOMPARE(next[t], perThread);
    }
}

void tst_Log::doneLeavesNoHub()
{
    QVERIFY(!Log::singleton());
    Log::init(true);
    const QPointer<Log> first = Log::singleton();
    QVERIFY(first);
    Log::init();
    const QPointer<Log> second = Log::singleton();
    QVERIFY(second != first);
    QVERIFY(first);
    delete first.data();

    second->postLog(QStringLiteral("pending"));
    Log::done();
    QVERIFY(!Log::singleton());
    QVERIFY(second.isNull());
    Log::done();
    QVERIFY(!Log::singleton());
    // The posted event went with the hub.
    QCoreApplication::processEvents();
}

KES_TEST_MAIN(tst_Log)
#include "tst_log.moc"
