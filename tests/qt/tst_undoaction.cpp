#include <kes/qt/undoaction.h>

#include <kes/qt/translation/manager.h>
#include <kes/qt/undocommand.h>

#include "kestest.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeySequence>
#include <QSettings>
#include <QUndoGroup>
#include <QUndoStack>
#include <QtTest>

#include <functional>

using kes::qt::UndoAction;
using kes::qt::UndoCommand;
using kes::qt::translation::Manager;

namespace {

// Describes itself with one of the library's translated texts, so that the compiled-in
// translations change it.
class RemovePoint : public UndoCommand
{
public:
    RemovePoint() : UndoCommand(QStringLiteral("Remove point")) {}
    QString translatedText() const override
    {
        return QCoreApplication::translate("kes::qt::discreteapproximator::ContextMenu", "Remove point");
    }
};

struct Fixture
{
    QUndoStack stack;
    QUndoGroup group;
    QObject owner;
    UndoAction* undo = nullptr;
    UndoAction* redo = nullptr;

    void followStack()
    {
        undo = UndoAction::createUndoAction(&stack, &owner);
        redo = UndoAction::createRedoAction(&stack, &owner);
    }
    void followGroup()
    {
        group.addStack(&stack);
        undo = UndoAction::createUndoAction(&group, &owner);
        redo = UndoAction::createRedoAction(&group, &owner);
    }
};

using Setup = std::function<void(Fixture&)>;

} // namespace

Q_DECLARE_METATYPE(Setup)

class tst_UndoAction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSettings().setValue("language", "en");
        Manager& manager = Manager::singleton();
        QVERIFY(manager.load(QFileInfo(QStringLiteral(KES_LANGUAGE_LIST))));
        manager.addTranslator(QStringLiteral("de"), QStringLiteral(KES_TEST_QM_DIR "/qtundo_de.qm"));
        QCOMPARE(manager.currentLanguageString(), QStringLiteral("en"));
    }

    void cleanup() { Manager::singleton().setLanguage(QStringLiteral("en")); }

    void labelsAndStates_data()
    {
        QTest::addColumn<Setup>("setup");
        QTest::addColumn<QString>("undoText");
        QTest::addColumn<bool>("canUndo");
        QTest::addColumn<QString>("redoText");
        QTest::addColumn<bool>("canRedo");

        QTest::newRow("empty stack") << Setup([](Fixture& f) { f.followStack(); })
                                     << "Undo" << false << "Redo" << false;
        QTest::newRow("plain command") << Setup([](Fixture& f) {
            f.followStack();
            f.stack.push(new QUndoCommand(QStringLiteral("Move")));
        }) << "Undo Move" << true << "Redo" << false;
        QTest::newRow("plain command undone by the action") << Setup([](Fixture& f) {
            f.followStack();
            f.stack.push(new QUndoCommand(QStringLiteral("Move")));
            f.undo->trigger();
        }) << "Undo" << false << "Redo Move" << true;
        QTest::newRow("translated command, actions made later") << Setup([](Fixture& f) {
            f.stack.push(new QUndoCommand(QStringLiteral("Move")));
            f.stack.push(new RemovePoint);
            f.stack.undo();
            f.followStack();
        }) << "Undo Move" << true << "Redo Remove point" << true;
        QTest::newRow("group follows its active stack") << Setup([](Fixture& f) {
            f.followGroup();
            f.stack.setActive();
            f.stack.push(new RemovePoint);
        }) << "Undo Remove point" << true << "Redo" << false;
        QTest::newRow("group without active stack") << Setup([](Fixture& f) {
            f.stack.push(new RemovePoint);
            f.followGroup();
            f.redo->setPrefixedText(QStringLiteral("Stored"));
        }) << "Undo" << false << "Redo Stored" << false;
    }

    void labelsAndStates()
    {
        QFETCH(Setup, setup);
        Fixture f;
        setup(f);
        QTEST(f.undo->text(), "undoText");
        QTEST(f.undo->isEnabled(), "canUndo");
        QTEST(f.redo->text(), "redoText");
        QTEST(f.redo->isEnabled(), "canRedo");
        QCOMPARE(f.undo->shortcut(), QKeySequence(QKeySequence::Undo));
        QCOMPARE(f.redo->shortcut(), QKeySequence(QKeySequence::Redo));
    }

    // The command's own text follows the language although the stack does not change; the word
    // comes from Qt's catalogue, here a stand-in installed with German.
    void followsLanguage_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("undoText");
        QTest::addColumn<QString>("redoText");

        QTest::newRow("German") << "en" << "de" << "Rückgängig Punkt entfernen" << "Wiederholen Move";
        // No stand-in: the word is whatever the installed Qt catalogue says, the command's own.
        QTest::newRow("French") << "de" << "fr" << "%1 Supprimer le point" << "%1 Move";
        QTest::newRow("back to English") << "de" << "en" << "Undo Remove point" << "Redo Move";
    }

    void followsLanguage()
    {
        QFETCH(QString, from);
        Manager::singleton().setLanguage(from);
        Fixture f;
        f.followGroup();
        f.stack.setActive();
        f.stack.push(new RemovePoint);
        f.stack.push(new QUndoCommand(QStringLiteral("Move")));
        f.stack.undo();
        QSignalSpy indexChanges(&f.stack, SIGNAL(indexChanged(int)));
        QFETCH(QString, lang);
        Manager::singleton().setLanguage(lang);
        QFETCH(QString, undoText);
        QFETCH(QString, redoText);
        const auto qtWord = [](QString text, const char* word) {
            return text.contains(QLatin1String("%1"))
                       ? text.arg(QUndoStack::staticMetaObject.tr(word, "DO NOT TRANSLATE!"))
                       : text;
        };
        QCOMPARE(f.undo->text(), qtWord(undoText, "Undo"));
        QCOMPARE(f.redo->text(), qtWord(redoText, "Redo"));
        QCOMPARE(indexChanges.count(), 0);
    }
};

KES_TEST_MAIN(tst_UndoAction)
#include "tst_undoaction.moc"
