#include <kes/qt/gui/widgets/webdialog.h>
#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QFile>
#include <QFileInfo>
#include <QLayout>
#include <QTemporaryDir>
#include <QUrl>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>
#include <QtTest>

using kes::qt::gui::widgets::WebDialog;
using kes::qt::translation::Manager;

class tst_WebDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(Manager::singleton().load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
        Manager::singleton().setLanguage(QStringLiteral("en"));
    }

    void showsALocalPage()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        QFile page(dir.filePath(QStringLiteral("help.html")));
        QVERIFY(page.open(QIODevice::WriteOnly));
        page.write("<html><head><title>Laser scanner help</title></head>"
                   "<body><h1>Laser scanner</h1><p>Mount the scanner level.</p></body></html>");
        page.close();

        WebDialog dialog;
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Web page"));
        QCOMPARE(dialog.layout()->contentsMargins(), QMargins());
        QCOMPARE(dialog.findChild<QWebView*>(QStringLiteral("webView")), dialog.webView());
        Manager::singleton().setLanguage(QStringLiteral("fr"));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Page web"));
        Manager::singleton().setLanguage(QStringLiteral("en"));

        QSignalSpy loaded(dialog.webView(), SIGNAL(loadFinished(bool)));
        dialog.show();
        dialog.load(QUrl::fromLocalFile(page.fileName()));
        QTRY_COMPARE(loaded.count(), 1);
        QVERIFY(loaded.first().first().toBool());
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Laser scanner help"));
        QVERIFY(dialog.webView()->page()->mainFrame()->toPlainText().contains(QStringLiteral("Mount the scanner level.")));
        // The page's title outlasts a language change.
        Manager::singleton().setLanguage(QStringLiteral("de"));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Laser scanner help"));
        Manager::singleton().setLanguage(QStringLiteral("en"));
    }
};

KES_TEST_MAIN(tst_WebDialog)
#include "tst_webdialog.moc"
