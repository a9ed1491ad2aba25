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
    explicit LabeledComboBox(QWidget* parent = nullptr);
    explicit LabeledComboBox(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledComboBox() override;

    QWidget* widget() const override;
    QComboBox* comboBox() const;

Q_SIGNALS:
    void activated(int index);
    void activated(const QString& text);
    void currentIndexChanged(int index);
    void currentIndexChanged(const QString& text);
    void highlighted(int index);
    void highlighted(const QString& text);
    void editTextChanged(const QString& text);

private:
    void init();

    std::unique_ptr<LabeledComboBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
