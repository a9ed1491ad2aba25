#include "kestest.h"

#include "privatehome.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <cstdio>
#include <memory>

namespace kes::test {

namespace {

QtMessageHandler g_qtestHandler = nullptr;
QMutex g_mutex;
QList<QRegularExpression> g_expected;
QByteArray g_pendingFailure; // a warning from another thread, reported on the GUI thread
QObject* g_reporter = nullptr;
std::unique_ptr<QTemporaryDir> g_home; // removed with everything in it when the run ends

// Messages the offscreen platform prints about features it cannot offer; they say nothing about
// the code under test.
bool isPlatformNoise(const QString& message)
{
    static const char* const noise[] = {
        "This plugin does not support propagateSizeHints()",
        "This plugin does not support raise()",
        "This plugin does not support grabbing the keyboard",
        "This plugin does not support grabbing the mouse",
        "This plugin does not support setting window opacity",
        "This plugin does not support setting window masks",
    };
    for (const char* text : noise) {
        if (message.startsWith(QLatin1String(text)))
            return true;
    }
    return false;
}

bool takeExpected(const QString& message)
{
    QMutexLocker lock(&g_mutex);
    for (int i = 0; i < g_expected.size(); ++i) {
        if (g_expected.at(i).match(message).hasMatch()) {
            g_expected.removeAt(i);
            return true;
        }
    }
    return false;
}

void failOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // QTest sees every message first, so that it prints it or ticks off its own expectation.
    g_qtestHandler(type, context, message);
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (!isWarning || takeExpected(message) || isPlatformNoise(message))
        return;
    const QByteArray text = "Unexpected Qt " + QByteArray(type == QtWarningMsg ? "warning" : "critical")
                            + ": " + message.toLocal8Bit();
    if (QCoreApplication::instance() && QThread::currentThread() != QCoreApplication::instance()->thread()) {
        QMutexLocker lock(&g_mutex);
        if (g_pendingFailure.isEmpty() && g_reporter)
            QCoreApplication::postEvent(g_reporter, new QEvent(QEvent::User));
        if (g_pendingFailure.isEmpty())
            g_pendingFailure = text;
        return;
    }
    QTest::qFail(text.constData(), context.file ? context.file : "unknown", context.line);
}

// Worker-thread warnings cannot touch the test log directly: they are handed to this object on the
// GUI thread and fail whichever test function is running when the event loop delivers them.
class PendingFailureReporter : public QObject
{
public:
    static QByteArray take()
    {
        QMutexLocker lock(&g_mutex);
        QByteArray text;
        text.swap(g_pendingFailure);
        return text;
    }

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        const QByteArray text = take();
        if (!text.isEmpty())
            QTest::qFail(text.constData(), "worker thread", 0);
        return true;
    }
};

void setIfUnset(const char* name, const QByteArray& value)
{
    if (qEnvironmentVariableIsEmpty(name))
        qputenv(name, value);
}

} // namespace

void prepareEnvironment()
{
    setIfUnset("QT_QPA_PLATFORM", "offscreen");
    g_home = makePrivateHome(QStringLiteral("kes-test"));
    QCoreApplication::setOrganizationName(QStringLiteral("kes-tests"));
}

int exec(QObject* testObject, int argc, char** argv)
{
    QTest::qInit(testObject, argc, argv);
    // QTest installs its own handler in qInit; ours goes on top and passes everything to it.
    PendingFailureReporter reporter;
    g_reporter = &reporter;
    g_qtestHandler = qInstallMessageHandler(failOnWarning);
    int result = QTest::qRun();
    qInstallMessageHandler(g_qtestHandler);
    g_reporter = nullptr;
    // A worker's warning that no event loop delivered before the end still fails the run.
    const QByteArray late = PendingFailureReporter::take();
    if (!late.isEmpty()) {
        std::fprintf(stderr, "FAIL!  : %s (reported after the last test function)\n", late.constData());
        ++result;
    }
    QTest::qCleanup();
    g_home.reset();
    return result;
}

void ignoreWarning(const QRegularExpression& pattern, QtMsgType type)
{
    {
        QMutexLocker lock(&g_mutex);
        g_expected.append(pattern);
    }
    QTest::ignoreMessage(type, pattern);
}

void ignoreWarning(const QString& exactMessage, QtMsgType type)
{
    ignoreWarning(QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(exactMessage) + QLatin1Char('$')), type);
}

} // namespace kes::test
