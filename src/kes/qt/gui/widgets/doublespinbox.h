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
    Q_PROPERTY(bool displayStyleTracking READ displayStyleTracking WRITE setDisplayStyleTracking)

public:
    DoubleSpinBox();
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
    void directSetValue(float value);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setRange(double minimum, double maximum);
    /// The range from minus to plus the largest finite double.
    void useMaximumRange();

public Q_SLOTS:
    void setValue(double value);

    void on_valueChanged(double value);
    void on_valueChanged(const QString& text);
    void on_editingFinished();
    void on_lineEdit_textChanged(const QString& text);

Q_SIGNALS:
    void valueChanged(double d, void* userData);
    void valueChanged(const QString& text, void* userData);
    void editingFinished(void* userData);
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
