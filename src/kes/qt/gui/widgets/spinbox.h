#ifndef KES_QT_GUI_WIDGETS_SPINBOX_H
#define KES_QT_GUI_WIDGETS_SPINBOX_H

#include <kes/qt/gui/widgets/userdata.h>
#include <kes/qt/gui/widgets/widget.h>
#include <kes/qt/kes_qt_export.h>

#include <QSpinBox>

#include <memory>

namespace kes::qt::gui::widgets {

struct SpinBoxPrivate;

/// An integer spin box for parameter editors. Typed text is taken only on Return, on leaving the
/// field or on stepping, and shows the Editing colour until then; Escape brings back the last
/// committed value. Return on an unchanged number and leaving an unchanged field emit nothing but
/// lostFocus(). A step by arrow, wheel or program is committed at once: valueChanged() is followed
/// by editingFinished(). Every signal carries the user data given to the constructor.
///
/// Created without a parent: placing it into a layout gives it one.
class KES_QT_EXPORT SpinBox : public QSpinBox, public Widget, public UserData<void*>
{
    Q_OBJECT
    /// Whether typing tints the field; see Widget::displayStyleTracking().
    Q_PROPERTY(bool displayStyleTracking READ displayStyleTracking WRITE setDisplayStyleTracking)

public:
    SpinBox();
    /// A spin box whose signals carry \a userData.
    explicit SpinBox(void* userData);
    ~SpinBox() override;

    // QObject has a userData() of its own.
    using UserData<void*>::userData;

    /// The value of the last Return, focus loss, step or setValue().
    int committedValue() const;

    /// Like setValue(), without any signal.
    void directSetValue(int value);
    /// The integer part of \a minimum, or the int bound it passes (-1e20 gives INT_MIN).
    void setMinimum(double minimum);
    /// The integer part of \a maximum, or the int bound it passes (1e20 gives INT_MAX).
    void setMaximum(double maximum);
    /// As QSpinBox::setRange(); a value the new bounds change is no longer shown as being edited.
    void setRange(int minimum, int maximum);

public Q_SLOTS:
    /// Sets and commits \a value, as the range clamps it.
    void setValue(int value);

    /// Ends the tint and re-emits the value with the user data; a change that did not come from typing is final at once and also finishes editing.
    void on_valueChanged(int value);
    /// Re-emits the text with the user data.
    void on_valueChanged(const QString& text);
    /// Commits the value, ends the tint and emits editingFinished(void*).
    void on_editingFinished();
    /// Tints the field: the user is typing.
    void on_lineEdit_textChanged(const QString& text);

Q_SIGNALS:
    /// The value changed to \a i, committed or being typed.
    void valueChanged(int i, void* userData);
    /// The value's text changed to \a text.
    void valueChanged(const QString& text, void* userData);
    /// A value was committed by Return, focus loss, a step or the program.
    void editingFinished(void* userData);
    /// The field lost the keyboard focus, whether or not that committed a value.
    void lostFocus();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    template <typename Box, typename Base, typename T>
    friend struct EditTracking;

    void init();

    std::unique_ptr<SpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
