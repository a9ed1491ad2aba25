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
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)

public:
    explicit CheckBox(QWidget* parent = nullptr);
    explicit CheckBox(const QString& text, QWidget* parent = nullptr);
    ~CheckBox() override;

    bool isReadOnly() const;
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
