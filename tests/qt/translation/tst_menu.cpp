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

private Q_SLOTS:
    void initTestCase();
    void isTitledButEmptyWithoutLanguages();
    void listsTheManagersActions();
    void retitlesOnLanguageChange_data();
    void retitlesOnLanguageChange();
    void menusShareCheckMarks();

private:
    // Made before the languages are loaded, which later menus are not.
    QScopedPointer<Menu> m_early;
};

void tst_Menu::initTestCase()
{
    m_early.reset(new Menu);
    QSettings().setValue("language", "en");
    QVERIFY(Manager::singleton().load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
}

void tst_Menu::isTitledButEmptyWithoutLanguages()
{
    QVERIFY(m_early->actions().isEmpty());
    QCOMPARE(m_early->title(), QStringLiteral("&Languages"));
}

void tst_Menu::listsTheManagersActions()
{
    Menu menu;
    QCOMPARE(menu.actions(), Manager::singleton().languageActions());
    QStringList texts;
    for (const QAction* action : menu.actions())
        texts << action->text();
    QCOMPARE(texts, (QStringList{"English", "Deutsch", "Français", "Español"}));
}

void tst_Menu::retitlesOnLanguageChange_data()
{
    QTest::addColumn<QString>("lang");
    QTest::addColumn<QString>("title");

    QTest::newRow("German") << "de" << "&Sprachen";
    QTest::newRow("French") << "fr" << "&Langues";
    QTest::newRow("Spanish") << "es" << "&Idiomas";
    QTest::newRow("English") << "en" << "&Languages";
}

void tst_Menu::retitlesOnLanguageChange()
{
    QFETCH(QString, lang);
    Menu menu;
    Manager::singleton().setLanguage(lang);
    QTEST(menu.title(), "title");
    QTEST(m_early->title(), "title");
}

void tst_Menu::menusShareCheckMarks()
{
    Menu first;
    Menu second;
    first.actions().at(2)->trigger();
    QCOMPARE(Manager::singleton().currentLanguageString(), QStringLiteral("fr"));
    QCOMPARE(second.title(), QStringLiteral("&Langues"));
    for (int i = 0; i < first.actions().size(); ++i)
        QCOMPARE(second.actions().at(i)->isChecked(), i == 2);

    second.actions().at(1)->trigger();
    QVERIFY(first.actions().at(1)->isChecked());
    QVERIFY(!first.actions().at(2)->isChecked());
    QCOMPARE(first.title(), QStringLiteral("&Sprachen"));
}

KES_TEST_MAIN(tst_Menu)
#include "tst_menu.moc"
