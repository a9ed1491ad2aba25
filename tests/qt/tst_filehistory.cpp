#include <kes/qt/filehistory.h>
#include <kes/qt/filehistory2.h>

#include "kestest.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using kes::qt::FileHistory;
using kes::qt::FileHistory2;

class tst_FileHistory : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_base; // the directory without symbolic links, as the current directory reads

    // The path of the existing file number \a i.
    QString file(int i) const { return m_base + QStringLiteral("/scan%1.cfg").arg(i); }
    QStringList files(const QList<int>& numbers) const
    {
        QStringList paths;
        for (int i : numbers)
            paths << (i < 0 ? m_base + QStringLiteral("/deleted.cfg") : file(i));
        return paths;
    }
    static void store(const QStringList& list) { QSettings().setValue("fileHistory", list); }
    static QStringList stored() { return QSettings().value("fileHistory").toStringList(); }

    // Opens the menu as the user does, which lists the entries.
    static QList<QAction*> open(QMenu* menu)
    {
        menu->popup(QPoint(10, 10));
        const QList<QAction*> actions = menu->actions();
        menu->hide();
        return actions;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_base = QFileInfo(m_dir.path()).canonicalFilePath();
        for (int i = 0; i < 12; ++i) {
            QFile f(file(i));
            QVERIFY(f.open(QIODevice::WriteOnly));
        }
    }

    void init() { QSettings().clear(); }

    // The stored list as construction cleans it and as add() then changes it; -1 is a file that
    // does not exist.
    void add_data()
    {
        QTest::addColumn<QList<int>>("before");
        QTest::addColumn<int>("added");
        QTest::addColumn<QList<int>>("after");

        QTest::newRow("first file") << QList<int>{} << 3 << QList<int>{3};
        QTest::newRow("third moves to the front, once") << QList<int>{0, 1, 2, 3} << 2 << QList<int>{2, 0, 1, 3};
        QTest::newRow("front stays") << QList<int>{0, 1} << 0 << QList<int>{0, 1};
        QTest::newRow("eleventh drops the oldest")
            << QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9} << 10 << QList<int>{10, 0, 1, 2, 3, 4, 5, 6, 7, 8};
        QTest::newRow("deleted and duplicates cleaned first")
            << QList<int>{4, -1, 5, 4, 5, -1} << 6 << QList<int>{6, 4, 5};
        QTest::newRow("longer list shrinks by one")
            << QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10} << 11 << QList<int>{11, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    }

    void add()
    {
        QFETCH(QList<int>, before);
        QFETCH(int, added);
        QFETCH(QList<int>, after);
        store(files(before));
        FileHistory history;
        QCOMPARE(history.menu()->isEnabled(), !history.isEmpty());
        // A relative name is recorded with its absolute path.
        QVERIFY(QDir::setCurrent(m_base));
        history.add(QFileInfo(QFileInfo(file(added)).fileName()));
        QCOMPARE(stored(), files(after));
        QCOMPARE(history.history(), files(after));
        QCOMPARE(QSettings().value("loadDirectory").toString(), m_base);
        QVERIFY(history.menu()->isEnabled());
    }

    void cleanedAtConstruction()
    {
        store(files({-1, 7, 7, -1}));
        FileHistory2 history;
        QCOMPARE(stored(), files({7}));
        store(files({-1}));
        FileHistory another;
        QVERIFY(stored().isEmpty());
        QVERIFY(!another.menu()->isEnabled());
    }

    // Several histories in one process: each menu lists what any of them added.
    void menusShareTheList()
    {
        FileHistory first;
        FileHistory2 second;
        QVERIFY(!first.menu()->isEnabled() && !second.menu()->isEnabled());
        first.add(QFileInfo(file(1)));
        second.add(QFileInfo(file(2)));
        QCOMPARE(open(first.menu()).size(), 2);
        QCOMPARE(open(first.menu()).at(1)->text(), file(1));
        QCOMPARE(open(second.menu()).first()->data().toString(), file(2));
    }

    // Entries 1, 10 and 11 of a stored list of 11, and what picking each emits.
    void menuEntries_data()
    {
        QTest::addColumn<bool>("second");
        QTest::addColumn<bool>("numbered");
        QTest::addColumn<bool>("nameOnly");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("texts");

        QTest::newRow("FileHistory") << false << false << false << "Recent Files"
                                     << QStringList{file(0), file(9), file(10)};
        QTest::newRow("FileHistory2") << true << true << true << "&Recent Projects"
                                      << QStringList{"&1  scan0.cfg", "&0  scan9.cfg", "    scan10.cfg"};
        QTest::newRow("numbered paths") << true << true << false << "&Recent Projects"
                                        << QStringList{"&1  " + file(0), "&0  " + file(9), "    " + file(10)};
        QTest::newRow("names only") << true << false << true << "&Recent Projects"
                                    << QStringList{"scan0.cfg", "scan9.cfg", "scan10.cfg"};
    }

    void menuEntries()
    {
        QFETCH(bool, second);
        QFETCH(bool, numbered);
        QFETCH(bool, nameOnly);
        QFETCH(QStringList, texts);
        store(files({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
        std::unique_ptr<FileHistory> history;
        if (second) {
            auto* h2 = new FileHistory2;
            QVERIFY(h2->isNumbered() && h2->isFileNameOnly());
            h2->setNumbered(numbered);
            h2->setFileNameOnly(nameOnly);
            history.reset(h2);
        } else {
            history.reset(new FileHistory);
        }
        QTEST(history->menu()->title(), "title");
        QSignalSpy picked(history.get(), SIGNAL(triggered(QString)));
        const QList<QAction*> actions = open(history->menu());
        QCOMPARE(actions.size(), 11);
        const int rows[] = {0, 9, 10};
        for (int i = 0; i < 3; ++i) {
            QAction* action = actions.at(rows[i]);
            QCOMPARE(action->text(), texts.at(i));
            action->trigger();
            QCOMPARE(picked.takeFirst().at(0).toString(), file(rows[i]));
        }
    }
};

KES_TEST_MAIN(tst_FileHistory)
#include "tst_filehistory.moc"
