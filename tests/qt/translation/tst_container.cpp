// Item and Container (lookups, argument placeholders, merging), and the Loader and Serialiser that
// read and write them.
#include <kes/qt/translation/container.h>
#include <kes/qt/translation/loader.h>
#include <kes/qt/translation/manager.h>
#include <kes/qt/translation/serialiser.h>

#include <kestest.h>

#include <QDomDocument>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace kes::qt::translation;

namespace {

const QString missingKey = QStringLiteral("translation item element must implement attribute \"key\"");
const QString missingLang = QStringLiteral("translation element must implement attribute \nlang\"");

QString duplicateKey(const QString& key) { return "translations already contain key \" " + key + '"'; }
QString duplicateLang(const QString& lang) { return "translation item contains multiple translations for \" " + lang + '"'; }

// The whole container on one line: "key{lang=text,...} ..." in key order.
QString dump(const Container& container)
{
    QStringList items;
    for (const QString& key : container.keys()) {
        const QMap<QString, QString> map = container.item(key).translations();
        QStringList texts;
        for (auto it = map.constBegin(); it != map.constEnd(); ++it)
            texts << it.key() + '=' + it.value();
        items << key + '{' + texts.join(',') + '}';
    }
    return items.join(' ');
}

// A file whose document element holds \a sections; one whose only section holds \a items.
QByteArray file(const QByteArray& sections) { return R"(<root xmlns:t="urn:t">)" + sections + "</root>"; }
QByteArray section(const QByteArray& items) { return file("<translations>" + items + "</translations>"); }

// add(key) for "key", add(key, lang, text) for "key|lang=text", in order.
ContainerPtr filled(const QStringList& entries)
{
    ContainerPtr container(new Container);
    for (const QString& entry : entries) {
        const QString key = entry.section('|', 0, 0);
        const QString translation = entry.section('|', 1);
        if (entry.contains('|'))
            container->add(key, translation.section('=', 0, 0), translation.section('=', 1));
        else
            container->add(key);
    }
    return container;
}

} // namespace

class TestContainer : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    int m_files = 0;

    QString write(const QByteArray& content)
    {
        QFile out(m_dir.filePath(QStringLiteral("file%1.xml").arg(++m_files)));
        if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(out.fileName()));
        return out.fileName();
    }

private Q_SLOTS:
    void initTestCase()
    {
        // The argument-handling lookups translate into the manager's current language.
        QVERIFY(Manager::singleton().load(QFileInfo(write(R"(<translations><language shortName="en"/><language shortName="de"/></translations>)"))));
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
        const ContainerPtr container = filled({"b|de=first", "b|de=bé", "b", "A", "a", "B"});
        QCOMPARE(dump(*container), QStringLiteral("A{} B{} a{} b{de=bé}"));
        QCOMPARE(container->item(QStringLiteral("A")), Item(QStringLiteral("A")));
        QCOMPARE(container->item(QStringLiteral("missing")), Item());
    }

    void addContainerReplacesWholeItems()
    {
        const ContainerPtr target = filled({"shared|de=alt", "shared|fr=vieux", "mine|de=meins"});
        const ContainerPtr other = filled({"shared|en=new", "theirs|de=deins"});
        target->add(other);
        target->add(ContainerPtr());
        QCOMPARE(dump(*target), QStringLiteral("mine{de=meins} shared{en=new} theirs{de=deins}"));
        QCOMPARE(target->item(QStringLiteral("theirs")), other->item(QStringLiteral("theirs")));
    }

    void cleanup() { Manager::singleton().setNamespacePrefix(QString()); }

    void loadFile_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<bool>("abortOnError");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QString>("lastError");
        QTest::addColumn<QString>("contents");
        const QByteArray good = R"(<item key="k"><translation lang="de">ka</translation></item>)";
        const QByteArray noKey = R"(<item><t lang="de">x</t></item>)";
        const QString none;
        QTest::newRow("valid") << section(good + R"(<i key="Open []"><t lang="fr">Ouvrir []</t><t lang="de">Öffnen</t></i>)") << none << true << true << "" << "Open []{de=Öffnen,fr=Ouvrir []} k{de=ka}";
        QTest::newRow("text untrimmed, concatenated") << section(R"(<item key="k"><t lang="de"> a<b>c</b>d </t></item>)") << none << true << true << "" << "k{de= acd }";
        QTest::newRow("encoding from declaration") << "<?xml version='1.0' encoding='ISO-8859-1'?>" + section("<i key='Gr\xfc\xdf'><t lang='de'>\xe4</t></i>") << none << true << true << "" << "Grüß{de=ä}";
        QTest::newRow("missing key aborts") << section(noKey + good) << none << true << false << missingKey << "";
        QTest::newRow("missing key skipped") << section(noKey + good) << none << false << true << missingKey << "k{de=ka}";
        QTest::newRow("empty key") << section(R"(<item key=""><t lang="de">x</t></item>)") << none << true << false << missingKey << "";
        QTest::newRow("missing language keeps what was stored") << section(R"(<item key="k"><t lang="de">ka</t><t>x</t></item>)") << none << true << false << missingLang << "k{de=ka}";
        QTest::newRow("duplicate language") << section(R"(<item key="k"><t lang="de">a</t><t lang="de">b</t></item>)") << none << true << false << duplicateLang("de") << "k{de=a}";
        QTest::newRow("duplicate key across sections") << file("<translations>" + good + "</translations><translations>" + good + "</translations>") << none << true << false << duplicateKey("k") << "k{de=ka}";
        QTest::newRow("duplicate key after argument removal") << section(R"(<i key="Open []"><t lang="de">a</t></i><i key="Open [x]"/>)") << none << true << false << duplicateKey("Open [x]") << "Open []{de=a}";
        // Stored as written, a filled key is never found by the check, which looks for "Open []".
        QTest::newRow("filled key stored as written") << section(R"(<i key="Open [f]"><t lang="de">a</t></i><i key="Open [f]"><t lang="de">b</t></i>)") << none << true << true << "" << "Open [f]{de=b}";
        QTest::newRow("last of several failures") << section(noKey + good + good) << none << false << true << duplicateKey("k") << "k{de=ka}";
        QTest::newRow("comment inside an item") << section(R"(<item key="k"><!-- c --><t lang="de">ka</t></item>)") << none << true << false << missingLang << "";
        QTest::newRow("comment and text between items") << section("<!-- c -->" + good + "text<?pi x?>") << none << true << true << "" << "k{de=ka}";
        QTest::newRow("empty translation not stored") << section(R"(<item key="k"><t lang="de"></t></item>)" + good) << none << true << true << "" << "k{de=ka}";
        QTest::newRow("document element of any name") << "<any><translations>" + good + "</translations></any>" << none << true << true << "" << "k{de=ka}";
        QTest::newRow("section name ending in translations") << file("<other/><t:translations>" + good + "</t:translations>") << none << true << true << "" << "k{de=ka}";
        QTest::newRow("section name case-sensitive") << file("<Translations>" + good + "</Translations>") << none << true << false << "" << "";
        QTest::newRow("section below a direct child") << file("<wrap><translations>" + good + "</translations></wrap>") << none << true << false << "" << "";
        QTest::newRow("complete section, then a break") << R"(<root><translations>)" + good + "</translations><broken" << none << true << false << "" << "";
        QTest::newRow("section as document element") << "<translations>" + good + "</translations>" << none << true << false << "" << "";
        QTest::newRow("prefixed attributes") << section(R"(<item t:key="k"><t t:lang="de">ka</t></item>)") << "t" << true << true << "" << "k{de=ka}";
        QTest::newRow("prefix ignores plain key") << section(good) << "t" << true << false << missingKey << "";
        QTest::newRow("prefix ignores plain lang") << section(R"(<item t:key="k"><t lang="de">ka</t></item>)") << "t" << true << false << missingLang << "";
    }

    void loadFile()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, prefix);
        QFETCH(bool, abortOnError);
        QFETCH(bool, result);
        QFETCH(QString, lastError);
        QFETCH(QString, contents);
        Manager::singleton().setNamespacePrefix(prefix);
        Loader loader;
        QVERIFY(!loader.abortOnError());
        loader.setAbortOnError(abortOnError);
        const QString path = write(xml);
        QCOMPARE(loader.load(path), result);
        QCOMPARE(loader.lastError(), lastError);
        QCOMPARE(loader.fileName(), path);
        QCOMPARE(dump(*loader.container()), contents);
    }

    void sameFileTwice()
    {
        const QString path = write(section(R"(<item key="a"><t lang="de">A</t></item><item key="b"><t lang="fr">B</t></item>)"));
        for (const bool abort : {true, false}) {
            Loader loader;
            loader.setAbortOnError(abort);
            QVERIFY(loader.load(path));
            // Aborting stops at the first duplicate; skipping goes on to the last.
            QCOMPARE(loader.load(path), !abort);
            QCOMPARE(loader.lastError(), duplicateKey(abort ? "a" : "b"));
            QCOMPARE(dump(*loader.container()), QStringLiteral("a{de=A} b{fr=B}"));
        }
    }

    void unreadableFileLeavesLastError_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("opens");
        QTest::newRow("empty name") << QString() << false;
        QTest::newRow("missing file") << m_dir.filePath(QStringLiteral("missing.xml")) << false;
        QTest::newRow("empty file") << write(QByteArray()) << true;
        QTest::newRow("not XML") << write("key=value") << true;
        QTest::newRow("no section") << write(file(R"(<item key="k"/>)")) << true;
    }

    void unreadableFileLeavesLastError()
    {
        QFETCH(QString, name);
        QFETCH(bool, opens);
        Loader loader;
        QVERIFY(loader.load(write(section("<item/>"))));
        QVERIFY(!loader.load(name));
        QCOMPARE(loader.lastError(), missingKey);
        QCOMPARE(loader.fileName(), opens ? name : QString());
    }

    void loadSection()
    {
        Loader loader;
        QVERIFY(loader.load(write(section(R"(<item key="first"><t lang="de">x</t></item>)"))));
        QVERIFY(!loader.fileName().isEmpty());
        // The element given is the section itself, not a document element above it.
        QDomDocument document;
        QVERIFY(document.setContent(QByteArray(R"(<translations><item key="k"><t lang="de">ka</t></item><item/></translations>)")));
        QVERIFY(loader.load(document.documentElement()));
        QCOMPARE(loader.fileName(), QString());
        QCOMPARE(loader.lastError(), missingKey);
        QCOMPARE(dump(*loader.container()), QStringLiteral("first{de=x} k{de=ka}"));

        loader.setAbortOnError(true);
        QVERIFY(!loader.load(document.documentElement()));
        QCOMPARE(loader.lastError(), duplicateKey("k"));
    }

    void emptyContainer()
    {
        QDomDocument document;
        const QDomElement section = Serialiser().save(ConstContainerPtr(new Container), document);
        QCOMPARE(section.tagName(), QStringLiteral("translations"));
        QVERIFY(!section.hasChildNodes());
        QVERIFY(section.parentNode().isNull());
    }

    void languagesOfAnItem_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<QStringList>("written");
        QTest::newRow("none") << "" << QStringList() << QStringList{"de=", "en=Hello", "fr=", "es="};
        QTest::newRow("de and it") << "" << QStringList{"it=Ciao", "de=Hallo"} << QStringList{"de=Hallo", "en=Hello", "fr=", "es=", "it=Ciao"};
        QTest::newRow("others in plain order") << "" << QStringList{"zh=x", "pt=y", "Zu=z"} << QStringList{"de=", "en=Hello", "fr=", "es=", "Zu=z", "pt=y", "zh=x"};
        QTest::newRow("English given") << "" << QStringList{"en=Hi", "es=Hola"} << QStringList{"de=", "en=Hi", "fr=", "es=Hola"};
        QTest::newRow("equal to key written empty") << "" << QStringList{"de=Hello", "it=Hello", "en=Hello"} << QStringList{"de=", "en=Hello", "fr=", "es=", "it="};
        // The section's own name stays unprefixed.
        QTest::newRow("prefixed names") << "t" << QStringList() << QStringList{"de=", "en=Hello", "fr=", "es="};
    }

    void languagesOfAnItem()
    {
        QFETCH(QString, prefix);
        QFETCH(QStringList, stored);
        QFETCH(QStringList, written);
        Manager::singleton().setNamespacePrefix(prefix);
        const QString p = prefix.isEmpty() ? QString() : prefix + ':';
        QStringList entries{"Hello"};
        for (const QString& entry : stored)
            entries << "Hello|" + entry;
        QDomDocument document;
        const QDomElement section = Serialiser().save(filled(entries), document);
        QCOMPARE(section.tagName(), QStringLiteral("translations"));
        const QDomElement item = section.firstChildElement();
        QCOMPARE(item.tagName(), p + "item");
        QCOMPARE(item.attribute(p + "key"), QStringLiteral("Hello"));
        QStringList actual;
        for (QDomElement t = item.firstChildElement(); !t.isNull(); t = t.nextSiblingElement()) {
            QCOMPARE(t.tagName(), p + "translation");
            QVERIFY(t.firstChild().isText());
            actual << t.attribute(p + "lang") + '=' + t.text();
        }
        QCOMPARE(actual, written);
    }

    void roundTrip()
    {
        const ContainerPtr container = filled({"b|it=bi", "a", "A", "Value [] of []|de=Wert [] von []", "Value [] of []|fr=Value [] of []"});
        QDomDocument document;
        QDomElement root = document.appendChild(document.createElement(QStringLiteral("project"))).toElement();
        root.appendChild(Serialiser().save(container, document));
        QStringList written;
        for (QDomElement e = root.firstChildElement().firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
            written << e.attribute(QStringLiteral("key"));
        // Ignoring case, but upper before lower case where that is all that differs.
        QCOMPARE(written, (QStringList{"A", "a", "b", "Value [] of []"}));

        Loader loader;
        loader.setAbortOnError(true);
        QVERIFY(loader.load(write(document.toByteArray())));
        // English equal to the key is added; a French text equal to it is lost.
        QCOMPARE(dump(*loader.container()), QStringLiteral("A{en=A} Value [] of []{de=Wert [] von [],en=Value [] of []} a{en=a} b{en=b,it=bi}"));
    }

    void xercesDocumentNotSupported()
    {
        QVERIFY(!Serialiser().save(filled({"k|de=ka"}), static_cast<XERCES_CPP_NAMESPACE::DOMDocument*>(nullptr)));
    }
};

KES_TEST_MAIN(TestContainer)
#include "tst_container.moc"
