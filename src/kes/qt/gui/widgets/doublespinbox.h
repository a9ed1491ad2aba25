#ifndef KES_QT_GUI_WIDGETS_DOUBLESPINBOX_H
#define KES_QT_GUI_WIDGETS_DOUBLESPINBOX_H

#include <kes/qt/gui/widgets/userdata.h>
#include <kes/qt/gui/widgets/widget.h>
#include <kes/qt/kes_qt_export.h>

#include <QDoubleSpinBox>

#include <memory>

namespace kes::qt::gui::widgets {

struct DoubleSpinBoxPrivate;

/// A double spin box for parameter editors, with the editing rules of SpinBox: typed text is
/// taken on Return, focus loss or stepping and shows the Editing colour until then, Escape brings
/// back the committed value, and every signal carries the user data.
///
/// Created without a parent: placing it into a layout gives it one.
class KES_QT_EXPORT DoubleSpinBox : public QDoubleSpinBox, public Widget, public UserData<void*>
{
    Q_OBJECT
    /// Whether typing tints the field; see Widget::displayStyleTracking().
    Q_PROPERTY(bool displayStyleTracking READ displayStyleTracking WRITE setDisplayStyleTracking)

public:
    DoubleSpinBox();
    /// A spin box whose signals carry \a userData.
    explicit DoubleSpinBox(void* userData);
    ~DoubleSpinBox() override;

    // QObject has a userData() of its own.
    using UserData<void*>::userData;

    /// The value of the last Return, focus loss, step or setValue().
    double committedValue() const;

    /// A float goes in through its shortest decimal text, so that 0.1f shows as 0.1 rather than
    /// as 0.100000001490116.
    void setValue(float value);
    /// Like setValue(), without any signal.
    void directSetValue(double value);
    /// Like setValue(float), without any signal.
    void directSetValue(float value);
    /// As QDoubleSpinBox::setMinimum(); a value the new bound changes is no longer shown as being edited.
    void setMinimum(double minimum);
    /// As QDoubleSpinBox::setMaximum(); a value the new bound changes is no longer shown as being edited.
    void setMaximum(double maximum);
    /// As QDoubleSpinBox::setRange(); a value the new bounds change is no longer shown as being edited.
    void setRange(double minimum, double maximum);
    /// The range from minus to plus the largest finite double.
    void useMaximumRange();

public Q_SLOTS:
    /// Sets and commits \a value, as the range and decimals round it.
    void setValue(double value);

    /// Ends the tint and re-emits the value with the user data; a change that did not come from typing is final at once and also finishes editing.
    void on_valueChanged(double value);
    /// Re-emits the text with the user data.
    void on_valueChanged(const QString& text);
    /// Commits the value, ends the tint and emits editingFinished(void*).
    void on_editingFinished();
    /// Tints the field: the user is typing.
    void on_lineEdit_textChanged(const QString& text);

Q_SIGNALS:
    /// The value changed to \a d, committed or being typed.
    void valueChanged(double d, void* userData);
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

    std::unique_ptr<DoubleSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
