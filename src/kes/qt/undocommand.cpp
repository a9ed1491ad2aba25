#include <kes/qt/undocommand.h>

namespace kes::qt {

UndoCommand::UndoCommand(QUndoCommand* parent)
    : QUndoCommand(parent)
{
}

UndoCommand::UndoCommand(const QString& text, QUndoCommand* parent)
    : QUndoCommand(text, parent)
{
}

UndoCommand::~UndoCommand() = default;

QString UndoCommand::translatedText() const
{
    return QString();
}

} // namespace kes::qt
