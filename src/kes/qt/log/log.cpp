#include <kes/qt/log/log.h>

#include <kes/core/log.h>

#include <QCoreApplication>
#include <QTextCursor>
#include <QTimer>

#include <boost/bind/bind.hpp>

#include <mutex>
#include <utility>

#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define KES_THREAD_SANITIZER 1
#endif
#endif
#if defined(__SANITIZE_THREAD__) || defined(KES_THREAD_SANITIZER)
#include <sanitizer/tsan_interface.h>
#endif

namespace kes::qt::log {

namespace {

// An event is written by its poster and then read and deleted on the GUI thread. Qt orders the
// two through the lock of its event queue, which ThreadSanitizer cannot see in an uninstrumented
// QtCore; these tell it about the hand-over. They compile to nothing in other builds.
void handOver(const void* event)
{
#if defined(__SANITIZE_THREAD__) || defined(KES_THREAD_SANITIZER)
    __tsan_release(const_cast<void*>(event));
#else
    Q_UNUSED(event)
#endif
}

void takeOver(const void* event)
{
#if defined(__SANITIZE_THREAD__) || defined(KES_THREAD_SANITIZER)
    __tsan_acquire(const_cast<void*>(event));
#else
    Q_UNUSED(event)
#endif
}


constexpr int maximumLines = 100;

// The blocks that inserting \a text into a document at the start of a fresh block adds, counting
// only separators QTextCursor::insertText certainly splits at; an undercount only keeps more.
int blocksOf(const QString& text)
{
    int blocks = 1;
    const int size = text.size();
    for (int i = 0; i < size; ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\n') || c == QChar::ParagraphSeparator)
            ++blocks;
        else if (c == QLatin1Char('\r') && (i + 1 == size || text.at(i + 1) != QLatin1Char('\n')))
            ++blocks;
    }
    return blocks;
}

} // namespace

class LogPrivate
{
public:
    explicit LogPrivate(Log* q, bool allowRepeats);

    // Writes the delivered messages that wait in pending.
    void flush();
    void writeLines(const QStringList& messages);

    Log* const q;
    QString lastMessage;
    bool allowRepeats;

    // Counts postLog() calls; written under postMutex, read by the GUI thread without it.
    std::atomic<quint64> postedSerial{0};
    // One poster at a time: the serials then follow the order of the events, and in a flood the
    // other posters sleep instead of contending with the GUI thread for Qt's event queue.
    // A standard mutex, whose locking ThreadSanitizer sees even when posters contend; QMutex
    // waits inside QtCore, which is not instrumented.
    std::mutex postMutex;
    // GUI thread only: the newest serial delivered, and the messages delivered but not yet written.
    quint64 deliveredSerial = 0;
    QStringList pending;
    // Writes pending once the posted events of this round are through. A timer and not a posted
    // event, so that neither an event filter on the hub nor removePostedEvents() can stop the
    // writing for good; a child, so that it moves to another thread with the hub.
    QTimer* const flushTimer;
};

LogPrivate::LogPrivate(Log* q, bool allowRepeats)
    : q(q)
    , allowRepeats(allowRepeats)
    , flushTimer(new QTimer(q))
{
    flushTimer->setSingleShot(true);
    flushTimer->setInterval(0);
    QObject::connect(flushTimer, &QTimer::timeout, q, [this] { flush(); });
}

void LogPrivate::flush()
{
    flushTimer->stop();
    if (pending.isEmpty())
        return;
    const QStringList messages = std::exchange(pending, QStringList());
    writeLines(messages);
}

std::atomic<Log*> Log::_impl{nullptr};

Log::MessageReceivedEvent::MessageReceivedEvent(int tag, const QString& message)
    : QEvent(messageReceivedType)
    , tag(tag)
    , message(message)
{
}

Log::MessageReceivedEvent::MessageReceivedEvent(int tag, const QString& message, quint64 serial)
    : QEvent(messageReceivedType)
    , tag(tag)
    , message(message)
    , m_serial(serial)
{
}

Log::MessageReceivedEvent::~MessageReceivedEvent()
{
    takeOver(this);
}

Log::Log()
    : Log(false, false)
{
}

Log::Log(bool registerReceiver, bool allowRepeats)
    : d(std::make_unique<LogPrivate>(this, allowRepeats))
{
    setMaximumBlockCount(maximumLines);
    if (registerReceiver) {
        kes::core::Log::singleton().setReceiver(
            boost::bind(&Log::logMessageReceiver, this, boost::placeholders::_1));
    }
}

Log::~Log() = default;

void Log::init(bool allowRepeats)
{
    _impl.store(new Log(true, allowRepeats));
}

void Log::done()
{
    delete _impl.exchange(nullptr);
}

Log* Log::singleton()
{
    return _impl.load();
}

void Log::log(const QString& text)
{
    d->flush();
    QTextCursor cursor(this);
    cursor.movePosition(QTextCursor::End);
    if (!d->allowRepeats && text == d->lastMessage) {
        cursor.insertText(QStringLiteral("."));
        return;
    }
    d->lastMessage = text;
    cursor.insertBlock();
    cursor.insertText(text);
}

void Log::log(const QStringList& list)
{
    d->flush();
    d->writeLines(list);
}

void Log::insertEmptyLine()
{
    log(QString());
}

void Log::postLog(const QString& text, int tag)
{
    auto* event = new MessageReceivedEvent(tag, text, 0);
    const std::lock_guard<std::mutex> lock(d->postMutex);
    event->m_serial = d->postedSerial.load(std::memory_order_relaxed) + 1;
    d->postedSerial.store(event->m_serial);
    // Qt takes the event over.
    handOver(event);
    QCoreApplication::postEvent(this, event);
}

void Log::postEmptyLine()
{
    postLog(QString(), libraryTag);
}

void Log::logMessageReceiver(const std::string& text)
{
    postLog(QString::fromUtf8(text.data(), int(text.size())), libraryTag);
}

void Log::customEvent(QEvent* event)
{
    takeOver(event);
    if (event->type() != MessageReceivedEvent::messageReceivedType)
        return;
    const auto* received = static_cast<const MessageReceivedEvent*>(event);
    d->pending.append(received->message);
    d->deliveredSerial = qMax(d->deliveredSerial, received->m_serial);
    // With nothing newer on its way the message is written at once; in a flood the messages
    // delivered in one pass of the event loop are written together after it.
    if (d->deliveredSerial == d->postedSerial.load())
        d->flush();
    else if (!d->flushTimer->isActive())
        d->flushTimer->start();
}

// Works out the lines and dots of \a messages first and then inserts, in one go, only what can
// survive the block limit: a flood of messages then costs one edit and one layout of at most a
// full document, instead of one of each per message.
void LogPrivate::writeLines(const QStringList& messages)
{
    if (messages.isEmpty())
        return;
    const int limit = q->maximumBlockCount();
    int dotsOnLastLine = 0;
    QStringList lines;
    QList<int> lineBlocks;
    int blocks = 0;
    for (const QString& text : messages) {
        if (!allowRepeats && text == lastMessage) {
            if (lines.isEmpty())
                ++dotsOnLastLine;
            else
                lines.last().append(QLatin1Char('.'));
            continue;
        }
        lastMessage = text;
        lines.append(text);
        lineBlocks.append(blocksOf(text));
        blocks += lineBlocks.last();
        // The oldest line goes once the newer ones fill the document by themselves.
        while (limit > 0 && blocks - lineBlocks.first() >= limit) {
            blocks -= lineBlocks.takeFirst();
            lines.removeFirst();
        }
    }

    QString text(dotsOnLastLine, QLatin1Char('.'));
    for (const QString& line : qAsConst(lines)) {
        text.append(QChar::ParagraphSeparator);
        text.append(line);
    }
    QTextCursor cursor(q);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text);
}

} // namespace kes::qt::log
