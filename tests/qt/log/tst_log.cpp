// The log hub and the stream redirector that feeds it.
#include <kes/qt/log/log.h>
#include <kes/qt/log/ostreamredirector.h>

#include <kes/core/log.h>

#include "kestest.h"

#include <QPointer>
#include <QTextBlock>
#include <QtTest>

#include <atomic>
#include <iostream>
#include <sstream>
#include <thread>
#include <vector>

using kes::qt::log::Log;
using kes::qt::log::OStreamRedirector;

namespace {

// The document's lines once what was posted to the hub is delivered.
QStringList lines(Log& hub)
{
    QCoreApplication::sendPostedEvents(&hub, Log::MessageReceivedEvent::messageReceivedType);
    QStringList result;
    for (QTextBlock block = hub.begin(); block.isValid(); block = block.next())
        result << block.text();
    return result;
}

QStringList numbered(int from, int to)
{
    QStringList result;
    for (int i = from; i <= to; ++i)
        result << QStringLiteral("line %1").arg(i);
    return result;
}

// Messages from a small vocabulary, so that runs of repeats come up often.
QStringList repetitive(int count)
{
    QStringList messages;
    for (int i = 0; i < count; ++i)
        messages << QStringLiteral("camera %1 ready").arg((i * 7 / 3) % 5);
    return messages;
}

// Records every message event the hub is sent, and swallows those the test wants lost.
class MessageFilter : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != Log::MessageReceivedEvent::messageReceivedType)
            return false;
        const auto* received = static_cast<Log::MessageReceivedEvent*>(event);
        seen.append(qMakePair(received->tag, received->message));
        return (dropTag >= 0 && received->tag == dropTag)
            || (!dropMessage.isNull() && received->message == dropMessage);
    }

    int dropTag = -1;
    QString dropMessage;
    QVector<QPair<int, QString>> seen;
};

} // namespace

class tst_Log : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        // Later tests must not reach a hub an earlier one deleted.
        kes::core::Log::singleton().setReceiver({});
        Log::done();
    }

    void writesLikeOneByOne_data()
    {
        QTest::addColumn<bool>("allowRepeats");
        QTest::addColumn<QStringList>("messages"); // an empty one is written by insertEmptyLine()
        QTest::addColumn<int>("batchSize"); // messages posted per delivery; 0: all at once
        QTest::addColumn<QStringList>("expected"); // empty: only compared with one-by-one writing

        const auto row = [](const char* name, bool repeats, const QStringList& messages, int batch,
                            const QStringList& expected = {}) {
            QTest::newRow(name) << repeats << messages << batch << expected;
        };
        row("three equal messages", false, {"a", "a", "a"}, 0, {"", "a.."});
        row("three equal, repeats allowed", true, {"a", "a", "a"}, 0, {"", "a", "a", "a"});
        row("interrupted run starts again", false, {"a", "a", "b", "a"}, 0, {"", "a.", "b", "a"});
        // The hub starts with an empty last message, so first empty lines only add dots.
        row("empty lines first and twice", false, {"", "", "x", "", ""}, 0, {"..", "x", "."});
        row("empty lines, repeats allowed", true, {"", "x", "", ""}, 0, {"", "", "x", "", ""});
        row("99 lines and the empty first one", false, numbered(1, 99), 0, QStringList{""} + numbered(1, 99));
        row("100th line pushes out the empty one", false, numbered(1, 100), 0, numbered(1, 100));
        row("101st line pushes out the first", false, numbered(1, 101), 7, numbered(2, 101));
        const QStringList runs{"a", "a", "b", "b", "b", "c", "a", "a"};
        row("runs of repeats", false, runs, 0);
        row("runs of repeats, repeats allowed", true, runs, 0);
        row("run continued by the next batch", false, runs, 3);
        row("batch repeating the last line only", false, {"a", "a", "a"}, 1);
        row("flood past the limit", false, repetitive(5000), 0);
        row("flood in batches of 37", false, repetitive(5000), 37);
        row("flood, repeats allowed", true, repetitive(5000), 0);
        // Line breaks inside a message make several lines, which count against the limit.
        row("line breaks inside messages", false,
            {"a\nb", "c\r", "c\r", "d\r\ne", QString(QChar::ParagraphSeparator), "f\rg"}, 0);
        QStringList manyBreaks;
        for (int i = 0; i < 80; ++i)
            manyBreaks << QStringLiteral("%1\r\nsecond\r").arg(i) << QStringLiteral("%1\r").arg(i % 3);
        row("line breaks past the limit", false, manyBreaks, 0);
        row("line breaks past the limit in batches", false, manyBreaks, 9);
    }

    // Posted batches and a list written at once give the document of writing one message at a time.
    void writesLikeOneByOne()
    {
        QFETCH(bool, allowRepeats);
        QFETCH(QStringList, messages);
        QFETCH(int, batchSize);
        QFETCH(QStringList, expected);

        Log oneByOne(false, allowRepeats);
        for (const QString& message : messages) {
            if (message.isEmpty())
                oneByOne.insertEmptyLine();
            else
                oneByOne.log(message);
        }
        if (!expected.isEmpty())
            QCOMPARE(lines(oneByOne), expected);

        Log posted(false, allowRepeats);
        const int step = batchSize > 0 ? batchSize : messages.size();
        for (int i = 0; i < messages.size(); i += step) {
            std::thread worker([&] {
                for (const QString& message : messages.mid(i, step))
                    posted.postLog(message);
            });
            worker.join();
            QCoreApplication::sendPostedEvents(&posted, Log::MessageReceivedEvent::messageReceivedType);
        }
        Log listed(false, allowRepeats);
        listed.log(messages);

        QCOMPARE(lines(posted), lines(oneByOne));
        QCOMPARE(posted.toHtml(), oneByOne.toHtml());
        QCOMPARE(listed.toHtml(), oneByOne.toHtml());
    }

    // Queued messages, the core log's UTF-8 text from another thread and a directly posted event,
    // in posting order.
    void writesEveryWayIn()
    {
        Log hub(true, false);
        Log unregistered; // must not take the core log over
        hub.postLog(QStringLiteral("queued"));
        std::thread worker([] { kes::core::Log::singleton().log("Gr\xc3\xb6\xc3\x9f" "e 12 \xc2\xb5m"); });
        worker.join();
        QCoreApplication::postEvent(&hub, new Log::MessageReceivedEvent(7, QStringLiteral("direct")));
        hub.postLog(QStringLiteral("after direct"));
        QCoreApplication::postEvent(&hub, new QEvent(QEvent::Type(QEvent::User + 1)));
        QCoreApplication::sendPostedEvents(&hub, 0);
        QCOMPARE(lines(hub),
                 (QStringList{"", "queued", QStringLiteral("Größe 12 µm"), "direct", "after direct"}));
        QCOMPARE(lines(unregistered), QStringList{""});
        QCOMPARE(int(Log::MessageReceivedEvent(7, QString()).type()), 1000);
    }

    void goesOnAfterLostEvents_data()
    {
        QTest::addColumn<QString>("loss");
        QTest::addColumn<QStringList>("firstLines"); // empty: not known in advance
        QTest::newRow("filter drops one message") << "message" << QStringList{"", "a", "b", "c"};
        QTest::newRow("filter drops a tag") << "tag" << QStringList{"", "a", "drop me", "c"};
        QTest::newRow("events removed mid-flood") << "removed" << QStringList();
    }

    // A lost event loses its own message only: every way in goes on writing after it.
    void goesOnAfterLostEvents()
    {
        QFETCH(QString, loss);
        QFETCH(QStringList, firstLines);

        Log::init();
        Log* hub = Log::singleton();
        MessageFilter filter;
        hub->installEventFilter(&filter);
        if (loss == QLatin1String("message"))
            filter.dropMessage = QStringLiteral("drop me");
        else if (loss == QLatin1String("tag"))
            filter.dropTag = 7;

        if (loss == QLatin1String("removed")) {
            std::atomic<bool> done{false};
            std::thread flood([&] {
                for (int i = 0; i < 20000; ++i)
                    hub->postLog(QStringLiteral("flood %1").arg(i));
                done = true;
            });
            while (!done) {
                QCoreApplication::removePostedEvents(hub);
                QCoreApplication::processEvents();
            }
            flood.join();
            QCoreApplication::removePostedEvents(hub);
        } else {
            hub->postLog(QStringLiteral("a"), 1);
            hub->postLog(QStringLiteral("drop me"), 1);
            hub->postLog(QStringLiteral("b"), 7);
            hub->postLog(QStringLiteral("c"), 1);
            QCOMPARE(lines(*hub), firstLines);
        }

        filter.seen.clear();
        hub->postLog(QStringLiteral("gui"));
        std::thread worker([] { Log::singleton()->postLog(QStringLiteral("worker"), 3); });
        worker.join();
        std::thread core([] { kes::core::Log::singleton().log("core"); });
        core.join();
        {
            std::ostringstream stream;
            OStreamRedirector redirector(stream, *hub);
            stream << "stream" << std::endl;
        }
        hub->postEmptyLine();
        const QStringList later{"gui", "worker", "core", "stream", ""};
        QTRY_COMPARE(lines(*hub).mid(lines(*hub).size() - later.size()), later);
        hub->log(QStringLiteral("direct"));
        QCOMPARE(lines(*hub).constLast(), QStringLiteral("direct"));

        const QVector<QPair<int, QString>> events{
            {255, "gui"}, {3, "worker"}, {255, "core"}, {255, "stream"}, {255, ""}};
        QCOMPARE(filter.seen, events);
    }

    void keepsEachThreadsOrder_data()
    {
        QTest::addColumn<int>("threads");
        QTest::addColumn<int>("perThread");
        QTest::newRow("all lines kept") << 4 << 20;
        QTest::newRow("newest hundred kept") << 8 << 5000;
    }

    void keepsEachThreadsOrder()
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
        hub->postLog(QStringLiteral("end"));
        QTRY_COMPARE(lines(*hub).constLast(), QStringLiteral("end"));

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
        for (int t = 0; t < threads; ++t)
            QVERIFY(next[t] < 0 || next[t] == perThread);
    }

    void doneLeavesNoHub()
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

    void redirectsCompleteLines_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("oneByOne"); // put() per byte instead of one write()
        QTest::addColumn<QStringList>("whileRedirected");
        QTest::addColumn<QStringList>("afterwards");

        for (const bool single : {false, true}) {
            const auto row = [single](const char* name, const QByteArray& bytes, const QStringList& during,
                                      const QStringList& after = {}) {
                QTest::newRow(QByteArray(name).append(single ? ", put per byte" : "").constData())
                    << bytes << single << during << (after.isEmpty() ? during : after);
            };
            row("line and partial line", "a\nb", {"a"}, {"a", "b"});
            row("several lines", "one\ntwo\nthree\n", {"one", "two", "three"});
            row("empty lines", "\n\nx\n", {"", "", "x"});
            // The carriage return stays in the line; the document breaks the line there.
            row("carriage return", "x\r\ny\n", {"x", "", "y"});
            row("Latin-1", "\xe9t\xe9 \xb5m\n", {QStringLiteral("été µm")});
            row("UTF-8 read as Latin-1", "\xc3\xa9\n", {QStringLiteral("Ã©")});
        }
        QTest::newRow("nothing written") << QByteArray() << false << QStringList() << QStringList();
    }

    void redirectsCompleteLines()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, oneByOne);
        QFETCH(QStringList, whileRedirected);
        QFETCH(QStringList, afterwards);

        Log hub(false, true);
        std::ostringstream stream;
        {
            OStreamRedirector redirector(stream, hub);
            if (oneByOne) {
                for (const char byte : bytes)
                    stream.put(byte);
            } else {
                stream.write(bytes.constData(), bytes.size());
            }
            stream.flush();
            QVERIFY(stream.good());
            QCOMPARE(lines(hub), QStringList{""} + whileRedirected);
        }
        QCOMPARE(lines(hub), QStringList{""} + afterwards);
        QVERIFY(stream.str().empty());
    }

    void restoresPreviousBuffer_data()
    {
        QTest::addColumn<int>("which");
        QTest::newRow("string stream") << 0;
        QTest::newRow("std::cout") << 1;
        QTest::newRow("std::cerr") << 2;
    }

    void restoresPreviousBuffer()
    {
        QFETCH(int, which);

        std::ostringstream own;
        std::ostream& stream = which == 1 ? std::cout : which == 2 ? std::cerr : own;
        std::streambuf* const before = stream.rdbuf();

        Log hub;
        {
            OStreamRedirector outer(stream, hub);
            stream << "outer " << 1 << std::endl;
            {
                OStreamRedirector inner(stream, hub);
                QCOMPARE(stream.rdbuf(), static_cast<std::streambuf*>(&inner));
                stream << "inner " << 2.5 << '\n' << "unfinished";
            }
            QCOMPARE(stream.rdbuf(), static_cast<std::streambuf*>(&outer));
            stream << "outer again";
        }
        QCOMPARE(stream.rdbuf(), before);
        QCOMPARE(lines(hub), (QStringList{"", "outer 1", "inner 2.5", "unfinished", "outer again"}));

        own << "after";
        QCOMPARE(own.str(), std::string("after"));
    }
};

KES_TEST_MAIN(tst_Log)
#include "tst_log.moc"
