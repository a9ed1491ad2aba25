#include <kes/qt/gui/option/dialog.h>

#include <kes/qt/gui/option/page.h>
#include <kes/qt/gui/option/tree.h>
#include <kes/qt/gui/option/treeitem.h>
#include <kes/qt/translation/manager.h>

#include "kestest.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>
#include <QtTest>

using kes::qt::gui::option::Dialog;
using kes::qt::gui::option::Page;
using kes::qt::gui::option::Tree;
using kes::qt::gui::option::TreeItem;
using kes::qt::translation::Manager;

namespace {

// Counts the calls of finish() and answers as told.
class CountingPage : public Page
{
public:
    explicit CountingPage(const QString& title, bool accepts = true)
        : accepts(accepts)
    {
        setWindowTitle(title);
    }
    bool finish() override
    {
        ++asked;
        return accepts;
    }
    bool accepts;
    int asked = 0;
};

struct Pages
{
    CountingPage* general;
    CountingPage* camera;
    CountingPage* laser;
    TreeItem* devices;
};

// "General" at the top, then the directory "Devices" with "Camera" and "Laser".
Pages addPages(Dialog* dialog)
{
    Pages p{new CountingPage("General"), new CountingPage("Camera"), new CountingPage("Laser"), nullptr};
    dialog->addPage(p.general);
    p.devices = dialog->addDir("Devices", "tst_dialog");
    dialog->addPage(p.camera, p.devices);
    dialog->addPage(p.laser, p.devices);
    return p;
}

template<typename T>
T* child(QObject* parent, const char* name)
{
    return parent->findChild<T*>(QLatin1String(name));
}

QPushButton* button(Dialog* dialog, QDialogButtonBox::StandardButton which)
{
    return child<QDialogButtonBox>(dialog, "buttonBox")->button(which);
}

QWidget* currentPage(Dialog* dialog)
{
    return child<QStackedWidget>(dialog, "stackedWidget")->currentWidget();
}

} // namespace

class tst_Dialog : public QObject
{
    Q_OBJECT

    // Opens a dialog on the stored geometry; deleted by closing it or at the end of the test.
    QPointer<Dialog> open(QAction* action = nullptr, Pages* pages = nullptr)
    {
        QPointer<Dialog> dialog(new Dialog(nullptr, action));
        const Pages added = addPages(dialog);
        if (pages)
            *pages = added;
        dialog->show();
        if (!QTest::qWaitForWindowExposed(dialog))
            qWarning("dialog not exposed");
        return dialog;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QSettings().setValue("language", "en");
        QVERIFY(Manager::singleton().load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
    }

    void init() { QSettings().clear(); }
    void cleanup()
    {
        for (QWidget* w : QApplication::topLevelWidgets())
            delete qobject_cast<Dialog*>(w);
        Manager::singleton().setLanguage(QStringLiteral("en"));
    }

    void firstGeometryWithoutSettings()
    {
        QPointer<Dialog> dialog = open();
        QCOMPARE(dialog->size(), QSize(400, 300));
        QCOMPARE(dialog->pos(), QPoint(200, 200));
        // The first page of the tree is shown, whatever directory it is in.
        QCOMPARE(currentPage(dialog)->windowTitle(), QStringLiteral("General"));
        QVERIFY(child<QTreeView>(dialog, "treeView")->isHeaderHidden());
    }

    // Every way of closing keeps the geometry for the next dialog and enables the action again.
    void closingKeepsGeometry_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("OK") << 0;
        QTest::newRow("Cancel") << 1;
        QTest::newRow("close button") << 2;
    }

    void closingKeepsGeometry()
    {
        QFETCH(int, how);
        QAction action(nullptr);
        QPointer<Dialog> dialog = open(&action);
        QVERIFY(!action.isEnabled());
        dialog->move(321, 234);
        dialog->resize(520, 410);
        auto* splitter = child<QSplitter>(dialog, "splitter");
        splitter->setSizes({230, 260});
        const QList<int> sizes = splitter->sizes();
        if (how == 0)
            QTest::mouseClick(button(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
        else if (how == 1)
            QTest::mouseClick(button(dialog, QDialogButtonBox::Cancel), Qt::LeftButton);
        else
            QVERIFY(dialog->close());
        QTRY_VERIFY(dialog.isNull());
        QVERIFY(action.isEnabled());

        dialog = open(&action);
        QCOMPARE(dialog->pos(), QPoint(321, 234));
        QCOMPARE(dialog->size(), QSize(520, 410));
        QCOMPARE(child<QSplitter>(dialog, "splitter")->sizes(), sizes);
        QVERIFY(!action.isEnabled());
        delete dialog;
        QVERIFY(action.isEnabled());
    }

    void refusingPageKeepsDialogOpen()
    {
        QAction action(nullptr);
        Pages pages;
        QPointer<Dialog> dialog = open(&action, &pages);
        pages.camera->accepts = false;
        QTest::mouseClick(button(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
        QCoreApplication::processEvents();
        QVERIFY(dialog && dialog->isVisible());
        QCOMPARE(pages.general->asked, 1);
        QCOMPARE(pages.camera->asked, 1);
        QCOMPARE(pages.laser->asked, 0);
        QVERIFY(!QSettings().contains("gui_option/size"));
        QVERIFY(!action.isEnabled());

        pages.camera->accepts = true;
        QSignalSpy accepted(dialog.data(), SIGNAL(accepted()));
        QTest::mouseClick(button(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(pages.laser->asked, 1);
        QVERIFY(QSettings().contains("gui_option/size"));
        QVERIFY(action.isEnabled());
        QTRY_VERIFY(dialog.isNull());
    }

    void clickingDirectoryKeepsPage()
    {
        QPointer<Dialog> dialog = open();
        auto* view = child<QTreeView>(dialog, "treeView");
        auto* tree = qobject_cast<Tree*>(view->model());
        QVERIFY(tree);
        const QModelIndex devices = tree->index(1, 0);
        QCOMPARE(tree->data(devices).toString(), QStringLiteral("Devices"));
        view->expandAll();
        const QModelIndex laser = tree->index(1, 0, devices);
        QCOMPARE(tree->page(laser)->windowTitle(), QStringLiteral("Laser"));

        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(laser).center());
        QCOMPARE(currentPage(dialog), tree->page(laser));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(devices).center());
        QCOMPARE(currentPage(dialog), tree->page(laser));
    }

    // A directory named by a text the library translates follows the language; the model says so.
    void directoryNameFollowsLanguage_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("name");
        QTest::newRow("German") << "de" << "&Sprachen";
        QTest::newRow("Spanish") << "es" << "&Idiomas";
    }

    void directoryNameFollowsLanguage()
    {
        Tree tree;
        TreeItem* dir = tree.addDir("&Languages", "kes::qt::translation::Menu");
        tree.addPage(new CountingPage("Start"), dir);
        const QModelIndex index = tree.index(dir);
        QCOMPARE(tree.data(index).toString(), QStringLiteral("&Languages"));
        QCOMPARE(tree.index(dir->child(0)).parent(), index);
        QSignalSpy changes(&tree, SIGNAL(dataChanged(QModelIndex, QModelIndex)));
        QFETCH(QString, lang);
        Manager::singleton().setLanguage(lang);
        QTEST(tree.data(index).toString(), "name");
        QTEST(dir->path().first(), "name");
        QVERIFY(changes.count() >= 1);
        QCOMPARE(changes.first().at(0).toModelIndex(), index);
        delete tree.page(tree.index(dir->child(0)));
    }
};

KES_TEST_MAIN(tst_Dialog)
#include "tst_dialog.moc"
