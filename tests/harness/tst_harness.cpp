// Exercises the warning guard itself. Some functions here are meant to fail; checkharness.cmake
// runs this executable and compares each function's verdict with the one it must have.
#include "kestest.h"

#include <QThread>
#include <QtTest>

class TstHarness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unexpectedWarningFails() { qWarning("boom"); }
    void unexpectedCriticalFails() { qCritical("bang"); }
    void ignoredWarningPasses()
    {
        kes::test::ignoreWarning(QStringLiteral("expected one"));
        qWarning("expected one");
    }
    void ignoredWarningIsUsedOnlyOnce()
    {
        kes::test::ignoreWarning(QStringLiteral("only once"));
        qWarning("only once");
        qWarning("only once");
    }
    void debugOutputPasses() { qDebug("just talking"); }
    void platformNoisePasses() { qWarning("This plugin does not support propagateSizeHints()"); }
    void workerThreadWarningFails()
    {
        QThread* worker = QThread::create([] { qWarning("from a worker"); });
        worker->start();
        worker->wait();
        delete worker;
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
    void settingsAreIsolated()
    {
        QVERIFY(qEnvironmentVariable("XDG_CONFIG_HOME").contains(QLatin1String("kes-test-")));
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("offscreen"));
    }
};

KES_TEST_MAIN(TstHarness)
#include "tst_harness.moc"
