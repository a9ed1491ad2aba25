#ifndef KES_QT_GUI_WIDGETS_LABELEDLINEEDIT_H
#define KES_QT_GUI_WIDGETS_LABELEDLINEEDIT_H

#include <kes/qt/gui/widgets/abstractlabeledwidget.h>
#include <kes/qt/kes_qt_export.h>

#include <memory>

class QLineEdit;

namespace kes::qt::gui::widgets {

struct LabeledLineEditPrivate;

/// A label in front of the line edit, whose signals it re-emits as its own.
class KES_QT_EXPORT LabeledLineEdit : public AbstractLabeledWidget
{
    Q_OBJECT
    /// The line edit's text.
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// An empty label in front of an empty line edit.
    explicit LabeledLineEdit(QWidget* parent = nullptr);
    /// \a labelText and ":" in front of an empty line edit.
    explicit LabeledLineEdit(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledLineEdit() override;

    QWidget* widget() const override;
    /// The field.
    QLineEdit* lineEdit() const;

    /// The line edit's text, so that forms can set it.
    QString text() const;

public Q_SLOTS:
    /// Sets the line edit's text.
    void setText(const QString& text);

Q_SIGNALS:
    /// Re-emitted from the line edit.
    void cursorPositionChanged(int oldPos, int newPos);
    /// Re-emitted from the line edit.
    void editingFinished();
    /// Re-emitted from the line edit.
    void returnPressed();
    /// Re-emitted from the line edit.
    void selectionChanged();
    /// Re-emitted from the line edit.
    void textChanged(const QString& text);
    /// Re-emitted from the line edit.
    void textEdited(const QString& text);

private:
    void init();

    std::unique_ptr<LabeledLineEditPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
