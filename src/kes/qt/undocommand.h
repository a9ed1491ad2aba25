#ifndef KES_QT_UNDOCOMMAND_H
#define KES_QT_UNDOCOMMAND_H

#include <kes/qt/kes_qt_export.h>

#include <QString>
#include <QUndoCommand>

namespace kes::qt {

/// An undo command that can describe itself in the current language.
///
/// QUndoStack keeps the text a command had when it was pushed; UndoAction asks translatedText()
/// instead whenever it is not empty, so that its label follows a language switch.
class KES_QT_EXPORT UndoCommand : public QUndoCommand
{
public:
    /// A command without a text; as a child of \a parent if given.
    explicit UndoCommand(QUndoCommand* parent = nullptr);
    /// A command described by \a text; as a child of \a parent if given.
    explicit UndoCommand(const QString& text, QUndoCommand* parent = nullptr);
    ~UndoCommand() override;

    /// The description in the current language; empty unless a subclass says otherwise.
    virtual QString translatedText() const;
};

} // namespace kes::qt

#endif
