// Serialiser: the section it writes, and reading that back through Loader.
#include <kes/qt/translation/loader.h>
#include <kes/qt/translation/manager.h>
#include <kes/qt/translation/serialiser.h>

#include <kestest.h>

#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

using namespace kes::qt::translation;

using Translations = QMap<QString, QString>;

class TestSerialiser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Manager::singleton().setNamespacePrefix(QString()); }

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
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<QStringList>("written");
        QTest::newRow("none") << QStringList() << QStringList{"de=", "en=Hello", "fr=", "es="};
        QTest::newRow("de and it") << QStringList{"it=Ciao", "de=Hallo"} << QStringList{"de=Hallo", "en=Hello", "fr=", "es=", "it=Ciao"};
        QTest::newRow("others in plain order") << QStringList{"zh=x", "pt=y", "Zu=z"} << QStringList{"de=", "en=Hello", "fr=", "es=", "Zu=z", "pt=y", "zh=x"};
        QTest::newRow("English given") << QStringList{"en=Hi", "es=Hola"} << QStringList{"de=", "en=Hi", "fr=", "es=Hola"};
        QTest::newRow("equal to key written empty") << QStringList{"de=Hello", "it=Hello", "en=Hello"} << QStringList{"de=", "en=Hello", "fr=", "es=", "it="};
    }

    void languagesOfAnItem()
    {
        QFETCH(QStringList, stored);
        QFETCH(QStringList, written);
        ContainerPtr container(new Container);
        container->add(QStringLiteral("Hello"));
        for (const QString& entry : stored)
            container->add(QStringLiteral("Hello"), entry.section('=', 0, 0), entry.section('=', 1));
        QDomDocument document;
        const QDomElement item = Serialiser().save(container, document).firstChildElement();
        QStringList actual;
        for (QDomElement t = item.firstChildElement(); !t.isNull(); t = t.nextSiblingElement()) {
            QCOMPARE(t.tagName(), QStringLiteral("translation"));
            QVERIFY(t.firstChild().isText());
            actual << t.attribute(QStringLiteral("lang")) + '=' + t.text();
        }
        QCOMPARE(actual, written);
    }

    void prefixedNames()
    {
        Manager::singleton().setNamespacePrefix(QStringLiteral("t"));
        ContainerPtr container(new Container);
        container->add(QStringLiteral("k"));
        QDomDocument document;
        const QDomElement section = Serialiser().save(container, document);
        const QDomElement item = section.firstChildElement();
        const QDomElement translation = item.firstChildElement();
        QCOMPARE(section.tagName(), QStringLiteral("translations"));
        QCOMPARE(item.tagName(), QStringLiteral("t:item"));
        QCOMPARE(item.attribute(QStringLiteral("t:key")), QStringLiteral("k"));
        QCOMPARE(translation.tagName(), QStringLiteral("t:translation"));
        QCOMPARE(translation.attribute(QStringLiteral("t:lang")), QStringLiteral("de"));
    }

    void roundTrip()
    {
        ContainerPtr container(new Container);
        container->add(QStringLiteral("b"), QStringLiteral("it"), QStringLiteral("bi"));
        container->add(QStringLiteral("a"));
        container->add(QStringLiteral("A"));
        container->add(QStringLiteral("Value [] of []"), QStringLiteral("de"), QStringLiteral("Wert [] von []"));
        container->add(QStringLiteral("Value [] of []"), QStringLiteral("fr"), QStringLiteral("Value [] of []"));
        QDomDocument document;
        QDomElement root = document.appendChild(document.createElement(QStringLiteral("project"))).toElement();
        root.appendChild(Serialiser().save(container, document));
        QStringList written;
        for (QDomElement e = root.firstChildElement().firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
            written << e.attribute(QStringLiteral("key"));
        // Ignoring case, but upper before lower case where that is all that differs.
        QCOMPARE(written, (QStringList{"A", "a", "b", "Value [] of []"}));

        QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("texts.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document.toByteArray());
        file.close();
        Loader loader;
        loader.setAbortOnError(true);
        QVERIFY(loader.load(file.fileName()));
        // English equal to the key is added; a French text equal to it is lost.
        const ContainerPtr read = loader.container();
        QCOMPARE(read->keys(), container->keys());
        QCOMPARE(read->item(QStringLiteral("A")).translations(), (Translations{{"en", "A"}}));
        QCOMPARE(read->item(QStringLiteral("b")).translations(), (Translations{{"en", "b"}, {"it", "bi"}}));
        QCOMPARE(read->item(QStringLiteral("Value [] of []")).translations(),
                 (Translations{{"de", "Wert [] von []"}, {"en", "Value [] of []"}}));
    }

    void xercesDocumentNotSupported()
    {
        ContainerPtr container(new Container);
        container->add(QStringLiteral("k"), QStringLiteral("de"), QStringLiteral("ka"));
        QVERIFY(!Serialiser().save(container, static_cast<XERCES_CPP_NAMESPACE::DOMDocument*>(nullptr)));
    }
};

KES_TEST_MAIN(TestSerialiser)
#include "tst_serialiser.moc"
