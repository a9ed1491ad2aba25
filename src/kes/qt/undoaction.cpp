#include <kes/qt/undoaction.h>

#include <kes/qt/translation/manager.h>
#include <kes/qt/undocommand.h>

#include <QCoreApplication>
#include <QKeySequence>
#include <QPointer>
#include <QUndoGroup>
#include <QUndoStack>

namespace kes::qt {

struct UndoActionPrivate
{
    QString prefixedText;
    bool redo = false;
    // Guarded: neither is owned, and either may go before the action.
    QPointer<QUndoStack> stack;
    QPointer<QUndoGroup> group;
};

UndoAction::UndoAction(bool redo, QUndoStack* stack, QObject* parent)
    : QAction(parent)
    , d(std::make_unique<UndoActionPrivate>())
{
    d->redo = redo;
    d->stack = stack;
    if (stack)
        connect(stack, SIGNAL(indexChanged(int)), this, SLOT(translate()));
    connect(&translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

UndoAction::UndoAction(bool redo, QUndoGroup* group, QObject* parent)
    : QAction(parent)
    , d(std::make_unique<UndoActionPrivate>())
{
    d->redo = redo;
    d->group = group;
    if (group)
        connect(group, SIGNAL(indexChanged(int)), this, SLOT(translate()));
    connect(&translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

UndoAction::~UndoAction() = default;

UndoAction* UndoAction::createUndoAction(QUndoStack* stack, QObject* parent)
{
    auto* action = new UndoAction(false, stack, parent);
    if (!stack)
        return action;
    action->setEnabled(stack->canUndo());
    action->setPrefixedText(stack->undoText());
    connect(stack, SIGNAL(canUndoChanged(bool)), action, SLOT(setEnabled(bool)));
    connect(stack, SIGNAL(undoTextChanged(QString)), action, SLOT(setPrefixedText(QString)));
    connect(action, SIGNAL(triggered()), stack, SLOT(undo()));
    return action;
}

UndoAction* UndoAction::createRedoAction(QUndoStack* stack, QObject* parent)
{
    auto* action = new UndoAction(true, stack, parent);
    if (!stack)
        return action;
    action->setEnabled(stack->canRedo());
    action->setPrefixedText(stack->redoText());
    connect(stack, SIGNAL(canRedoChanged(bool)), action, SLOT(setEnabled(bool)));
    connect(stack, SIGNAL(redoTextChanged(QString)), action, SLOT(setPrefixedText(QString)));
    connect(action, SIGNAL(triggered()), stack, SLOT(redo()));
    return action;
}

UndoAction* UndoAction::createUndoAction(QUndoGroup* group, QObject* parent)
{
    auto* action = new UndoAction(false, group, parent);
    if (!group)
        return action;
    action->setEnabled(group->canUndo());
    action->setPrefixedText(group->undoText());
    connect(group, SIGNAL(canUndoChanged(bool)), action, SLOT(setEnabled(bool)));
    connect(group, SIGNAL(undoTextChanged(QString)), action, SLOT(setPrefixedText(QString)));
    connect(action, SIGNAL(triggered()), group, SLOT(undo()));
    return action;
}

UndoAction* UndoAction::createRedoAction(QUndoGroup* group, QObject* parent)
{
    auto* action = new UndoAction(true, group, parent);
    if (!group)
        return action;
    action->setEnabled(group->canRedo());
    action->setPrefixedText(group->redoText());
    connect(group, SIGNAL(canRedoChanged(bool)), action, SLOT(setEnabled(bool)));
    connect(group, SIGNAL(redoTextChanged(QString)), action, SLOT(setPrefixedText(QString)));
    connect(action, SIGNAL(triggered()), group, SLOT(redo()));
    return action;
}

bool UndoAction::isRedo() const
{
    return d->redo;
}

QString UndoAction::prefixedText() const
{
    return d->prefixedText;
}

void UndoAction::setPrefixedText(const QString& text)
{
    d->prefixedText = text;
    translate();
}

void UndoAction::translate()
{
    QString description = d->prefixedText;
    const QUndoStack* s = d->group ? d->group->activeStack() : d->stack.data();
    if (s) {
        const QUndoCommand* command = nullptr;
        if (d->redo && s->canRedo())
            command = s->command(s->index());
        else if (!d->redo && s->canUndo())
            command = s->command(s->index() - 1);
        if (const auto* translatable = dynamic_cast<const UndoCommand*>(command)) {
            const QString text = translatable->translatedText();
            if (!text.isEmpty())
                description = text;
        }
    }
    setShortcut(d->redo ? QKeySequence::Redo : QKeySequence::Undo);

    // Qt's own catalogue decides the word, not ours: the context and the words are passed as
    // variables so that lupdate does not copy them into the library's translation files.
    static const char* const context = QUndoStack::staticMetaObject.className();
    static const char* const disambiguation = "DO NOT TRANSLATE!";
    const char* const word = d->redo ? "Redo" : "Undo";
    QString label = QCoreApplication::translate(context, word, disambiguation);
    if (!description.isEmpty())
        label += QLatin1Char(' ') + description;
    setText(label);
}

} // namespace kes::qt
