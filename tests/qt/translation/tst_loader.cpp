// Loader: reading translation files and sections, validation and its messages.
#include <kes/qt/translation/loader.h>
#include <kes/qt/translation/manager.h>

#include <kestest.h>

#include <QDomDocument>
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

} // namespace

class TestLoader : public QObject
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
};

KES_TEST_MAIN(TestLoader)
#include "tst_loader.moc"
