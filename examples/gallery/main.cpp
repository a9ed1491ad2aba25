#include "aboutpage.h"
#include "mainwindow.h"
#include "page.h"
#include "screenshots.h"

#include <kes/qt/version.h>

#include <QApplication>
#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QStringList>
#include <QTextStream>

#include <cstddef>
#include <cstring>
#include <initializer_list>

namespace {

using kes::gallery::MainWindow;

// Every page of the gallery, in the order of the page list.
void addPages(MainWindow& window)
{
    window.addPage(new kes::gallery::AboutPage);
}

bool hasOption(int argc, char** argv, std::initializer_list<const char*> names)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--") == 0) {
            return false;
        }
        for (const char* name : names) {
            const std::size_t length = std::strlen(name);
            if (std::strncmp(argv[i], name, length) == 0
                && (argv[i][length] == '\0' || argv[i][length] == '=')) {
                return true;
            }
        }
    }
    return false;
}

QString translate(const char* text)
{
    return QCoreApplication::translate("main", text);
}

} // namespace

int main(int argc, char** argv)
{
    // The platform plugin is fixed when QApplication is constructed, before the parser can run;
    // screenshots and the help and version texts must work without a display.
    const bool screenshots = hasOption(argc, argv, {"--screenshot"});
    const bool textOnly =
        hasOption(argc, argv, {"-h", "-?", "--help", "--help-all", "-v", "--version"});
    if ((screenshots || textOnly) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (screenshots) {
        // Font sizes must not depend on the DPI the platform plugin happens to report.
        QApplication::setAttribute(Qt::AA_Use96Dpi);
    }
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kes_gallery"));
    QApplication::setApplicationVersion(QStringLiteral(KES_VERSION_STRING));

    QCommandLineParser parser;
    parser.setApplicationDescription(translate("Shows the widgets of libkes_qt, one page each."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"),
        translate("Saves a picture of the window with each page as <dir>/<page id>.png, "
                  "then exits."),
        QStringLiteral("dir"));
    const QCommandLineOption pageOption(QStringLiteral("page"),
                                       translate("Shows the page <id> at start-up."),
                                       QStringLiteral("id"));
    parser.addOption(screenshotOption);
    parser.addOption(pageOption);
    parser.process(app);

    QTextStream err(stderr);
    if (!parser.positionalArguments().isEmpty()) {
        err << translate("Unexpected argument: %1").arg(parser.positionalArguments().constFirst())
            << '\n';
        return 1;
    }

    MainWindow window;
    addPages(window);

    if (parser.isSet(pageOption)) {
        const QString id = parser.value(pageOption);
        if (!window.setCurrentPage(id)) {
            QStringList ids;
            for (const auto* page : window.pages()) {
                ids << page->id();
            }
            err << translate("There is no page \"%1\"; the pages are: %2")
                       .arg(id, ids.join(QStringLiteral(", ")))
                << '\n';
            return 1;
        }
    }

    if (parser.isSet(screenshotOption)) {
        const QString directory = parser.value(screenshotOption);
        if (directory.isEmpty()) {
            err << translate("--screenshot needs a directory") << '\n';
            return 1;
        }
        QString error;
        if (!kes::gallery::writeScreenshots(window, directory, &error)) {
            err << error << '\n';
            return 1;
        }
        return 0;
    }

    window.show();
    return app.exec();
}
