#ifndef KES_QT_UNDOACTION_H
#define KES_QT_UNDOACTION_H

#include <kes/qt/kes_qt_export.h>

#include <QAction>
#include <QString>

#include <memory>

class QUndoGroup;
class QUndoStack;

namespace kes::qt {

struct UndoActionPrivate;

/// An undo or redo action following a QUndoStack or a QUndoGroup's active stack which, unlike
/// the toolkit's own, re-labels itself when the language changes.
///
/// The label is "Undo" or "Redo", as Qt's own catalogue translates it, followed by the
/// description of the command in question: its UndoCommand::translatedText() when it has one,
/// else the text the stack reported last. The factories return ready-wired actions; the plain
/// constructors only keep the label up to date.
class KES_QT_EXPORT UndoAction : public QAction
{
    Q_OBJECT

public:
    /// \a stack is followed, not owned, and may be null.
    UndoAction(bool redo, QUndoStack* stack, QObject* parent);
    /// \a group is followed, not owned, and may be null; its active stack is used.
    UndoAction(bool redo, QUndoGroup* group, QObject* parent);
    ~UndoAction() override;

    /// Actions enabled, labelled and triggering like QUndoStack::createUndoAction() and its
    /// relatives, owned by \a parent.
    static UndoAction* createUndoAction(QUndoStack* stack, QObject* parent);
    /// The redo action of \a stack; see createUndoAction().
    static UndoAction* createRedoAction(QUndoStack* stack, QObject* parent);
    /// The undo action of \a group's active stack.
    static UndoAction* createUndoAction(QUndoGroup* group, QObject* parent);
    /// The redo action of \a group's active stack.
    static UndoAction* createRedoAction(QUndoGroup* group, QObject* parent);

    /// Whether the action redoes rather than undoes.
    bool isRedo() const;
    /// The description last received from the stack or group.
    QString prefixedText() const;

public Q_SLOTS:
    /// Takes the stack's description of the command and labels the action anew.
    void setPrefixedText(const QString& text);
    /// Labels the action in the current language.
    void translate();

private:
    std::unique_ptr<UndoActionPrivate> const d;
};

} // namespace kes::qt

#endif
