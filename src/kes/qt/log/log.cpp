#include <kes/qt/log/log.h>

#include <kes/core/log.h>

#include <QCoreApplication>
#include <QMutexLocker>
#include <QTextCursor>

#include <boost/bind/bind.hpp>

namespace kes::qt::log {

namespace {

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

// MessageReceivedEvents in existence that the application made itself. A message queued behind
// an event posted before one of them could overtake it.
std::atomic<int> applicationEvents{0};

} // namespace

std::atomic<Log*> Log::_impl{nullptr};

Log::MessageReceivedEvent::MessageReceivedEvent(int tag, const QString& message)
    : QEvent(messageReceivedType)
    , tag(tag)
    , message(message)
{
    ++applicationEvents;
}

Log::MessageReceivedEvent::MessageReceivedEvent(int tag, const QString& message, quint64 batch)
    : QEvent(messageReceivedType)
    , tag(tag)
    , message(message)
    , m_batch(batch)
{
}

Log::MessageReceivedEvent::MessageReceivedEvent(const MessageReceivedEvent& other)
    : QEvent(other)
    , tag(other.tag)
    , message(other.message)
    , m_batch(other.m_batch)
{
    if (m_batch == 0)
        ++applicationEvents;
}

// Keeps its own m_batch, which the count of the application's events depends on.
Log::MessageReceivedEvent& Log::MessageReceivedEvent::operator=(const MessageReceivedEvent& other)
{
    QEvent::operator=(other);
    tag = other.tag;
    message = other.message;
    return *this;
}

Log::MessageReceivedEvent::~MessageReceivedEvent()
{
    if (m_batch == 0)
        --applicationEvents;
}

Log::Log()
    : Log(false, false)
{
}

Log::Log(bool registerReceiver, bool allowRepeats)
    : m_allowRepeats(allowRepeats)
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
    QTextCursor cursor(this);
    cursor.movePosition(QTextCursor::End);
    if (!m_allowRepeats && text == m_lastMessage) {
        cursor.insertText(QStringLiteral("."));
        return;
    }
    m_lastMessage = text;
    cursor.insertBlock();
    cursor.insertText(text);
}

void Log::log(const QStringList& list)
{
    writeLines(list);
}

void Log::insertEmptyLine()
{
    log(QString());
}

void Log::postLog(const QString& text, int tag)
{
    QMutexLocker lock(&m_queueMutex);
    // The last batch's event is already posted; joining it is safe unless an application's event
    // may have been posted after it.
    if (!m_batches.isEmpty() && applicationEvents.load() == 0) {
        m_batches.last().append(text);
        return;
    }
    m_batches.append(QStringList(text));
    // Posted under the lock, so that the events arrive in the order of their batches. Qt takes
    // the event over.
    const quint64 batch = m_firstBatch + quint64(m_batches.size()) - 1;
    QCoreApplication::postEvent(this, new MessageReceivedEvent(tag, text, batch));
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
    if (event->type() != MessageReceivedEvent::messageReceivedType)
        return;
    auto* received = static_cast<MessageReceivedEvent*>(event);
    if (received->m_batch == 0) {
        log(received->message);
        return;
    }
    // Batches after this event's own were posted later, perhaps after an application's event.
    QList<QStringList> batches;
    {
        QMutexLocker lock(&m_queueMutex);
        while (!m_batches.isEmpty() && m_firstBatch <= received->m_batch) {
            batches.append(m_batches.takeFirst());
            ++m_firstBatch;
        }
    }
    QStringList messages;
    for (const QStringList& batch : qAsConst(batches))
        messages += batch;
    writeLines(messages);
}

// Works out the lines and dots of \a messages first and then inserts, in one go, only what can
// survive the block limit: a flood of messages then costs one edit and one layout of at most a
// full document, instead of one of each per message.
void Log::writeLines(const QStringList& messages)
{
    if (messages.isEmpty())
        return;
    const int limit = maximumBlockCount();
    int dotsOnLastLine = 0;
    QStringList lines;
    QList<int> lineBlocks;
    int blocks = 0;
    for (const QString& text : messages) {
        if (!m_allowRepeats && text == m_lastMessage) {
            if (lines.isEmpty())
                ++dotsOnLastLine;
            else
                lines.last().append(QLatin1Char('.'));
            continue;
        }
        m_lastMessage = text;
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
    QTextCursor cursor(this);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text);
}

} // namespace kes::qt::log
