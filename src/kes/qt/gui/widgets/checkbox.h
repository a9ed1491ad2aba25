#ifndef KES_QT_GUI_WIDGETS_CHECKBOX_H
#define KES_QT_GUI_WIDGETS_CHECKBOX_H

#include <kes/qt/kes_qt_export.h>

#include <QCheckBox>
#include <QString>

#include <memory>

namespace kes::qt::gui::widgets {

class CheckBoxPrivate;

/// A check box that can be made read-only: the user can then toggle it neither with the mouse
/// nor with the keyboard (Space or its shortcut), while setChecked() still works. It looks the
/// same either way.
class KES_QT_EXPORT CheckBox : public QCheckBox
{
    Q_OBJECT
    /// Whether the user is kept from toggling the box; off by default.
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)

public:
    /// An unchecked box without text, not read-only.
    explicit CheckBox(QWidget* parent = nullptr);
    /// An unchecked box labelled \a text, not read-only.
    explicit CheckBox(const QString& text, QWidget* parent = nullptr);
    ~CheckBox() override;

    /// Whether the user is kept from toggling the box.
    bool isReadOnly() const;
    /// Keeps the user from toggling the box, or lets them again.
    void setReadOnly(bool readOnly);

protected:
    /// False while read-only.
    bool hitButton(const QPoint& pos) const override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    std::unique_ptr<CheckBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
