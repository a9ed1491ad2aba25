// Item and Container: lookups, argument placeholders and merging.
#include <kes/qt/translation/container.h>
#include <kes/qt/translation/manager.h>

#include <kestest.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace kes::qt::translation;

using Translations = QMap<QString, QString>;

class TestContainer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The argument-handling lookups translate into the manager's current language.
        QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("languages.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"(<translations><language shortName="en"/><language shortName="de"/></translations>)");
        file.close();
        QVERIFY(Manager::singleton().load(QFileInfo(file.fileName())));
        Manager::singleton().setLanguage(QStringLiteral("de"));
        QCOMPARE(Manager::singleton().currentLanguageString(), QStringLiteral("de"));
    }

    void itemLookup()
    {
        Item item(QStringLiteral("Key"));
        item.add(QStringLiteral("de"), QStringLiteral("Schlüssel"));
        item.add(QStringLiteral("fr"), QString());
        QCOMPARE(item.tr(false), QStringLiteral("Schlüssel"));
        QCOMPARE(item.tr("fr", true), QString());
        QCOMPARE(item.tr("es", true), QStringLiteral("Key"));
        QCOMPARE(item.tr("es", false), QString());
        QVERIFY(item.contains(QStringLiteral("fr")) && !item.contains(QStringLiteral("es")));
        QCOMPARE(Item().tr("es", true), QString());
    }

    void removeArgs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QList<int>>("positions");
        using Ints = QList<int>;
        const QStringList none;
        QTest::newRow("two arguments") << "Value [42] of [x]" << "Value [] of []" << QStringList{"42", "x"} << Ints{6, 14};
        QTest::newRow("empty argument") << "[]" << "[]" << QStringList{""} << Ints{0};
        QTest::newRow("escaped opening bracket") << R"(a \[b] c)" << R"(a \[b] c)" << none << Ints();
        QTest::newRow("escaped at the very start") << R"(\[b] [c])" << R"(\[b] [])" << QStringList{"c"} << Ints{5};
        QTest::newRow("double backslash does not escape") << R"(a \\[b] c)" << R"(a \\[] c)" << QStringList{"b"} << Ints{4};
        QTest::newRow("escaped close abandons its opening") << R"([a\]b] [c])" << R"([a\]b] [])" << QStringList{"c"} << Ints{7};
        QTest::newRow("double backslash before close") << R"([a\\])" << "[]" << QStringList{R"(a\\)"} << Ints{0};
        QTest::newRow("argument ends at first close") << "a [b [c] d]" << "a [] d]" << QStringList{"b [c"} << Ints{2};
        QTest::newRow("opening bracket last") << "[x] end [" << "[] end [" << QStringList{"x"} << Ints{0};
        QTest::newRow("unclosed bracket ends the scan") << "[a] [b [c" << "[] [b [c" << QStringList{"a"} << Ints{0};
    }

    void removeArgs()
    {
        QFETCH(QString, text);
        QFETCH(QString, key);
        QFETCH(QStringList, args);
        QFETCH(QList<int>, positions);
        QStringList foundArgs{QStringLiteral("stale")};
        QList<int> foundPositions{-1};
        QCOMPARE(Container::removeArgs(text, &foundArgs, &foundPositions), key);
        QCOMPARE(foundArgs, args);
        QCOMPARE(foundPositions, positions);
        QCOMPARE(Container::removeArgs(text), key);
    }

    void trWithArguments_data()
    {
        // An empty key leaves the container empty; with a null German text the item has only French.
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("german");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("fallback");
        QTest::addColumn<QString>("expected");
        const QString valueOf = QStringLiteral("Value [] of []");
        const QString value42 = QStringLiteral("Value [42] of [x]");
        QTest::newRow("arguments in order") << valueOf << "Wert [] von []" << value42 << false << "Wert 42 von x";
        QTest::newRow("first placeholder, first argument") << valueOf << "von [] Wert []" << value42 << false << "von 42 Wert x";
        QTest::newRow("surplus arguments dropped") << valueOf << "Wert []" << value42 << false << "Wert 42";
        QTest::newRow("surplus placeholders removed") << "Value []" << "[] und []!" << "Value [42]" << false << "42 und !";
        QTest::newRow("no translation, key with arguments") << valueOf << QString() << value42 << true << "Value 42 of x";
        QTest::newRow("no translation, no fallback") << valueOf << QString() << value42 << false << "";
        QTest::newRow("unknown text kept with escapes") << "" << "" << R"(Open \[x] [y])" << true << R"(Open \[x] [y])";
        QTest::newRow("unknown text, no fallback") << "" << "" << "Open [y]" << false << "";
        QTest::newRow("escapes around a placeholder") << "Tag []" << R"(\[[]\])" << "Tag [b]" << false << "[b]";
        QTest::newRow("escaped pair leaves its backslash") << "X []" << R"(a \[] [] b)" << "X [v]" << false << R"(a \ v b)";
        QTest::newRow("only an empty pair is a placeholder") << "Tag []" << "[x] []" << "Tag [b]" << false << "[x] b";
        QTest::newRow("double backslash before placeholder") << "Y []" << R"(c:\\[])" << "Y [1]" << false << R"(c:\\1)";
        // The search goes on inside the inserted "a[", whose bracket pairs with the "]" after it.
        QTest::newRow("argument completing a placeholder") << "x [] []" << "[]] []" << "x [a[] [b]" << false << "ab ";
        QTest::newRow("unclosed bracket") << "[] [b [c" << "<[] [b [c>" << "[a] [b [c" << false << "<a [b [c>";
    }

    void trWithArguments()
    {
        QFETCH(QString, key);
        QFETCH(QString, german);
        QFETCH(QString, text);
        QFETCH(bool, fallback);
        QFETCH(QString, expected);
        Container container;
        if (!key.isEmpty())
            container.add(key, german.isNull() ? QStringLiteral("fr") : QStringLiteral("de"), german);
        QCOMPARE(container.tr(text, fallback), expected);
        QCOMPARE(container.contains(text), !key.isEmpty());
        QCOMPARE(container.contains(text, QStringLiteral("de")), !key.isEmpty() && !german.isNull());
    }

    void trByKeyHasNoArgumentHandling()
    {
        Container container;
        container.add(QStringLiteral("Value []"), QStringLiteral("de"), QStringLiteral("Wert []"));
        QCOMPARE(container.tr(QStringLiteral("Value []"), QStringLiteral("de"), false), QStringLiteral("Wert []"));
        QCOMPARE(container.tr(QStringLiteral("Value []"), QStringLiteral("fr"), false), QString());
        QCOMPARE(container.tr(QStringLiteral("Value [1]"), QStringLiteral("de"), true), QStringLiteral("Value [1]"));
        QCOMPARE(container.tr(QStringLiteral("Value [1]"), QStringLiteral("de"), false), QString());
    }

    void addAndKeys()
    {
        Container container;
        container.add(QStringLiteral("b"), QStringLiteral("de"), QStringLiteral("first"));
        container.add(QStringLiteral("b"), QStringLiteral("de"), QStringLiteral("bé"));
        for (const char* key : {"b", "A", "a", "B"})
            container.add(QString::fromLatin1(key));
        QCOMPARE(container.keys(), (QStringList{"A", "B", "a", "b"}));
        QCOMPARE(container.item(QStringLiteral("b")).translations(), (Translations{{"de", "bé"}}));
        QCOMPARE(container.item(QStringLiteral("A")), Item(QStringLiteral("A")));
        QCOMPARE(container.item(QStringLiteral("missing")), Item());
    }

    void addContainerReplacesWholeItems()
    {
        ContainerPtr target(new Container);
        target->add(QStringLiteral("shared"), QStringLiteral("de"), QStringLiteral("alt"));
        target->add(QStringLiteral("shared"), QStringLiteral("fr"), QStringLiteral("vieux"));
        target->add(QStringLiteral("mine"), QStringLiteral("de"), QStringLiteral("meins"));
        ContainerPtr other(new Container);
        other->add(QStringLiteral("shared"), QStringLiteral("en"), QStringLiteral("new"));
        other->add(QStringLiteral("theirs"), QStringLiteral("de"), QStringLiteral("deins"));

        target->add(other);
        target->add(ContainerPtr());
        QCOMPARE(target->keys(), (QStringList{"mine", "shared", "theirs"}));
        QCOMPARE(target->item(QStringLiteral("shared")).translations(), (Translations{{"en", "new"}}));
        QCOMPARE(target->item(QStringLiteral("mine")).translations(), (Translations{{"de", "meins"}}));
        QCOMPARE(target->item(QStringLiteral("theirs")), other->item(QStringLiteral("theirs")));

    }
};

KES_TEST_MAIN(TestContainer)
#include "tst_container.moc"
