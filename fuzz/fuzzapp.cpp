#include "fuzzapp.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace kes::fuzz {

namespace {

void quiet(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "Qt fatal: %s\n", qPrintable(message));
        std::abort();
    }
}

} // namespace

QString temporaryFolder()
{
    // Files written for every input: memory is much faster than a disk where there is one.
    static const QString folder = QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                                      ? QStringLiteral("/dev/shm")
                                      : QDir::tempPath();
    return folder;
}

void ensureApplication()
{
    if (QCoreApplication::instance())
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Settings the language manager writes go to a folder of the run's own.
    static QTemporaryDir home(temporaryFolder() + QStringLiteral("/kes_fuzz_XXXXXX"));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    qunsetenv("QTTRANSLATIONDIR");
    qInstallMessageHandler(quiet);
    static int argc = 1;
    static char name[] = "kes_fuzz";
    static char* argv[] = {name, nullptr};
    new QApplication(argc, argv);
    QLocale::setDefault(QLocale::c());
}

void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

QString text(const std::uint8_t* data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
}

QByteArray bytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), int(size));
}

} // namespace kes::fuzz
