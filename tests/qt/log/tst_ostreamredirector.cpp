#include <kes/qt/log/ostreamredirector.h>

#include <kes/qt/log/log.h>

#include "kestest.h"

#include <QTextBlock>
#include <QtTest>

#include <iostream>
#include <memory>
#include <sstream>
#include <string>

using kes::qt::log::Log;
using kes::qt::log::OStreamRedirector;

namespace {

// The lines the hub has received so far, without its empty first line.
QStringList delivered(Log& hub)
{
    QCoreApplication::sendPostedEvents(&hub, Log::MessageReceivedEvent::messageReceivedType);
    QStringList result;
    for (QTextBlock block = hub.begin().next(); block.isValid(); block = block.next())
        result << block.text();
    return result;
}

} // namespace

class tst_OStreamRedirector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void postsCompleteLines_data();
    void postsCompleteLines();
    void restoresPreviousBuffer_data();
    void restoresPreviousBuffer();
};

void tst_OStreamRedirector::postsCompleteLines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("oneByOne"); // put() per byte instead of one write()
    QTest::addColumn<QStringList>("whileRedirected");
    QTest::addColumn<QStringList>("afterwards");

    for (const bool single : {false, true}) {
        const QByteArray suffix = single ? ", put per byte" : "";
        QTest::newRow("line and partial line" + suffix)
            << QByteArray("a\nb") << single << QStringList{"a"} << QStringList{"a", "b"};
        QTest::newRow("several lines" + suffix)
            << QByteArray("one\ntwo\nthree\n") << single << QStringList{"one", "two", "three"}
            << QStringList{"one", "two", "three"};
        QTest::newRow("empty lines" + suffix)
            << QByteArray("\n\nx\n") << single << QStringList{"", "", "x"}
            << QStringList{"", "", "x"};
        // The carriage return stays in the line; the document breaks the line there.
        QTest::newRow("carriage return" + suffix)
            << QByteArray("x\r\ny\n") << single << QStringList{"x", "", "y"}
            << QStringList{"x", "", "y"};
        QTest::newRow("Latin-1" + suffix)
            << QByteArray("\xe9t\xe9 \xb5m\n") << single << QStringList{QStringLiteral("été µm")}
            << QStringList{QStringLiteral("été µm")};
        QTest::newRow("UTF-8 read as Latin-1" + suffix)
            << QByteArray("\xc3\xa9\n") << single << QStringList{QStringLiteral("Ã©")}
            << QStringList{QStringLiteral("Ã©")};
    }
    QTest::newRow("nothing written") << QByteArray() << false << QStringList() << QStringList();
}

void tst_OStreamRedirector::postsCompleteLines()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, oneByOne);
    QFETCH(QStringList, whileRedirected);
    QFETCH(QStringList, afterwards);

    Log hub(false, true);
    std::ostringstream stream;
    {
        OStreamRedirector redirector(stream, hub);
        if (oneByOne) {
            for (const char byte : bytes)
                stream.put(byte);
        } else {
            stream.write(bytes.constData(), bytes.size());
        }
        stream.flush();
        QVERIFY(stream.good());
        QCOMPARE(delivered(hub), whileRedirected);
    }
    QCOMPARE(delivered(hub), afterwards);
    QVERIFY(stream.str().empty());
}

void tst_OStreamRedirector::restoresPreviousBuffer_data()
{
    QTest::addColumn<int>("which");

    QTest::newRow("string stream") << 0;
    QTest::newRow("std::cout") << 1;
    QTest::newRow("std::cerr") << 2;
}

void tst_OStreamRedirector::restoresPreviousBuffer()
{
    QFETCH(int, which);

    std::ostringstream own;
    std::ostream& stream = which == 1 ? std::cout : which == 2 ? std::cerr : own;
    std::streambuf* const before = stream.rdbuf();

    Log hub;
    {
        OStreamRedirector outer(stream, hub);
        stream << "outer " << 1 << std::endl;
        {
            OStreamRedirector inner(stream, hub);
            QCOMPARE(stream.rdbuf(), static_cast<std::streambuf*>(&inner));
            stream << "inner " << 2.5 << '\n' << "unfinished";
        }
        QCOMPARE(stream.rdbuf(), static_cast<std::streambuf*>(&outer));
        stream << "outer again";
    }
    QCOMPARE(stream.rdbuf(), before);
    QCOMPARE(delivered(hub), (QStringList{"outer 1", "inner 2.5", "unfinished", "outer again"}));

    own << "after";
    QCOMPARE(own.str(), std::string("after"));
}

KES_TEST_MAIN(tst_OStreamRedirector)
#include "tst_ostreamredirector.moc"
