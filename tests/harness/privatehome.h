#ifndef KES_TESTS_PRIVATEHOME_H
#define KES_TESTS_PRIVATEHOME_H

// Private configuration, data, cache and runtime folders for a test or benchmark run, so that it
// never reads or writes the user's real settings and Qt does not warn about a missing runtime
// folder. Header-only: the benchmarks use it without linking the test harness.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileDevice>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace kes::test {

/// Creates the folders in a new temporary directory named after \a prefix and points the XDG
/// variables at them; must run before the application object. Everything is removed with the
/// returned directory.
inline std::unique_ptr<QTemporaryDir> makePrivateHome(const QString& prefix)
{
    auto home = std::make_unique<QTemporaryDir>(QDir::tempPath() + QLatin1Char('/') + prefix
                                                + QStringLiteral("-XXXXXX"));
    if (!home->isValid())
        return nullptr;
    const QByteArray root = QFile::encodeName(home->path());
    for (const char* sub : {"/config", "/data", "/cache", "/runtime"})
        QDir().mkpath(QString::fromLocal8Bit(root + sub));
    QFile::setPermissions(QString::fromLocal8Bit(root + "/runtime"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("XDG_CONFIG_HOME", root + "/config");
    qputenv("XDG_DATA_HOME", root + "/data");
    qputenv("XDG_CACHE_HOME", root + "/cache");
    qputenv("XDG_RUNTIME_DIR", root + "/runtime");
    return home;
}

} // namespace kes::test

#endif
