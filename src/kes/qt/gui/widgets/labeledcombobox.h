#ifndef KES_QT_GUI_WIDGETS_LABELEDCOMBOBOX_H
#define KES_QT_GUI_WIDGETS_LABELEDCOMBOBOX_H

#include <kes/qt/gui/widgets/abstractlabeledwidget.h>
#include <kes/qt/kes_qt_export.h>

#include <memory>

class QComboBox;

namespace kes::qt::gui::widgets {

struct LabeledComboBoxPrivate;

/// A label in front of the combo box, whose signals it re-emits as its own.
class KES_QT_EXPORT LabeledComboBox : public AbstractLabeledWidget
{
    Q_OBJECT

public:
    /// An empty label in front of an empty combo box.
    explicit LabeledComboBox(QWidget* parent = nullptr);
    /// \a labelText and ":" in front of an empty combo box.
    explicit LabeledComboBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledComboBox() override;

    QWidget* widget() const override;
    /// The field, for filling and reading it.
    QComboBox* comboBox() const;

Q_SIGNALS:
    /// Re-emitted from the combo box.
    void activated(int index);
    /// Re-emitted from the combo box.
    void activated(const QString& text);
    /// Re-emitted from the combo box.
    void currentIndexChanged(int index);
    /// Re-emitted from the combo box.
    void currentIndexChanged(const QString& text);
    /// Re-emitted from the combo box.
    void highlighted(int index);
    /// Re-emitted from the combo box.
    void highlighted(const QString& text);
    /// Re-emitted from the combo box.
    void editTextChanged(const QString& text);

private:
    void init();

    std::unique_ptr<LabeledComboBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
