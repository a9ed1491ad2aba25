#ifndef KES_QT_GUI_WIDGETS_EDITTRACKING_P_H
#define KES_QT_GUI_WIDGETS_EDITTRACKING_P_H

// Not installed API: the editing rules that SpinBox and DoubleSpinBox share, written once for the
// box, its Qt base and its value type. Both boxes befriend it for their committed value and the
// protected parts of their base.

#include <kes/qt/gui/widgets/widget.h>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>

namespace kes::qt::gui::widgets {

template <typename Box, typename Base, typename T>
struct EditTracking
{
    // The line edit's text as a number, when it is one the box accepts.
    static bool displayedValue(const Box* box, T* value)
    {
        QString text = box->lineEdit()->displayText();
        int pos = box->lineEdit()->cursorPosition();
        if (box->validate(text, pos) != QValidator::Acceptable)
            return false;
        *value = box->valueFromText(text);
        return true;
    }

    static void normalAfterBoundChange(Box* box, T before)
    {
        if (box->value() != before && box->displayStyleTracking())
            box->setDisplayStyle(Widget::Normal);
    }

    static void valueChanged(Box* box, T value)
    {
        if (box->displayStyleTracking()) {
            const Widget::DisplayStyle before = box->displayStyle();
            box->setDisplayStyle(Widget::Normal);
            Q_EMIT box->valueChanged(value, box->userData());
            // A change that ends typing is finished by Return or focus loss, which follow.
            if (before != Widget::Normal)
                return;
        } else {
            Q_EMIT box->valueChanged(value, box->userData());
        }
        // A step, a wheel turn or a program's change: nothing was being typed, so it is final.
        Q_EMIT box->QAbstractSpinBox::editingFinished();
    }

    static void editingFinished(Box* box)
    {
        box->d->committed = box->value();
        if (box->displayStyleTracking())
            box->setDisplayStyle(Widget::Normal);
        Q_EMIT box->editingFinished(box->userData());
    }

    static void textEdited(Box* box)
    {
        if (box->displayStyleTracking())
            box->setDisplayStyle(Widget::Editing);
    }

    static void keyPress(Box* box, QKeyEvent* event)
    {
        if (event->key() == Qt::Key_Escape) {
            box->setValue(box->d->committed);
            box->selectAll();
            if (box->displayStyleTracking())
                box->setDisplayStyle(Widget::Normal);
        } else if (event->key() == Qt::Key_Return) {
            T shown{};
            if (displayedValue(box, &shown) && shown == box->d->committed) {
                box->selectAll();
                if (box->displayStyleTracking())
                    box->setDisplayStyle(Widget::Normal);
                event->accept();
                return;
            }
        }
        box->Base::keyPressEvent(event);
    }

    static void focusOut(Box* box, QFocusEvent* event)
    {
        const bool blocked = box->signalsBlocked();
        T shown{};
        const bool number = displayedValue(box, &shown);
        if (number && shown == box->d->committed) {
            box->selectAll();
            if (box->displayStyleTracking())
                box->setDisplayStyle(Widget::Normal);
            // Nothing changed, so the base's editingFinished() would only be noise.
            box->blockSignals(true);
            box->Base::focusOutEvent(event);
        } else {
            if (number)
                box->setValue(shown);
            else if (box->displayStyleTracking())
                box->setDisplayStyle(Widget::Normal); // the base puts the committed text back
            box->blockSignals(false);
            box->Base::focusOutEvent(event);
        }
        box->blockSignals(blocked);
        Q_EMIT box->lostFocus();
    }
};

} // namespace kes::qt::gui::widgets

#endif
