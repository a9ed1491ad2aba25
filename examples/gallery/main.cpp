#include "aboutpage.h"
#include "mainwindow.h"
#include "page.h"
#include "screenshots.h"
#include "translationpage.h"

#include <kes/qt/translation/manager.h>
#include <kes/qt/translation/menu.h>
#include <kes/qt/version.h>

#include <QApplication>
#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <optional>

namespace {

using kes::gallery::MainWindow;

// Every page of the gallery, in the order of the page list.
void addPages(MainWindow& window)
{
    window.addPage(new kes::gallery::AboutPage);
    window.addPage(new kes::gallery::TranslationPage);
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

// Screenshots keep their hands off the user's settings, the stored language among them: the
// gallery's settings go to \a directory for the rest of the run.
void redirectSettings(const QTemporaryDir& directory)
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, directory.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, directory.path());
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
    // Together they name the settings store in which the language manager keeps the language.
    QApplication::setOrganizationName(QStringLiteral("KES"));
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
    const QCommandLineOption languageOption(
        QStringLiteral("language"),
        translate("Starts in the language <code> (en, de, ...) instead of the stored one; "
                  "screenshots are in English without it."),
        QStringLiteral("code"));
    parser.addOption(screenshotOption);
    parser.addOption(pageOption);
    parser.addOption(languageOption);
    parser.process(app);

    QTextStream err(stderr);
    if (!parser.positionalArguments().isEmpty()) {
        err << translate("Unexpected argument: %1").arg(parser.positionalArguments().constFirst())
            << '\n';
        return 1;
    }

    std::optional<QTemporaryDir> screenshotSettings;
    if (parser.isSet(screenshotOption)) {
        screenshotSettings.emplace();
        if (!screenshotSettings->isValid()) {
            err << translate("Cannot create a temporary directory for the settings: %1")
                       .arg(screenshotSettings->errorString())
                << '\n';
            return 1;
        }
        redirectSettings(*screenshotSettings);
    }

    auto& languages = kes::qt::translation::Manager::singleton();
    const QString languageList = QStringLiteral(":/gallery/languages.xml");
    if (!languages.load(QFileInfo(languageList))) {
        err << translate("Cannot read the language list %1").arg(languageList) << '\n';
        return 1;
    }
    if (parser.isSet(languageOption)) {
        const QString code = parser.value(languageOption);
        if (languages.languageFromShortName(code) < 0) {
            err << translate("There is no language \"%1\"; the languages are: %2")
                       .arg(code, languages.shortNames().join(QStringLiteral(", ")))
                << '\n';
            return 1;
        }
        languages.setLanguage(code);
    } else if (parser.isSet(screenshotOption)) {
        // Whatever the system locale says: screenshots of different machines must compare.
        languages.setLanguage(QStringLiteral("en"));
    }

    MainWindow window;
    addPages(window);
    window.insertMenu(new kes::qt::translation::Menu);

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
