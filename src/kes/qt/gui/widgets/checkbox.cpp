#include <kes/qt/gui/widgets/checkbox.h>

#include <QEvent>
#include <QKeyEvent>

namespace kes::qt::gui::widgets {

class CheckBoxPrivate
{
public:
    bool readOnly = false;
};

namespace {

// The keys with which a button toggles itself without asking hitButton().
bool isToggleKey(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
}

} // namespace

CheckBox::CheckBox(QWidget* parent)
    : CheckBox(QString(), parent)
{
}

CheckBox::CheckBox(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
    , d(std::make_unique<CheckBoxPrivate>())
{
}

CheckBox::~CheckBox() = default;

bool CheckBox::isReadOnly() const
{
    return d->readOnly;
}

void CheckBox::setReadOnly(bool readOnly)
{
    d->readOnly = readOnly;
    // A press begun before must not end in a toggle.
    if (readOnly)
        setDown(false);
}

bool CheckBox::hitButton(const QPoint& pos) const
{
    return !d->readOnly && QCheckBox::hitButton(pos);
}

bool CheckBox::event(QEvent* event)
{
    // The shortcut only brings the focus, as a read-only field's label would.
    if (d->readOnly && event->type() == QEvent::Shortcut) {
        if (focusPolicy() != Qt::NoFocus)
            setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    return QCheckBox::event(event);
}

void CheckBox::keyPressEvent(QKeyEvent* event)
{
    if (d->readOnly && isToggleKey(event)) {
        event->ignore();
        return;
    }
    QCheckBox::keyPressEvent(event);
}

void CheckBox::keyReleaseEvent(QKeyEvent* event)
{
    if (d->readOnly && isToggleKey(event)) {
        event->ignore();
        return;
    }
    QCheckBox::keyReleaseEvent(event);
}

} // namespace kes::qt::gui::widgets
