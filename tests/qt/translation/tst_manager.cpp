#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

using kes::qt::translation::Manager;

namespace {

struct Lang
{
    QString fullName;
    QString shortName;
    QString actionName;
};

QString writeLanguageList(const QDir& dir, const QString& name, const QList<Lang>& languages,
                          const char* root = "translations")
{
    QString xml = QStringLiteral("<%1>").arg(QLatin1String(root));
    for (const Lang& lang : languages) {
        xml += QStringLiteral("<language fullName=\"%1\" shortName=\"%2\" actionName=\"%3\"/>")
                   .arg(lang.fullName.toHtmlEscaped(), lang.shortName.toHtmlEscaped(),
                        lang.actionName.toHtmlEscaped());
    }
    xml += QStringLiteral("</%1>").arg(QLatin1String(root));
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    file.write(xml.toUtf8());
    return file.fileName();
}

QList<Lang> langs(const QStringList& shortNames)
{
    QList<Lang> result;
    for (const QString& name : shortNames)
        result.append({name, name, QString()});
    return result;
}

// Copies one of the message files compiled for these tests to \a target.
bool installQm(const char* compiled, const QString& target)
{
    QDir().mkpath(QFileInfo(target).absolutePath());
    return QFile::copy(QStringLiteral(KES_TEST_QM_DIR "/%1.qm").arg(QLatin1String(compiled)), target);
}

QString hello()
{
    return QCoreApplication::translate("tst_manager", "Hello");
}

} // namespace

class tst_Manager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void normalisesSearchPaths_data();
    void normalisesSearchPaths();
    void refusesFileWithoutLanguageList_data();
    void refusesFileWithoutLanguageList();
    void offersOneExclusiveActionPerLanguage();
    void choosesStartLanguage_data();
    void choosesStartLanguage();
    void switchingLanguageSwapsInstalledTranslators();
    void takesFirstQtMessageFileThatLoads_data();
    void takesFirstQtMessageFileThatLoads();
    void secondLoadJoinsActionsAndReloadsTranslators();
    void selectsOnlyWhenAsked_data();
    void selectsOnlyWhenAsked();

private:
    QScopedPointer<QTemporaryDir> m_dir;
};

void tst_Manager::init()
{
    QSettings().clear();
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
}

void tst_Manager::cleanup()
{
    qunsetenv("QTTRANSLATIONDIR");
    qunsetenv("QTDIR");
}

void tst_Manager::normalisesSearchPaths_data()
{
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<QStringList>("expected");

    const QString builtIn = QStringLiteral(":/kes_translation_translations/");
    QTest::newRow("built-in only") << QStringList() << QStringList{builtIn};
    QTest::newRow("slash appended") << QStringList{"/opt/app/i18n"}
                                    << QStringList{builtIn, "/opt/app/i18n/"};
    QTest::newRow("backslashes") << QStringList{"C:\\App\\i18n\\"}
                                 << QStringList{builtIn, "C:/App/i18n/"};
    QTest::newRow("same after normalising") << QStringList{"/a/b", "/a/b/", "\\a\\b"}
                                            << QStringList{builtIn, "/a/b/"};
    QTest::newRow("case matters") << QStringList{"/a/B", "/a/b"}
                                  << QStringList{builtIn, "/a/B/", "/a/b/"};
    QTest::newRow("built-in again") << QStringList{builtIn} << QStringList{builtIn};
}

void tst_Manager::normalisesSearchPaths()
{
    QFETCH(QStringList, added);
    Manager manager;
    for (const QString& path : added)
        manager.addTranslatorSearchPath(path);
    QTEST(manager.translatorSearchPaths(), "expected");
}

void tst_Manager::refusesFileWithoutLanguageList_data()
{
    QTest::addColumn<QString>("path");

    const QDir dir(m_dir->path());
    QTest::newRow("missing file") << dir.filePath("none.xml");
    QTest::newRow("other document element")
        << writeLanguageList(dir, "other.xml", langs({"de"}), "languages");
    QTest::newRow("document element in other case")
        << writeLanguageList(dir, "case.xml", langs({"de"}), "Translations");
    QFile junk(dir.filePath("junk.xml"));
    QVERIFY(junk.open(QIODevice::WriteOnly));
    junk.write("<translations><language shortName=");
    QTest::newRow("not XML") << junk.fileName();
}

void tst_Manager::refusesFileWithoutLanguageList()
{
    QFETCH(QString, path);
    Manager manager;
    QSignalSpy changed(&manager, SIGNAL(languageChanged()));
    QVERIFY(!manager.load(QFileInfo(path)));
    QVERIFY(manager.shortNames().isEmpty());
    QVERIFY(manager.findChildren<QAction*>().isEmpty());
    QCOMPARE(changed.count(), 0);
    QVERIFY(!QSettings().contains("language"));
}

void tst_Manager::offersOneExclusiveActionPerLanguage()
{
    QSettings().setValue("language", "en");
    const QString path = writeLanguageList(QDir(m_dir->path()), "list.xml",
                                           {{"English", "en", ""},
                                            {"Deutsch", "de", "&Deutsch (Schweiz)"},
                                            {"Deutsch", "de", ""}});
    Manager manager;
    QVERIFY(manager.load(QFileInfo(path)));

    QCOMPARE(manager.shortNames(), (QStringList{"en", "de", "de"}));
    QCOMPARE(manager.fullNames(), (QStringList{"English", "Deutsch", "Deutsch"}));
    const QList<QAction*> actions = manager.languageActions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions.at(0)->text(), QStringLiteral("English"));
    QCOMPARE(actions.at(1)->text(), QStringLiteral("&Deutsch (Schweiz)"));
    QCOMPARE(actions.at(2)->text(), QStringLiteral("Deutsch"));
    for (QAction* action : actions) {
        QVERIFY(action->isCheckable());
        QCOMPARE(action->parent(), &manager);
        QCOMPARE(action->actionGroup(), actions.at(0)->actionGroup());
    }
    QVERIFY(actions.at(0)->actionGroup()->isExclusive());

    // Lookups find the first match only.
    QCOMPARE(manager.languageFromShortName("de"), 1);
    QCOMPARE(manager.languageFromFullName("Deutsch"), 1);
    QCOMPARE(manager.languageFromActionName("Deutsch"), 2);
    QCOMPARE(manager.languageFromShortName("DE"), -1);
    QCOMPARE(manager.languageFromActionName("&Deutsch"), -1);

    // A triggered action switches only to another language; the action's text decides which.
    QSignalSpy changed(&manager, SIGNAL(languageChanged()));
    actions.at(0)->trigger();
    QCOMPARE(changed.count(), 0);
    actions.at(2)->trigger();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(manager.currentLanguage(), 2);
    QCOMPARE(QSettings().value("language").toString(), QStringLiteral("de"));
    manager.on_actionTriggered(nullptr);
    QAction stranger(QStringLiteral("Klingon"), nullptr);
    manager.on_actionTriggered(&stranger);
    QCOMPARE(changed.count(), 1);
}

void tst_Manager::choosesStartLanguage_data()
{
    QTest::addColumn<QStringList>("offered");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("expected");

    const QVariant none;
    QTest::newRow("system language") << QStringList{"de", "fr"} << none << "fr";
    QTest::newRow("system language not offered") << QStringList{"de", "en"} << none << "de";
    QTest::newRow("stored language") << QStringList{"de", "fr"} << QVariant("de") << "de";
    QTest::newRow("stored unknown, system offered") << QStringList{"de", "fr"} << QVariant("xx")
                                                    << "fr";
    QTest::newRow("stored unknown, first offered") << QStringList{"en", "es"} << QVariant("xx")
                                                   << "en";
    QTest::newRow("stored in other case") << QStringList{"de", "fr"} << QVariant("DE") << "fr";
    QTest::newRow("no languages") << QStringList() << none << "";
}

void tst_Manager::choosesStartLanguage()
{
    if (QLocale::system().name() != QLatin1String("fr_CH"))
        QSKIP("needs the system locale fr_CH (CTest runs this test with LC_ALL=fr_CH.UTF-8)");
    QFETCH(QStringList, offered);
    QFETCH(QVariant, stored);
    QFETCH(QString, expected);
    if (stored.isValid())
        QSettings().setValue("language", stored);

    Manager manager;
    QVERIFY(manager.currentLanguageString().isEmpty());
    QSignalSpy changed(&manager, SIGNAL(languageChanged()));
    QVERIFY(manager.load(QFileInfo(writeLanguageList(QDir(m_dir->path()), "list.xml",
                                                     langs(offered)))));

    QCOMPARE(manager.currentLanguageString(), expected);
    QCOMPARE(changed.count(), expected.isEmpty() ? 0 : 1);
    QCOMPARE(QSettings().value("language"), expected.isEmpty() ? QVariant() : QVariant(expected));
    if (!expected.isEmpty())
        QVERIFY(manager.languageActions().at(manager.currentLanguage())->isChecked());
}

void tst_Manager::switchingLanguageSwapsInstalledTranslators()
{
    const QDir dir(m_dir->path());
    QVERIFY(installQm("greeting_de", dir.filePath("qm/app_de.qm")));
    QVERIFY(installQm("greeting_fr", dir.filePath("qm/app_fr.qm")));
    QSettings().setValue("language", "en");

    Manager manager;
    manager.addTranslatorSearchPath(dir.filePath("qm"));
    QVERIFY(manager.load(QFileInfo(writeLanguageList(dir, "list.xml", langs({"en", "de", "fr"})))));
    QSignalSpy changed(&manager, SIGNAL(languageChanged()));

    const struct
    {
        const char* lang;
        const char* greeting;
        const char* libraryText; // compiled into the library, found without any search path
    } steps[] = {{"de", "Hallo", "&Sprachen"},
                 {"fr", "Bonjour", "&Langues"},
                 {"en", "Hello", "&Languages"},
                 {"de", "Hallo", "&Sprachen"}};
    for (const auto& step : steps) {
        manager.setLanguage(QString::fromLatin1(step.lang));
        QCOMPARE(manager.currentLanguageString(), QLatin1String(step.lang));
        QCOMPARE(hello(), QLatin1String(step.greeting));
        QCOMPARE(QCoreApplication::translate("kes::qt::translation::Menu", "&Languages"),
                 QLatin1String(step.libraryText));
        QCOMPARE(QSettings().value("language").toString(), QLatin1String(step.lang));
    }
    QCOMPARE(changed.count(), 4);

    // A translator added later counts from the next selection of its language on.
    QVERIFY(installQm("greeting_fr", dir.filePath("late_de.qm")));
    manager.addTranslator("de", dir.filePath("late_de.qm"));
    manager.addTranslator("xx", dir.filePath("late_de.qm"));
    manager.addTranslator("de", dir.filePath("missing.qm"));
    QCOMPARE(hello(), QStringLiteral("Hallo"));
    manager.setLanguage(manager.currentLanguage());
    QCOMPARE(hello(), QStringLiteral("Bonjour")); // the last installed is asked first
}

void tst_Manager::takesFirstQtMessageFileThatLoads_data()
{
    QTest::addColumn<QString>("lang");
    QTest::addColumn<bool>("translationDirSet");
    QTest::addColumn<bool>("qtDirSet");
    QTest::addColumn<QString>("expected");

    QTest::newRow("QTTRANSLATIONDIR before QTDIR") << "zz" << true << true << "first candidate";
    QTest::newRow("QTDIR") << "zz" << false << true << "third candidate";
    QTest::newRow("none") << "zz" << false << false << "Qt file";
    QTest::newRow("never for English") << "en" << true << true << "Qt file";
}

void tst_Manager::takesFirstQtMessageFileThatLoads()
{
    QFETCH(QString, lang);
    QFETCH(bool, translationDirSet);
    QFETCH(bool, qtDirSet);

    const QDir dir(m_dir->path());
    QVERIFY(installQm("qtfile_a", dir.filePath(QStringLiteral("a/qt_%1.qm").arg(lang))));
    QVERIFY(installQm("qtfile_b", dir.filePath(QStringLiteral("b/translations/qt_%1.qm").arg(lang))));
    qputenv("QTTRANSLATIONDIR", translationDirSet ? QFile::encodeName(dir.filePath("a")) : "");
    if (qtDirSet)
        qputenv("QTDIR", QFile::encodeName(dir.filePath("b")));

    Manager manager;
    QVERIFY(manager.load(QFileInfo(writeLanguageList(dir, "list.xml", langs({lang})))));
    QTEST(QCoreApplication::translate("tst_manager", "Qt file"), "expected");
    QVERIFY(manager.languages().at(0).translators.size() <= 1);
}

void tst_Manager::secondLoadJoinsActionsAndReloadsTranslators()
{
    const QDir dir(m_dir->path());
    QVERIFY(installQm("greeting_de", dir.filePath("qm/app_de.qm")));
    Manager manager;
    manager.addTranslatorSearchPath(dir.filePath("qm"));
    QVERIFY(manager.load(QFileInfo(writeLanguageList(dir, "one.xml", langs({"de"})))));
    const int germanTranslators = manager.languages().at(0).translators.size();
    QVERIFY(germanTranslators >= 2); // ours and the library's own

    QVERIFY(manager.load(QFileInfo(writeLanguageList(dir, "two.xml", langs({"fr"})))));
    QCOMPARE(manager.shortNames(), (QStringList{"de", "fr"}));
    QCOMPARE(manager.languages().at(0).translators.size(), 2 * germanTranslators);
    QCOMPARE(manager.currentLanguageString(), QStringLiteral("de"));

    const QList<QAction*> actions = manager.languageActions();
    QCOMPARE(actions.at(0)->actionGroup(), actions.at(1)->actionGroup());
    actions.at(1)->trigger();
    QCOMPARE(manager.currentLanguageString(), QStringLiteral("fr"));
    QVERIFY(!actions.at(0)->isChecked());
    QCOMPARE(hello(), QStringLiteral("Hello")); // every German translator was removed
}

void tst_Manager::selectsOnlyWhenAsked_data()
{
    QTest::addColumn<QVariant>("argument");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("signals");

    // The manager starts on "de", the second of en, de, fr.
    QTest::newRow("index of another") << QVariant(2) << "fr" << 1;
    QTest::newRow("index of the current one") << QVariant(1) << "de" << 1;
    QTest::newRow("negative index") << QVariant(-1) << "de" << 0;
    QTest::newRow("index past the end") << QVariant(3) << "de" << 0;
    QTest::newRow("name of another") << QVariant("fr") << "fr" << 1;
    QTest::newRow("name of the current one") << QVariant("de") << "de" << 0;
    QTest::newRow("unknown name") << QVariant("xx") << "en" << 1;
    QTest::newRow("empty name") << QVariant("") << "en" << 1;
}

void tst_Manager::selectsOnlyWhenAsked()
{
    QFETCH(QVariant, argument);
    QSettings().setValue("language", "de");
    Manager manager;
    QVERIFY(manager.load(
        QFileInfo(writeLanguageList(QDir(m_dir->path()), "list.xml", langs({"en", "de", "fr"})))));
    QSignalSpy changed(&manager, SIGNAL(languageChanged()));

    if (argument.type() == QVariant::Int)
        manager.setLanguage(argument.toInt());
    else
        manager.setLanguage(argument.toString());
    QTEST(manager.currentLanguageString(), "expected");
    QTEST(changed.count(), "signals");
}

KES_TEST_MAIN(tst_Manager)
#include "tst_manager.moc"
