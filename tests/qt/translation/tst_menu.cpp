#include <kes/qt/translation/menu.h>

#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QAction>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSettings>
#include <QtTest>

using kes::qt::translation::Manager;
using kes::qt::translation::Menu;

class tst_Menu : public QObject
{
    Q_OBJECT

    // Made before the languages are loaded, which later menus are not.
    QScopedPointer<Menu> m_early;

private Q_SLOTS:
    void initTestCase()
    {
        m_early.reset(new Menu);
        QSettings().setValue("language", "en");
        QVERIFY(Manager::singleton().load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
        QVERIFY(m_early->actions().isEmpty());
        QCOMPARE(m_early->title(), QStringLiteral("&Languages"));

        QStringList texts;
        for (const QAction* action : Menu().actions())
            texts << action->text();
        QCOMPARE(texts, (QStringList{"English", "Deutsch", "Français", "Español"}));
    }

    void switchesByItsActions_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("title");

        QTest::newRow("German") << 1 << "de" << "&Sprachen";
        QTest::newRow("French") << 2 << "fr" << "&Langues";
        QTest::newRow("Spanish") << 3 << "es" << "&Idiomas";
        QTest::newRow("English") << 0 << "en" << "&Languages";
    }

    // Menus share the manager's actions: any of them switches the language, every menu is
    // retitled, and the check marks agree.
    void switchesByItsActions()
    {
        QFETCH(int, index);
        Menu menu;
        Menu other;
        QCOMPARE(menu.actions(), Manager::singleton().languageActions());
        menu.actions().at(index)->trigger();
        QTEST(Manager::singleton().currentLanguageString(), "lang");
        for (const Menu* shown : {&menu, &other, m_early.data()}) {
            QTEST(shown->title(), "title");
            for (int i = 0; i < shown->actions().size(); ++i)
                QCOMPARE(shown->actions().at(i)->isChecked(), i == index);
        }
    }
};

KES_TEST_MAIN(tst_Menu)
#include "tst_menu.moc"
