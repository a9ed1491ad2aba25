#include <kes/core/log.h>

#include <kestest.h>

#include <QtTest>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <iostream>
#include <mutex>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

using kes::core::Log;

namespace {

enum class Receiver { Set, Never, Removed };

// A deadlock would otherwise hang the whole run until the test driver's timeout.
template <typename Function>
void finishWithin(Function function)
{
    std::future<void> done = std::async(std::launch::async, function);
    if (done.wait_for(std::chrono::seconds(20)) != std::future_status::ready)
        qFatal("still blocked after 20 s: deadlock");
    done.get();
}

// Collects messages from any thread.
struct Inbox
{
    std::mutex mutex;
    std::vector<std::string> messages;

    Log::Receiver receiver()
    {
        return [this](const std::string& message) {
            std::lock_guard<std::mutex> lock(mutex);
            messages.push_back(message);
        };
    }
};

} // namespace

Q_DECLARE_METATYPE(Receiver)

class TestLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Log::singleton().setReceiver({}); }

    void messageGoesToReceiverElseToStandardError_data()
    {
        QTest::addColumn<Receiver>("receiver");
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("receiver gets lines unchanged") << Receiver::Set << QByteArray("first\nsecond\n") << QByteArray();
        QTest::newRow("receiver gets embedded nul") << Receiver::Set << QByteArray("a\0b", 3) << QByteArray();
        QTest::newRow("never set") << Receiver::Never << QByteArray("hello") << QByteArray("hello\n");
        QTest::newRow("removed") << Receiver::Removed << QByteArray("hello") << QByteArray("hello\n");
        QTest::newRow("newline not doubled") << Receiver::Never << QByteArray("hello\n") << QByteArray("hello\n");
        QTest::newRow("empty message") << Receiver::Never << QByteArray() << QByteArray("\n");
    }

    void messageGoesToReceiverElseToStandardError()
    {
        QFETCH(Receiver, receiver);
        QFETCH(QByteArray, message);
        QFETCH(QByteArray, written);
        Inbox inbox;
        if (receiver != Receiver::Never)
            Log::singleton().setReceiver(inbox.receiver());
        if (receiver == Receiver::Removed)
            Log::singleton().setReceiver({});
        std::ostringstream captured;
        std::streambuf* const previous = std::cerr.rdbuf(captured.rdbuf());
        Log::singleton().log(message.toStdString());
        std::cerr.rdbuf(previous);
        QCOMPARE(QByteArray::fromStdString(captured.str()), written);
        const std::vector<std::string> received{message.toStdString()};
        QCOMPARE(inbox.messages, receiver == Receiver::Set ? received : std::vector<std::string>());
    }

    void receiverRunsOnLoggingThread()
    {
        std::thread::id receivedOn;
        Log::singleton().setReceiver([&](const std::string&) { receivedOn = std::this_thread::get_id(); });
        std::thread worker([] { Log::singleton().log("from worker"); });
        const std::thread::id workerId = worker.get_id();
        worker.join();
        QVERIFY(receivedOn == workerId);
    }

    void receiverMayLogAndReplaceReceiver()
    {
        std::vector<std::string> got;
        Log& log = Log::singleton();
        // The first receiver replaces itself while running: it must survive until it returns.
        log.setReceiver([&](const std::string& message) {
            got.push_back("first:" + message);
            if (message == "outer") {
                log.log("inner");
                log.setReceiver([&](const std::string& next) { got.push_back("second:" + next); });
                log.log("after");
            }
        });
        finishWithin([&] {
            log.log("outer");
            log.log("later");
        });
        QCOMPARE(got, (std::vector<std::string>{"first:outer", "first:inner", "second:after", "second:later"}));
    }

    // Receivers are swapped all the while, so a receiver read while another thread replaces it
    // would show as a lost message or as a fault under the sanitizers.
    void concurrentLoggingDeliversEveryMessage()
    {
        constexpr int threadCount = 6;
        constexpr int perThread = 2000;
        std::vector<std::string> expected;
        for (int n = 0; n < threadCount * perThread; ++n)
            expected.push_back(std::to_string(n));
        Inbox inbox;
        const Log::Receiver toFirst = inbox.receiver();
        const Log::Receiver toSecond = inbox.receiver();
        Log::singleton().setReceiver(toFirst);
        finishWithin([&] {
            std::atomic<bool> logging{true};
            std::thread swapper([&] {
                for (int i = 0; logging; ++i)
                    Log::singleton().setReceiver(i % 2 ? toFirst : toSecond);
            });
            std::vector<std::thread> threads;
            for (int t = 0; t < threadCount; ++t) {
                threads.emplace_back([t] {
                    for (int i = 0; i < perThread; ++i)
                        Log::singleton().log(std::to_string(t * perThread + i));
                });
            }
            for (std::thread& thread : threads)
                thread.join();
            logging = false;
            swapper.join();
        });
        std::sort(expected.begin(), expected.end());
        std::sort(inbox.messages.begin(), inbox.messages.end());
        QVERIFY(inbox.messages == expected);
    }
};

KES_TEST_MAIN(TestLog)
#include "tst_log.moc"
