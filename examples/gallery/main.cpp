#include "aboutpage.h"
#include "camerapage.h"
#include "curveeditorpage.h"
#include "inputwidgetspage.h"
#include "laserpage.h"
#include "logpage.h"
#include "mainwindow.h"
#include "page.h"
#include "scopepage.h"
#include "screenshots.h"
#include "smallwidgetspage.h"
#include "translationpage.h"

#include <kes/core/log.h>
#include <kes/qt/log/log.h>
#include <kes/qt/translation/manager.h>
#include <kes/qt/translation/menu.h>
#include <kes/qt/version.h>

#include <QApplication>
#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>
#include <QVariant>
#include <QVariantMap>

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
    window.addPage(new kes::gallery::LogPage(window));
    window.addPage(new kes::gallery::ScopePage);
    window.addPage(new kes::gallery::CurveEditorPage);
    window.addPage(new kes::gallery::CameraPage);
    window.addPage(new kes::gallery::LaserPage);
    window.addPage(new kes::gallery::InputWidgetsPage);
    window.addPage(new kes::gallery::SmallWidgetsPage);
}

// The log hub for the whole run; declared before the window, whose log panel shows it, so that it
// goes after it.
//! [log-hub]
class LogHub
{
public:
    LogHub() { kes::qt::log::Log::init(); }
    ~LogHub()
    {
        // Nothing of the core library may reach the deleted hub.
        kes::core::Log::singleton().setReceiver({});
        kes::qt::log::Log::done();
    }
    LogHub(const LogHub&) = delete;
    LogHub& operator=(const LogHub&) = delete;
};
//! [log-hub]

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

// The context of main()'s texts; Q_DECLARE_TR_FUNCTIONS lets lupdate see them, unlike a helper
// taking the text as a variable.
class Main
{
    Q_DECLARE_TR_FUNCTIONS(main)
};

struct Options
{
    QCommandLineOption screenshot;
    QCommandLineOption page;
    QCommandLineOption language;
};

// The options, described in the current language.
Options createOptions()
{
    return {
        QCommandLineOption(QStringLiteral("screenshot"),
                           Main::tr("Saves a picture of the window with each page as "
                                    "<dir>/<page id>.png, then exits."),
                           QStringLiteral("dir")),
        QCommandLineOption(QStringLiteral("page"), Main::tr("Shows the page <id> at start-up."),
                           QStringLiteral("id")),
        QCommandLineOption(QStringLiteral("language"),
                           Main::tr("Starts in the language <code> (en, de, ...) instead of the "
                                    "stored one; screenshots are in English without it."),
                           QStringLiteral("code")),
    };
}

void setUpParser(QCommandLineParser& parser, const Options& options)
{
    parser.setApplicationDescription(Main::tr("Shows the widgets of libkes_qt, one page each."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(options.screenshot);
    parser.addOption(options.page);
    parser.addOption(options.language);
}

// The gallery's settings go to \a directory for the rest of the run, so that nothing is stored in
// the user's; with \a copy, they start as a copy of the user's.
void redirectSettings(const QTemporaryDir& directory, bool copy)
{
    QVariantMap values;
    if (copy) {
        const QSettings user;
        const QStringList keys = user.allKeys();
        for (const QString& key : keys) {
            values.insert(key, user.value(key));
        }
    }
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, directory.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, directory.path());
    QSettings redirected;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        redirected.setValue(it.key(), it.value());
    }
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

    // The help must be built in the start language, which is only known once the settings are
    // redirected for screenshots and the language list is loaded. A first, silent pass finds the
    // options that decide both; the second pass reports errors and answers --help and --version.
    const Options earlyOptions = createOptions();
    QCommandLineParser earlyParser;
    setUpParser(earlyParser, earlyOptions);
    earlyParser.parse(QCoreApplication::arguments());

    // Screenshots keep their hands off the user's settings, the stored language among them, and so
    // do --help and --version; these work on a copy, to answer in the stored language.
    const bool textOnlyRun = earlyParser.isSet(QStringLiteral("help"))
                             || earlyParser.isSet(QStringLiteral("help-all"))
                             || earlyParser.isSet(QStringLiteral("version"));
    // Until the language list is loaded, messages can only be in English.
    QTextStream err(stderr);
    std::optional<QTemporaryDir> settingsDirectory;
    if (earlyParser.isSet(earlyOptions.screenshot) || textOnlyRun) {
        settingsDirectory.emplace();
        if (!settingsDirectory->isValid()) {
            err << Main::tr("Cannot create a temporary directory for the settings: %1")
                       .arg(settingsDirectory->errorString())
                << '\n';
            return 1;
        }
        redirectSettings(*settingsDirectory, !earlyParser.isSet(earlyOptions.screenshot));
    }

    //! [languages]
    // Qt's own texts (the colour dialog, a text field's Undo/Cut/Paste menu) come from Qt's
    // catalogues, which the language manager looks for first where QTTRANSLATIONDIR points.
    if (qEnvironmentVariableIsEmpty("QTTRANSLATIONDIR")) {
        qputenv("QTTRANSLATIONDIR",
                QFile::encodeName(QLibraryInfo::location(QLibraryInfo::TranslationsPath)));
    }
    auto& languages = kes::qt::translation::Manager::singleton();
    // The gallery's own message files, "kes_gallery_<language>.qm", built from translations/.
    languages.addTranslatorSearchPath(QStringLiteral(":/gallery/translations/"));
    const QString languageList = QStringLiteral(":/gallery/languages.xml");
    if (!languages.load(QFileInfo(languageList))) {
        err << Main::tr("Cannot read the language list %1").arg(languageList) << '\n';
        return 1;
    }
    //! [languages]
    // An unknown code is reported after the second pass, in the language it leaves in place.
    if (earlyParser.isSet(earlyOptions.language)) {
        const QString code = earlyParser.value(earlyOptions.language);
        if (languages.languageFromShortName(code) >= 0) {
            languages.setLanguage(code);
        }
    } else if (earlyParser.isSet(earlyOptions.screenshot)) {
        // Whatever the system locale says: screenshots of different machines must compare.
        languages.setLanguage(QStringLiteral("en"));
    }

    const Options options = createOptions();
    QCommandLineParser parser;
    setUpParser(parser, options);
    parser.process(app);

    if (!parser.positionalArguments().isEmpty()) {
        err << Main::tr("Unexpected argument: %1").arg(parser.positionalArguments().constFirst())
            << '\n';
        return 1;
    }
    if (parser.isSet(options.language)) {
        const QString code = parser.value(options.language);
        if (languages.languageFromShortName(code) < 0) {
            err << Main::tr("There is no language \"%1\"; the languages are: %2")
                       .arg(code, languages.shortNames().join(QStringLiteral(", ")))
                << '\n';
            return 1;
        }
    }

    const LogHub logHub;
    MainWindow window;
    addPages(window);
    //! [language-menu]
    window.insertMenu(new kes::qt::translation::Menu);
    //! [language-menu]

    if (parser.isSet(options.page)) {
        const QString id = parser.value(options.page);
        if (!window.setCurrentPage(id)) {
            QStringList ids;
            for (const auto* page : window.pages()) {
                ids << page->id();
            }
            err << Main::tr("There is no page \"%1\"; the pages are: %2")
                       .arg(id, ids.join(QStringLiteral(", ")))
                << '\n';
            return 1;
        }
    }

    if (parser.isSet(options.screenshot)) {
        const QString directory = parser.value(options.screenshot);
        if (directory.isEmpty()) {
            err << Main::tr("--screenshot needs a directory") << '\n';
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
