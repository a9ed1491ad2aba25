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

// A language list; a plain name stands for a language of that short and full name.
QByteArray languageList(const QStringList& languages, const char* root = "translations")
{
    QString xml = QStringLiteral("<%1>").arg(QLatin1String(root));
    for (const QString& language : languages) {
        xml += language.startsWith('<') ? language
                                        : QStringLiteral(R"(<language fullName="%1" shortName="%1" actionName=""/>)").arg(language);
    }
    return (xml + QStringLiteral("</%1>").arg(QLatin1String(root))).toUtf8();
}

QString hello() { return QCoreApplication::translate("tst_manager", "Hello"); }

} // namespace

class tst_Manager : public QObject
{
    Q_OBJECT

    QScopedPointer<QTemporaryDir> m_dir;

    QString path(const QString& name) const { return m_dir->filePath(name); }
    // Writes \a content to the file \a name in this test's directory.
    QFileInfo write(const QByteArray& content, const QString& name = QStringLiteral("list.xml"))
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return QFileInfo(file.fileName());
    }
    // Copies one of the message files compiled for these tests to \a name in this test's directory.
    bool installQm(const char* compiled, const QString& name)
    {
        QDir().mkpath(QFileInfo(path(name)).absolutePath());
        return QFile::copy(QStringLiteral(KES_TEST_QM_DIR "/%1.qm").arg(QLatin1String(compiled)), path(name));
    }

private Q_SLOTS:
    void init()
    {
        QSettings().clear();
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
    }

    void cleanup() { qunsetenv("QTTRANSLATIONDIR"); qunsetenv("QTDIR"); }

    void normalisesSearchPaths_data()
    {
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("expected");

        const QString builtIn = QStringLiteral(":/kes_translation_translations/");
        QTest::newRow("built-in only") << QStringList() << QStringList{builtIn};
        QTest::newRow("slash appended") << QStringList{"/opt/app/i18n"} << QStringList{builtIn, "/opt/app/i18n/"};
        QTest::newRow("backslashes") << QStringList{"C:\\App\\i18n\\"} << QStringList{builtIn, "C:/App/i18n/"};
        QTest::newRow("same after normalising") << QStringList{"/a/b", "/a/b/", "\\a\\b"} << QStringList{builtIn, "/a/b/"};
        QTest::newRow("case matters") << QStringList{"/a/B", "/a/b"} << QStringList{builtIn, "/a/B/", "/a/b/"};
        QTest::newRow("built-in again") << QStringList{builtIn} << QStringList{builtIn};
    }

    void normalisesSearchPaths()
    {
        QFETCH(QStringList, added);
        Manager manager;
        for (const QString& path : added)
            manager.addTranslatorSearchPath(path);
        QTEST(manager.translatorSearchPaths(), "expected");
    }

    void refusesFileWithoutLanguageList_data()
    {
        // Written when the row runs: every row gets a fresh directory.
        QTest::addColumn<QByteArray>("content"); // null: no file

        QTest::newRow("missing file") << QByteArray();
        QTest::newRow("other document element") << languageList({"de"}, "languages");
        QTest::newRow("document element in other case") << languageList({"de"}, "Translations");
        QTest::newRow("not XML") << QByteArray("key=value");
    }

    void refusesFileWithoutLanguageList()
    {
        QFETCH(QByteArray, content);
        const QFileInfo file = content.isNull() ? QFileInfo(path("none.xml")) : write(content);
        QCOMPARE(file.exists(), !content.isNull());
        Manager manager;
        QSignalSpy changed(&manager, SIGNAL(languageChanged()));
        QVERIFY(!manager.load(file));
        QVERIFY(manager.shortNames().isEmpty());
        QVERIFY(manager.findChildren<QAction*>().isEmpty());
        QCOMPARE(changed.count(), 0);
        QVERIFY(!QSettings().contains("language"));
    }

    void offersOneExclusiveActionPerLanguage()
    {
        QSettings().setValue("language", "en");
        Manager manager;
        QVERIFY(manager.load(write(languageList({R"(<language fullName="English" shortName="en"/>)",
                                                 R"x(<language fullName="Deutsch" shortName="de" actionName="&amp;Deutsch (Schweiz)"/>)x",
                                                 R"(<language fullName="Deutsch" shortName="de"/>)"}))));
        QCOMPARE(manager.shortNames(), (QStringList{"en", "de", "de"}));
        QCOMPARE(manager.fullNames(), (QStringList{"English", "Deutsch", "Deutsch"}));
        const QList<QAction*> actions = manager.languageActions();
        QStringList texts;
        for (QAction* action : actions) {
            texts << action->text();
            QVERIFY(action->isCheckable());
            QCOMPARE(action->parent(), &manager);
            QCOMPARE(action->actionGroup(), actions.at(0)->actionGroup());
        }
        QCOMPARE(texts, (QStringList{"English", "&Deutsch (Schweiz)", "Deutsch"}));
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

    void choosesStartLanguage_data()
    {
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("expected");

        const QVariant none;
        QTest::newRow("system language") << QStringList{"de", "fr"} << none << "fr";
        QTest::newRow("system language not offered") << QStringList{"de", "en"} << none << "de";
        QTest::newRow("stored language") << QStringList{"de", "fr"} << QVariant("de") << "de";
        QTest::newRow("stored unknown, system offered") << QStringList{"de", "fr"} << QVariant("xx") << "fr";
        QTest::newRow("stored unknown, first offered") << QStringList{"en", "es"} << QVariant("xx") << "en";
        QTest::newRow("stored in other case") << QStringList{"de", "fr"} << QVariant("DE") << "fr";
        QTest::newRow("no languages") << QStringList() << none << "";
    }

    void choosesStartLanguage()
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
        QVERIFY(manager.load(write(languageList(offered))));

        QCOMPARE(manager.currentLanguageString(), expected);
        QCOMPARE(changed.count(), expected.isEmpty() ? 0 : 1);
        QCOMPARE(QSettings().value("language"), expected.isEmpty() ? QVariant() : QVariant(expected));
        if (!expected.isEmpty())
            QVERIFY(manager.languageActions().at(manager.currentLanguage())->isChecked());
    }

    void switchingLanguageSwapsInstalledTranslators()
    {
        QVERIFY(installQm("greeting_de", "qm/app_de.qm"));
        QVERIFY(installQm("greeting_fr", "qm/app_fr.qm"));
        QSettings().setValue("language", "en");

        Manager manager;
        manager.addTranslatorSearchPath(path("qm"));
        QVERIFY(manager.load(write(languageList({"en", "de", "fr"}))));
        QSignalSpy changed(&manager, SIGNAL(languageChanged()));

        // Language, greeting, and a text compiled into the library, found without any search path.
        const char* const steps[][3] = {{"de", "Hallo", "&Sprachen"}, {"fr", "Bonjour", "&Langues"},
                                        {"en", "Hello", "&Languages"}, {"de", "Hallo", "&Sprachen"}};
        for (const auto& step : steps) {
            manager.setLanguage(QString::fromLatin1(step[0]));
            QCOMPARE(manager.currentLanguageString(), QLatin1String(step[0]));
            QCOMPARE(hello(), QLatin1String(step[1]));
            QCOMPARE(QCoreApplication::translate("kes::qt::translation::Menu", "&Languages"), QLatin1String(step[2]));
            QCOMPARE(QSettings().value("language").toString(), QLatin1String(step[0]));
        }
        QCOMPARE(changed.count(), 4);

        // A translator added later counts from the next selection of its language on.
        QVERIFY(installQm("greeting_fr", "late_de.qm"));
        manager.addTranslator("de", path("late_de.qm"));
        manager.addTranslator("xx", path("late_de.qm"));
        manager.addTranslator("de", path("missing.qm"));
        QCOMPARE(hello(), QStringLiteral("Hallo"));
        manager.setLanguage(manager.currentLanguage());
        QCOMPARE(hello(), QStringLiteral("Bonjour")); // the last installed is asked first
    }

    void takesFirstQtMessageFileThatLoads_data()
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

    void takesFirstQtMessageFileThatLoads()
    {
        QFETCH(QString, lang);
        QFETCH(bool, translationDirSet);
        QFETCH(bool, qtDirSet);

        QVERIFY(installQm("qtfile_a", QStringLiteral("a/qt_%1.qm").arg(lang)));
        QVERIFY(installQm("qtfile_b", QStringLiteral("b/translations/qt_%1.qm").arg(lang)));
        qputenv("QTTRANSLATIONDIR", translationDirSet ? QFile::encodeName(path("a")) : "");
        if (qtDirSet)
            qputenv("QTDIR", QFile::encodeName(path("b")));

        Manager manager;
        QVERIFY(manager.load(write(languageList({lang}))));
        QTEST(QCoreApplication::translate("tst_manager", "Qt file"), "expected");
        QVERIFY(manager.languages().at(0).translators.size() <= 1);
    }

    void secondLoadJoinsActionsAndReloadsTranslators()
    {
        QVERIFY(installQm("greeting_de", "qm/app_de.qm"));
        Manager manager;
        manager.addTranslatorSearchPath(path("qm"));
        QVERIFY(manager.load(write(languageList({"de"}), "one.xml")));
        const int germanTranslators = manager.languages().at(0).translators.size();
        QVERIFY(germanTranslators >= 2); // ours and the library's own

        QVERIFY(manager.load(write(languageList({"fr"}), "two.xml")));
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

    void selectsOnlyWhenAsked_data()
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

    void selectsOnlyWhenAsked()
    {
        QFETCH(QVariant, argument);
        QSettings().setValue("language", "de");
        Manager manager;
        QVERIFY(manager.load(write(languageList({"en", "de", "fr"}))));
        QSignalSpy changed(&manager, SIGNAL(languageChanged()));

        if (argument.type() == QVariant::Int)
            manager.setLanguage(argument.toInt());
        else
            manager.setLanguage(argument.toString());
        QTEST(manager.currentLanguageString(), "expected");
        QTEST(changed.count(), "signals");
    }
};

KES_TEST_MAIN(tst_Manager)
#include "tst_manager.moc"
