#ifndef KES_TESTS_KESTEST_H
#define KES_TESTS_KESTEST_H

// Shared main for the library's Qt Test executables. Every test runs on the offscreen platform with
// its own settings, configuration and runtime folders, and any Qt warning or critical message that
// the test did not announce with kes::test::ignoreWarning() fails the test function it came from.

#include <QApplication>
#include <QRegularExpression>
#include <QString>

class QObject;

namespace kes::test {

/// Environment for a headless, isolated run; must come before the application object.
void prepareEnvironment();

/// Runs the test object with warnings made fatal to the current test function.
int exec(QObject* testObject, int argc, char** argv);

/// Expects one warning (or critical message) matching \a pattern: it neither fails the test nor is
/// printed. Like QTest::ignoreMessage, and QTest complains when it does not arrive.
void ignoreWarning(const QRegularExpression& pattern, QtMsgType type = QtWarningMsg);
void ignoreWarning(const QString& exactMessage, QtMsgType type = QtWarningMsg);

} // namespace kes::test

#define KES_TEST_MAIN(TestClass)                                                                   \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        kes::test::prepareEnvironment();                                                           \
        QApplication app(argc, argv);                                                              \
        app.setAttribute(Qt::AA_Use96Dpi, true);                                                   \
        TestClass testObject;                                                                      \
        return kes::test::exec(&testObject, argc, argv);                                           \
    }

#endif
