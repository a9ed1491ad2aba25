#include "session.h"

#include "privatehome.h"
#include "summaryreporter.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

namespace kes::bench {

Session::Session(int& argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Before the application object, which reads the folders' locations.
    m_home = kes::test::makePrivateHome(QStringLiteral("kes-bench"));
    m_qtArgv[0] = argv[0];
    m_app = std::make_unique<QApplication>(m_qtArgc, m_qtArgv);
    QCoreApplication::setOrganizationName(QStringLiteral("kes-bench"));

    m_options = consoleOptions(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return;
    if (!m_home || !QDir().mkpath(scratchPath())) {
        std::fprintf(stderr, "cannot create a temporary folder\n");
        return;
    }
    m_ready = true;
}

Session::~Session()
{
    benchmark::Shutdown();
}

QString Session::scratchPath() const
{
    return m_home ? m_home->filePath(QStringLiteral("files")) : QString();
}

} // namespace kes::bench
