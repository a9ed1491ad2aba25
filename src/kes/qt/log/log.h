#ifndef KES_QT_LOG_LOG_H
#define KES_QT_LOG_LOG_H

#include <kes/qt/kes_qt_export.h>

#include <QEvent>
#include <QString>
#include <QStringList>
#include <QTextDocument>

#include <atomic>
#include <memory>
#include <string>

namespace kes::qt::log {

class LogPrivate;

/// The process-wide log of a GUI application, and the document the log window shows: every
/// message is one line (text block), and only the newest 100 lines are kept.
///
/// Messages come from direct log() calls on the GUI thread, from the core library's log
/// (kes::core::Log) once the hub is its receiver, and from streams taken over by an
/// OStreamRedirector. With repeats off, a message equal to the previous one adds a "." to that
/// line instead of a new line.
///
/// postLog(), postEmptyLine() and logMessageReceiver() may be called from any thread and never wait
/// for the GUI (posters only take turns to post): each message travels to the hub's thread in its own MessageReceivedEvent, which an
/// event filter on the hub sees with its tag and text and may swallow (that message alone is then
/// not written). customEvent() collects the delivered messages and writes them in one edit of the
/// document once no newer posted message is on its way, or else from the event loop right after
/// the posted events, with exactly the lines, dots and order that writing the messages one by one
/// would give. Lines keep their posting order, the application's own MessageReceivedEvents
/// included, and a direct log() call first writes what was delivered before it.
///
/// The application calls init() once after creating its QApplication, and done() at shutdown,
/// after the log windows and redirectors are gone.
class KES_QT_EXPORT Log : public QTextDocument
{
    Q_OBJECT

public:
    /// A message handed to the hub's thread. Type 1000 (QEvent::User); the tag travels along and is
    /// not read by the hub (the library's own messages carry 255).
    class KES_QT_EXPORT MessageReceivedEvent : public QEvent
    {
    public:
        /// The event type, 1000.
        static constexpr QEvent::Type messageReceivedType = QEvent::User;

        /// An event of the application's own, delivered in its place among the posted messages.
        MessageReceivedEvent(int tag, const QString& message);
        ~MessageReceivedEvent() override;

        /// Passed along for event filters; the hub does not read it.
        int tag;
        /// The line to be written.
        QString message;

    private:
        friend class Log;
        MessageReceivedEvent(int tag, const QString& message, quint64 serial);

        // The hub's count of postLog() calls when this one was posted; 0 on the application's own.
        quint64 m_serial = 0;
    };

    /// The tag of every message the library posts itself.
    static constexpr int libraryTag = 255;

    /// Repeats off, not registered with the core log.
    Log();
    /// With \a registerReceiver, becomes the receiver of kes::core::Log::singleton(); the core
    /// library must not log any more once this hub is deleted.
    Log(bool registerReceiver, bool allowRepeats);
    ~Log() override;

    /// Creates the hub, registered with the core log, as singleton(). A second call replaces the
    /// pointer and leaves the earlier hub alive (and, as the core log's receiver, replaced).
    static void init(bool allowRepeats = false);
    /// Deletes the singleton hub, if any. The core log keeps its receiver, bound to the deleted hub.
    static void done();
    /// The hub created by init(); null before init() and after done(). Any thread.
    static Log* singleton();

    /// GUI thread only.
    void log(const QString& text);
    /// GUI thread only; the same lines as log() of each string in order, in one edit.
    void log(const QStringList& list);
    /// GUI thread only.
    void insertEmptyLine();

    /// Any thread.
    void postLog(const QString& text, int tag = libraryTag);
    /// Any thread.
    void postEmptyLine();
    /// The core library's receiver: \a text is UTF-8. Any thread.
    void logMessageReceiver(const std::string& text);

protected:
    void customEvent(QEvent* event) override;

private:
    friend class LogPrivate;
    static std::atomic<Log*> _impl;

    std::unique_ptr<LogPrivate> const d;
};

} // namespace kes::qt::log

#endif
